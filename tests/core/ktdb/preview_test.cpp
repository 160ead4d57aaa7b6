#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

#include "../../support/preview_bytes.h"
#include "number_cases.h"

using preview_bytes::dibOf, preview_bytes::dwgWith, preview_bytes::dwgWithImages, preview_bytes::pngOf,
    preview_bytes::put32, preview_bytes::wmfOf;

namespace {

/// A 2 by 2 image of 24 bits.
std::string smallDib() {
    std::string dib;
    put32(dib, 40);
    put32(dib, 2);
    put32(dib, 2);
    dib += std::string("\x01\x00\x18\x00", 4);
    for (int i = 0; i < 6; ++i) put32(dib, 0);
    return dib + std::string(16, '\x55');
}

std::string hex(const std::string& bytes) {
    std::string text;
    for (const char c : bytes) {
        text += "0123456789ABCDEF"[(c >> 4) & 15];
        text += "0123456789ABCDEF"[c & 15];
    }
    return text;
}

std::string dxfWith(const std::string& hexText) {
    return "  0\r\nSECTION\r\n  2\r\nTHUMBNAILIMAGE\r\n 90\r\n56\r\n310\r\n" + hexText.substr(0, 40) +
           "\r\n310\r\n" + hexText.substr(40) + "\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
}

bool find(const std::string& file, std::string& dib) {
    KtdbPreview found;
    const int status =
        ktdbFindPreview(reinterpret_cast<const std::uint8_t*>(file.data()), file.size(), found);
    dib.assign(found.bytes.begin(), found.bytes.end());
    return status == kKtdbOk && found.kind == kKtdbPreviewDib;
}

}  // namespace

TEST(Preview, IsFoundInADxf) {
    std::string dib;
    ASSERT_TRUE(find(dxfWith(hex(smallDib())), dib));
    EXPECT_EQ(dib, smallDib());
}

TEST(Preview, IsFoundInADwg) {
    std::string dib;
    ASSERT_TRUE(find(dwgWith(smallDib()), dib));
    EXPECT_EQ(dib, smallDib());
}

TEST(Preview, CutShortAnywhereItIsRefused) {
    std::string dib;
    const std::string dwg = dwgWith(smallDib());
    for (std::size_t size = 0; size < dwg.size(); ++size)
        EXPECT_FALSE(find(dwg.substr(0, size), dib)) << size;
}

TEST(Preview, ItsSizeFollowsFromItsHeader) {
    struct {
        std::uint32_t width;
        std::int32_t height;
        char bits;
        std::uint32_t used;
        std::size_t size;  // header, table of 4 bytes a colour, rows of whole 4 bytes
    } const cases[] = {
        {1, 1, 1, 0, 40 + 2 * 4 + 4},
        {33, 1, 1, 0, 40 + 2 * 4 + 8},
        {8, 2, 4, 0, 40 + 16 * 4 + 8},
        {9, 2, 4, 0, 40 + 16 * 4 + 16},
        {5, 3, 8, 0, 40 + 256 * 4 + 24},
        {5, 3, 8, 7, 40 + 7 * 4 + 24},
        {5, 3, 8, 256, 40 + 256 * 4 + 24},
        {2, 2, 16, 0, 40 + 8},
        {3, 1, 16, 0, 40 + 8},
        {3, 2, 24, 0, 40 + 24},
        {3, -2, 24, 0, 40 + 24},
        {1, 3, 32, 0, 40 + 12},
        {1, 3, 32, 5, 40 + 5 * 4 + 12},
        {8192, 1, 1, 0, 40 + 2 * 4 + 1024},
        {1, 8192, 24, 0, 40 + 8192 * 4},
    };
    for (const auto& one : cases) {
        std::string dib;
        const std::string exact = dibOf(one.width, one.height, one.bits, one.used, one.size);
        EXPECT_TRUE(find(dwgWith(exact), dib)) << one.width << " by " << one.height << ", " << int{one.bits};
        EXPECT_EQ(dib, exact);
        EXPECT_TRUE(find(dwgWith(exact + "more"), dib));
        EXPECT_EQ(dib, exact) << "what follows the image isn't part of it";
        EXPECT_FALSE(find(dwgWith(exact.substr(0, one.size - 1)), dib)) << "a byte is missing";
    }
}

