#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "number_cases.h"

namespace {

void put32(std::string& out, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) out += static_cast<char>(value >> shift);
}

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

std::string dwgWith(const std::string& dib) {
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

TEST(Preview, AnImplausibleHeaderIsRefused) {
    std::string dib;
    for (const auto& [place, value] : std::initializer_list<std::pair<int, char>>{
             {0, 41}, {4, 0}, {8, 0}, {14, 7}, {16, 1}, {6, 1}, {33, 2}}) {
        std::string image = smallDib();
        image[static_cast<std::size_t>(place)] = value;
        EXPECT_FALSE(find(dwgWith(image), dib)) << place;
    }
}

TEST(Preview, AFileWithoutOneHasNone) {
    std::string dib;
    EXPECT_FALSE(find("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n", dib));
    EXPECT_FALSE(find(dxfWith(hex(smallDib()).substr(0, 60) + "XX"), dib));
    EXPECT_FALSE(find("", dib));
    std::vector<std::uint8_t> found;
    EXPECT_NE(ktdbReadPreviewDib(L"/no/such/file.dwg", found), kKtdbOk);
    EXPECT_NE(ktdbReadPreviewDib(nullptr, found), kKtdbOk);
}
