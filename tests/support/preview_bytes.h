// Drawing files that hold nothing but a preview image.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

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

/// A DWG file whose preview section has these images: each its kind and its bytes.
inline std::string dwgWithImages(const std::vector<std::pair<char, std::string>>& images) {
    constexpr std::uint32_t kSection = 64;
    std::string file = "AC1015";
    file.resize(13);
    put32(file, kSection);
    file.resize(kSection);
    file += std::string("\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B", 16);
    put32(file, 100);
    file += static_cast<char>(images.size());
    std::size_t place = file.size() + 9 * images.size();
    for (const auto& [kind, bytes] : images) {
        file += kind;
        put32(file, static_cast<std::uint32_t>(place));
        put32(file, static_cast<std::uint32_t>(bytes.size()));
        place += bytes.size();
    }
    for (const auto& image : images) file += image.second;
    return file;
}

/// A DWG file whose preview section has a header of no length and this bitmap.
inline std::string dwgWith(const std::string& dib) { return dwgWithImages({{'\x01', ""}, {'\x02', dib}}); }

/// A PNG file of one row, with the four bytes red, green, blue and opacity for each pixel; nothing in it is
/// compressed.
inline std::string pngOf(const std::string& pixels) {
    const auto put32First = [](std::string& out, std::uint32_t value) {
        for (int shift = 24; shift >= 0; shift -= 8) out += static_cast<char>(value >> shift);
    };
    std::string png("\x89PNG\r\n\x1A\n", 8);
    const auto chunk = [&](const std::string& typed) {
        put32First(png, static_cast<std::uint32_t>(typed.size() - 4));
        std::uint32_t check = ~0u;
        for (const char c : typed) {
            check ^= static_cast<unsigned char>(c);
            for (int bit = 0; bit < 8; ++bit) check = check & 1 ? check >> 1 ^ 0xEDB88320u : check >> 1;
        }
        png += typed;
        put32First(png, ~check);
    };
    std::string header = "IHDR";
    put32First(header, static_cast<std::uint32_t>(pixels.size() / 4));
    put32First(header, 1);
    chunk(header + std::string("\x08\x06\x00\x00\x00", 5));
    const std::string row = std::string(1, '\0') + pixels;
    std::uint32_t low = 1, high = 0;
    for (const char c : row) high = (high + (low = (low + static_cast<unsigned char>(c)) % 65521)) % 65521;
    std::string data = std::string("IDAT\x78\x01\x01", 7);
    const auto length = static_cast<std::uint16_t>(row.size());
    for (const std::uint32_t half : {std::uint32_t{length}, ~std::uint32_t{length}})
        for (const int shift : {0, 8}) data += static_cast<char>(half >> shift);
    data += row;
    put32First(data, high << 16 | low);
    chunk(data);
    chunk("IEND");
    return png;
}

/// A metafile in a window of this size whose corner is at (`left`, `top`); it fills the right half with one
/// colour.
inline std::string wmfOf(std::uint16_t across, std::uint16_t down, bool placeable, std::uint16_t left = 0,
                         std::uint16_t top = 0) {
    const auto put16 = [](std::string& out, std::uint32_t value) {
        for (const int shift : {0, 8}) out += static_cast<char>(value >> shift);
    };
    std::string records;
    const auto record = [&](std::uint32_t function, const std::vector<std::uint32_t>& words) {
        put32(records, static_cast<std::uint32_t>(3 + words.size()));
        put16(records, function);
        for (const std::uint32_t word : words) put16(records, word);
    };
    if (!placeable) {
        record(0x0102, {1});  // a record that says nothing of the window
        record(0x020B, {top, left});
        record(0x020C, {down, across});
    }
    record(0x02FC, {0, 0x8040, 0x00C0, 0});  // a solid brush of red 0x40, green 0x80, blue 0xC0
    record(0x012D, {0});
    record(0x061D, {0x0021, 0x00F0, down, across / 2u, top, left + across / 2u});
    record(0x020C, {7, 7});  // the first one counts
    record(0, {});
    std::string file;
    if (placeable) {
        put32(file, 0x9AC6CDD7);
        for (const std::uint32_t word :
             {0u, std::uint32_t{left}, std::uint32_t{top}, std::uint32_t{left} + across,
              std::uint32_t{top} + down, 1440u, 0u, 0u})
            put16(file, word);
        std::uint32_t check = 0;
        for (std::size_t i = 0; i < file.size(); i += 2)
            check ^= static_cast<unsigned char>(file[i]) | static_cast<unsigned char>(file[i + 1]) << 8;
        put16(file, check);
    }
    for (const std::uint32_t word : {1u, 9u, 0x300u}) put16(file, word);
    put32(file, static_cast<std::uint32_t>(9 + records.size() / 2));
    put16(file, 1);
    put32(file, 9);
    put16(file, 0);
    return file + records;
}

}  // namespace preview_bytes