TEST(Preview, SizesBeyondReasonAreRefused) {
    std::string dib;
    EXPECT_FALSE(find(dwgWith(dibOf(8193, 1, 1, 0, 40 + 8 + 1028)), dib));
    EXPECT_FALSE(find(dwgWith(dibOf(1, 8193, 24, 0, 40 + 8193 * 4)), dib));
    EXPECT_FALSE(find(dwgWith(dibOf(1, -8193, 24, 0, 40 + 8193 * 4)), dib));
    EXPECT_FALSE(find(dwgWith(dibOf(1, 1, 8, 257, 40 + 257 * 4 + 4)), dib));
    EXPECT_FALSE(find(dwgWith(dibOf(1, 1, 2, 0, 100)), dib));
}

TEST(Preview, OfSeveralImagesTheFirstBitmapIsTaken) {
    std::string file = "AC1015";
    file.resize(13);
    put32(file, 64);
    file.resize(64);
    file += std::string("\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B", 16);
    put32(file, 100);
    file += '\x03';
    constexpr std::uint32_t kData = 64 + 16 + 5 + 3 * 9;
    const std::string second = dibOf(3, 2, 24, 0, 64);
    for (const auto& [kind, place] : std::initializer_list<std::pair<char, std::uint32_t>>{
             {'\x01', kData}, {'\x02', kData + 56}, {'\x02', kData}}) {
        file += kind;
        put32(file, place);
        put32(file, 64);
    }
    file += smallDib() + second;
    std::string dib;
    ASSERT_TRUE(find(file, dib));
    EXPECT_EQ(dib, second);
}

namespace {

const std::string kPng = pngOf(std::string("\x10\x20\x30\xFF\x00\x00\x00\x00", 8));

/// The kind that is found, with its bytes; 0 for none.
int findKind(const std::string& file, std::string& bytes) {
    KtdbPreview found;
    const int status =
        ktdbFindPreview(reinterpret_cast<const std::uint8_t*>(file.data()), file.size(), found);
    bytes.assign(found.bytes.begin(), found.bytes.end());
    return status == kKtdbOk ? found.kind : 0;
}

}  // namespace

TEST(Preview, EachKindIsFound) {
    std::string bytes;
    EXPECT_EQ(findKind(dwgWithImages({{'\x01', "header"}, {'\x06', kPng}}), bytes), 6);
    EXPECT_EQ(bytes, kPng);
    for (const bool placeable : {false, true}) {
        const std::string wmf = wmfOf(40, 20, placeable);
        EXPECT_EQ(findKind(dwgWithImages({{'\x01', "header"}, {'\x03', wmf + "more"}}), bytes), 3);
        EXPECT_EQ(bytes, wmf) << "what follows the image isn't part of it";
    }
    for (const char other : {'\x00', '\x01', '\x04', '\x05', '\x07'})
        EXPECT_EQ(findKind(dwgWithImages({{other, kPng}}), bytes), 0) << int{other};
}

TEST(Preview, ABitmapComesBeforeAPngAndThatBeforeAMetafile) {
    std::string bytes;
    const std::string wmf = wmfOf(40, 20, false);
    EXPECT_EQ(findKind(dwgWithImages({{'\x03', wmf}, {'\x06', kPng}, {'\x02', smallDib()}}), bytes), 2);
    EXPECT_EQ(findKind(dwgWithImages({{'\x03', wmf}, {'\x06', kPng}}), bytes), 6);
    EXPECT_EQ(findKind(dwgWithImages({{'\x06', "no picture"}, {'\x03', wmf}}), bytes), 0)
        << "a damaged image is none";
}

