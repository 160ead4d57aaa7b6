// Drawing files that hold nothing but a preview image.
#pragma once

#include <cstdint>
#include <string>

namespace preview_bytes {

inline void put32(std::string& out, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) out += static_cast<char>(value >> shift);
}

/// A device-independent bitmap, uncompressed; `used` entries of a colour table are said to be there. Behind
/// the header are bytes of 0x55 up to `size`.
inline std::string dibOf(std::uint32_t width, std::int32_t height, char bits, std::uint32_t used,
                         std::size_t size) {
    std::string dib;
    put32(dib, 40);
    put32(dib, width);
    put32(dib, static_cast<std::uint32_t>(height));
    dib += std::string("\x01\x00", 2) + bits + '\0';
    for (int i = 0; i < 4; ++i) put32(dib, 0);
    put32(dib, used);
    put32(dib, 0);
    dib.resize(size, '\x55');
    return dib;
}

/// An image of 24 bits all of one colour, each pixel's three bytes being 0x55.
inline std::string greyDib(std::uint32_t width, std::uint32_t height) {
    return dibOf(width, static_cast<std::int32_t>(height), 24, 0, 40 + (width * 3 + 3) / 4 * 4 * height);
}

/// A DWG file whose preview section has a header and this image.
inline std::string dwgWith(const std::string& dib) {
    constexpr std::uint32_t kSection = 64;
    std::string file = "AC1015";
    file.resize(13);
    put32(file, kSection);
    file.resize(kSection);
    file += std::string("\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B", 16);
    put32(file, 100);
    file += '\x02';
    file += '\x01';
    put32(file, 200);
    put32(file, 0);
    file += '\x02';
    put32(file, static_cast<std::uint32_t>(file.size()) + 8);
    put32(file, static_cast<std::uint32_t>(dib.size()));
    return file + dib;
}

}  // namespace preview_bytes
