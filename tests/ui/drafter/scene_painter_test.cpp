// What a scene looks like in pixels: what is far outside of the window, what is smaller than a pixel, dashes
// of a line of which a piece is seen, and what lies above what.
#include <cmath>

#include <gtest/gtest.h>

#include "../../../samples/drafter/scene_painter.h"
#include "pictures/scene_picture.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0);
constexpr int kWidth = 200, kHeight = 100;

class ScenePainting : public ::testing::Test {
protected:
    ScenePainting() {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_dc.CreateCompatibleDC(nullptr);
        m_former = ::SelectObject(m_dc, m_bitmap);
        place.size = CSize(kWidth, kHeight);
    }
    ~ScenePainting() override {
        ::SelectObject(m_dc, m_former);
        ::DeleteObject(m_bitmap);
    }
    ScenePath& add(std::vector<OdGePoint2d> points, COLORREF color, bool filled = false) {
        ScenePath& path = scene.paths.emplace_back();
        path.points = std::move(points);
        path.filled = filled;
        path.style.color.setRGB(GetRValue(color), GetGValue(color), GetBValue(color));
        return path;
    }
    void paint() {
        m_dc.FillSolidRect(0, 0, kWidth, kHeight, kDrawingPaper);
        PaintScene(m_dc, scene, place);
        ::GdiFlush();
    }
    /// Paints a part of the window anew, which is spoiled before.
    void paintIn(const CRect& part) {
        const int saved = m_dc.SaveDC();
        m_dc.IntersectClipRect(&part);
        m_dc.FillSolidRect(&part, RGB(1, 2, 3));
        m_dc.FillSolidRect(&part, kDrawingPaper);
        PaintScene(m_dc, scene, place);
        m_dc.RestoreDC(saved);
        ::GdiFlush();
    }
    COLORREF at(int x, int y) { return m_dc.GetPixel(x, y); }
    int count(COLORREF color) {
        int pixels = 0;
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x) pixels += at(x, y) == color;
        return pixels;
    }

    Scene scene;
    ScenePlace place;

private:
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_former = nullptr;
};

TEST_F(ScenePainting, ALineThatGoesFarBeyondTheWindowKeepsItsDirection) {
    // A third of a turn as steep as it is wide, a million windows long, through the middle.
    place.scale = 1e6;
    add({{-300, -100}, {300, 100}}, kRed);
    paint();
    EXPECT_EQ(at(kWidth / 2, kHeight / 2), kRed);
    EXPECT_EQ(at(kWidth / 2 + 90, kHeight / 2 - 30), kRed);
    EXPECT_EQ(at(kWidth / 2 - 90, kHeight / 2 + 30), kRed);
    EXPECT_EQ(at(kWidth / 2 + 90, kHeight / 2 - 33), kDrawingPaper);
}

TEST_F(ScenePainting, AnAreaThatGoesFarBeyondTheWindowKeepsItsEdge) {
    place.scale = 1e6;
    add({{-300, -100}, {300, 100}, {300, -200}}, kRed, true);
    paint();
    EXPECT_EQ(at(kWidth / 2, kHeight / 2 + 3), kRed);
    EXPECT_EQ(at(kWidth / 2, kHeight / 2 - 3), kDrawingPaper);
    EXPECT_EQ(at(kWidth - 1, kHeight / 2 - 30), kRed);
    EXPECT_EQ(at(0, kHeight / 2 + 30), kDrawingPaper);
    EXPECT_EQ(at(kWidth / 2, kHeight - 1), kRed) << "to the window's edge";
}

TEST_F(ScenePainting, AHoleOfAnAreaStaysAHoleWhereItIsCut) {
    ScenePath& area = add({{-50000, -50000},
                           {50000, -50000},
                           {50000, 50000},
                           {-50000, 50000},
                           {-30000, -10},
                           {20, -10},
                           {20, 10},
                           {-30000, 10}},
                          kRed, true);
    area.breaks = {4};
    paint();
    EXPECT_EQ(at(0, kHeight / 2), kDrawingPaper);
    EXPECT_EQ(at(kWidth / 2 + 15, kHeight / 2), kDrawingPaper);
    EXPECT_EQ(at(kWidth / 2 + 25, kHeight / 2), kRed);
    EXPECT_EQ(at(0, kHeight / 2 - 15), kRed);
}

