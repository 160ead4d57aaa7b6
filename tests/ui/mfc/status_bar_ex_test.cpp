// The status bar of docking frames: where it stands, what its panes say and show, and who is told.
#include <afxstatusbar.h>

#include <functional>
#include <string>
#include <vector>

#include "accessible_object.h"
#include "docking_fixture.h"
#include "picture.h"
#include "system_colors.h"

namespace docking {

namespace {

constexpr UINT kPane = 2010;  // "a pane"

class StatusFrame : public Frame {
public:
    std::vector<UINT> commands;
    std::vector<WPARAM> cornerPresses;
    CString paneText = L"asked";
    BOOL paneEnabled = TRUE;
    int paneCheck = 0;

protected:
    void OnUpdatePane(CCmdUI* item) {
        item->Enable(paneEnabled);
        item->SetText(paneText);
        item->SetCheck(paneCheck);
    }
    BOOL OnCommand(WPARAM command, LPARAM parameter) override {
        commands.push_back(LOWORD(command));
        return Frame::OnCommand(command, parameter);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_NCLBUTTONDOWN) {
            cornerPresses.push_back(wParam);
            return 0;
        }
        return Frame::WindowProc(message, wParam, lParam);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(StatusFrame, Frame)
    ON_UPDATE_COMMAND_UI(kPane, &StatusFrame::OnUpdatePane)
END_MESSAGE_MAP()

/// Notes what it is asked to draw.
class NotingBar : public CMFCStatusBar {
public:
    std::vector<UINT> drawn;

protected:
    void OnDrawPane(CDC* dc, CMFCStatusBarPaneInfo* shown) override {
        drawn.push_back(shown->nID);
        CMFCStatusBar::OnDrawPane(dc, shown);
    }
};

class StatusBarEx : public Docking {
protected:
    StatusBarEx() : Docking(WS_VISIBLE, new StatusFrame) {
        EXPECT_TRUE(bar.Create(frame));
        const UINT ids[] = {ID_SEPARATOR, kPane, ID_INDICATOR_CAPS};
        EXPECT_TRUE(bar.SetIndicators(ids, 3));
        frame->RecalcLayout();
        ui_test::pump();
    }
    ~StatusBarEx() override { bar.DestroyWindow(); }

    StatusFrame& noting() { return static_cast<StatusFrame&>(*frame); }
    CRect pane(int index) {
        CRect rect;
        bar.GetItemRect(index, &rect);
        return rect;
    }
    CRect client() {
        CRect rect;
        frame->GetClientRect(&rect);
        return rect;
    }
    void update() { bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE); }
    /// The inside of a pane as the screen shows it, without the line before it.
    ui_test::Picture shown(int index) {
        CRect rect(pane(index));
        rect.DeflateRect(2, 1);
        return ui_test::Picture(bar, rect);
    }
    int text_width(const wchar_t* text) {
        CClientDC dc(&bar);
        CFont* const former = dc.SelectObject(&afxGlobalData.fontTooltip);
        const int width = dc.GetTextExtent(text).cx;
        dc.SelectObject(former);
        return width;
    }
    static HICON icon(COLORREF color, int size = 16) {
        CImageList list;
        list.Create(size, size, ILC_COLOR32 | ILC_MASK, 1, 1);
        CBitmap bitmap;
        fill(bitmap, color, size);
        list.Add(&bitmap, RGB(1, 2, 3));
        return list.ExtractIcon(0);
    }
    static void fill(CBitmap& bitmap, COLORREF color, int size) {
        CClientDC screen(nullptr);
        bitmap.CreateCompatibleBitmap(&screen, size, size);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap* const former = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, size, size, color);
        dc.SelectObject(former);
    }

    NotingBar bar;
};

TEST_F(StatusBarEx, StandsBelowEverythingWithoutBeingAdded) {
    CMFCToolBar tools;
    tools.CreateEx(frame, TBSTYLE_FLAT, AFX_DEFAULT_TOOLBAR_STYLE, CRect(1, 1, 1, 1), 701);
    tools.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&tools, AFX_IDW_DOCKBAR_BOTTOM);
    docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    docked(L"bottom", AFX_IDW_DOCKBAR_BOTTOM);
    const CRect place = at(bar);
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.right, client().right);
    EXPECT_EQ(place.bottom, client().bottom);
    TEXTMETRIC metrics;
    CClientDC dc(&bar);
    dc.SelectObject(&afxGlobalData.fontTooltip);
    dc.GetTextMetrics(&metrics);
    EXPECT_EQ(place.Height(), metrics.tmHeight + 8);
    check_frame();
    tools.DestroyWindow();
}

