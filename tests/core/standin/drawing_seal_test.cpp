// The text of a drawing's seal.
#include "security/drawing_seal.h"

#include <gtest/gtest.h>

namespace {
const std::string kDigest(64, 'a');
const DrawingSeal kSeal = {kDigest, "2026-03-01 14:05", "Ann \xC3\x85. Zeichner"};
}  // namespace

TEST(DrawingSeal, IsWrittenAndReadBack) {
    const std::string text = sealText(kSeal);
    EXPECT_EQ(text, "ktui seal 1\r\nsha256 " + kDigest +
                        "\r\ndate 2026-03-01 14:05\r\nsigner Ann \xC3\x85. Zeichner\r\n");
    EXPECT_EQ(parseSeal(text), kSeal);
}

TEST(DrawingSeal, LinesMayEndWithLineFeedsAlone) {
    EXPECT_EQ(parseSeal("ktui seal 1\nsha256 " + kDigest +
                        "\ndate 2026-03-01 14:05\nsigner Ann \xC3\x85. Zeichner"),
              kSeal);
}

TEST(DrawingSeal, AnythingElseIsNone) {
    const std::string whole = sealText(kSeal);
    EXPECT_FALSE(parseSeal(""));
    EXPECT_FALSE(parseSeal("ktui seal 2" + whole.substr(11)));
    for (const std::size_t length : {5, 20, 60, 84, 100, 112})
        EXPECT_FALSE(parseSeal(whole.substr(0, length))) << length;
    EXPECT_FALSE(parseSeal("ktui seal 1\nsha256 " + std::string(63, 'a') + "\ndate d\nsigner s"));
    EXPECT_FALSE(parseSeal("ktui seal 1\nsha256 " + std::string(64, 'A') + "\ndate d\nsigner s"));
    EXPECT_FALSE(parseSeal("ktui seal 1\nsha256\ndate d\nsigner s"));
    EXPECT_FALSE(parseSeal("ktui seal 1\nsha256 " + kDigest + "\nsigner s\ndate d"));
    EXPECT_FALSE(parseSeal("ktui seal 1\nsha256 " + kDigest + "\ndate d\nsigner "));
    EXPECT_FALSE(parseSeal("ktui seal 1\nsha256 " + kDigest + "\ndates d\nsigner s"));
    EXPECT_TRUE(parseSeal("ktui seal 1\nsha256 " + kDigest + "\ndate d\nsigner s"));
}

TEST(DrawingSeal, ASignerIsOneLineWithoutBlanksAround) {
    EXPECT_EQ(signerName("  Ann  B \t"), "Ann  B");
    EXPECT_EQ(signerName("Ann\r\nBea"), "Ann  Bea");
    EXPECT_EQ(signerName("\x7F \x01"), "");
    EXPECT_EQ(signerName(""), "");
    EXPECT_EQ(signerName("\xC3\x85"), "\xC3\x85");
}
