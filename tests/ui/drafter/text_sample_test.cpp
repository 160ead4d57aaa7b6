// What the sample of a text style shows.
#include <cmath>
#include <filesystem>

#include <standin_host.h>

#include "../../../samples/drafter/text_sample.h"
#include "../standin/temporary_folder.h"
#include "ui_test.h"

namespace {

class TextSamples : public ::testing::Test {
protected:
    TextSamples() {
        wchar_t program[MAX_PATH] = {};
        ::GetModuleFileNameW(nullptr, program, MAX_PATH);
        host.SetSupportDirectories({(std::filesystem::path(program).parent_path() / L"fonts").c_str()});
        style.file = L"drafter.shx";
    }
    CStandinHost host{*AfxGetApp()};
    TextStyleValues style;
};

TEST_F(TextSamples, AShapeFontIsShownInItsStrokesWithTheStylesWidthAndSlant) {
    const Scene plain = TextSample(style, L"I");
    ASSERT_EQ(plain.paths.size(), 1u);
    EXPECT_TRUE(plain.texts.empty());
    EXPECT_TRUE(plain.paths[0].isLetters);
    EXPECT_NEAR(plain.extents().high.y - plain.extents().low.y, 1, 1e-9);
    // The letter's feet are two units of six wide.
    EXPECT_NEAR(plain.extents().high.x - plain.extents().low.x, 2.0 / 6, 1e-9);
    style.width = 3;
    const Scene wide = TextSample(style, L"I");
    EXPECT_NEAR(wide.extents().high.x - wide.extents().low.x, 1, 1e-9);
    style.slant = std::atan(0.5);
    const Scene slanted = TextSample(style, L"I");
    EXPECT_NEAR(slanted.extents().high.x - slanted.extents().low.x, 1.5, 1e-9);
}

TEST_F(TextSamples, AFamilyIsShownInItsLetters) {
    style.family = L"Arial";
    style.file = L"arialbi.ttf";
    style.bold = style.italic = true;
    const Scene scene = TextSample(style, L"Ab");
    EXPECT_TRUE(scene.paths.empty());
    ASSERT_EQ(scene.texts.size(), 1u);
    EXPECT_EQ(scene.texts[0].text, L"Ab");
    EXPECT_EQ(scene.texts[0].font.family, L"Arial");
    EXPECT_TRUE(scene.texts[0].font.bold);
    EXPECT_TRUE(scene.texts[0].font.italic);
}

TEST_F(TextSamples, LettersOfEastAsiaComeFromTheBigFontWhoseNameTells) {
    ui_test::TemporaryFolder files;
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::filesystem::path fonts = std::filesystem::path(program).parent_path() / L"fonts";
    ASSERT_TRUE(
        ::CopyFileW((fonts / L"drafterc.shx").c_str(), (files.path() + L"\\gbcbig.shx").c_str(), TRUE));
    host.SetSupportDirectories({CString(fonts.c_str()), CString(files.path().c_str())});
    EXPECT_EQ(TextSample(style, L"A\x4E2D").texts.size(), 1u);
    style.bigFile = L"gbcbig.shx";
    const Scene scene = TextSample(style, L"A\x4E2D");
    EXPECT_TRUE(scene.texts.empty());
    EXPECT_FALSE(scene.paths.empty());
}

}  // namespace