TEST_F(StatusBarEx, AFrameWithoutADockingManagerHasItAtTheBottomToo) {
    auto* const plain = new CFrameWnd;
    plain->Create(nullptr, L"plain", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(60, 60, 500, 400));
    CWnd inner;
    inner.Create(AfxRegisterWndClass(0), L"view", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), plain,
                 AFX_IDW_PANE_FIRST);
    CMFCStatusBar status;
    ASSERT_TRUE(status.Create(plain));
    plain->RecalcLayout();
    CRect all;
    plain->GetClientRect(&all);
    EXPECT_EQ(at(status), CRect(0, all.bottom - at(bar).Height(), all.right, all.bottom));
    EXPECT_EQ(at(inner).bottom, at(status).top);
    status.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(at(inner).bottom, all.bottom);
    status.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(at(inner).bottom, at(status).top);
    plain->DestroyWindow();
}

TEST_F(StatusBarEx, PanesAreAsWideAsTheirTextsAndTheFirstTakesTheRest) {
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_EQ(bar.GetItemID(1), kPane);
    EXPECT_EQ(bar.GetPaneText(1), L"a pane");
    EXPECT_EQ(bar.CommandToIndex(ID_INDICATOR_CAPS), 2);
    EXPECT_EQ(bar.CommandToIndex(99), -1);
    EXPECT_EQ(bar.GetPaneStyle(0), SBPS_STRETCH | SBPS_NOBORDERS);
    EXPECT_EQ(bar.GetPaneWidth(1), text_width(L"a pane"));
    EXPECT_EQ(pane(1).Width(), text_width(L"a pane") + 10);
    EXPECT_EQ(pane(0).right, pane(1).left);
    EXPECT_EQ(pane(1).right, pane(2).left);
    EXPECT_EQ(pane(0).left, 2);
    // The corner that sizes the frame is behind the last.
    EXPECT_EQ(pane(2).right, client().right - 2 - 14);
    const int first = pane(0).Width();
    CRect window;
    frame->GetWindowRect(&window);
    frame->SetWindowPos(nullptr, 0, 0, window.Width() + 100, window.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(pane(0).Width(), first + 100);
    bar.SetPaneWidth(1, 200);
    EXPECT_EQ(pane(1).Width(), 210);
    EXPECT_EQ(pane(2).right, client().right - 2 - 14);
    bar.SetPaneStyle(0, SBPS_NORMAL);
    bar.SetPaneStyle(1, SBPS_STRETCH);
    EXPECT_EQ(pane(0).Width(), ::GetSystemMetrics(SM_CXSCREEN) / 4 + 10);
    EXPECT_EQ(pane(2).right, client().right - 2 - 14);
    UINT id = 0, style = 0;
    int width = 0;
    bar.SetPaneInfo(2, 77, SBPS_POPOUT, 31);
    bar.GetPaneInfo(2, id, style, width);
    EXPECT_EQ(id, 77u);
    EXPECT_EQ(style, SBPS_POPOUT);
    EXPECT_EQ(width, 31);
    bar.SetPaneWidth(2, -5);
    EXPECT_EQ(bar.GetPaneWidth(2), 0);
}

TEST_F(StatusBarEx, SizesFollowTheResolution) {
    const int before = pane(1).Width(), high = at(bar).Height(), dpi = afxGlobalData.m_nDpi;
    afxGlobalData.m_nDpi = 2 * dpi;
    frame->RecalcLayout();
    bar.RecalcLayout();
    EXPECT_EQ(pane(1).Width(), before + 10);
    EXPECT_EQ(at(bar).Height(), high + 8);
    EXPECT_EQ(pane(2).right, client().right - 2 * (2 + 14));
    afxGlobalData.m_nDpi = dpi;
}

TEST_F(StatusBarEx, IndicatorsAreTakenAllOrNone) {
    const UINT wrong[] = {kPane, 64999};
    EXPECT_FALSE(bar.SetIndicators(wrong, 2));
    EXPECT_FALSE(bar.SetIndicators(wrong, 0));
    EXPECT_FALSE(bar.SetIndicators(wrong, -3));
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_TRUE(bar.SetIndicators(nullptr, 2));
    EXPECT_EQ(bar.GetCount(), 2);
    EXPECT_EQ(bar.GetPaneText(0), L"");
    EXPECT_EQ(bar.GetPaneStyle(0), SBPS_NORMAL);
    const UINT named[] = {kPane, kPane};
    EXPECT_TRUE(bar.SetIndicators(named, 2));
    EXPECT_EQ(bar.GetPaneWidth(0), text_width(L"a pane"));
    CMFCStatusBar none;
    EXPECT_FALSE(none.SetIndicators(named, 2));
}

TEST_F(StatusBarEx, PlacesWithoutAPaneAnswerNothing) {
    for (const int index : {-1, 3, 1000}) {
        EXPECT_EQ(bar.GetItemID(index), 0u);
        EXPECT_EQ(pane(index), CRect(0, 0, 0, 0));
        EXPECT_EQ(bar.GetPaneStyle(index), 0u);
        EXPECT_EQ(bar.GetPaneWidth(index), 0);
        EXPECT_EQ(bar.GetPaneText(index), L"");
        EXPECT_EQ(bar.GetTipText(index), L"");
        EXPECT_EQ(bar.GetPaneProgress(index), -1);
        EXPECT_FALSE(bar.SetPaneText(index, L"x"));
        bar.SetPaneInfo(index, 1, 2, 3);
        bar.SetPaneStyle(index, SBPS_POPOUT);
        bar.SetPaneWidth(index, 3);
        bar.SetTipText(index, L"x");
        bar.SetPaneTextColor(index, 0);
        bar.SetPaneBackgroundColor(index, 0);
        bar.SetPaneIcon(index, static_cast<HICON>(nullptr));
        bar.SetPaneIcon(index, static_cast<HBITMAP>(nullptr));
        bar.SetPaneAnimation(index, nullptr);
        bar.EnablePaneProgressBar(index);
        bar.SetPaneProgress(index, 3);
        bar.InvalidatePaneContent(index);
    }
    EXPECT_EQ(bar.GetCount(), 3);
}

TEST_F(StatusBarEx, TheFirstPaneIsTheWindowsTextAndShowsTheFramesMessages) {
    EXPECT_EQ(frame->GetMessageBar(), &bar);
    frame->SetMessageText(L"a message");
    EXPECT_EQ(bar.GetPaneText(0), L"a message");
    EXPECT_EQ(ui_test::text_of(bar.m_hWnd), L"a message");
    wchar_t cut[4] = {};
    EXPECT_EQ(bar.SendMessage(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(cut)), 3);
    EXPECT_STREQ(cut, L"a m");
    EXPECT_EQ(bar.SendMessage(WM_GETTEXTLENGTH), 9);
    EXPECT_EQ(bar.SendMessage(WM_GETTEXT, 0, 0), 0);
    EXPECT_EQ(bar.SendMessage(WM_GETTEXT, 0, reinterpret_cast<LPARAM>(cut)), 0);
    CMFCStatusBar bare;
    bare.Create(frame, WS_CHILD | CBRS_BOTTOM, 900);
    bare.SetWindowText(L"own");
    EXPECT_EQ(ui_test::text_of(bare.m_hWnd), L"own");
}

TEST_F(StatusBarEx, CommandsSayWhatPanesAre) {
    update();
    EXPECT_EQ(bar.GetPaneText(1), L"asked");
    EXPECT_EQ(bar.GetPaneStyle(1), SBPS_NORMAL);
    EXPECT_EQ(bar.GetPaneText(0), L"");
    noting().paneEnabled = FALSE;
    noting().paneCheck = 1;
    noting().paneText = L"now";
    update();
    EXPECT_EQ(bar.GetPaneText(1), L"now");
    EXPECT_EQ(bar.GetPaneStyle(1), SBPS_DISABLED | SBPS_POPOUT);
    noting().paneEnabled = TRUE;
    noting().paneCheck = 0;
    update();
    EXPECT_EQ(bar.GetPaneStyle(1), SBPS_NORMAL);
    // The frame answers for keys, and nobody for 88.
    bar.SetPaneInfo(0, 88, SBPS_NORMAL, 50);
    update();
    EXPECT_EQ(bar.GetPaneStyle(0), SBPS_NORMAL);
    const bool on = (::GetKeyState(VK_CAPITAL) & 1) != 0;
    EXPECT_EQ((bar.GetPaneStyle(2) & SBPS_DISABLED) == 0, on);
}

TEST_F(StatusBarEx, ATextShowsAtOnceOrWhenTheBarIsBroughtUpToDate) {
    noting().paneText = L"MMMM";
    bar.SetPaneText(1, L"");
    const ui_test::Picture empty = shown(1);
    EXPECT_EQ(empty.difference(empty), CRect(empty.width(), empty.height(), 0, 0));
    bar.SetPaneText(1, L"MMMM");
    EXPECT_FALSE(shown(1) == empty);
    bar.SetPaneText(1, L"");
    EXPECT_TRUE(shown(1) == empty);
    bar.SetPaneText(1, L"MMMM", FALSE);
    ui_test::pump();
    EXPECT_TRUE(shown(1) == empty);
    EXPECT_EQ(bar.GetPaneText(1), L"MMMM");
    update();
    ui_test::pump();
    EXPECT_FALSE(shown(1) == empty);
    bar.drawn.clear();
    bar.SetPaneText(1, L"MMMM");
    EXPECT_TRUE(bar.drawn.empty());
    // A pane that nobody answers for too.
    bar.SetPaneText(0, L"");
    const ui_test::Picture none = shown(0);
    bar.SetPaneText(0, L"MMMM", FALSE);
    update();
    ui_test::pump();
    EXPECT_FALSE(shown(0) == none);
}

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

TEST_F(StatusBarEx, ADoubleClickIsThePanesCommand) {
    const CPoint middle = pane(1).CenterPoint();
    const auto click = [&](CPoint point) {
        bar.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    };
    click(middle);
    EXPECT_TRUE(noting().commands.empty());
    bar.EnablePaneDoubleClick();
    click(middle);
    click(pane(0).CenterPoint());
    click(CPoint(-5, -5));
    EXPECT_EQ(noting().commands, std::vector<UINT>{kPane});
    bar.SetPaneStyle(1, SBPS_DISABLED);
    click(middle);
    EXPECT_EQ(noting().commands.size(), 2u) << "a key that is off is turned on so";
    bar.EnablePaneDoubleClick(FALSE);
    click(middle);
    EXPECT_EQ(noting().commands.size(), 2u);
}

TEST_F(StatusBarEx, TipsAreThePanesOwn) {
    bar.SetTipText(1, L"what it is");
    EXPECT_EQ(bar.GetTipText(1), L"what it is");
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    EXPECT_EQ(bar.OnToolHitTest(pane(0).CenterPoint(), &tool), -1);
    EXPECT_EQ(bar.OnToolHitTest(pane(1).CenterPoint(), &tool), 2);
    EXPECT_EQ(CRect(tool.rect), pane(1));
    EXPECT_EQ(bar.OnToolHitTest(pane(1).CenterPoint(), nullptr), 2);
    NMTTDISPINFOW question = {};
    CToolTipCtrl tip;
    tip.Create(&bar);
    question.hdr = {tip.m_hWnd, tool.uId, static_cast<UINT>(TTN_NEEDTEXTW)};
    bar.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    EXPECT_STREQ(question.lpszText, L"what it is");
    bar.SetTipText(1, nullptr);
    EXPECT_EQ(bar.OnToolHitTest(pane(1).CenterPoint(), &tool), -1);
}

TEST_F(StatusBarEx, ItsCornerSizesTheFrame) {
    const CPoint corner = on_screen(bar).BottomRight() - CSize(4, 4);
    EXPECT_EQ(bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(corner.x, corner.y)), HTBOTTOMRIGHT);
    const CPoint inside = on_screen(bar).BottomRight() - CSize(20, 4);
    EXPECT_EQ(bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(inside.x, inside.y)), HTCLIENT);
    bar.SendMessage(WM_NCLBUTTONDOWN, HTBOTTOMRIGHT, MAKELPARAM(corner.x, corner.y));
    EXPECT_EQ(noting().cornerPresses, std::vector<WPARAM>{HTBOTTOMRIGHT});
    bar.SetPaneBackgroundColor(2, RGB(1, 2, 3));
    CRect all;
    bar.GetClientRect(&all);
    const CRect box(all.right - 14, all.top, all.right, all.bottom);
    EXPECT_LT(ui_test::Picture(bar, box).count(ui_test::Picture(bar, box).commonest()), 14 * box.Height());
    frame->ShowWindow(SW_MAXIMIZE);
    EXPECT_EQ(pane(2).right, client().right - 2);
    frame->ShowWindow(SW_RESTORE);
    EXPECT_EQ(pane(2).right, client().right - 16);
    frame->ModifyStyle(WS_THICKFRAME, 0);
    bar.RecalcLayout();
    EXPECT_EQ(pane(2).right, client().right - 2) << "a frame of a fixed size isn't sized";
    frame->ModifyStyle(0, WS_THICKFRAME);
    bar.RecalcLayout();
    // One that isn't at the bottom has none.
    CMFCStatusBar second;
    second.Create(frame, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 900);
    second.SetIndicators(nullptr, 1);
    second.SetPaneInfo(0, 0, SBPS_STRETCH, 0);
    frame->RecalcLayout();
    CRect only;
    second.GetItemRect(0, &only);
    EXPECT_EQ(at(second).bottom, at(bar).top);
    EXPECT_EQ(only.right, client().right - 2);
}

