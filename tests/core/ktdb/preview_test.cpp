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

using preview_bytes::dibOf, preview_bytes::dwgWith, preview_bytes::put32;

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
    std::vector<std::uint8_t> found;
    const int status =
        ktdbFindPreviewDib(reinterpret_cast<const std::uint8_t*>(file.data()), file.size(), found);
    dib.assign(found.begin(), found.end());
    return status == kKtdbOk;
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
    std::vector<std::uint8_t> found;
    write(dwgWith(smallDib()));
    ASSERT_EQ(ktdbReadPreviewDib(path.wstring().c_str(), found), kKtdbOk);
    EXPECT_EQ(std::string(found.begin(), found.end()), smallDib());
    write("");
    EXPECT_NE(ktdbReadPreviewDib(path.wstring().c_str(), found), kKtdbOk);
    write("x");
    EXPECT_NE(ktdbReadPreviewDib(path.wstring().c_str(), found), kKtdbOk);
    EXPECT_NE(ktdbReadPreviewDib(L"", found), kKtdbOk);
    EXPECT_NE(ktdbFindPreviewDib(nullptr, 10, found), kKtdbOk);
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
    std::vector<std::uint8_t> found;
    EXPECT_NE(ktdbReadPreviewDib(L"/no/such/file.dwg", found), kKtdbOk);
    EXPECT_NE(ktdbReadPreviewDib(nullptr, found), kKtdbOk);
}
