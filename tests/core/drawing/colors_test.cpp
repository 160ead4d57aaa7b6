#include <gtest/gtest.h>

#include <od_cm_color.h>

#include <set>

namespace {
constexpr std::uint32_t rgb(int r, int g, int b) {
    return static_cast<std::uint32_t>(r | (g << 8) | (b << 16));
}
}  // namespace

TEST(Colors, ADefaultColorIsByLayer) {
    const OdCmColor color;
    EXPECT_TRUE(color.isByLayer() && color.isByACI());
    EXPECT_EQ(color.colorIndex(), 256);
    EXPECT_EQ(color.color(), 0u);
}

TEST(Colors, AnIndexIsKeptInItsRange) {
    OdCmColor color;
    EXPECT_TRUE(color.setColorIndex(0));
    EXPECT_TRUE(color.isByBlock());
    EXPECT_TRUE(color.setColorIndex(255));
    EXPECT_FALSE(color.setColorIndex(257));
    EXPECT_FALSE(color.setColorIndex(-1));
    EXPECT_EQ(color.colorIndex(), 255);
}

TEST(Colors, ATrueColorHasPartsAndPerhapsAName) {
    OdCmColor color;
    EXPECT_FALSE(color.setNames(L"x")) << "an index has no name";
    color.setRGB(1, 2, 3);
    EXPECT_TRUE(color.isByColor() && !color.isByACI() && !color.hasName());
    EXPECT_EQ(color.color(), rgb(1, 2, 3));
    EXPECT_EQ(color.red(), 1);
    EXPECT_EQ(color.blue(), 3);
    EXPECT_TRUE(color.setNames(L"Ink", L"Book"));
    EXPECT_TRUE(color.hasName());
    OdCmColor plain;
    plain.setRGB(1, 2, 3);
    EXPECT_NE(color, plain) << "the name is part of the colour";
    color.setRGB(1, 2, 3);
    EXPECT_EQ(color, plain) << "setting the parts drops the name";
    OdCmColor copy(color);
    EXPECT_EQ(copy, color);
    copy.setColorIndex(1);
    EXPECT_NE(copy, color);
}

TEST(Colors, ThePaletteFollowsItsRule) {
    const std::uint32_t* dark = odcmAcadDarkPalette();
    EXPECT_EQ(dark[1], rgb(255, 0, 0));
    EXPECT_EQ(dark[2], rgb(255, 255, 0));
    EXPECT_EQ(dark[6], rgb(255, 0, 255));
    EXPECT_EQ(dark[8], rgb(128, 128, 128));
    EXPECT_EQ(dark[9], rgb(192, 192, 192));
    EXPECT_EQ(dark[10], rgb(255, 0, 0));
    EXPECT_EQ(dark[11], rgb(255, 127, 127));
    EXPECT_EQ(dark[12], rgb(204, 0, 0));
    EXPECT_EQ(dark[30], rgb(255, 127, 0));
    EXPECT_EQ(dark[50], rgb(255, 255, 0));
    EXPECT_EQ(dark[90], rgb(0, 255, 0));
    EXPECT_EQ(dark[130], rgb(0, 255, 255));
    EXPECT_EQ(dark[170], rgb(0, 0, 255));
    EXPECT_EQ(dark[210], rgb(255, 0, 255));
    EXPECT_EQ(dark[249], rgb(76, 38, 47));
    EXPECT_EQ(dark[250], rgb(51, 51, 51));
    EXPECT_EQ(dark[255], rgb(255, 255, 255));
    std::set<std::uint32_t> hues;
    for (int aci = 10; aci < 250; ++aci) hues.insert(dark[aci]);
    EXPECT_EQ(hues.size(), 240u) << "every hue differs";
}

TEST(Colors, ThePalettesDifferInTheForegroundAlone) {
    const std::uint32_t* dark = odcmAcadDarkPalette();
    const std::uint32_t* light = odcmAcadLightPalette();
    EXPECT_EQ(dark[7], rgb(255, 255, 255));
    EXPECT_EQ(light[7], rgb(0, 0, 0));
    for (int aci = 1; aci < 256; ++aci) EXPECT_EQ(dark[aci] == light[aci], aci != 7) << aci;
}

TEST(Colors, LookupsGoThereAndBack) {
    for (const std::uint32_t* palette : {odcmAcadLightPalette(), odcmAcadDarkPalette()})
        for (int aci = 1; aci < 256; ++aci) {
            const std::uint32_t color = odcmLookupRGB(aci, palette);
            EXPECT_EQ(odcmLookupRGB(odcmLookupACI(color, palette), palette), color);
        }
    EXPECT_EQ(odcmLookupRGB(-1, nullptr), 0u);
    EXPECT_EQ(odcmLookupRGB(256, nullptr), 0u);
    EXPECT_EQ(odcmLookupACI(rgb(0, 0, 0), odcmAcadLightPalette()), 7);
    EXPECT_EQ(odcmLookupACI(rgb(255, 0, 0), nullptr), 1) << "the lowest of equal ones";
    EXPECT_EQ(odcmLookupACI(rgb(254, 1, 1), nullptr), 1);
    EXPECT_EQ(odcmLookupACI(rgb(0, 0, 0), odcmAcadDarkPalette()), 250) << "black is nearest to a grey";
}