TEST_F(StatusBarEx, TheFramesMenuItemShowsAndHidesIt) {
    const auto checked = [&] {
        struct Request : CCmdUI {
            int check = -1;
            void SetCheck(int value) override { check = value; }
            void Enable(BOOL) override {}
        } request;
        request.m_nID = ID_VIEW_STATUS_BAR;
        frame->OnCmdMsg(ID_VIEW_STATUS_BAR, CN_UPDATE_COMMAND_UI, &request, nullptr);
        return request.check;
    };
    EXPECT_EQ(checked(), 1);
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(bar.IsWindowVisible());
    EXPECT_EQ(at(view).bottom, client().bottom);
    EXPECT_EQ(checked(), 0);
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_EQ(at(view).bottom, at(bar).top);
}

TEST_F(StatusBarEx, AClassicBarOfTheSameIdIsShownAndHiddenToo) {
    bar.DestroyWindow();
    CStatusBar classic;
    classic.Create(frame);
    frame->RecalcLayout();
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(classic.IsWindowVisible());
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_TRUE(classic.IsWindowVisible());
}

TEST_F(StatusBarEx, AssistiveProgramsLearnOfItsPanes) {
    ::CoInitialize(nullptr);
    bar.SetPaneText(1, L"said");
    bar.SetPaneStyle(2, SBPS_DISABLED | SBPS_POPOUT);
    bar.EnablePaneProgressBar(2, 200);
    bar.SetPaneProgress(2, 50);
    {
        ui_test::AccessibleObject object(bar.m_hWnd);
        LONG count = 0;
        EXPECT_EQ(object->get_accChildCount(&count), S_OK);
        EXPECT_EQ(count, 3);
        EXPECT_EQ(object.name(), L"Status bar");
        EXPECT_EQ(object.role(), ROLE_SYSTEM_STATUSBAR);
        EXPECT_EQ(object.name(2), L"said");
        EXPECT_EQ(object.role(2), ROLE_SYSTEM_STATICTEXT);
        EXPECT_EQ(object.value(2), L"");
        EXPECT_EQ(object.state(2), STATE_SYSTEM_READONLY);
        EXPECT_EQ(object.role(3), ROLE_SYSTEM_PROGRESSBAR);
        EXPECT_EQ(object.value(3), L"25%");
        EXPECT_EQ(object.state(3), STATE_SYSTEM_READONLY | STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_CHECKED);
        CRect place = pane(1);
        bar.ClientToScreen(&place);
        EXPECT_EQ(object.place(2), place);
        EXPECT_EQ(object.act(2), DISP_E_MEMBERNOTFOUND);
        VARIANT name = ui_test::AccessibleObject::of(4);
        BSTR said = nullptr;
        EXPECT_EQ(object->get_accName(name, &said), E_INVALIDARG);
        bar.DestroyWindow();
        EXPECT_EQ(object->get_accName(ui_test::AccessibleObject::of(1), &said), CO_E_OBJNOTCONNECTED);
    }
    ::CoUninitialize();
}

struct Heard {
    DWORD event;
    LONG child;
    bool operator==(const Heard&) const = default;
};
std::vector<Heard> heard;
void CALLBACK hear(HWINEVENTHOOK, DWORD event, HWND, LONG object, LONG child, DWORD, DWORD) {
    if (object == OBJID_CLIENT) heard.push_back({event, child});
}

TEST_F(StatusBarEx, AssistiveProgramsHearOfChanges) {
    heard.clear();
    const HWINEVENTHOOK hook =
        ::SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_VALUECHANGE, nullptr, &hear,
                          ::GetCurrentProcessId(), ::GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
    bar.SetPaneText(0, L"next");
    bar.SetPaneStyle(1, SBPS_DISABLED);
    bar.EnablePaneProgressBar(2);
    bar.SetPaneProgress(2, 5);
    EXPECT_TRUE(ui_test::pump_until([] { return heard.size() >= 3; }));
    ::UnhookWinEvent(hook);
    EXPECT_EQ(heard, (std::vector<Heard>{{EVENT_OBJECT_NAMECHANGE, 1},
                                         {EVENT_OBJECT_STATECHANGE, 2},
                                         {EVENT_OBJECT_VALUECHANGE, 3}}));
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
