// What saving leaves on the disk: the drawing with its small picture, and the former file beside it.
#include <filesystem>
#include <fstream>
#include <sstream>

#include <ktdb.h>

#include "../../../samples/drafter/draft_document.h"
#include "../../../samples/drafter/drawing_thumbnail.h"
#include "drafter_fixture.h"

namespace {

namespace fs = std::filesystem;

class Saving : public ::testing::Test {
protected:
    Saving() {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~Saving() override { fs::remove_all(folder); }

    std::wstring file(const wchar_t* name) const { return (folder / name).wstring(); }
    void write(const wchar_t* name, const std::string& text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    std::string read(const wchar_t* name) const {
        std::ifstream stream(folder / name, std::ios::binary);
        std::stringstream text;
        text << stream.rdbuf();
        return text.str();
    }
    std::string names() const {
        std::vector<std::string> all;
        for (const auto& entry : fs::directory_iterator(folder))
            all.push_back(entry.path().filename().string());
        std::sort(all.begin(), all.end());
        std::string text;
        for (const std::string& name : all) text += name + " ";
        return text;
    }

    fs::path folder = fs::temp_directory_path() / "ktui_saving_test";
};

const char kRedLine[] =
    "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n"
    "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n62\n1\n10\n0\n20\n0\n11\n200\n21\n0\n0\nENDSEC\n0\nEOF\n";

TEST_F(Saving, TheFormerFileIsKeptAsABackup) {
    write(L"plan.dxf", kRedLine);
    CDraftDocument document;
    OdDbDxfError error;
    ASSERT_TRUE(document.Open(file(L"plan.dxf").c_str(), error));
    ASSERT_TRUE(document.Save(file(L"plan.dxf").c_str()));
    EXPECT_EQ(names(), "plan.bak plan.dxf ");
    EXPECT_EQ(read(L"plan.bak"), kRedLine);
    const std::string second = read(L"plan.dxf");
    EXPECT_NE(second, kRedLine);
    ASSERT_TRUE(document.Save(file(L"plan.dxf").c_str()));
    EXPECT_EQ(read(L"plan.bak"), second) << "the newest backup takes the place of the former";
}

TEST_F(Saving, ANewFileHasNoBackup) {
    CDraftDocument document;
    ASSERT_TRUE(document.Save(file(L"plan.dxf").c_str()));
    EXPECT_EQ(names(), "plan.dxf ");
}

TEST_F(Saving, ABackupIsNotKeptInItsOwnPlace) {
    write(L"plan.bak", kRedLine);
    CDraftDocument document;
    ASSERT_TRUE(document.Save(file(L"plan.bak").c_str()));
    EXPECT_EQ(names(), "plan.bak ");
}

TEST_F(Saving, ABackupThatCannotBeWrittenDoesNotStopTheSaving) {
    write(L"plan.dxf", kRedLine);
    fs::create_directory(folder / "plan.bak");
    CDraftDocument document;
    OdDbDxfError error;
    ASSERT_TRUE(document.Open(file(L"plan.dxf").c_str(), error));
    EXPECT_TRUE(document.Save(file(L"plan.dxf").c_str()));
    EXPECT_EQ(names(), "plan.bak plan.dxf ") << "nothing half done is left";
}

TEST_F(Saving, AFileThatCannotBeReplacedStaysWhole) {
    write(L"plan.dxf", kRedLine);
    const HANDLE held = ::CreateFileW(file(L"plan.dxf").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    CDraftDocument document;
    EXPECT_FALSE(document.Save(file(L"plan.dxf").c_str()));
    ::CloseHandle(held);
    EXPECT_EQ(read(L"plan.dxf"), kRedLine);
}

TEST_F(Saving, TheThumbnailShowsTheDrawing) {
    write(L"plan.dxf", kRedLine);
    CDraftDocument document;
    OdDbDxfError error;
    ASSERT_TRUE(document.Open(file(L"plan.dxf").c_str(), error));
    ASSERT_TRUE(document.Save(file(L"saved.dxf").c_str()));
    HBITMAP bitmap = nullptr;
    HPALETTE palette = nullptr;
    ASSERT_TRUE(ktdbGetPreviewBitmapFromDwg(file(L"saved.dxf").c_str(), &bitmap, &palette));
    BITMAP size = {};
    ::GetObjectW(bitmap, sizeof size, &size);
    EXPECT_EQ(size.bmWidth, 200);
    EXPECT_EQ(size.bmHeight, 150);
    const HDC memory = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ former = ::SelectObject(memory, bitmap);
    EXPECT_EQ(::GetPixel(memory, 2, 2), RGB(33, 40, 48)) << "the paper";
    int red = 0, others = 0;
    for (int y = 0; y < 150; ++y)
        for (int x = 0; x < 200; ++x) {
            const COLORREF color = ::GetPixel(memory, x, y);
            if (color == RGB(255, 0, 0)) {
                ++red;
                EXPECT_NEAR(y, 75, 2);
            } else if (color != RGB(33, 40, 48)) {
                ++others;
            }
        }
    EXPECT_GT(red, 150) << "the line goes nearly from edge to edge";
    EXPECT_EQ(others, 0);
    ::SelectObject(memory, former);
    ::DeleteDC(memory);
    ::DeleteObject(bitmap);
    ::DeleteObject(palette);
    EXPECT_FALSE(document.database()->isModified());
}

TEST_F(Saving, AnEmptyDrawingHasNoThumbnail) {
    CDraftDocument document;
    EXPECT_EQ(DrawingThumbnail(*document.database()), "");
    document.database()->setThumbnail("an old one");
    ASSERT_TRUE(document.Save(file(L"plan.dxf").c_str()));
    EXPECT_EQ(read(L"plan.dxf").find("THUMBNAILIMAGE"), std::string::npos);
}

}  // namespace

TEST_F(Saving, TheDecimalsOfTheOptionsPageAreThoseOfTheFile) {
    std::string drawn = kRedLine;
    drawn.replace(drawn.find("200"), 3, "200.123456789");
    write(L"plan.dxf", drawn);
    CDraftDocument document;
    OdDbDxfError error;
    ASSERT_TRUE(document.Open(file(L"plan.dxf").c_str(), error));
    for (const auto& [decimals, written] : std::vector<std::pair<int, std::string>>{
             {4, "\n200.1235\n"}, {0, "\n200.0\n"}, {16, "\n200.123456789\n"}}) {
        static_cast<KtApDocument&>(document).variables()->setInt(L"DXFSAVEPRECISION", decimals);
        ASSERT_TRUE(document.Save(file(L"plan.dxf").c_str()));
        std::string text = read(L"plan.dxf");
        text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
        EXPECT_NE(text.find(written), std::string::npos) << decimals;
        EXPECT_EQ(document.form().precision, decimals);
    }
}

TEST_F(Saving, WhoeverListensHearsOfTheSwitchForBinaryFiles) {
    CDraftDocument document;
    EXPECT_FALSE(document.SavesBinary());
    int heard = 0;
    document.SetBinaryListener([&] { ++heard; });
    CKhVariableStore& variables = *static_cast<KtApDocument&>(document).variables();
    variables.setBool(L"DXFSAVEBINARY", true);
    EXPECT_TRUE(document.SavesBinary());
    variables.setBool(L"DXFSAVEOBJECT", true);
    document.SetSavesBinary(false);
    EXPECT_FALSE(document.SavesBinary());
    EXPECT_EQ(heard, 2);
    document.SetBinaryListener({});
    document.SetSavesBinary(true);
    EXPECT_EQ(heard, 2);
}