TEST(Preview, APngIsRefusedWithoutItsHeaderOrWithSidesBeyondReason) {
    std::string bytes;
    for (std::size_t at = 0; at < 16; ++at) {
        std::string png = kPng;
        png[at] = static_cast<char>(png[at] ^ 1);
        EXPECT_EQ(findKind(dwgWithImages({{'\x06', png}}), bytes), 0) << at;
    }
    EXPECT_EQ(findKind(dwgWithImages({{'\x06', kPng.substr(0, 32)}}), bytes), 0);
    EXPECT_EQ(findKind(dwgWithImages({{'\x06', kPng.substr(0, 33)}}), bytes), 6);
    const auto withSide = [&](std::size_t at, char high, char low) {
        std::string png = kPng;
        png[at + 2] = high;
        png[at + 3] = low;
        return findKind(dwgWithImages({{'\x06', png}}), bytes);
    };
    for (const std::size_t side : {16u, 20u}) {
        EXPECT_EQ(withSide(side, '\x20', '\x00'), 6) << "8192";
        EXPECT_EQ(withSide(side, '\x20', '\x01'), 0) << "8193";
        EXPECT_EQ(withSide(side, '\x00', '\x00'), 0);
    }
    std::string wide = kPng;
    wide[16] = '\x01';
    EXPECT_EQ(findKind(dwgWithImages({{'\x06', wide}}), bytes), 0);
}

TEST(Preview, AMetafileIsRefusedWithAnotherHeaderOrWhenCutShort) {
    std::string bytes;
    for (const bool placeable : {false, true}) {
        const std::string wmf = wmfOf(40, 20, placeable);
        for (std::size_t size = 0; size < wmf.size(); ++size)
            EXPECT_EQ(findKind(dwgWithImages({{'\x03', wmf.substr(0, size)}}), bytes), 0) << size;
    }
    const auto with = [&](std::size_t at, char value) {
        std::string wmf = wmfOf(40, 20, false);
        wmf[at] = value;
        return findKind(dwgWithImages({{'\x03', wmf}}), bytes);
    };
    EXPECT_EQ(with(0, '\x00'), 0);
    EXPECT_EQ(with(0, '\x02'), 3);
    EXPECT_EQ(with(0, '\x03'), 0);
    EXPECT_EQ(with(2, '\x0A'), 0);
    EXPECT_EQ(with(5, '\x01'), 3);
    EXPECT_EQ(with(5, '\x02'), 0);
    EXPECT_EQ(with(6, '\x09'), 0) << "nothing but a header";
    EXPECT_EQ(with(6, '\x7F'), 0) << "more than is there";
}

TEST(Preview, IsFoundNearTheEndOfALargeDxf) {
    const std::string pair = "999\r\n" + std::string(994, 'x') + "\r\n";
    std::string large;
    while (large.size() < (3u << 20)) large += pair;
    std::string bytes;
    EXPECT_EQ(findKind(large + dxfWith(hex(smallDib())), bytes), 2);
    EXPECT_EQ(bytes, smallDib());
    EXPECT_EQ(findKind(large, bytes), 0);
    // It may stand at the beginning as well.
    std::string first = dxfWith(hex(smallDib()));
    first.resize(first.rfind("  0\r\nEOF"));
    EXPECT_EQ(findKind(first + large + "  0\r\nEOF\r\n", bytes), 2);
    EXPECT_EQ(bytes, smallDib());
}

TEST(Preview, BytesOfOtherSectionsAreNoImage) {
    std::string bytes;
    const std::string image = "310\n" + hex(smallDib()) + "\n";
    EXPECT_EQ(findKind("  0\nSECTION\n  2\nENTITIES\n" + image + "  0\nENDSEC\n  0\nEOF\n", bytes), 0);
    EXPECT_EQ(findKind("  0\nTEXT\n  1\nTHUMBNAILIMAGE\n" + image + "  0\nEOF\n", bytes), 0);
    EXPECT_EQ(findKind("  0\nSECTION\n  2\nTHUMBNAILIMAGE\n  0\nENDSEC\n" + image + "  0\nEOF\n", bytes), 0);
    EXPECT_EQ(findKind("  2\nTHUMBNAILIMAGE\n311\n" + hex(smallDib()) + "\n  0\nEOF\n", bytes), 0);
}

