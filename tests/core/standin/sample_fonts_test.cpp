// The stroke fonts that come with the sample host are what they say.
#include <gtest/gtest.h>

#include <od_string.h>

#include "../../../platform/standin/fonts/font_file.h"

namespace {

FontFile sample(const char* name) {
    return readFontFile(std::wstring(odWide(std::string(KTUI_SAMPLE_FONTS) + "/" + name).view()));
}

}  // namespace

TEST(SampleFonts, AreFontsOfTheirKinds) {
    EXPECT_EQ(sample("drafter.shx").kind, FontKind::kShape);
    EXPECT_EQ(sample("drafteru.shx").kind, FontKind::kShape);
    EXPECT_EQ(sample("drafterc.shx").kind, FontKind::kBigFont);
}
