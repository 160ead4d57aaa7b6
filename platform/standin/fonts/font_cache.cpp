#include "font_cache.h"

#include <algorithm>
#include <cstring>
#include <set>

#include "byte_source.h"
#include "cache_bytes.h"
#include "folded_name.h"
#include "font_storage.h"

namespace {

constexpr std::string_view kMark = "ktfonts\x1A";
// Goes up with every change of the stored form, and of what the readers find in a file.
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kChecksumSize = 8;
constexpr std::uint32_t kMostFaces = 256;

std::uint64_t checksumOf(std::string_view bytes) {
    std::uint64_t sum = 0xCBF29CE484222325u;
    for (const char one : bytes) sum = (sum ^ static_cast<unsigned char>(one)) * 0x100000001B3u;
    return sum;
}

void writeFile(CacheWriter& out, const FontFile& file) {
    out.number(static_cast<std::uint8_t>(file.kind));
    out.number(static_cast<std::uint8_t>(file.problem));
    out.number(static_cast<std::uint16_t>(file.faces.size()));
    for (const FontFace& face : file.faces) {
        out.text(face.family);
        out.text(face.style);
        out.number(face.weight);
        out.number(face.width);
        out.number(static_cast<std::uint8_t>(face.isItalic));
    }
}

bool readFace(CacheReader& in, FontFace& face) {
    std::uint8_t italic = 0;
    if (!in.text(face.family) || !in.text(face.style) || !in.number(face.weight) || !in.number(face.width) ||
        !in.number(italic))
        return false;
    face.isItalic = italic != 0;
    return !face.family.empty() && !face.style.empty();
}

/// Whether kind, problem and faces fit each other.
bool isSound(const FontFile& file) {
    if ((file.kind == FontKind::kNone) == (file.problem == FontProblem::kNone)) return false;
    return (file.kind == FontKind::kTrueType) == !file.faces.empty();
}

bool readFile(CacheReader& in, FontFile& file) {
    std::uint8_t kind = 0;
    std::uint8_t problem = 0;
    std::uint16_t faces = 0;
    if (!in.number(kind) || !in.number(problem) || !in.number(faces) || faces > kMostFaces ||
        kind > static_cast<std::uint8_t>(FontKind::kBigFont) ||
        problem > static_cast<std::uint8_t>(FontProblem::kNoLetters))
        return false;
    file.kind = static_cast<FontKind>(kind);
    file.problem = static_cast<FontProblem>(problem);
    for (std::uint16_t i = 0; i < faces; ++i) {
        FontFace face;
        if (!readFace(in, face)) return false;
        file.faces.push_back(std::move(face));
    }
    return isSound(file);
}

/// The folder of a path, without the separator.
std::wstring_view folderOf(std::wstring_view path) {
    const std::size_t name = fileNameOf(path).size();
    return path.substr(0, path.size() - std::min(path.size(), name + 1));
}

}  // namespace

std::string sealFontCache(std::string content) {
    CacheWriter sum;
    sum.number(checksumOf(content));
    return content + sum.bytes();
}

const FontFile* FontCache::find(const FontFileStamp& stamp) const {
    const auto found = m_files.find(stamp.path);
    if (found == m_files.end() || found->second.size != stamp.size || found->second.time != stamp.time)
        return nullptr;
    return &found->second.file;
}

void FontCache::put(const FontFileStamp& stamp, const FontFile& file) {
    m_files[stamp.path] = {stamp.size, stamp.time, file};
    m_hasChanged = true;
}

void FontCache::forgetMissing(const std::vector<std::wstring>& folders,
                              const std::vector<FontFileStamp>& listed) {
    std::set<std::wstring> scanned;
    for (const std::wstring& folder : folders) {
        std::wstring_view plain(folder);
        while (!plain.empty() && (plain.back() == L'\\' || plain.back() == L'/')) plain.remove_suffix(1);
        scanned.insert(FoldedName(plain));
    }
    std::set<std::wstring> present;
    for (const FontFileStamp& stamp : listed) present.insert(stamp.path);
    const bool isTooMuch = m_files.size() > kMostFiles;
    const std::size_t removed = std::erase_if(m_files, [&](const auto& file) {
        if (present.contains(file.first)) return false;
        return isTooMuch || scanned.contains(FoldedName(folderOf(file.first)));
    });
    m_hasChanged = m_hasChanged || removed > 0;
}

std::string FontCache::encode() const {
    CacheWriter out;
    out.raw(kMark);
    out.number(kVersion);
    out.number(static_cast<std::uint32_t>(m_files.size()));
    for (const auto& [path, entry] : m_files) {
        out.text(path);
        out.number(entry.size);
        out.number(static_cast<std::uint64_t>(entry.time));
        writeFile(out, entry.file);
    }
    return sealFontCache(out.bytes());
}

bool FontCache::decode(std::string_view bytes) {
    m_files.clear();
    m_hasChanged = true;
    if (bytes.size() < kMark.size() + kChecksumSize || bytes.substr(0, kMark.size()) != kMark) return false;
    const std::string_view content = bytes.substr(0, bytes.size() - kChecksumSize);
    if (sealFontCache(std::string(content)) != bytes) return false;
    CacheReader in(content.substr(kMark.size()));
    std::uint32_t version = 0;
    std::uint32_t count = 0;
    if (!in.number(version) || version != kVersion || !in.number(count)) return false;
    std::map<std::wstring, Entry> files;
    for (std::uint32_t i = 0; i < count; ++i) {
        std::wstring path;
        Entry entry{};
        std::uint64_t time = 0;
        if (!in.text(path) || path.empty() || !in.number(entry.size) || !in.number(time) ||
            !readFile(in, entry.file))
            return false;
        entry.time = static_cast<std::int64_t>(time);
        files.insert_or_assign(std::move(path), std::move(entry));
    }
    if (!in.isAtEnd()) return false;
    m_files = std::move(files);
    m_hasChanged = false;
    return true;
}

bool FontCache::load(const std::wstring& path) {
    constexpr std::uint64_t kLargest = 64u << 20;  // bytes
    FileSource source(path.c_str());
    std::string bytes;
    if (source.state() == FileSource::State::kOpen && source.size() <= kLargest) {
        bytes.resize(static_cast<std::size_t>(source.size()));
        if (!source.read(0, bytes.data(), bytes.size())) bytes.clear();
    }
    return decode(bytes);
}

bool FontCache::save(const std::wstring& path) {
    if (!replaceFile(path, encode())) return false;
    m_hasChanged = false;
    return true;
}
