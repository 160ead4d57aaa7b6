// Previews of exchange files in the drafter's dialogs: the file's own picture, or a drawn one that is kept.
#include <filesystem>
#include <fstream>

#include <shlobj.h>

#include <ktui/nav/thumbnail.h>

#include "../../../samples/drafter/drawing_chooser.h"
#include "drafter_fixture.h"
#include "file_groups.h"

namespace {

namespace fs = std::filesystem;

class DrawingPreview : public ::testing::Test {
protected:
    DrawingPreview() {
        fs::remove_all(folder);
        fs::create_directories(folder);
        ShowPreviewsOfDrawings();
    }
    ~DrawingPreview() override {
        KtUiSetThumbnailProvider(nullptr);
        fs::remove_all(folder);
        for (const fs::path& picture : pictures())
            if (!std::count(before.begin(), before.end(), picture)) fs::remove(picture);
    }
    /// The pictures that are kept.
    static std::vector<fs::path> pictures() {
        wchar_t local[MAX_PATH] = {};
        ::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, local);
        std::vector<fs::path> all;
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(fs::path(local) / "Velmora" / "Previews", error))
            all.push_back(entry.path());
        return all;
    }
    size_t added() const { return pictures().size() - before.size(); }
    std::wstring line(const wchar_t* name, int color) const {
        std::ofstream(folder / name, std::ios::binary)
            << "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n62\n"
            << color << "\n10\n0\n20\n0\n11\n200\n21\n0\n0\nENDSEC\n0\nEOF\n";
        return (folder / name).wstring();
    }
    /// How many pixels of the preview in an area of this size have the colour, and its size.
    static int count(const std::wstring& path, COLORREF color, CSize area, CSize& size) {
        const HBITMAP bitmap = ktuiGetThumbnail(path.c_str(), area.cx, area.cy);
        BITMAP picture = {};
        if (bitmap == nullptr || ::GetObjectW(bitmap, sizeof picture, &picture) == 0) return -1;
        size = CSize(picture.bmWidth, picture.bmHeight);
        const HDC memory = ::CreateCompatibleDC(nullptr);
        const HGDIOBJ former = ::SelectObject(memory, bitmap);
        int pixels = 0;
        for (int y = 0; y < size.cy; ++y)
            for (int x = 0; x < size.cx; ++x) pixels += ::GetPixel(memory, x, y) == color;
        ::SelectObject(memory, former);
        ::DeleteDC(memory);
        ::DeleteObject(bitmap);
        return pixels;
    }

    fs::path folder = fs::temp_directory_path() / "ktui_drawing_preview_test";
    std::vector<fs::path> before = pictures();
};

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0);

TEST_F(DrawingPreview, AFileWithoutAPictureIsDrawnOnceForEachState) {
    const std::wstring path = line(L"plan.dxf", 1);
    CSize size;
    EXPECT_GT(count(path, kRed, CSize(300, 300), size), 150);
    EXPECT_EQ(size, CSize(200, 150)) << "never larger";
    EXPECT_EQ(added(), 1u);
    EXPECT_GT(count(path, kRed, CSize(300, 300), size), 150);
    EXPECT_EQ(added(), 1u);
    // Another state of the file, even of the same length.
    line(L"plan.dxf", 3);
    fs::last_write_time(path, fs::last_write_time(path) + std::chrono::seconds(10));
    EXPECT_GT(count(path, kGreen, CSize(300, 300), size), 150);
    EXPECT_EQ(count(path, kRed, CSize(300, 300), size), 0);
    EXPECT_EQ(added(), 2u);
}

TEST_F(DrawingPreview, PicturesInADrawingAreSeen) {
    // A bitmap of one pixel in pure blue beside the drawing.
    std::string bitmap("BM\x3A\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0", 30);
    bitmap += std::string(24, '\0') + std::string("\xFF\0\0\0", 4);
    std::ofstream(folder / "blue.bmp", std::ios::binary) << bitmap;
    std::ofstream(folder / "picture.dxf", std::ios::binary) << ui_test::fileGroups(
        "0 SECTION|2 ENTITIES|0 IMAGE|8 0|100 AcDbRasterImage|10 0|20 0|30 0|11 40|21 0|31 0|12 0|22 30|32 "
        "0|13 "
        "1|23 1|340 D0|70 7|280 0|0 ENDSEC|0 SECTION|2 OBJECTS|0 IMAGEDEF|5 D0|330 0|100 "
        "AcDbRasterImageDef|1 "
        "blue.bmp|0 ENDSEC|0 EOF");
    CSize size;
    const int blue = count((folder / "picture.dxf").wstring(), RGB(0, 0, 255), CSize(200, 150), size);
    EXPECT_GT(blue, size.cx * size.cy * 3 / 4);
}

TEST_F(DrawingPreview, AKeptPictureIsShownAgain) {
    const std::wstring path = line(L"plan.DXF", 1);
    CSize size;
    ASSERT_GT(count(path, kRed, CSize(300, 300), size), 150);
    for (const fs::path& picture : pictures())
        if (!std::count(before.begin(), before.end(), picture)) {
            // The colour table's red becomes green.
            std::fstream file(picture, std::ios::in | std::ios::out | std::ios::binary);
            const std::streamoff red = 14 + 40 + 4 * (5 * 36);
            file.seekp(red);
            file.write("\x00\xFF\x00", 3);
        }
    EXPECT_GT(count(path, kGreen, CSize(300, 300), size), 150) << "it was not drawn anew";
}

TEST_F(DrawingPreview, ALargerPictureIsMadeToFit) {
    CSize size;
    EXPECT_GE(count(line(L"plan.dxf", 1), kRed, CSize(100, 100), size), 0);
    EXPECT_EQ(size, CSize(100, 75));
}

TEST_F(DrawingPreview, OldPicturesGo) {
    const std::wstring path = line(L"first.dxf", 1);
    CSize size;
    count(path, kRed, CSize(300, 300), size);
    ASSERT_EQ(added(), 1u);
    for (const fs::path& picture : pictures())
        if (!std::count(before.begin(), before.end(), picture))
            fs::last_write_time(picture, fs::last_write_time(picture) - std::chrono::hours(24 * 61));
    count(line(L"second.dxf", 3), kGreen, CSize(300, 300), size);
    EXPECT_EQ(added(), 1u) << "the first one has not been needed for long";
}

TEST_F(DrawingPreview, WhatIsNoDrawingHasNone) {
    CSize size;
    std::ofstream(folder / "broken.dxf") << "no drawing";
    std::ofstream(folder / "empty.dxf") << "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n";
    EXPECT_EQ(count((folder / "broken.dxf").wstring(), kRed, CSize(300, 300), size), -1);
    EXPECT_EQ(count((folder / "empty.dxf").wstring(), kRed, CSize(300, 300), size), -1);
    EXPECT_EQ(count((folder / "gone.dxf").wstring(), kRed, CSize(300, 300), size), -1);
    EXPECT_EQ(added(), 0u);
}

}  // namespace
