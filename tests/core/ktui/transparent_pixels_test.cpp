#include <ktui/controls/transparent_pixels.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t rgb(int r, int g, int b) { return static_cast<std::uint32_t>(r | g << 8 | b << 16); }

constexpr std::uint32_t kFace = 0xC0C0C0;
constexpr std::uint32_t kColor = rgb(10, 20, 30);
constexpr std::uint32_t kCorner = rgb(255, 0, 254);

/// The pixels of a row of a corner, a colour and the face's colour, with another row of the colour below.
Bytes made(int flags) {
    const std::uint32_t source[2][3] = {{kCorner, kColor, kFace}, {kColor, kColor, kCorner}};
    Bytes pixels(24, 0x77);
    MakeTransparentPixels(pixels.data(), 3, 2, flags, [&](int x, int y) { return source[y][x]; });
    return pixels;
}

Bytes joined(std::initializer_list<Bytes> parts) {
    Bytes all;
    for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

const Bytes kZeros = {0, 0, 0, 0}, kOnes = {255, 255, 255, 255};
const Bytes kCornerBytes = {254, 0, 255, 255}, kColorBytes = {30, 20, 10, 255},
            kFaceBytes = {192, 192, 192, 255};

Bytes unseen(Bytes pixel) {
    pixel[3] = 0;
    return pixel;
}
Bytes grey(std::uint8_t value, std::uint8_t alpha = 255) { return {value, value, value, alpha}; }

// (20 * 19235 + 30 * 3735 + 10 * 9798) >> 15
constexpr std::uint8_t kColorGrey = 18;
// (254 * 3735 + 255 * 9798) >> 15
constexpr std::uint8_t kCornerGrey = 105;

}  // namespace

TEST(TransparentPixels, WithoutFlagsTheKeyIsTheFaceColor) {
    EXPECT_EQ(made(0), joined({kCornerBytes, kColorBytes, kZeros, kColorBytes, kColorBytes, kCornerBytes}));
}

TEST(TransparentPixels, WithTheFirstFlagTheKeyIsTheCorner) {
    EXPECT_EQ(made(1), joined({kZeros, kColorBytes, kFaceBytes, kColorBytes, kColorBytes, kZeros}));
}

TEST(TransparentPixels, WithTheSecondFlagTheAlphaIsInverted) {
    EXPECT_EQ(made(2), joined({unseen(kCornerBytes), unseen(kColorBytes), kOnes, unseen(kColorBytes),
                               unseen(kColorBytes), unseen(kCornerBytes)}));
    EXPECT_EQ(made(3), joined({kOnes, unseen(kColorBytes), unseen(kFaceBytes), unseen(kColorBytes),
                               unseen(kColorBytes), kOnes}));
}

TEST(TransparentPixels, WithTheThirdFlagOthersAreGrey) {
    EXPECT_EQ(made(4), joined({grey(kCornerGrey), grey(kColorGrey), kZeros, grey(kColorGrey),
                               grey(kColorGrey), grey(kCornerGrey)}));
    EXPECT_EQ(made(5),
              joined({kZeros, grey(kColorGrey), grey(192), grey(kColorGrey), grey(kColorGrey), kZeros}));
    EXPECT_EQ(made(7), joined({kOnes, grey(kColorGrey, 0), grey(192, 0), grey(kColorGrey, 0),
                               grey(kColorGrey, 0), kOnes}));
}

TEST(TransparentPixels, ThePrimariesBecomeTheirGreys) {
    EXPECT_EQ(GreyOf(255, 0, 0), 76);
    EXPECT_EQ(GreyOf(0, 255, 0), 149);
    EXPECT_EQ(GreyOf(0, 0, 255), 29);
    EXPECT_EQ(GreyOf(255, 255, 255), 255);
    EXPECT_EQ(GreyOf(0, 0, 0), 0);
    // Each weight to the last digit: one more or less would cross a step.
    EXPECT_EQ(GreyOf(200, 4, 25), 64);
    EXPECT_EQ(GreyOf(200, 31, 0), 77);
    EXPECT_EQ(GreyOf(200, 6, 120), 77);
    EXPECT_EQ(GreyOf(200, 36, 255), 110);
}

TEST(TransparentPixels, NothingIsReadOrWrittenBesideThePicture) {
    Bytes pixels(5, 0x77);
    int reads = 0;
    MakeTransparentPixels(pixels.data(), 1, 1, 1, [&](int x, int y) {
        EXPECT_EQ(x, 0);
        EXPECT_EQ(y, 0);
        ++reads;
        return kColor;
    });
    EXPECT_EQ(pixels, (Bytes{0, 0, 0, 0, 0x77})) << "a picture of one colour vanishes";
    EXPECT_GT(reads, 0);
}

TEST(InvisiblePixels, LoseTheirColorAndOthersKeepIt) {
    Bytes pixels = {1, 2, 3, 0, 4, 5, 6, 1, 7, 8, 9, 255, 10, 11, 12, 0};
    ClearInvisiblePixels(pixels.data(), 3);
    EXPECT_EQ(pixels, (Bytes{0, 0, 0, 0, 4, 5, 6, 1, 7, 8, 9, 255, 10, 11, 12, 0}));
}
