#include "pictures/picture_header.h"

#include <algorithm>

namespace {

/// Numbers at places of a file; what lies beyond its end is 0.
class Bytes {
public:
    explicit Bytes(std::string_view bytes) : m_bytes(bytes) {}
    std::size_t size() const { return m_bytes.size(); }
    bool startsWith(std::string_view text) const { return m_bytes.starts_with(text); }
    unsigned byte(std::size_t at) const {
        return at < m_bytes.size() ? static_cast<unsigned char>(m_bytes[at]) : 0;
    }
    unsigned little16(std::size_t at) const { return byte(at) | byte(at + 1) << 8; }
    unsigned big16(std::size_t at) const { return byte(at) << 8 | byte(at + 1); }
    std::uint32_t little32(std::size_t at) const {
        return little16(at) | static_cast<std::uint32_t>(little16(at + 2)) << 16;
    }
    std::uint32_t big32(std::size_t at) const {
        return static_cast<std::uint32_t>(big16(at)) << 16 | big16(at + 2);
    }

private:
    std::string_view m_bytes;
};

PictureHeader headerOf(PictureKind kind, std::uint64_t width, std::uint64_t height, bool bitonal = false) {
    constexpr std::uint64_t kLargest = 1 << 24;
    if (width == 0 || height == 0 || width > kLargest || height > kLargest) return {};
    return {kind, static_cast<int>(width), static_cast<int>(height), bitonal, width * height};
}

PictureHeader readBmp(const Bytes& file) {
    constexpr std::size_t kOldHeader = 12;
    if (file.little32(14) == kOldHeader)
        return headerOf(PictureKind::kBmp, file.little16(18), file.little16(20));
    // Rows from the top have a height below 0.
    const std::uint32_t height = file.little32(22);
    return headerOf(PictureKind::kBmp, file.little32(18), std::min(height, 0u - height),
                    file.little16(28) == 1);
}

PictureHeader readPng(const Bytes& file) {
    return headerOf(PictureKind::kPng, file.big32(16), file.big32(20), file.byte(24) == 1);
}

/// Segments up to the one that says how the picture is packed.
PictureHeader readJpeg(const Bytes& file) {
    for (std::size_t at = 2; at + 8 < file.size();) {
        if (file.byte(at) != 0xFF) return {};
        const unsigned marker = file.byte(at + 1);
        const bool isFrame =
            marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
        if (isFrame) return headerOf(PictureKind::kJpeg, file.big16(at + 7), file.big16(at + 5));
        const bool isAlone = marker == 0xFF || marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        if (marker == 0xFF)
            ++at;
        else
            at += isAlone ? 2 : 2 + std::max(2u, file.big16(at + 2));
    }
    return {};
}

std::size_t afterColors(std::size_t at, unsigned flags) {
    return (flags & 0x80) != 0 ? at + (std::size_t{3} << ((flags & 7) + 1)) : at;
}

/// The pictures of a GIF file are unpacked together.
PictureHeader readGif(const Bytes& file) {
    constexpr unsigned kExtension = 0x21, kPicture = 0x2C;
    PictureHeader header;
    std::uint64_t pixels = 0;
    const auto afterBlocks = [&file](std::size_t at) {
        while (at < file.size() && file.byte(at) != 0) at += 1 + file.byte(at);
        return at + 1;
    };
    for (std::size_t at = afterColors(13, file.byte(10)); at < file.size();) {
        const unsigned kind = file.byte(at);
        if (kind == kExtension) {
            at = afterBlocks(at + 2);
        } else if (kind == kPicture) {
            const PictureHeader each =
                headerOf(PictureKind::kGif, file.little16(at + 5), file.little16(at + 7));
            if (header.kind == PictureKind::kNone) header = each;
            pixels += each.pixels;
            at = afterBlocks(afterColors(at + 10, file.byte(at + 9)) + 1);
        } else {
            break;
        }
    }
    header.pixels = pixels;
    return header;
}

PictureHeader readTiff(const Bytes& file, bool isLittle) {
    constexpr unsigned kWidth = 256, kHeight = 257, kBits = 258, kSamples = 277, kShort = 3;
    const auto number16 = [&](std::size_t at) { return isLittle ? file.little16(at) : file.big16(at); };
    const auto number32 = [&](std::size_t at) { return isLittle ? file.little32(at) : file.big32(at); };
    const std::size_t directory = number32(4);
    std::uint64_t width = 0, height = 0, bits = 1, samples = 1;
    for (unsigned i = 0; i < number16(directory); ++i) {
        const std::size_t entry = directory + 2 + std::size_t{12} * i;
        const std::uint64_t value = number16(entry + 2) == kShort ? number16(entry + 8) : number32(entry + 8);
        if (number16(entry) == kWidth) width = value;
        if (number16(entry) == kHeight) height = value;
        if (number16(entry) == kBits) bits = value;
        if (number16(entry) == kSamples) samples = value;
    }
    return headerOf(PictureKind::kTiff, width, height, bits == 1 && samples == 1);
}

}  // namespace

PictureHeader ReadPictureHeader(std::string_view bytes) {
    using namespace std::string_view_literals;
    const Bytes file(bytes);
    if (file.startsWith("BM")) return readBmp(file);
    if (file.startsWith("\x89PNG\r\n\x1A\n")) return readPng(file);
    if (file.startsWith("\xFF\xD8\xFF")) return readJpeg(file);
    if (file.startsWith("GIF87a") || file.startsWith("GIF89a")) return readGif(file);
    if (file.startsWith("II*\0"sv)) return readTiff(file, true);
    if (file.startsWith("MM\0*"sv)) return readTiff(file, false);
    return {};
}