TEST(Preview, IsFoundInABinaryDxf) {
    const std::string image = dibOf(40, 3, 24, 0, 40 + 120 * 3);
    std::string file("AutoCAD Binary DXF\r\n\x1A\0", 22);
    file += std::string("\x00\x00SECTION\0\x02\x00THUMBNAILIMAGE\0\x5A\x00", 29);
    put32(file, static_cast<std::uint32_t>(image.size()));
    for (std::size_t at = 0; at < image.size(); at += 127) {
        const std::string part = image.substr(at, 127);
        file += std::string("\x36\x01", 2) + static_cast<char>(part.size()) + part;
    }
    const std::string end(
        "\x00\x00"
        "ENDSEC\0\x00\x00"
        "EOF\0",
        15);
    std::string bytes;
    EXPECT_EQ(findKind(file + end, bytes), 2);
    EXPECT_EQ(bytes, image);
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_EQ(findKind(file.substr(0, size), bytes), 0) << size;
    const std::string large = file.substr(0, 22) + std::string(3u << 20, 'x');
    EXPECT_EQ(findKind(large + file.substr(22) + end, bytes), 2) << "near the end";
    EXPECT_EQ(findKind(file + end + std::string(3u << 20, 'x'), bytes), 2) << "at the beginning";
    EXPECT_EQ(findKind(large, bytes), 0);
}

TEST(Preview, WhatTheCountLeavesOutIsNotTaken) {
    std::string file = dwgWith(smallDib());
    file[64 + 16 + 4] = '\x01';
    std::string dib;
    EXPECT_FALSE(find(file, dib)) << "the first of the two images is no bitmap";
}

TEST(Preview, HexadecimalDigitsMayBeSmallOrLarge) {
    // Bytes of every digit behind the header.
    std::string image = dibOf(8, 1, 16, 0, 56);
    for (std::size_t i = 0; i < 16; ++i) image[40 + i] = static_cast<char>(i * 16 + 15 - i);
    std::string small = hex(image);
    for (char& c : small) c = static_cast<char>(c >= 'A' ? c + 32 : c);
    std::string dib;
    ASSERT_TRUE(find(dxfWith(hex(image)), dib));
    EXPECT_EQ(dib, image);
    ASSERT_TRUE(find(dxfWith(small), dib));
    EXPECT_EQ(dib, image);
    for (const char wrong : {'/', ':', '@', 'G', '`', 'g'})
        for (const std::size_t at : {0u, 1u, 90u, 91u}) {  // in the header and among the pixels
            std::string text = hex(image);
            text[at] = wrong;
            EXPECT_FALSE(find(dxfWith(text), dib)) << wrong;
        }
}

TEST(Preview, AnImplausibleHeaderIsRefused) {
    std::string dib;
    for (const auto& [place, value] : std::initializer_list<std::pair<int, char>>{
             {0, 41}, {4, 0}, {8, 0}, {14, 7}, {16, 1}, {6, 1}, {33, 2}}) {
        std::string image = smallDib();
        image[static_cast<std::size_t>(place)] = value;
        EXPECT_FALSE(find(dwgWith(image), dib)) << place;
    }
}

TEST(Preview, IsReadFromAFile) {
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "ktdb_preview_test.dwg";
    const auto write = [&](const std::string& bytes) {
        std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    };
    KtdbPreview found;
    write(dwgWith(smallDib()));
    ASSERT_EQ(ktdbReadPreview(path.wstring().c_str(), found), kKtdbOk);
    EXPECT_EQ(std::string(found.bytes.begin(), found.bytes.end()), smallDib());
    write("");
    EXPECT_NE(ktdbReadPreview(path.wstring().c_str(), found), kKtdbOk);
    write("x");
    EXPECT_NE(ktdbReadPreview(path.wstring().c_str(), found), kKtdbOk);
    EXPECT_NE(ktdbReadPreview(L"", found), kKtdbOk);
    EXPECT_NE(ktdbFindPreview(nullptr, 10, found), kKtdbOk);
    std::filesystem::remove(path);
}

#ifdef _WIN32

