// Pictures in a drawing: where they lie, what is seen of them, what lies above what, and their pixels in a
// window.
#include "drawn.h"
#include "pictures/scene_picture.h"
#include "scene_order.h"

namespace {

using namespace scene_test;

constexpr PicturePixel kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF, kWhite = 0xFFFFFFFF,
                       kBlack = 0xFF000000;

std::shared_ptr<const ScenePicture> pictureOf(int width, int height, std::vector<PicturePixel> pixels,
                                              bool bitonal = false) {
    return std::make_shared<ScenePicture>(width, height, std::move(pixels), bitonal);
}

/// Two by two: red and green above, blue and white below.
std::shared_ptr<const ScenePicture> fourColors() { return pictureOf(2, 2, {kRed, kGreen, kBlue, kWhite}); }

/// A picture of 4 by 2 pixels, each half a unit wide and a unit high, with its corner at 10, 20.
constexpr const char* kImage =
    "0 IMAGE|8 0|100 AcDbRasterImage|10 10|20 20|30 0|11 .5|21 0|31 0|12 0|22 1|32 0|13 4|23 2|340 D0|";
constexpr const char* kDefinition = "0 IMAGEDEF|5 D0|330 0|100 AcDbRasterImageDef|1 site.png|10 4|20 2";

struct DrawnImage {
    explicit DrawnImage(const std::string& rest, const std::string& more = "", const Parts& others = {},
                        SceneUse use = SceneUse::kScreen) {
        Parts parts = others;
        parts.entities = kImage + rest + more;
        parts.objects = others.objects + kDefinition;
        drawing = drawingOf(parts);
        SceneOptions options;
        options.use = use;
        options.picture = [this](const OdString& name) {
            asked.push_back(odUtf8(name.view()));
            return answer;
        };
        build = [this, options] { scene = BuildScene(*drawing, drawing->modelSpaceId(), options); };
        build();
    }
    OdDbDatabasePtr drawing;
    FoundPicture answer{fourColors(), false};
    std::vector<std::string> asked;
    Scene scene;
    std::function<void()> build;
};

TEST(Pictures, LieByTheirCornerAndTheirPixels) {
    const DrawnImage drawn("70 7|280 0");
    ASSERT_EQ(drawn.scene.images.size(), 1u);
    const SceneImage& image = drawn.scene.images[0];
    EXPECT_TRUE(isAt(image.origin, 10, 20));
    EXPECT_TRUE(isAt(image.across, 2, 0)) << "four pixels of half a unit";
    EXPECT_TRUE(isAt(image.up, 0, 2));
    EXPECT_EQ(image.picture, drawn.answer.picture);
    EXPECT_EQ(image.clip, kNoClip);
    EXPECT_EQ(image.brightness, 50);
    EXPECT_EQ(image.contrast, 50);
    EXPECT_EQ(image.fade, 0);
    EXPECT_FALSE(image.isTransparent);
    EXPECT_TRUE(drawn.scene.texts.empty()) << "no name over a picture";
    ASSERT_EQ(drawn.scene.paths.size(), 1u) << "the frame";
    EXPECT_TRUE(goesThrough(drawn.scene.paths[0], {{10, 22}, {12, 22}, {12, 20}, {10, 20}, {10, 22}}));
    EXPECT_EQ(image.pathsBelow, 0u) << "the frame lies above it";
    const SceneExtents all = drawn.scene.extents();
    EXPECT_TRUE(isAt(all.low, 10, 20));
    EXPECT_TRUE(isAt(all.high, 12, 22));
    EXPECT_EQ(drawn.asked, std::vector<std::string>{"site.png"});
}

TEST(Pictures, InABlockTheyLieWhereTheReferencePutsThem) {
    const Parts parts{.blocks = block("B", std::string(kImage) + "70 7"),
                      .entities = "0 INSERT|8 0|2 B|10 100|20 0|30 0|41 2|42 3|43 1|50 90",
                      .objects = kDefinition};
    const OdDbDatabasePtr drawing = drawingOf(parts);
    SceneOptions options;
    options.picture = [](const OdString&) { return FoundPicture{fourColors(), false}; };
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    ASSERT_EQ(scene.images.size(), 1u);
    EXPECT_TRUE(isAt(scene.images[0].origin, 100 - 60, 20));
    EXPECT_TRUE(isAt(scene.images[0].across, 0, 4));
    EXPECT_TRUE(isAt(scene.images[0].up, -6, 0));
}

TEST(Pictures, AreSeenThroughTheirBoundaryAlone) {
    const DrawnImage drawn("70 7|280 1|71 1|91 2|14 .5|24 -.5|14 2.5|24 .5");
    ASSERT_EQ(drawn.scene.images.size(), 1u);
    ASSERT_EQ(drawn.scene.clips.size(), 1u);
    EXPECT_EQ(drawn.scene.images[0].clip, 0);
    const std::vector<OdGePoint2d>& outline = drawn.scene.clips[0].outline;
    ASSERT_EQ(outline.size(), 4u);
    EXPECT_TRUE(isAt(outline[0], 10.5, 22));
    EXPECT_TRUE(isAt(outline[1], 11.5, 22));
    EXPECT_TRUE(isAt(outline[2], 11.5, 21));
    EXPECT_TRUE(isAt(outline[3], 10.5, 21));
    EXPECT_EQ(drawn.scene.paths.at(0).clip, kNoClip) << "the frame is whole";
    EXPECT_TRUE(isAt(drawn.scene.extents().low, 10.5, 21)) << "what is clipped doesn't count";
    const DrawnImage off("70 7|280 0|71 1|91 2|14 .5|24 -.5|14 2.5|24 .5");
    EXPECT_TRUE(off.scene.clips.empty());
}

TEST(Pictures, AnInvertedBoundaryLeavesWhatIsBesideIt) {
    const DrawnImage drawn("70 7|280 1|71 1|91 2|14 .5|24 -.5|14 2.5|24 .5|290 1");
    ASSERT_EQ(drawn.scene.clips.size(), 1u);
    const std::vector<OdGePoint2d>& outline = drawn.scene.clips[0].outline;
    const auto isIn = [&](double x, double y) {
        bool within = false;
        for (std::size_t i = 0, last = outline.size() - 1; i < outline.size(); last = i++)
            if ((outline[i].y > y) != (outline[last].y > y) &&
                x < (outline[last].x - outline[i].x) * (y - outline[i].y) / (outline[last].y - outline[i].y) +
                        outline[i].x)
                within = !within;
        return within;
    };
    EXPECT_TRUE(isIn(10.2, 21.5));
    EXPECT_TRUE(isIn(11.9, 21.5));
    EXPECT_TRUE(isIn(11, 20.5));
    EXPECT_FALSE(isIn(11, 21.5)) << "what the boundary surrounds";
    EXPECT_FALSE(isIn(12.5, 21.5)) << "beside the picture";
}

TEST(Pictures, KeepTheirSettingsWithinBounds) {
    const DrawnImage drawn("70 15|281 70|282 20|283 40");
    ASSERT_EQ(drawn.scene.images.size(), 1u);
    EXPECT_EQ(drawn.scene.images[0].brightness, 70);
    EXPECT_EQ(drawn.scene.images[0].contrast, 20);
    EXPECT_EQ(drawn.scene.images[0].fade, 40);
    EXPECT_TRUE(drawn.scene.images[0].isTransparent);
    const DrawnImage beyond("70 7|281 30000|282 -5|283 1000");
    EXPECT_EQ(beyond.scene.images.at(0).brightness, 100);
    EXPECT_EQ(beyond.scene.images.at(0).contrast, 0);
    EXPECT_EQ(beyond.scene.images.at(0).fade, 100);
}

TEST(Pictures, WhatIsMissingOrHiddenIsAFrame) {
    DrawnImage drawn("70 7");
    drawn.answer = {};
    drawn.build();
    EXPECT_TRUE(drawn.scene.images.empty());
    EXPECT_EQ(drawn.scene.paths.size(), 1u);
    ASSERT_EQ(drawn.scene.texts.size(), 1u);
    EXPECT_EQ(drawn.scene.texts[0].text, L"site.png");
    EXPECT_FALSE(drawn.scene.awaitsPictures);
    const DrawnImage hidden("70 6");
    EXPECT_TRUE(hidden.scene.images.empty());
    EXPECT_EQ(hidden.scene.paths.size(), 1u);
    EXPECT_TRUE(hidden.scene.texts.empty());
    EXPECT_TRUE(hidden.asked.empty()) << "its file is of no use";
}

TEST(Pictures, WhatComesLaterIsAFrameUntilThen) {
    DrawnImage drawn("70 7");
    EXPECT_FALSE(drawn.scene.awaitsPictures);
    drawn.answer = {nullptr, true};
    drawn.build();
    EXPECT_TRUE(drawn.scene.awaitsPictures);
    EXPECT_EQ(drawn.scene.texts.size(), 1u);
    EXPECT_TRUE(drawn.scene.images.empty());
}

TEST(Pictures, FramesAreLeftOutWhereTheDrawingSaysSo) {
    const auto frames = [](const char* setting, SceneUse use, bool isThere = true) {
        DrawnImage drawn("70 7", "",
                         {.objects = std::string("0 DICTIONARY|5 C|330 0|100 AcDbDictionary|3 "
                                                 "ACAD_IMAGE_VARS|350 E0|0 RASTERVARIABLES|5 E0|330 C|100 "
                                                 "AcDbRasterVariables|90 0|70 ") +
                                     setting + "|71 1|72 0|"},
                         use);
        if (!isThere) {
            drawn.answer = {};
            drawn.build();
        }
        return drawn.scene.paths.size();
    };
    EXPECT_EQ(frames("0", SceneUse::kScreen), 0u);
    EXPECT_EQ(frames("1", SceneUse::kScreen), 1u);
    EXPECT_EQ(frames("1", SceneUse::kPaper), 1u);
    EXPECT_EQ(frames("2", SceneUse::kScreen), 1u);
    EXPECT_EQ(frames("2", SceneUse::kPaper), 0u);
    EXPECT_EQ(frames("0", SceneUse::kScreen, false), 1u) << "of a picture that is missing";
}

TEST(Pictures, LieAboveWhatComesBeforeAndBelowTheRest) {
    const Parts parts{.entities = std::string("0 LINE|8 0|10 0|20 0|30 0|11 1|21 0|31 0|") +
                                  "0 TEXT|8 0|10 0|20 0|30 0|40 1|1 below|" +
                                  "0 LINE|8 0|10 0|20 0|30 0|11 1|21 0|31 0|" + kImage +
                                  "70 7|0 TEXT|8 0|10 0|20 0|30 0|40 1|1 above",
                      .objects = kDefinition};
    const OdDbDatabasePtr drawing = drawingOf(parts);
    SceneOptions options;
    options.picture = [](const OdString&) { return FoundPicture{fourColors(), false}; };
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    std::string order;
    InOrder(
        scene, [&](std::size_t i) { order += "p" + std::to_string(i); },
        [&](std::size_t i) { order += "t" + std::to_string(i); },
        [&](std::size_t i) { order += "i" + std::to_string(i); });
    EXPECT_EQ(order, "p0t0p1i0p2t1");
}

TEST(Pictures, OneThatHasNoAreaIsLeftOut) {
    const Parts parts{.entities =
                          "0 IMAGE|8 0|100 AcDbRasterImage|10 0|20 0|30 0|11 1|21 0|31 0|12 2|22 0|32 "
                          "0|13 4|23 2|340 D0|70 7",
                      .objects = kDefinition};
    const OdDbDatabasePtr drawing = drawingOf(parts);
    SceneOptions options;
    options.picture = [](const OdString&) { return FoundPicture{fourColors(), false}; };
    EXPECT_TRUE(BuildScene(*drawing, drawing->modelSpaceId(), options).images.empty());
}

/// A picture over the window from 0, 0 to `width`, `height`.
struct Shown {
    explicit Shown(std::shared_ptr<const ScenePicture> picture) { image.picture = std::move(picture); }
    std::vector<PicturePixel> over(int width, int height, const PictureColors& colors = {}) const {
        const PictureArea area = {
            0, 0, width, height, {0.0, height * 1.0}, {width * 1.0, 0}, {0, -1.0 * height}};
        return PicturePixels(image, area, colors);
    }
    SceneImage image;
};

TEST(PicturePixelsTest, ShowEachPixelWhereItLies) {
    EXPECT_EQ(Shown(fourColors()).over(2, 2), (std::vector<PicturePixel>{kRed, kGreen, kBlue, kWhite}));
    EXPECT_EQ(Shown(fourColors()).over(4, 4),
              (std::vector<PicturePixel>{kRed, kRed, kGreen, kGreen, kRed, kRed, kGreen, kGreen, kBlue, kBlue,
                                         kWhite, kWhite, kBlue, kBlue, kWhite, kWhite}))
        << "larger, without a blur";
}

TEST(PicturePixelsTest, ATurnedPictureIsTurnedAndClearBesideIt) {
    const Shown shown(fourColors());
    // A quarter turn: its right is up, its up is left.
    const PictureArea area = {0, 0, 4, 2, {2, 2}, {0, -2}, {-2, 0}};
    EXPECT_EQ(PicturePixels(shown.image, area, {}),
              (std::vector<PicturePixel>{kGreen, kWhite, 0, 0, kRed, kBlue, 0, 0}));
    const PictureArea moved = {2, 0, 2, 2, {2, 2}, {0, -2}, {-2, 0}};
    EXPECT_EQ(PicturePixels(shown.image, moved, {}), std::vector<PicturePixel>(4, 0u));
}

TEST(PicturePixelsTest, ASmallerPictureIsTheMeanOfItsPixels) {
    std::vector<PicturePixel> stripes;
    for (int i = 0; i < 64 * 64; ++i) stripes.push_back(i % 4 == 0 ? kWhite : kBlack);
    const std::vector<PicturePixel> small = Shown(pictureOf(64, 64, stripes)).over(8, 8);
    for (const PicturePixel each : small) {
        EXPECT_EQ(each >> 24, 255u);
        EXPECT_NEAR(static_cast<int>(each & 0xFF), 64, 2) << "a quarter is white";
        EXPECT_EQ(each & 0xFF, each >> 8 & 0xFF);
    }
    const PicturePixel one = Shown(fourColors()).over(1, 1).at(0);
    EXPECT_NEAR(static_cast<int>(one >> 16 & 0xFF), 128, 1) << "half of the four have red";
    EXPECT_NEAR(static_cast<int>(one & 0xFF), 128, 1);
}

TEST(PicturePixelsTest, WhatIsClearShowsThePaperOfThePictureOrWhatIsBelow) {
    Shown shown(pictureOf(2, 1, {0x00123456, 0x800000FF}));
    EXPECT_EQ(shown.over(2, 1), (std::vector<PicturePixel>{kWhite, 0xFF7F7FFF}));
    shown.image.isTransparent = true;
    EXPECT_EQ(shown.over(2, 1), (std::vector<PicturePixel>{0, 0x80000080})) << "multiplied by its opacity";
}

TEST(PicturePixelsTest, ClearPixelsDontDarkenTheMean) {
    Shown shown(pictureOf(2, 1, {0x00000000, kRed}));
    shown.image.isTransparent = true;
    EXPECT_EQ(shown.over(1, 1).at(0), 0x80800000u);
}

TEST(PicturePixelsTest, BrightnessContrastAndFadeChangeTheColors) {
    Shown shown(pictureOf(1, 1, {0xFF406080}));
    EXPECT_EQ(shown.over(1, 1).at(0), 0xFF406080u);
    shown.image.brightness = 60;
    EXPECT_EQ(shown.over(1, 1).at(0), 0xFF7393B3u) << "a fifth of 255 brighter";
    shown.image.brightness = 50;
    shown.image.contrast = 0;
    EXPECT_EQ(shown.over(1, 1).at(0), 0xFF808080u);
    shown.image.contrast = 100;
    EXPECT_EQ(shown.over(1, 1).at(0), 0xFF014181u) << "twice as far from the middle";
    shown.image.contrast = 50;
    shown.image.fade = 100;
    EXPECT_EQ(shown.over(1, 1, {0xFF112233, kRed}).at(0), 0xFF112233u);
    shown.image.fade = 50;
    EXPECT_EQ(shown.over(1, 1, {kBlack, kRed}).at(0), 0xFF203040u);
}

TEST(PicturePixelsTest, InkAndPaperAreTheEntitysColorWherePaperIsClear) {
    Shown shown(pictureOf(2, 1, {kBlack, kWhite}, true));
    EXPECT_EQ(shown.over(2, 1), (std::vector<PicturePixel>{kBlack, kWhite}));
    shown.image.isTransparent = true;
    EXPECT_EQ(shown.over(2, 1, {kRed, 0xFF010203}), (std::vector<PicturePixel>{0xFF010203, 0}));
}

TEST(PicturePixelsTest, APictureWithoutAreaOrAWindowWithoutPixelsIsNothing) {
    const Shown shown(fourColors());
    EXPECT_EQ(PicturePixels(shown.image, {0, 0, 2, 1, {0, 0}, {1, 0}, {1, 0}}, {}),
              std::vector<PicturePixel>(2, 0u));
    EXPECT_TRUE(PicturePixels(shown.image, {0, 0, -3, 5, {0, 0}, {1, 0}, {0, 1}}, {}).empty());
}

TEST(ScenePictures, TakeAThirdMoreThanTheirPixels) {
    const auto picture = pictureOf(64, 32, {});
    EXPECT_EQ(picture->levels().size(), 7u);
    EXPECT_EQ(picture->levels().back().width, 1);
    EXPECT_EQ(picture->levels()[1].height, 16);
    EXPECT_GE(picture->bytes(), 64u * 32 * 4 * 5 / 4);
    EXPECT_LE(picture->bytes(), 64u * 32 * 4 * 3 / 2);
}

}  // namespace
