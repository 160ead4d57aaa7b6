// What was read from font files, kept so that a file is read again only when its size or time has changed.
//
//     FontCache cache;
//     cache.load(path);
//     if (const FontFile* known = cache.find(file)) ...
//     cache.put(file, readFontFile(file.path));
//     if (cache.hasChanged()) cache.save(path);
//
// The stored form is a text of bytes with a version and a checksum: anything else, a file cut short or
// written by another version, counts as no cache. It is only ever a saving of time.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "font_file.h"

/// A file as a folder lists it.
struct FontFileStamp {
    std::wstring path;
    std::uint64_t size = 0;  ///< bytes
    std::int64_t time = 0;   ///< of the last change, in units of the system

    bool operator==(const FontFileStamp&) const = default;
};

class STANDIN_API FontCache {
public:
    /// What is known of the file, if it is as it was; null otherwise. Valid until the next change.
    const FontFile* find(const FontFileStamp& stamp) const;
    /// Keeps `file` as the content of the file with this stamp.
    void put(const FontFileStamp& stamp, const FontFile& file);
    /// Drops every file below one of `folders` that `listed` doesn't have: it is gone. Files of other folders
    /// stay, because a host with folders of its own uses the same cache. Beyond kMostFiles they go, too.
    void forgetMissing(const std::vector<std::wstring>& folders, const std::vector<FontFileStamp>& listed);

    /// Whether the content differs from what was last loaded or saved.
    bool hasChanged() const { return m_hasChanged; }
    std::size_t size() const { return m_files.size(); }

    /// The stored form.
    std::string encode() const;
    /// Takes the content of a stored form; false, with an empty cache, if it isn't whole.
    bool decode(std::string_view bytes);

    /// Loads the file at `path`; false, with an empty cache, if there is none or it isn't whole.
    bool load(const std::wstring& path);
    /// Puts the content in the place of the file at `path` in one step; false, with the file as it was, if
    /// that can't be done.
    bool save(const std::wstring& path);

    static constexpr std::size_t kMostFiles = 20000;

private:
    struct Entry {
        std::uint64_t size;
        std::int64_t time;
        FontFile file;
    };
    std::map<std::wstring, Entry> m_files;
    bool m_hasChanged = false;
};

/// Appends the checksum with which the stored form of a cache ends.
STANDIN_API std::string sealFontCache(std::string content);
