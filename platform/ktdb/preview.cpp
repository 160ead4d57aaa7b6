// The preview image of drawing files.
//
// A DXF file holds it as bytes of code 310 in the section THUMBNAILIMAGE, which stands near its end. A DWG
// file holds at byte 13 the place of a preview section: a mark of 16 bytes, its size, a count, and for each
// image its kind (KtdbPreviewKind), place and size. Of a file on disk only what is needed is read.

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "ktdb.h"
#include "preview_image.h"

namespace {

/// Bytes that are read by place, from memory or from a file.
class Source {
public:
    explicit Source(std::uint64_t size) : m_size(size) {}
    virtual ~Source() = default;
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    std::uint64_t size() const { return m_size; }
    /// Reads `count` bytes at `at`; false unless all are there.
    bool read(std::uint64_t at, std::size_t count, std::string& bytes) {
        if (at > m_size || count > m_size - at) return false;
        bytes.resize(count);
        return get(at, bytes);
    }

protected:
    virtual bool get(std::uint64_t at, std::string& bytes) = 0;

private:
    std::uint64_t m_size;
};

class MemorySource final : public Source {
public:
    MemorySource(const std::uint8_t* bytes, std::size_t size) : Source(size), m_bytes(bytes) {}

private:
    bool get(std::uint64_t at, std::string& bytes) override {
        std::memcpy(bytes.data(), m_bytes + at, bytes.size());
        return true;
    }
    const std::uint8_t* m_bytes;
};

class FileSource final : public Source {
public:
    FileSource(std::FILE* file, std::uint64_t size) : Source(size), m_file(file) {}

private:
    bool get(std::uint64_t at, std::string& bytes) override {
        return std::fseek(m_file, static_cast<long>(at), SEEK_SET) == 0 &&
               std::fread(bytes.data(), 1, bytes.size(), m_file) == bytes.size();
    }
    std::FILE* m_file;
};

const std::uint8_t* raw(const std::string& bytes) {
    return reinterpret_cast<const std::uint8_t*>(bytes.data());
}

int take(int kind, const std::string& bytes, KtdbPreview& preview) {
    const std::size_t size = ktdbPreviewImageSize(kind, raw(bytes), bytes.size());
    if (!size) return kKtdbInvalid;
    preview.kind = kind;
    preview.bytes.assign(raw(bytes), raw(bytes) + size);
    return kKtdbOk;
}

int findInDwg(Source& file, KtdbPreview& preview) {
    constexpr std::size_t kSeekerPlace = 13;
    constexpr std::size_t kEntrySize = 9;
    constexpr std::uint8_t kMark[16] = {0x1F, 0x25, 0x6D, 0x07, 0xD4, 0x36, 0x28, 0x28,
                                        0x9D, 0x57, 0xCA, 0x3F, 0x9D, 0x44, 0x10, 0x2B};
    std::string bytes;
    if (!file.read(kSeekerPlace, 4, bytes)) return kKtdbInvalid;
    const std::uint32_t section = ktdbNumber32(raw(bytes));
    if (!file.read(section, sizeof kMark + 5, bytes) || std::memcmp(bytes.data(), kMark, sizeof kMark) != 0)
        return kKtdbInvalid;
    const std::size_t count = raw(bytes)[sizeof kMark + 4];
    const std::uint64_t entries = std::uint64_t{section} + sizeof kMark + 5;
    std::string table;
    if (!file.read(entries, count * kEntrySize, table)) return kKtdbInvalid;
    // The kinds in the order in which they show a drawing best.
    for (const int kind : {kKtdbPreviewDib, kKtdbPreviewPng, kKtdbPreviewWmf})
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint8_t* entry = raw(table) + i * kEntrySize;
            const std::uint32_t length = ktdbNumber32(entry + 5);
            if (entry[0] == kind && file.read(ktdbNumber32(entry + 1), length, bytes))
                return take(kind, bytes, preview);
        }
    return kKtdbInvalid;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::string_view takeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
    while (!line.empty() && line.front() == ' ') line.remove_prefix(1);
    return line;
}

constexpr std::string_view kSectionName = "THUMBNAILIMAGE";

