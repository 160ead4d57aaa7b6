// The status bar of docking frames, by its pixels: colours, pictures, progress, looks.
#include <algorithm>
#include <string>

#include "status_bar_ex_fixture.h"
#include "system_colors.h"

namespace docking {

namespace {

TEST_F(StatusBarEx, ColoursAreThePanesOwn) {
    bar.SetPaneText(1, L"MMMM");
    bar.SetPaneBackgroundColor(1, RGB(250, 240, 10));
    bar.SetPaneTextColor(1, RGB(200, 0, 30));
    ui_test::Picture seen = shown(1);
    EXPECT_EQ(seen.commonest(), RGB(250, 240, 10));
    EXPECT_GT(seen.count(RGB(200, 0, 30)), 4);
    EXPECT_EQ(shown(2).count(RGB(250, 240, 10)), 0);
    bar.SetPaneBackgroundColor(1, RGB(0, 200, 0), FALSE);
    bar.SetPaneTextColor(1, RGB(0, 0, 200), FALSE);
    ui_test::pump();
    EXPECT_TRUE(shown(1) == seen);
    bar.InvalidatePaneContent(1);
    EXPECT_EQ(shown(1).commonest(), RGB(0, 200, 0));
    EXPECT_GT(shown(1).count(RGB(0, 0, 200)), 4);
    bar.SetPaneBackgroundColor(1);
    bar.SetPaneTextColor(1);
    EXPECT_EQ(shown(1).commonest(), shown(2).commonest());
    EXPECT_EQ(shown(1).count(RGB(0, 0, 200)), 0);
}

TEST_F(StatusBarEx, DisabledPanesAreGreyAndCheckedOnesRaised) {
    bar.SetPaneText(1, L"MMMM");
    const ui_test::Picture plain = shown(1);
    bar.SetPaneStyle(1, SBPS_DISABLED);
    ui_test::pump();
    const ui_test::Picture grey = shown(1);
    EXPECT_FALSE(grey == plain);
    EXPECT_EQ(grey.commonest(), plain.commonest());
    bar.SetPaneStyle(1, SBPS_POPOUT);
    ui_test::pump();
    EXPECT_NE(shown(1).commonest(), plain.commonest());
    // A line around it, before a plain one, and none for one without borders.
    const auto left_line = [&] {
        ui_test::pump();
        const CRect rect = pane(1);
        return ui_test::Picture(bar, CRect(rect.left, rect.top + 8, rect.left + 1, rect.top + 9)).at(0, 0);
    };
    const COLORREF raised = left_line();
    bar.SetPaneStyle(1, SBPS_NORMAL);
    const COLORREF normal = left_line();
    bar.SetPaneStyle(1, SBPS_NOBORDERS);
    EXPECT_EQ(left_line(), plain.commonest());
    EXPECT_NE(normal, plain.commonest());
    EXPECT_NE(raised, normal);
}

TEST_F(StatusBarEx, APictureStandsBeforeTheText) {
    const int before = pane(1).Width();
    HICON const red = icon(RGB(230, 0, 0));
    bar.SetPaneIcon(1, red);
    ::DestroyIcon(red);
    EXPECT_EQ(pane(1).Width(), before + 16 + 4);
    EXPECT_EQ(shown(1).count(RGB(230, 0, 0)), 16 * 16);
    EXPECT_EQ(shown(1).at(3, shown(1).height() / 2), RGB(230, 0, 0));
    CBitmap bitmap;
    fill(bitmap, RGB(0, 0, 240), 10);
    bar.SetPaneIcon(1, static_cast<HBITMAP>(bitmap.m_hObject), RGB(255, 0, 255));
    EXPECT_EQ(pane(1).Width(), before + 10 + 4);
    EXPECT_EQ(shown(1).count(RGB(0, 0, 240)), 100);
    EXPECT_EQ(shown(1).count(RGB(230, 0, 0)), 0);
    bar.SetPaneIcon(1, static_cast<HBITMAP>(bitmap.m_hObject), RGB(0, 0, 240));
    EXPECT_EQ(shown(1).count(RGB(0, 0, 240)), 0);
    bar.SetPaneIcon(1, static_cast<HICON>(nullptr));
    EXPECT_EQ(pane(1).Width(), before);
    const int dpi = afxGlobalData.m_nDpi;
    afxGlobalData.m_nDpi = 2 * dpi;
    frame->RecalcLayout();
    HICON const green = icon(RGB(0, 230, 0), 6);
    bar.SetPaneIcon(1, green);
    ::DestroyIcon(green);
    const ui_test::Picture small = shown(1);
    EXPECT_EQ(small.at(18, small.height() / 2), RGB(0, 230, 0)) << "in the middle of its height";
    EXPECT_NE(small.at(18, 1), RGB(0, 230, 0));
    EXPECT_NE(small.at(18, small.height() - 2), RGB(0, 230, 0));
    EXPECT_EQ(shown(1).count(RGB(0, 230, 0)), 144);
    afxGlobalData.m_nDpi = dpi;
}

TEST_F(StatusBarEx, APictureOfADisabledPaneIsGrey) {
    HICON const red = icon(RGB(230, 0, 0), 8);
    bar.SetPaneIcon(1, red);
    ::DestroyIcon(red);
    EXPECT_EQ(shown(1).count(RGB(230, 0, 0)), 64);
    bar.SetPaneStyle(1, SBPS_DISABLED);
    ui_test::pump();
    EXPECT_EQ(shown(1).count(RGB(230, 0, 0)), 0);
}

TEST_F(StatusBarEx, ALargePictureIsMadeSmallerAndNotCutOff) {
    const int before = pane(1).Width(), inside = at(bar).Height() - 4;
    ASSERT_LT(inside, 32);
    HICON const red = icon(RGB(230, 0, 0), 32);
    bar.SetPaneIcon(1, red);
    ::DestroyIcon(red);
    EXPECT_EQ(pane(1).Width(), before + inside + 4);
    EXPECT_EQ(shown(1).count(RGB(230, 0, 0)), inside * inside);
}

TEST_F(StatusBarEx, AnIconWithoutColoursIsAsHighAsItIs) {
    std::vector<BYTE> masks(16, 0), colours(16, 0);
    for (size_t row = 0; row < 8; ++row) colours[row * 2] = 0xFF;
    HICON const plain = ::CreateIcon(nullptr, 8, 8, 1, 1, masks.data(), colours.data());
    bar.SetPaneBackgroundColor(1, RGB(10, 20, 30));
    bar.SetPaneText(1, L"");
    bar.SetPaneIcon(1, plain);
    ::DestroyIcon(plain);
    EXPECT_EQ(shown(1).count(RGB(255, 255, 255)), 64);
}

TEST_F(StatusBarEx, PicturesComeInTurn) {
    CImageList list;
    list.Create(8, 8, ILC_COLOR32 | ILC_MASK, 2, 1);
    for (const COLORREF color : {RGB(230, 0, 0), RGB(0, 230, 0)}) {
        CBitmap bitmap;
        fill(bitmap, color, 8);
        list.Add(&bitmap, RGB(1, 2, 3));
    }
    bar.SetPaneAnimation(1, list.m_hImageList, 10);
    list.DeleteImageList();
    const auto red = [&] { return shown(1).count(RGB(230, 0, 0)) == 64; };
    const auto green = [&] { return shown(1).count(RGB(0, 230, 0)) == 64; };
    EXPECT_TRUE(red());
    EXPECT_TRUE(ui_test::pump_until(green));
    EXPECT_TRUE(ui_test::pump_until(red));
    EXPECT_TRUE(ui_test::pump_until(green));
    ::KillTimer(bar.m_hWnd, 2);
    CImageList blue;
    blue.Create(8, 8, ILC_COLOR32 | ILC_MASK, 2, 1);
    for (const COLORREF color : {RGB(0, 0, 230), RGB(0, 230, 230)}) {
        CBitmap bitmap;
        fill(bitmap, color, 8);
        blue.Add(&bitmap, RGB(1, 2, 3));
    }
    bar.SetPaneAnimation(1, blue.m_hImageList, 60000);
    EXPECT_EQ(shown(1).count(RGB(0, 0, 230)), 64) << "another begins with its first picture";
    const UINT again[] = {ID_SEPARATOR, kPane};
    bar.SetIndicators(again, 2);
    EXPECT_FALSE(::KillTimer(bar.m_hWnd, 2)) << "other panes have none";
    ui_test::pump();
    bar.SetPaneAnimation(1, nullptr);
    EXPECT_EQ(shown(1).count(RGB(230, 0, 0)) + shown(1).count(RGB(0, 230, 0)), 0);
    // A picture of its own ends it.
    HICON const one = icon(RGB(0, 0, 230));
    bar.SetPaneIcon(1, one);
    ::DestroyIcon(one);
    EXPECT_FALSE(::KillTimer(bar.m_hWnd, 2));
    bar.SendMessage(WM_TIMER, 2);
    bar.SendMessage(WM_TIMER, 99);
    EXPECT_GT(shown(1).count(RGB(0, 0, 230)), 100);
}

TEST_F(StatusBarEx, ProgressFillsItsPartOfThePane) {
    bar.SetPaneWidth(1, 100);
    EXPECT_EQ(bar.GetPaneProgress(1), -1);
    bar.SetPaneProgress(1, 30);
    EXPECT_EQ(bar.GetPaneProgress(1), -1);
    bar.EnablePaneProgressBar(1, 50, FALSE, RGB(0, 200, 0));
    EXPECT_EQ(bar.GetPaneProgress(1), 0);
    EXPECT_EQ(shown(1).count(RGB(0, 200, 0)), 0);
    bar.SetPaneProgress(1, 25);
    // 100 pixels, without the line around them 98.
    const ui_test::Picture half = shown(1);
    const int high = half.count(RGB(0, 200, 0)) / 49;
    EXPECT_EQ(half.count(RGB(0, 200, 0)), 49 * high);
    EXPECT_GT(high, 5);
    bar.SetPaneProgress(1, 999);
    EXPECT_EQ(bar.GetPaneProgress(1), 50);
    EXPECT_EQ(shown(1).count(RGB(0, 200, 0)), 98 * high);
    bar.SetPaneProgress(1, -3, FALSE);
    EXPECT_EQ(bar.GetPaneProgress(1), 0);
    ui_test::pump();
    EXPECT_EQ(shown(1).count(RGB(0, 200, 0)), 98 * high);
    bar.InvalidatePaneContent(1);
    EXPECT_EQ(shown(1).count(RGB(0, 200, 0)), 0);
    bar.SetPaneProgress(1, 25);
    bar.EnablePaneProgressBar(1, 60);
    EXPECT_EQ(bar.GetPaneProgress(1), 0) << "another begins anew";
    bar.EnablePaneProgressBar(1, -1);
    EXPECT_EQ(bar.GetPaneProgress(1), -1);
    bar.SetPaneText(1, L"");
    EXPECT_EQ(shown(1).count(shown(1).commonest()), shown(1).width() * shown(1).height());
}

TEST_F(StatusBarEx, ProgressHasTwoColoursAndATextIfWanted) {
    bar.SetPaneWidth(1, 100);
    bar.EnablePaneProgressBar(1, 100, FALSE, RGB(255, 0, 0), RGB(0, 0, 255));
    bar.SetPaneProgress(1, 100);
    const ui_test::Picture running = shown(1);
    const int middle = running.height() / 2;
    EXPECT_GT(GetRValue(running.at(10, middle)), 200);
    EXPECT_GT(GetBValue(running.at(running.width() - 10, middle)), 200);
    EXPECT_LT(GetRValue(running.at(running.width() - 10, middle)), 60);
    bar.EnablePaneProgressBar(1, 100, TRUE, RGB(255, 0, 0), static_cast<COLORREF>(-1), RGB(0, 255, 0));
    bar.SetPaneProgress(1, 100);
    const int hundred = shown(1).count(RGB(0, 255, 0));
    EXPECT_GT(hundred, 10);
    bar.SetPaneProgress(1, 1);
    EXPECT_LT(shown(1).count(RGB(0, 255, 0)), hundred);
    EXPECT_GT(shown(1).count(RGB(0, 255, 0)), 2) << "on what isn't done too";
    bar.EnablePaneProgressBar(1, 100, FALSE, RGB(255, 0, 0), static_cast<COLORREF>(-1), RGB(0, 255, 0));
    EXPECT_EQ(shown(1).count(RGB(0, 255, 0)), 0);
    // Without a colour of its own the text is legible on both parts.
    bar.EnablePaneProgressBar(1, 100, TRUE, RGB(0, 0, 90));
    bar.SetPaneProgress(1, 100);
    EXPECT_GT(shown(1).count(RGB(255, 255, 255)), 5);
    bar.EnablePaneProgressBar(1, 100, TRUE, RGB(250, 250, 160));
    bar.SetPaneProgress(1, 100);
    EXPECT_GT(shown(1).count(RGB(0, 0, 0)), 5);
}

/// Draws nothing of its own, and notes what it is asked for.
class NotingLook : public CMFCVisualManager {
    DECLARE_DYNCREATE(NotingLook)
public:
    static inline std::vector<std::string> asked;
    void OnDrawStatusBarPaneBorder(CDC*, CMFCStatusBar*, CRect, UINT id, UINT style) override {
        asked.push_back("border " + std::to_string(id) + " " + std::to_string(style));
    }
    void OnDrawStatusBarProgress(CDC*, CMFCStatusBar*, CRect, int total, int now, COLORREF bar, COLORREF to,
                                 COLORREF text, BOOL hasText) override {
        asked.push_back("progress " + std::to_string(now) + " of " + std::to_string(total) + " " +
                        std::to_string(bar) + " " + std::to_string(to) + " " + std::to_string(text) + " " +
                        std::to_string(hasText));
    }
    void OnDrawStatusBarSizeBox(CDC*, CMFCStatusBar*, CRect box) override {
        asked.push_back("corner " + std::to_string(box.Width()));
    }
    COLORREF GetStatusBarPaneTextColor(CMFCStatusBar*, CMFCStatusBarPaneInfo* shown) override {
        asked.push_back("text " + std::to_string(shown->nID));
        return 0;
    }
};
IMPLEMENT_DYNCREATE(NotingLook, CMFCVisualManager)

TEST_F(StatusBarEx, TheVisualManagerPaints) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(NotingLook));
    bar.SetPaneInfo(2, 5, SBPS_POPOUT, 60);
    bar.EnablePaneProgressBar(2, 8, TRUE, 1, 2, 3);
    bar.SetPaneProgress(2, 4, FALSE);
    NotingLook::asked.clear();
    bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(NotingLook::asked, (std::vector<std::string>{"text 0", "border 2010 0", "text 2010",
                                                           "border 5 " + std::to_string(SBPS_POPOUT),
                                                           "progress 4 of 8 1 2 3 1", "corner 14"}));
    CMFCVisualManager::SetDefaultManager(nullptr);
}