TEST_F(ScenePainting, NothingIsDrawnOfWhatLiesBesideTheWindow) {
    add({{kWidth / 2.0 + 5, 0}, {kWidth, 0}}, kRed);
    add({{0, kHeight}, {10, kHeight + 10.0}, {20, kHeight}}, kRed, true);
    paint();
    EXPECT_EQ(count(kRed), 0);
}

TEST_F(ScenePainting, HalfOfAWideLineBesideTheWindowIsSeen) {
    scene.showsLineWeights = true;
    add({{-90, kHeight / 2.0 + 2}, {90, kHeight / 2.0 + 2}}, kRed).style.lineWeight = 211;
    paint();
    EXPECT_EQ(at(kWidth / 2, 0), kRed);
}

TEST_F(ScenePainting, WhatIsSmallerThanAPixelIsADot) {
    std::vector<OdGePoint2d> circle;
    for (int i = 0; i <= 72; ++i)
        circle.push_back({10 + 0.2 * std::cos(i * 0.0872665), 20 + 0.2 * std::sin(i * 0.0872665)});
    add(circle, kRed);
    add({{-30, 20}, {-30, 20}}, kGreen);
    paint();
    EXPECT_EQ(count(kRed), 1);
    EXPECT_EQ(at(kWidth / 2 + 10, kHeight / 2 - 20), kRed);
    EXPECT_EQ(count(kGreen), 1);
    EXPECT_EQ(at(kWidth / 2 - 30, kHeight / 2 - 20), kGreen);
}

TEST_F(ScenePainting, ACircleOfSomePixelsIsRoundAndClosed) {
    std::vector<OdGePoint2d> circle;
    for (int i = 0; i <= 72; ++i)
        circle.push_back({3 * std::cos(i * 0.0872665), 3 * std::sin(i * 0.0872665)});
    add(circle, kRed);
    paint();
    const int x = kWidth / 2, y = kHeight / 2;
    EXPECT_EQ(at(x + 3, y), kRed);
    EXPECT_EQ(at(x - 3, y), kRed);
    EXPECT_EQ(at(x, y + 3), kRed);
    EXPECT_EQ(at(x, y - 3), kRed);
    EXPECT_EQ(at(x, y), kDrawingPaper);
    EXPECT_EQ(at(x + 3, y + 3), kDrawingPaper);
    EXPECT_GE(count(kRed), 16);
}

TEST_F(ScenePainting, ACircleDrawnThroughFewOfItsPointsIsClosed) {
    std::vector<OdGePoint2d> circle;
    for (int i = 0; i <= 72; ++i)
        circle.push_back({3.9 * std::cos(i * 0.0872665), 3.9 * std::sin(i * 0.0872665)});
    add(circle, kRed);
    paint();
    const int x = kWidth / 2, y = kHeight / 2;
    EXPECT_TRUE(at(x + 3, y + 1) == kRed || at(x + 4, y + 1) == kRed) << "just before it closes";
}

TEST_F(ScenePainting, APointAmongTheLinesOfAPathIsADot) {
    add({{-20, 0}, {20, 0}, {30, 10}, {30, 10}}, kRed).breaks = {2};
    paint();
    EXPECT_EQ(at(kWidth / 2 + 30, kHeight / 2 - 10), kRed);
    EXPECT_EQ(at(kWidth / 2 + 25, kHeight / 2 - 5), kDrawingPaper);
}

