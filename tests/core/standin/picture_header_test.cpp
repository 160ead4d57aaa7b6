// Kind and size of pictures, read from the first bytes of files written out here by hand.
#include "pictures/picture_header.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;

std::string little16(int value) {
    return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}
std::string little32(std::uint32_t value) {
    return little16(static_cast<int>(value & 0xFFFF)) + little16(static_cast<int>(value >> 16));
}
std::string big16(int value) {
    return {static_cast<char>(value >> 8 & 0xFF), static_cast<char>(value & 0xFF)};
}
std::string big32(std::uint32_t value) {
    return big16(static_cast<int>(value >> 16)) + big16(static_cast<int>(value & 0xFFFF));
}

void expect(const std::string& bytes, PictureKind kind, int width, int height, std::uint64_t pixels,
            bool bitonal = false) {
    const PictureHeader header = ReadPictureHeader(bytes);
    EXPECT_EQ(header.kind, kind);
    EXPECT_EQ(header.width, width);
    EXPECT_EQ(header.height, height);
    EXPECT_EQ(header.pixels, pixels);
    EXPECT_EQ(header.isBitonal, bitonal);
    // Cut off before its end, it is nothing or the same.
    for (std::size_t end = 0; end < bytes.size(); ++end) {
        const PictureHeader cut = ReadPictureHeader(std::string_view(bytes).substr(0, end));
        EXPECT_TRUE(cut.kind == PictureKind::kNone || cut.kind == kind) << end;
    }
}

void expectNothing(const std::string& bytes) { expect(bytes, PictureKind::kNone, 0, 0, 0); }

std::string bmp(std::uint32_t width, std::uint32_t height, int bits) {
    return "BM" + std::string(12, '\0') + little32(40) + little32(width) + little32(height) + little16(1) +
           little16(bits) + std::string(24, '\0');
}

TEST(PictureHeaders, ABmpHasItsSizeInItsHeaderAndItsRowsEitherWay) {
    expect(bmp(640, 480, 24), PictureKind::kBmp, 640, 480, 640 * 480);
    expect(bmp(640, static_cast<std::uint32_t>(-480), 32), PictureKind::kBmp, 640, 480, 640 * 480);
    expect(bmp(8, 4, 1), PictureKind::kBmp, 8, 4, 32, true);
    expect("BM" + std::string(12, '\0') + little32(12) + little16(300) + little16(200) + little16(1) +
               little16(24),
           PictureKind::kBmp, 300, 200, 60000);
    expectNothing(bmp(0, 480, 24));
    expectNothing(bmp(0x80000000u, 480, 24));
}

std::string png(std::uint32_t width, std::uint32_t height, int depth) {
    return "\x89PNG\r\n\x1A\n" + big32(13) + "IHDR" + big32(width) + big32(height) +
           std::string(1, static_cast<char>(depth)) + std::string(8, '\0');
}

TEST(PictureHeaders, APngHasItsSizeInItsFirstPart) {
    expect(png(70000, 3, 8), PictureKind::kPng, 70000, 3, 210000);
    expect(png(16, 16, 1), PictureKind::kPng, 16, 16, 256, true);
    expectNothing(png(16, 0, 8));
    expectNothing(png(16, 0xFFFFFFFFu, 8));
}

TEST(PictureHeaders, AJpegHasItInTheSegmentThatSaysHowItIsPacked) {
    const std::string comment = "\xFF\xFE" + big16(8) + "\xFF\xC0\xFF\xC0ok"s;
    const std::string tables = "\xFF\xC4" + big16(4) + "ab"s;
    const std::string frame =
        "\xFF\xC2" + big16(17) + "\x08" + big16(200) + big16(300) + std::string(10, '\1');
    expect("\xFF\xD8" + comment + tables + "\xFF" + frame, PictureKind::kJpeg, 300, 200, 60000);
    expectNothing("\xFF\xD8" + comment + tables);
    expectNothing("\xFF\xD8\xFF\xFE" + big16(0) + std::string(40, 'x'));
}

std::string gifPicture(int width, int height, bool hasColors) {
    return "\x2C" + little16(0) + little16(0) + little16(width) + little16(height) +
           std::string(1, hasColors ? '\x80' : '\0') + std::string(hasColors ? 6 : 0, 'c') + "\x02" + "\x03" +
           "abc" + std::string(1, '\0');
}

TEST(PictureHeaders, AGifCountsThePixelsOfAllItsPictures) {
    const std::string start = "GIF89a" + little16(4000) + little16(3000) + "\x81\0\0"s + std::string(12, 'c');
    const std::string extension = "\x21\xF9\x04" + std::string(4, ',') + std::string(1, '\0');
    expect(start + extension + gifPicture(100, 50, true) + gifPicture(60000, 60000, false) + ";",
           PictureKind::kGif, 100, 50, 5000 + std::uint64_t{3600000000});
    expectNothing(start + extension + ";");
}

std::string tiff(bool isLittle, int bits, bool isLong) {
    const auto n16 = [&](int v) { return isLittle ? little16(v) : big16(v); };
    const auto n32 = [&](std::uint32_t v) { return isLittle ? little32(v) : big32(v); };
    const auto entry = [&](int tag, int value) {
        return n16(tag) + n16(isLong ? 4 : 3) + n32(1) +
               (isLong ? n32(static_cast<std::uint32_t>(value)) : n16(value) + n16(0));
    };
    return (isLittle ? "II*\0"s : "MM\0*"s) + n32(10) + "ab" + n16(3) + entry(256, 1000) + entry(257, 700) +
           entry(258, bits) + n32(0);
}

TEST(PictureHeaders, ATiffHasItInItsFirstDirectoryInEitherOrderOfBytes) {
    for (const bool isLittle : {false, true})
        for (const bool isLong : {false, true}) {
            expect(tiff(isLittle, 8, isLong), PictureKind::kTiff, 1000, 700, 700000);
            const PictureHeader bilevel = ReadPictureHeader(tiff(isLittle, 1, isLong));
            EXPECT_TRUE(bilevel.isBitonal);
        }
    expectNothing("II*\0"s + little32(0xFFFFFFF0u) + "no directory");
}

TEST(PictureHeaders, OtherFilesAreNothing) {
    expectNothing("");
    expectNothing("BM");
    expectNothing("%PDF-1.5 and more than enough to be a header");
}

}  // namespace