TEST(Preview, BecomesABitmapWithItsColorsAndPalette) {
    // Four pixels of 8 bits in one row: entries 0, 1, 2, 1 of three colours.
    std::string image = dibOf(4, 1, 8, 3, 40 + 3 * 4 + 4);
    image.replace(40, 16,
                  std::string("\x10\x20\x30\x00\x40\x50\x60\x00\x70\x80\x90\x00\x00\x01\x02\x01", 16));
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "ktdb_bitmap_test.dwg";
    const std::string file = dwgWith(image);
    std::ofstream(path, std::ios::binary).write(file.data(), static_cast<std::streamsize>(file.size()));
    HBITMAP bitmap = nullptr;
    HPALETTE palette = nullptr;
    ASSERT_TRUE(ktdbGetPreviewBitmapFromDwg(path.wstring().c_str(), &bitmap, &palette));
    ASSERT_NE(bitmap, nullptr);
    ASSERT_NE(palette, nullptr);
    BITMAP size = {};
    ::GetObjectW(bitmap, sizeof size, &size);
    EXPECT_EQ(size.bmWidth, 4);
    EXPECT_EQ(size.bmHeight, 1);
    const HDC memory = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ former = ::SelectObject(memory, bitmap);
    EXPECT_EQ(::GetPixel(memory, 0, 0), RGB(0x30, 0x20, 0x10));
    EXPECT_EQ(::GetPixel(memory, 1, 0), RGB(0x60, 0x50, 0x40));
    EXPECT_EQ(::GetPixel(memory, 2, 0), RGB(0x90, 0x80, 0x70));
    EXPECT_EQ(::GetPixel(memory, 3, 0), RGB(0x60, 0x50, 0x40));
    ::SelectObject(memory, former);
    ::DeleteDC(memory);
    PALETTEENTRY entries[4] = {};
    EXPECT_EQ(::GetPaletteEntries(palette, 0, 4, entries), 3u);
    EXPECT_EQ(RGB(entries[2].peRed, entries[2].peGreen, entries[2].peBlue), RGB(0x90, 0x80, 0x70));
    ::DeleteObject(palette);
    ::DeleteObject(bitmap);
    EXPECT_FALSE(ktdbGetPreviewBitmapFromDwg(path.wstring().c_str(), nullptr, &palette));
    EXPECT_FALSE(ktdbGetPreviewBitmapFromDwg(path.wstring().c_str(), &bitmap, nullptr));
    std::filesystem::remove(path);
    EXPECT_FALSE(ktdbGetPreviewBitmapFromDwg(path.wstring().c_str(), &bitmap, &palette));
    EXPECT_EQ(bitmap, nullptr);
    EXPECT_EQ(palette, nullptr);
}

namespace {

/// The bitmap that a file with this image gives; the caller deletes it.
HBITMAP bitmapOf(char kind, const std::string& image) {
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "ktdb_kinds_test.dwg";
    const std::string file = dwgWithImages({{kind, image}});
    std::ofstream(path, std::ios::binary).write(file.data(), static_cast<std::streamsize>(file.size()));
    HBITMAP bitmap = nullptr;
    HPALETTE palette = nullptr;
    const bool found = ktdbGetPreviewBitmapFromDwg(path.wstring().c_str(), &bitmap, &palette);
    EXPECT_EQ(found, bitmap != nullptr);
    EXPECT_EQ(palette, nullptr);
    std::filesystem::remove(path);
    return bitmap;
}

/// Size of a bitmap, and the colours of two of its pixels.
struct Look {
    int width = 0, height = 0;
    COLORREF first = CLR_INVALID, second = CLR_INVALID;
    Look(HBITMAP bitmap, POINT at, POINT other) {
        BITMAP size = {};
        ::GetObjectW(bitmap, sizeof size, &size);
        width = size.bmWidth;
        height = size.bmHeight;
        const HDC memory = ::CreateCompatibleDC(nullptr);
        const HGDIOBJ former = ::SelectObject(memory, bitmap);
        first = ::GetPixel(memory, at.x, at.y);
        second = ::GetPixel(memory, other.x, other.y);
        ::SelectObject(memory, former);
        ::DeleteDC(memory);
        ::DeleteObject(bitmap);
    }
};

}  // namespace