TEST_F(ScenePainting, LinesAndAreasHaveEachTheirOwnWidthAndColor) {
    scene.showsLineWeights = true;
    add({{-50, 30}, {50, 30}}, kRed).style.lineWeight = 0;
    add({{-50, 10}, {50, 10}}, kRed).style.lineWeight = 211;
    add({{-50, -10}, {50, -10}}, kGreen).style.lineWeight = 0;
    add({{-50, -20}, {-20, -20}, {-20, -40}, {-50, -40}}, kRed, true);
    add({{20, -20}, {50, -20}, {50, -40}, {20, -40}}, kGreen, true);
    paint();
    const int x = kWidth / 2, y = kHeight / 2;
    EXPECT_EQ(at(x, y - 30), kRed);
    EXPECT_EQ(at(x, y - 32), kDrawingPaper) << "thin";
    EXPECT_EQ(at(x, y - 12), kRed) << "wide";
    EXPECT_EQ(at(x, y + 10), kGreen);
    EXPECT_EQ(at(x - 35, y + 30), kRed);
    EXPECT_EQ(at(x - 50, y + 30), kRed) << "its edge";
    EXPECT_EQ(at(x + 35, y + 30), kGreen);
    EXPECT_EQ(at(x + 20, y + 30), kGreen) << "its edge";
}

TEST_F(ScenePainting, ThePieceOfADashedLineHasItsDashesWhereTheWholeLineHasThem) {
    const auto dashesFrom = [&](double start) {
        scene.paths.clear();
        add({{start, 0}, {90, 0}}, kRed).style.dashes = {12, -8};
        paint();
        std::string row;
        for (int x = 20; x < 180; ++x) row += at(x, kHeight / 2) == kRed ? '#' : '.';
        return row;
    };
    // Twenty is the pattern's length, so these are the same dashes, the second of them outside at first.
    const std::string whole = dashesFrom(-100);
    EXPECT_EQ(dashesFrom(-100 - 20 * 800.0), whole);
    for (const int off : {7, 15})
        EXPECT_EQ(dashesFrom(-100 - 20 * 800.0 - off).substr(0, 100), whole.substr(off, 100)) << off;
    EXPECT_NE(whole.find("############........"), std::string::npos) << whole;
}

TEST_F(ScenePainting, WhatComesLaterLiesAbove) {
    add({{-50, 0}, {50, 0}}, kRed);
    add({{-10, -10}, {10, -10}, {10, 10}, {-10, 10}}, kGreen, true);
    add({{0, -50}, {0, 50}}, kRed);
    add({{-50, 5}, {50, 5}}, kGreen);
    paint();
    const int x = kWidth / 2, y = kHeight / 2;
    EXPECT_EQ(at(x - 5, y), kGreen) << "the area above the first line";
    EXPECT_EQ(at(x - 30, y), kRed);
    EXPECT_EQ(at(x, y - 8), kRed) << "the second line above the area";
    EXPECT_EQ(at(x, y - 5), kGreen) << "the last line above all";
}

TEST_F(ScenePainting, ADashedLineLiesAboveTheLinesBeforeIt) {
    add({{-50, 0}, {50, 0}}, kRed);
    // A dash from -10 to 10 lies across the line.
    add({{0, -10}, {0, 50}}, kGreen).style.dashes = {20, -10};
    paint();
    EXPECT_EQ(at(kWidth / 2, kHeight / 2), kGreen);
    EXPECT_EQ(at(kWidth / 2, kHeight / 2 - 15), kDrawingPaper) << "the gap";
}

TEST_F(ScenePainting, APartThatIsPaintedAnewFitsTheRest) {
    scene.showsLineWeights = true;
    for (int i = 0; i < 40; ++i) {
        ScenePath& path =
            add({{-300.0 + 7 * i, -90.0 + i}, {500.0 - 3 * i, 130.0 - 5 * i}}, i % 2 != 0 ? kRed : kGreen);
        if (i % 3 == 0) path.style.dashes = {12, -5, 0, -5};
        if (i % 7 == 0) path.style.lineWeight = 100;
    }
    paint();
    std::vector<COLORREF> whole;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) whole.push_back(at(x, y));
    EXPECT_GT(count(kRed), 500);
    paintIn(CRect(57, 13, 63, 90));
    paintIn(CRect(0, 40, kWidth, 47));
    int changed = 0;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            changed += at(x, y) != whole[static_cast<std::size_t>(y * kWidth + x)];
    EXPECT_EQ(changed, 0);
}