/// The image in the pairs of a text file that `text` begins with.
int findInDxfText(std::string_view text, KtdbPreview& preview, bool inside = false) {
    std::string bytes;
    while (!text.empty()) {
        const std::string_view code = takeLine(text);
        const std::string_view value = takeLine(text);
        if (code == "2" && value == kSectionName) inside = true;
        if (inside && code == "0") break;
        if (!inside || code != "310") continue;
        for (std::size_t i = 0; i + 1 < value.size(); i += 2) {
            const int high = hexDigit(value[i]);
            const int low = hexDigit(value[i + 1]);
            if (high < 0 || low < 0) return kKtdbInvalid;
            bytes.push_back(static_cast<char>(high * 16 + low));
        }
    }
    return take(kKtdbPreviewDib, bytes, preview);
}

/// The image in the groups of a binary file, with codes of two bytes, that follow the section's name.
int findInBinaryDxf(std::string_view groups, KtdbPreview& preview) {
    constexpr std::uint32_t kSizeOfImage = 90;
    constexpr std::uint32_t kBytes = 310;
    std::string bytes;
    while (groups.size() >= 3) {
        const auto* at = reinterpret_cast<const std::uint8_t*>(groups.data());
        const std::uint32_t code = ktdbNumber16(at);
        const std::size_t length = code == kBytes ? at[2] + std::size_t{1} : 4;
        if ((code != kSizeOfImage && code != kBytes) || length > groups.size() - 2) break;
        if (code == kBytes) bytes += groups.substr(3, length - 1);
        groups.remove_prefix(2 + length);
    }
    return take(kKtdbPreviewDib, bytes, preview);
}

int findInDxf(Source& file, bool binary, KtdbPreview& preview) {
    constexpr std::uint64_t kTail = 1u << 21;
    std::string tail;
    const std::uint64_t from = file.size() > kTail ? file.size() - kTail : 0;
    if (!file.read(from, static_cast<std::size_t>(file.size() - from), tail)) return kKtdbInvalid;
    if (from == 0 && !binary) return findInDxfText(tail, preview);
    std::size_t at = tail.rfind(kSectionName);
    if (at == std::string::npos && from != 0) {
        if (!file.read(0, static_cast<std::size_t>(file.size()), tail)) return kKtdbInvalid;
        if (!binary) return findInDxfText(tail, preview);
        at = tail.rfind(kSectionName);
    }
    if (at == std::string::npos) return kKtdbInvalid;
    std::string_view rest = std::string_view(tail).substr(at);
    if (binary) return findInBinaryDxf(rest.substr(std::min(rest.size(), kSectionName.size() + 1)), preview);
    takeLine(rest);
    return findInDxfText(rest, preview, true);
}

int find(Source& file, KtdbPreview& preview) {
    constexpr std::string_view kBinary("AutoCAD Binary DXF\r\n\x1a", 21);
    std::string beginning;
    const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(file.size(), kBinary.size()));
    if (!file.read(0, count, beginning)) return kKtdbInvalid;
    if (beginning.compare(0, 4, "AC10") == 0) return findInDwg(file, preview);
    return findInDxf(file, beginning == kBinary, preview);
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::unique_ptr<std::FILE, CloseFile> openFile(const wchar_t* path) {
#ifdef _WIN32
    return std::unique_ptr<std::FILE, CloseFile>(_wfopen(path, L"rb"));
#else
    return std::unique_ptr<std::FILE, CloseFile>(std::fopen(odUtf8(path).c_str(), "rb"));
#endif
}

}  // namespace

int ktdbFindPreview(const std::uint8_t* bytes, std::size_t size, KtdbPreview& preview) {
    if (!bytes) return kKtdbInvalid;
    MemorySource source(bytes, size);
    return find(source, preview);
}

int ktdbReadPreview(const wchar_t* path, KtdbPreview& preview) {
    constexpr long kLargestFile = 1L << 30;
    if (!path || !*path) return kKtdbInvalid;
    const auto file = openFile(path);
    if (!file || std::fseek(file.get(), 0, SEEK_END) != 0) return kKtdbInvalid;
    const long size = std::ftell(file.get());
    if (size < 0 || size > kLargestFile) return kKtdbInvalid;
    FileSource source(file.get(), static_cast<std::uint64_t>(size));
    return find(source, preview);
}
