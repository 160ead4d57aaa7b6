// The characters of names in old fonts.
#include "fonts/mac_roman.h"

#include <gtest/gtest.h>

#include <string_view>

TEST(MacRoman, EachByteIsItsCharacter) {
    constexpr std::u16string_view kUpper =
        u"ÄÅÇÉÑÖÜáàâäãåçéè"
        u"êëíìîïñóòôöõúùûü"
        u"†°¢£§•¶ß®©™´¨≠ÆØ"
        u"∞±≤≥¥µ∂∑∏π∫ªºΩæø"
        u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ"
        u"–—“”‘’÷◊ÿŸ⁄€‹›\uFB01\uFB02"
        u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ"
        u"\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";
    ASSERT_EQ(kUpper.size(), 128u);
    for (unsigned code = 0; code < 256; ++code) {
        const char32_t expected = code < 128 ? code : kUpper[code - 128];
        EXPECT_EQ(macRomanCharacter(static_cast<unsigned char>(code)), expected) << code;
    }
}