TEST_F(ScenePainting, LinesAreSeenThroughTheirOwnClipOnly) {
    scene.clips.push_back({{{-20, -20}, {0, -20}, {0, 20}, {-20, 20}}});
    add({{-50, 5}, {50, 5}}, kRed).clip = 0;
    add({{-50, -5}, {50, -5}}, kRed);
    paint();
    const int x = kWidth / 2, y = kHeight / 2;
    EXPECT_EQ(at(x - 10, y - 5), kRed);
    EXPECT_EQ(at(x + 10, y - 5), kDrawingPaper);
    EXPECT_EQ(at(x - 30, y - 5), kDrawingPaper);
    EXPECT_EQ(at(x + 10, y + 5), kRed);
    EXPECT_EQ(at(x - 30, y + 5), kRed);
}

TEST_F(ScenePainting, APictureLiesWhereItBelongsAboveWhatComesBefore) {
    add({{-90, 0}, {90, 0}}, kRed);
    SceneImage& image = scene.images.emplace_back();
    image.picture = std::make_shared<ScenePicture>(
        2, 2, std::vector<PicturePixel>{0xFF0000FF, 0xFFFFFFFF, 0xFF00FF00, 0xFFFFFF00});
    image.origin = {-20, -10};
    image.across = {40, 0};
    image.up = {0, 20};
    image.pathsBelow = 1;
    add({{0, -50}, {0, 50}}, kGreen);
    paint();
    const int x = kWidth / 2, y = kHeight / 2;
    EXPECT_EQ(at(x - 10, y - 5), RGB(0, 0, 255));
    EXPECT_EQ(at(x + 10, y - 5), RGB(255, 255, 255));
    EXPECT_EQ(at(x - 10, y + 5), RGB(0, 255, 0));
    EXPECT_EQ(at(x + 10, y + 5), RGB(255, 255, 0));
    EXPECT_EQ(at(x - 20, y - 10), RGB(0, 0, 255)) << "its corner";
    EXPECT_EQ(at(x - 21, y - 5), kDrawingPaper);
    EXPECT_EQ(at(x - 10, y - 11), kDrawingPaper);
    EXPECT_EQ(at(x - 30, y), kRed);
    EXPECT_EQ(at(x - 10, y), RGB(0, 255, 0)) << "above the line before it";
    EXPECT_EQ(at(x, y - 5), kGreen) << "below the line behind it";
    paintIn(CRect(x - 5, y - 20, x + 3, y + 3));
    EXPECT_EQ(at(x - 3, y - 3), RGB(0, 0, 255));
    EXPECT_EQ(at(x + 1, y + 1), RGB(255, 255, 0));
}

TEST_F(ScenePainting, APictureIsTurnedClippedAndClearAsItSays) {
    add({{-90, 0}, {90, 0}}, kRed);
    scene.clips.push_back({{{-40, -40}, {5, -40}, {5, 40}, {-40, 40}}});
    SceneImage& image = scene.images.emplace_back();
    image.picture = std::make_shared<ScenePicture>(1, 2, std::vector<PicturePixel>{0xFF0000FF, 0});
    // A quarter turn: its top is on the left.
    image.origin = {20, -10};
    image.across = {0, 20};
    image.up = {-40, 0};
    image.clip = 0;
    image.isTransparent = true;
    image.pathsBelow = 1;
    paint();
    const int x = kWidth / 2, y = kHeight / 2;
    EXPECT_EQ(at(x - 10, y), RGB(0, 0, 255));
    EXPECT_EQ(at(x + 2, y), kRed) << "through what is clear";
    EXPECT_EQ(at(x + 2, y + 3), kDrawingPaper);
    image.isTransparent = false;
    paint();
    EXPECT_EQ(at(x + 2, y + 3), RGB(255, 255, 255));
    EXPECT_EQ(at(x + 7, y + 3), kDrawingPaper) << "beyond the clip";
    EXPECT_EQ(at(x + 7, y), kRed);
    image.fade = 100;
    paint();
    EXPECT_EQ(at(x - 10, y), kDrawingPaper) << "faded to the paper";
}

