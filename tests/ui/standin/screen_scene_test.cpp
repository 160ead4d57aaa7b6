// What another thread builds scenes with is what this one does, and asks the host for nothing there.
#include "screen_scene.h"

#include <thread>

#include "standin_fixture.h"

namespace {

class ScreenScene : public ui_test::StandinTest {
protected:
    /// A text style with a font file.
    void addStyle(const wchar_t* name, const wchar_t* file) {
        OdDbTextStyleTablePtr styles;
        drawing->getTextStyleTable(styles, OdDb::kForWrite);
        const OdSmartPtr<OdDbTextStyleTableRecord> style(new OdDbTextStyleTableRecord);
        style->setName(name);
        ASSERT_EQ(styles->add(OdDbSymbolTableRecordPtr(style.get())), kOdOk);
        style->setFileName(file);
    }
    static SceneFont fontOf(const wchar_t* family, const wchar_t* file) {
        SceneFont font;
        font.family = family;
        font.file = file;
        return font;
    }
};

TEST_F(ScreenScene, OnAnotherThreadTextsAreAsWideAsHere) {
    addStyle(L"SIGNS", L"wingding.ttf");
    addStyle(L"SHAPES", L"txt.shx");
    const SceneOptions here = ScreenSceneOptions();
    const std::vector<SceneFont> fonts = {fontOf(L"", L"txt.shx"), fontOf(L"", L"wingding.ttf"),
                                          fontOf(L"Wingdings", L""), fontOf(L"Tahoma", L"txt.shx")};
    std::vector<double> expected, measured;
    for (const SceneFont& font : fonts) expected.push_back(here.textWidth(font, L"measured"));
    ASSERT_EQ(expected[1], expected[2]) << "the file's family is known";
    ASSERT_NE(expected[0], expected[1]);
    SceneOptions there = BackgroundSceneOptions(*drawing);
    std::thread([&, own = std::exchange(there, {})] {
        for (const SceneFont& font : fonts) measured.push_back(own.textWidth(font, L"measured"));
    }).join();
    EXPECT_EQ(measured, expected);
}

TEST_F(ScreenScene, AFontFileThatNoStyleNamesIsMeasuredAsTheStandIn) {
    const SceneOptions there = BackgroundSceneOptions(*drawing);
    EXPECT_EQ(there.textWidth(fontOf(L"", L"wingding.ttf"), L"measured"),
              there.textWidth(fontOf(L"", L"txt.shx"), L"measured"));
}

TEST_F(ScreenScene, WhereNobodyMayAskTheHostFontsAreThoseOfTheirFamilies) {
    addStyle(L"SIGNS", L"wingding.ttf");
    const SceneOptions asked = ScreenSceneOptions(), unasked = UnaskedSceneOptions(*drawing);
    const auto width = [](const SceneOptions& options, const SceneFont& font) {
        return options.textWidth(font, L"measured");
    };
    EXPECT_EQ(width(unasked, fontOf(L"Wingdings", L"")), width(asked, fontOf(L"Wingdings", L"")));
    EXPECT_NE(width(unasked, fontOf(L"", L"wingding.ttf")), width(asked, fontOf(L"", L"wingding.ttf")));
    EXPECT_EQ(width(unasked, fontOf(L"", L"wingding.ttf")), width(asked, fontOf(L"", L"txt.shx")));
    EXPECT_FALSE(unasked.shapeFile);
    Scene scene;
    scene.texts.resize(2);
    scene.texts[0].font = fontOf(L"", L"wingding.ttf");
    scene.texts[1].font = fontOf(L"Wingdings", L"wingding.ttf");
    NameFamilies(scene);
    EXPECT_EQ(scene.texts[0].font.family, L"Tahoma") << "so that painting doesn't ask either";
    EXPECT_EQ(scene.texts[1].font.family, L"Wingdings");
}

TEST_F(ScreenScene, OnAnotherThreadShapesComeFromTheFilesOfTheStyles) {
    ui_test::TemporaryFolder files;
    files.write(L"signs.shx", "shapes");
    host.SetSupportDirectories({CString(files.path().c_str())});
    addStyle(L"SIGNS", L"signs.shx");
    addStyle(L"GONE", L"gone.shx");
    files.write(L"asia.shx", "letters");
    OdDbTextStyleTablePtr styles;
    drawing->getTextStyleTable(styles);
    styles->getAt(L"SIGNS").open<OdDbTextStyleTableRecord>(OdDb::kForWrite)->setBigFontFileName(L"asia.shx");
    const SceneOptions there = BackgroundSceneOptions(*drawing);
    std::string found, big, gone = "?", unnamed = "?";
    std::thread([&] {
        big = there.shapeFile(L"asia.shx");
        found = there.shapeFile(L"signs.shx");
        gone = there.shapeFile(L"gone.shx");
        unnamed = there.shapeFile(L"other.shx");
    }).join();
    EXPECT_EQ(found, "shapes");
    EXPECT_EQ(big, "letters");
    EXPECT_EQ(gone, "");
    EXPECT_EQ(unnamed, "");
}

TEST_F(ScreenScene, TheShapeFontThatStandsForMissingOnesIsFoundOnAnotherThreadToo) {
    EXPECT_TRUE(ScreenSceneOptions().shapeFontInPlace.isEmpty());
    EXPECT_TRUE(BackgroundSceneOptions(*drawing).shapeFontInPlace.isEmpty());
    ui_test::TemporaryFolder files;
    files.write(L"plain.shx", "strokes");
    host.SetSupportDirectories({CString(files.path().c_str())});
    host.SetShapeFontInPlace(L"plain.shx");
    EXPECT_EQ(ScreenSceneOptions().shapeFontInPlace, L"plain.shx");
    const SceneOptions there = BackgroundSceneOptions(*drawing);
    EXPECT_EQ(there.shapeFontInPlace, L"plain.shx");
    std::string found;
    std::thread([&] { found = there.shapeFile(L"plain.shx"); }).join();
    EXPECT_EQ(found, "strokes");
    host.SetShapeFontInPlace(nullptr);
    EXPECT_TRUE(ScreenSceneOptions().shapeFontInPlace.isEmpty());
}

TEST_F(ScreenScene, TheShapeFontThatStandsForMissingOnesGoesWithTheHost) {
    {
        CStandinHost another(*AfxGetApp());
        another.SetShapeFontInPlace(L"plain.shx");
        ASSERT_FALSE(ScreenSceneOptions().shapeFontInPlace.isEmpty());
    }
    EXPECT_TRUE(ScreenSceneOptions().shapeFontInPlace.isEmpty());
}

}  // namespace