TEST(Preview, APngBecomesABitmapOnWhitePaper) {
    const Look look(
        bitmapOf('\x06', pngOf(std::string("\x10\x20\x30\xFF\x10\x20\x30\x00\x00\x00\x00\x80", 12))), {0, 0},
        {1, 0});
    EXPECT_EQ(look.width, 3);
    EXPECT_EQ(look.height, 1);
    EXPECT_EQ(look.first, RGB(0x10, 0x20, 0x30));
    EXPECT_EQ(look.second, RGB(255, 255, 255));
    const Look half(bitmapOf('\x06', pngOf(std::string("\x00\x00\x00\x80\xFF\x00\x00\x80", 8))), {0, 0},
                    {1, 0});
    EXPECT_EQ(half.first, RGB(127, 127, 127));
    EXPECT_EQ(half.second, RGB(255, 127, 127));
}

TEST(Preview, APngThatTheDecoderRefusesGivesNone) {
    EXPECT_EQ(bitmapOf('\x06', pngOf(std::string(8, '\x55')).substr(0, 33)), nullptr);
}

TEST(Preview, AMetafileBecomesABitmapOfItsShape) {
    for (const bool placeable : {false, true}) {
        const Look look(bitmapOf('\x03', wmfOf(400, 100, placeable)), {60, 32}, {190, 32});
        EXPECT_EQ(look.width, 256);
        EXPECT_EQ(look.height, 64);
        EXPECT_EQ(look.first, RGB(255, 255, 255)) << "the paper";
        EXPECT_EQ(look.second, RGB(0x40, 0x80, 0xC0)) << "what is drawn";
        const Look tall(bitmapOf('\x03', wmfOf(10, 1000, placeable)), {0, 5}, {1, 250});
        EXPECT_EQ(tall.width, 2);
        EXPECT_EQ(tall.height, 256);
        EXPECT_EQ(tall.second, RGB(0x40, 0x80, 0xC0));
    }
    for (const bool placeable : {false, true}) {
        // Corners anywhere, and y that grows upwards.
        const Look moved(bitmapOf('\x03', wmfOf(400, 100, placeable, 5000, 300)), {60, 32}, {190, 32});
        EXPECT_EQ(moved.width, 256);
        EXPECT_EQ(moved.height, 64);
        EXPECT_EQ(moved.first, RGB(255, 255, 255));
        EXPECT_EQ(moved.second, RGB(0x40, 0x80, 0xC0));
        const Look below(bitmapOf('\x03', wmfOf(400, 100, placeable, static_cast<std::uint16_t>(-300),
                                                static_cast<std::uint16_t>(-40))),
                         {60, 2}, {190, 61});
        EXPECT_EQ(below.first, RGB(255, 255, 255));
        EXPECT_EQ(below.second, RGB(0x40, 0x80, 0xC0));
    }
    EXPECT_EQ(bitmapOf('\x03', wmfOf(0, 100, false)), nullptr);
    EXPECT_EQ(bitmapOf('\x03', wmfOf(100, 0, true)), nullptr);
}

TEST(Preview, ATrueColorBitmapHasNoPalette) {
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "ktdb_true_color_test.dwg";
    const std::string file = dwgWith(smallDib());
    std::ofstream(path, std::ios::binary).write(file.data(), static_cast<std::streamsize>(file.size()));
    HBITMAP bitmap = nullptr;
    HPALETTE palette = nullptr;
    EXPECT_TRUE(ktdbGetPreviewBitmapFromDwg(path.wstring().c_str(), &bitmap, &palette));
    EXPECT_NE(bitmap, nullptr);
    EXPECT_EQ(palette, nullptr);
    ::DeleteObject(bitmap);
    std::filesystem::remove(path);
}

#endif

TEST(Preview, AFileWithoutOneHasNone) {
    std::string dib;
    EXPECT_FALSE(find("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n", dib));
    EXPECT_FALSE(find(dxfWith(hex(smallDib()).substr(0, 60) + "XX"), dib));
    EXPECT_FALSE(find("", dib));
    KtdbPreview found;
    EXPECT_NE(ktdbReadPreview(L"/no/such/file.dwg", found), kKtdbOk);
    EXPECT_NE(ktdbReadPreview(nullptr, found), kKtdbOk);
}