TEST_F(ScenePainting, InkIsOfTheEntitysColor) {
    SceneImage& image = scene.images.emplace_back();
    image.picture =
        std::make_shared<ScenePicture>(2, 1, std::vector<PicturePixel>{0xFF000000, 0xFFFFFFFF}, true);
    image.origin = {-20, -10};
    image.across = {40, 0};
    image.up = {0, 20};
    image.isTransparent = true;
    image.style.color.setRGB(255, 0, 0);
    paint();
    EXPECT_EQ(at(kWidth / 2 - 10, kHeight / 2), kRed);
    EXPECT_EQ(at(kWidth / 2 + 10, kHeight / 2), kDrawingPaper);
}

TEST_F(ScenePainting, APictureAMillionWindowsLargeShowsWhatIsSeenOfIt) {
    place.scale = 1e6;
    SceneImage& image = scene.images.emplace_back();
    image.picture = std::make_shared<ScenePicture>(2, 1, std::vector<PicturePixel>{0xFF0000FF, 0xFFFFFF00});
    image.origin = {-100, -100};
    image.across = {200, 0};
    image.up = {0, 200};
    paint();
    EXPECT_EQ(at(kWidth / 2 - 3, 0), RGB(0, 0, 255));
    EXPECT_EQ(at(kWidth / 2 + 3, kHeight - 1), RGB(255, 255, 0));
    EXPECT_EQ(count(RGB(0, 0, 255)), kWidth / 2 * kHeight);
}

TEST_F(ScenePainting, ATextLiesAboveTheLinesBeforeIt) {
    scene.showsLineWeights = true;
    add({{-90, 4}, {90, 4}}, kRed).style.lineWeight = 211;
    SceneText& text = scene.texts.emplace_back();
    text.text = OdString(L"HHHH");
    text.position = {-20, 0};
    text.height = 8;
    text.style.color.setRGB(0, 255, 0);
    text.pathsBelow = 1;
    paint();
    int pixels = 0;
    for (int x = 0; x < kWidth; ++x) pixels += at(x, kHeight / 2 - 5) == kGreen;
    EXPECT_GE(pixels, 8) << "a column of each stem";
}

TEST_F(ScenePainting, ATextFarFromTheMiddleIsWritten) {
    SceneText& text = scene.texts.emplace_back();
    text.text = OdString(L"H");
    text.position = {80, 35};
    text.height = 8;
    text.style.color.setRGB(0, 255, 0);
    paint();
    EXPECT_GE(count(kGreen), 10);
}

TEST_F(ScenePainting, TextsInTwoSizesAndTurnsAreWrittenEachInItsOwn) {
    const auto write = [&](OdGePoint2d position, double height, double rotation) {
        SceneText& text = scene.texts.emplace_back();
        text.text = OdString(L"HHHH");
        text.position = position;
        text.height = height;
        text.rotation = rotation;
        text.style.color.setRGB(255, 0, 0);
    };
    const auto box = [&] {
        paint();
        CRect all(kWidth, kHeight, 0, 0);
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                if (at(x, y) != kDrawingPaper)
                    all = CRect(std::min<int>(all.left, x), std::min<int>(all.top, y),
                                std::max<int>(all.right, x + 1), std::max<int>(all.bottom, y + 1));
        return all;
    };
    write({-40, 0}, 8, 0);
    const CRect small = box();
    EXPECT_NEAR(small.Height(), 8, 2);
    scene.texts.clear();
    write({-40, 0}, 16, 0);
    const CRect large = box();
    EXPECT_NEAR(large.Height(), 16, 2);
    EXPECT_NEAR(large.Width(), 2 * small.Width(), 6);
    scene.texts.clear();
    write({0, -40}, 8, 1.5707963267948966);
    const CRect turned = box();
    EXPECT_NEAR(turned.Width(), small.Height(), 2);
    EXPECT_NEAR(turned.Height(), small.Width(), 5);
    scene.texts.clear();
    write({-40, -30}, 8, 0);
    write({-40, 0}, 16, 0);
    const CRect both = box();
    EXPECT_EQ(both.right, large.right);
    EXPECT_NEAR(both.Height(), 16 + 30, 3) << "the second is not written as the first";
}

}  // namespace
