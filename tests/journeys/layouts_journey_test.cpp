// A draughtsman goes through the layouts of a drawing by mouse and keys, and finds the one that was saved
// again.
#include <filesystem>
#include <fstream>

#include <windows.h>
#include <commctrl.h>

#include "journey_fixture.h"
#include "sheets.h"

using namespace journey;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kPaper = RGB(255, 255, 255);

class Layouts : public Journey {
protected:
    Layouts() {
        const std::wstring scratch = scratchPath(L"layouts.dxf");
        std::ofstream(std::filesystem::path(scratch), std::ios::binary) << ui_test::sheetsFile();
        open(scratch);
        drafter->activate(drafter->frame());
    }
    HWND row() const { return ::FindWindowExW(drafter->drawing(), nullptr, WC_TABCONTROLW, nullptr); }
    int shown() const { return static_cast<int>(::SendMessageW(row(), TCM_GETCURSEL, 0, 0)); }
    bool waitForTab(int index) const {
        return waitUntil([=, this] { return shown() == index; });
    }
    /// Clicks along the row from the left until tab `index` is in front.
    bool clickTab(int index) {
        const RECT all = rectOf(row());
        for (LONG x = 6; x < all.right - all.left && shown() != index; x += 10)
            drafter->click(row(), {x, (all.bottom - all.top) / 2});
        return shown() == index;
    }
    /// Whether pixels of this color are to be seen in the middle of the view.
    bool isSeen(COLORREF color) const {
        const RECT view = rectOf(drafter->view());
        const HDC screen = ::GetDC(nullptr);
        bool isFound = false;
        const LONG y = (view.top + view.bottom) / 2;
        for (LONG x = view.left; x < view.right && !isFound; ++x) isFound = ::GetPixel(screen, x, y) == color;
        ::ReleaseDC(nullptr, screen);
        return isFound;
    }
    /// The same as soon as they are.
    bool shows(COLORREF color) const {
        return waitUntil([=, this] { return isSeen(color); });
    }
};

TEST_F(Layouts, AClickOnATabShowsTheSheet) {
    ASSERT_NE(row(), nullptr);
    EXPECT_EQ(textOf(row()), L"Layouts of the drawing");
    EXPECT_EQ(::SendMessageW(row(), TCM_GETITEMCOUNT, 0, 0), 3);
    EXPECT_TRUE(shows(kRed));
    EXPECT_FALSE(isSeen(kPaper));
    ASSERT_TRUE(clickTab(2));
    EXPECT_TRUE(shows(kPaper));
    EXPECT_TRUE(shows(kGreen));
    ASSERT_TRUE(clickTab(1));
    EXPECT_TRUE(shows(kRed)) << "through the viewport";
    EXPECT_TRUE(shows(kPaper));
}

TEST_F(Layouts, KeysGoFromOneToTheOtherAndStopAtTheEnds) {
    drafter->key(VK_NEXT, true);
    EXPECT_TRUE(waitForTab(1));
    EXPECT_TRUE(shows(kPaper));
    drafter->key(VK_NEXT, true);
    EXPECT_TRUE(waitForTab(2));
    drafter->key(VK_NEXT, true);
    EXPECT_EQ(shown(), 2);
    drafter->key(VK_PRIOR, true);
    drafter->key(VK_PRIOR, true);
    EXPECT_TRUE(waitForTab(0));
    EXPECT_TRUE(shows(kRed));
}

TEST_F(Layouts, TheOneThatWasSavedComesBack) {
    drafter->key(VK_NEXT, true);
    drafter->key(VK_NEXT, true);
    ASSERT_TRUE(waitForTab(2));
    EXPECT_EQ(textOf(drafter->frame()).find(L'*'), std::wstring::npos) << "nothing was changed";
    drafter->key('S', true);
    const auto currentInFile = [this] {
        OdDbDatabasePtr read(new OdDbDatabase);
        if (read->readDxf(path.c_str()) != kOdOk) return std::wstring();
        const auto layout = read->currentLayoutId().open<OdDbLayout>();
        return layout ? std::wstring(layout->getLayoutName().view()) : std::wstring();
    };
    ASSERT_TRUE(waitUntil([&] { return currentInFile() == L"Detail"; }));
    drafter.reset();
    open(path);
    drafter->activate(drafter->frame());
    EXPECT_TRUE(waitForTab(2));
    EXPECT_TRUE(shows(kGreen));
    drafter->key(VK_PRIOR, true);
    drafter->key(VK_PRIOR, true);
    EXPECT_TRUE(waitForTab(0));
    EXPECT_TRUE(shows(kRed));
}

}  // namespace
