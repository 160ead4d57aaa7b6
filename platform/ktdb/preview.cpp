// The preview image of drawing files.
//
// A DXF file holds it as hexadecimal text in the section THUMBNAILIMAGE. A DWG file holds at byte 13 the
// place of a preview section: a mark of 16 bytes, its size, a count, and for each image its kind (2 is a
// device-independent bitmap), place and size.

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "ktdb.h"

namespace {

constexpr std::size_t kInfoHeaderSize = 40;
constexpr long kLargestFile = 1L << 30;

std::uint32_t number32(const std::uint8_t* at) {
    return static_cast<std::uint32_t>(at[0]) | (static_cast<std::uint32_t>(at[1]) << 8) |
           (static_cast<std::uint32_t>(at[2]) << 16) | (static_cast<std::uint32_t>(at[3]) << 24);
}

std::uint32_t number16(const std::uint8_t* at) { return at[0] | (static_cast<std::uint32_t>(at[1]) << 8); }

/// Size in bytes that the image's own header calls for; 0 if the header isn't one that can be shown.
std::size_t sizeByHeader(const std::uint8_t* dib, std::size_t size) {
    constexpr std::uint32_t kGreatestSide = 8192;
    if (size < kInfoHeaderSize || number32(dib) != kInfoHeaderSize) return 0;
    const std::uint32_t width = number32(dib + 4);
    const auto signedHeight = static_cast<std::int32_t>(number32(dib + 8));
    const std::uint32_t height = signedHeight < 0 ? 0u - static_cast<std::uint32_t>(signedHeight)
                                                  : static_cast<std::uint32_t>(signedHeight);
    const std::uint32_t bits = number16(dib + 14);
    const std::uint32_t compression = number32(dib + 16);
    const std::uint32_t used = number32(dib + 32);
    if (!width || !height || width > kGreatestSide || height > kGreatestSide || compression != 0) return 0;
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32) return 0;
    if (used > 256) return 0;
    const std::size_t colors = used ? used : bits <= 8 ? std::size_t{1} << bits : 0;
    const std::size_t row = (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
    return kInfoHeaderSize + colors * 4 + row * height;
}

int take(const std::uint8_t* bytes, std::size_t size, std::vector<std::uint8_t>& dib) {
    const std::size_t needed = sizeByHeader(bytes, size);
    if (!needed || needed > size) return kKtdbInvalid;
    dib.assign(bytes, bytes + needed);
    return kKtdbOk;
}

int findInDwg(const std::uint8_t* bytes, std::size_t size, std::vector<std::uint8_t>& dib) {
    constexpr std::size_t kSeekerPlace = 13;
    constexpr std::uint8_t kBitmapKind = 2;
    constexpr std::size_t kEntrySize = 9;
    constexpr std::uint8_t kMark[16] = {0x1F, 0x25, 0x6D, 0x07, 0xD4, 0x36, 0x28, 0x28,
                                        0x9D, 0x57, 0xCA, 0x3F, 0x9D, 0x44, 0x10, 0x2B};
    if (size < kSeekerPlace + 4) return kKtdbInvalid;
    const std::size_t section = number32(bytes + kSeekerPlace);
    const std::size_t entries = section + sizeof kMark + 5;
    if (section == 0 || entries > size || std::memcmp(bytes + section, kMark, sizeof kMark) != 0)
        return kKtdbInvalid;
    const std::size_t count = bytes[section + sizeof kMark + 4];
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = entries + i * kEntrySize;
        if (entry + kEntrySize > size) return kKtdbInvalid;
        const std::size_t start = number32(bytes + entry + 1);
        const std::size_t length = number32(bytes + entry + 5);
        if (bytes[entry] == kBitmapKind && start <= size && length <= size - start)
            return take(bytes + start, length, dib);
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

int findInDxf(std::string_view text, std::vector<std::uint8_t>& dib) {
    std::vector<std::uint8_t> bytes;
    bool inside = false;
    while (!text.empty()) {
        const std::string_view code = takeLine(text);
        const std::string_view value = takeLine(text);
        if (code == "2" && value == "THUMBNAILIMAGE") inside = true;
        if (inside && code == "0") break;
        if (!inside || code != "310") continue;
        for (std::size_t i = 0; i + 1 < value.size(); i += 2) {
            const int high = hexDigit(value[i]);
            const int low = hexDigit(value[i + 1]);
            if (high < 0 || low < 0) return kKtdbInvalid;
            bytes.push_back(static_cast<std::uint8_t>(high * 16 + low));
        }
    }
    return take(bytes.data(), bytes.size(), dib);
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

int ktdbFindPreviewDib(const std::uint8_t* bytes, std::size_t size, std::vector<std::uint8_t>& dib) {
    if (!bytes) return kKtdbInvalid;
    if (size > 6 && std::memcmp(bytes, "AC10", 4) == 0) return findInDwg(bytes, size, dib);
    return findInDxf(std::string_view(reinterpret_cast<const char*>(bytes), size), dib);
}

int ktdbReadPreviewDib(const wchar_t* path, std::vector<std::uint8_t>& dib) {
    if (!path || !*path) return kKtdbInvalid;
    const auto file = openFile(path);
    if (!file || std::fseek(file.get(), 0, SEEK_END) != 0) return kKtdbInvalid;
    const long size = std::ftell(file.get());
    if (size <= 0 || size > kLargestFile || std::fseek(file.get(), 0, SEEK_SET) != 0) return kKtdbInvalid;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) return kKtdbInvalid;
    return ktdbFindPreviewDib(bytes.data(), bytes.size(), dib);
}