TEST_F(StatusBarEx, ADarkLookHasLightTexts) {
    const ui_test::SystemColors dark({{COLOR_BTNFACE, RGB(45, 45, 48)},
                                      {COLOR_BTNTEXT, RGB(240, 240, 240)},
                                      {COLOR_WINDOW, RGB(30, 30, 30)},
                                      {COLOR_WINDOWTEXT, RGB(240, 240, 240)}});
    afxGlobalData.UpdateSysColors();
    bar.SetPaneText(1, L"MMMM");
    bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(shown(1).commonest(), RGB(45, 45, 48));
    const auto brightest = [&] {
        int most = 0;
        const ui_test::Picture seen = shown(1);
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x) most = std::max<int>(most, GetGValue(seen.at(x, y)));
        return most;
    };
    EXPECT_GT(brightest(), 180);
    HICON const black = icon(RGB(0, 0, 0));
    bar.SetPaneIcon(1, black);
    ::DestroyIcon(black);
    EXPECT_EQ(shown(1).count(RGB(0, 0, 0)), 0) << "greys are turned round";
    EXPECT_GT(shown(1).count(RGB(255, 255, 255)), 100);
    bar.SetPaneBackgroundColor(1, RGB(200, 210, 220));
    EXPECT_GT(shown(1).count(RGB(0, 0, 0)), 100) << "but not on a colour of the pane's own";
}
}  // namespace

}  // namespace docking
