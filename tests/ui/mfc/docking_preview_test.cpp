// A print preview in a frame whose panes dock: what goes while it lasts, and that all of it comes back.
#include <afxpriv.h>

#include <algorithm>
#include <array>
#include <map>

#include "menu_bar_fixture.h"
#include "picture.h"
#include "printer_names.h"
#include "replaced_import.h"

namespace docking {

namespace {

bool hasPrinter = true;

HDC WINAPI createDC(const wchar_t*, const wchar_t*, const wchar_t*, const DEVMODEW*) {
    return ::CreateCompatibleDC(nullptr);
}
BOOL WINAPI printDialog(PRINTDLGW* data) {
    if (!hasPrinter) return FALSE;
    data->hDevNames = ui_test::printer_names(L"winspool", L"Plotter", L"LPT9:");
    return TRUE;
}

class PageView : public CView {
    DECLARE_DYNCREATE(PageView)
public:
    using CView::DoPrintPreview;

protected:
    void OnDraw(CDC*) override {}
    BOOL OnPreparePrinting(CPrintInfo* info) override {
        info->SetMaxPage(1);
        return DoPreparePrinting(info);
    }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(PageView, CView)
BEGIN_MESSAGE_MAP(PageView, CView)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

/// A view whose window is never there.
class NoView : public CPreviewView {
    DECLARE_DYNCREATE(NoView)
protected:
    BOOL PreCreateWindow(CREATESTRUCT&) override { return FALSE; }
};
IMPLEMENT_DYNCREATE(NoView, CPreviewView)

struct Shown {
    std::map<HWND, CRect> windows;
    std::vector<std::array<LONG, 4>> dividers;  ///< which are made anew
};

/// A frame with a menu bar, a toolbar above and at the left, a floating one, docked panes at two sides, one
/// that hides at the right, and two that float.
class DockingPreview : public MenuBars {
protected:
    DockingPreview() {
        hasPrinter = true;
        view.DestroyWindow();
        CCreateContext made;
        made.m_pNewViewClass = RUNTIME_CLASS(PageView);
        page = static_cast<PageView*>(frame->CreateView(&made));
        frame->SetActiveView(page);
        frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
        EXPECT_TRUE(bar.Create(frame));
        bar.EnableDocking(CBRS_ALIGN_ANY);
        frame->DockPane(&bar);
        docked_bar();
        docked_bar(AFX_IDW_DOCKBAR_LEFT);
        make_bar(L"floating").FloatPane(CRect(400, 300, 500, 340), DM_UNKNOWN, true);
        left = &docked(L"left", AFX_IDW_DOCKBAR_LEFT);
        docked(L"bottom", AFX_IDW_DOCKBAR_BOTTOM, 90);
        hidden = &docked(L"hidden", AFX_IDW_DOCKBAR_RIGHT);
        hidden->SetAutoHideMode(TRUE, CBRS_ALIGN_RIGHT);
        floating = &make(L"floating");
        floating->FloatPane(CRect(200, 200, 380, 320));
        other = &make(L"other");
        other->FloatPane(CRect(260, 240, 440, 360));
        ui_test::pump();
        idle();
        page->SetFocus();
    }
    ~DockingPreview() override { AfxGetApp()->SelectPrinter(nullptr, nullptr); }

    CPreviewView* preview() { return DYNAMIC_DOWNCAST(CPreviewView, frame->GetDlgItem(AFX_IDW_PANE_FIRST)); }
    CPreviewView* start() {
        page->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
        ui_test::pump();
        idle();
        return preview();
    }
    static BOOL CALLBACK note(HWND window, LPARAM to) {
        auto& seen = *reinterpret_cast<Shown*>(to);
        CRect rect;
        ::GetWindowRect(window, &rect);
        if (!::IsWindowVisible(window) || rect.IsRectEmpty()) return TRUE;
        if (DYNAMIC_DOWNCAST(CPaneDivider, CWnd::FromHandlePermanent(window)) != nullptr)
            seen.dividers.push_back({rect.left, rect.top, rect.right, rect.bottom});
        else
            seen.windows[window] = rect;
        return TRUE;
    }
    /// What the user sees of the frame and of what floats over it.
    Shown shown() {
        Shown seen;
        const auto to = reinterpret_cast<LPARAM>(&seen);
        ::EnumChildWindows(frame->m_hWnd, note, to);
        for (const HWND window : floating_order()) {
            note(window, to);
            ::EnumChildWindows(window, note, to);
        }
        std::sort(seen.dividers.begin(), seen.dividers.end());
        return seen;
    }
    static void expect_same(const Shown& before, const Shown& now) {
        EXPECT_EQ(before.dividers, now.dividers);
        EXPECT_EQ(before.windows.size(), now.windows.size());
        for (const auto& [window, rect] : before.windows) {
            const auto found = now.windows.find(window);
            const char* const kind = CWnd::FromHandle(window)->GetRuntimeClass()->m_lpszClassName;
            ASSERT_NE(found, now.windows.end()) << kind;
            EXPECT_EQ(found->second, rect) << kind;
        }
    }
    /// The floating frames from the front to the back.
    std::vector<HWND> floating_order() {
        std::vector<HWND> order;
        for (HWND window = ::GetTopWindow(nullptr); window != nullptr;
             window = ::GetWindow(window, GW_HWNDNEXT))
            if (::IsWindowVisible(window) &&
                DYNAMIC_DOWNCAST(CPaneFrameWnd, CWnd::FromHandlePermanent(window)) != nullptr)
                order.push_back(window);
        return order;
    }
    void send_close() {
        frame->SendMessage(WM_CLOSE);
        ui_test::pump();
        idle();
    }

    HMODULE layer = ::GetModuleHandleW(L"kmfc.dll");
    ui_test::ReplacedImport dialog{layer, "PrintDlgW", &printDialog};
    ui_test::ReplacedImport context{layer, "CreateDCW", &createDC};
    PageView* page;
    Pane *left, *hidden, *floating, *other;
};

TEST_F(DockingPreview, OnlyThePagesAreToBeSeen) {
    ASSERT_NE(start(), nullptr);
    EXPECT_TRUE(frame->IsPrintPreview());
    CRect client, place;
    frame->GetClientRect(&client);
    const CRect above = in_frame(*frame->GetDlgItem(AFX_IDW_PREVIEW_BAR));
    place = in_frame(*preview());
    EXPECT_EQ(above.TopLeft(), CPoint(0, 0));
    EXPECT_EQ(place, CRect(0, above.bottom, client.right, client.bottom));
    for (const auto& [window, rect] : shown().windows)
        EXPECT_TRUE(window == preview()->m_hWnd || window == frame->GetDlgItem(AFX_IDW_PREVIEW_BAR)->m_hWnd ||
                    ::GetParent(window) == frame->GetDlgItem(AFX_IDW_PREVIEW_BAR)->m_hWnd)
            << CWnd::FromHandle(window)->GetRuntimeClass()->m_lpszClassName;
}

TEST_F(DockingPreview, EverythingComesBackToItsPlaceHoweverItEnds) {
    const Shown before = shown();
    const std::vector<std::function<void()>> ends = {
        [&] { preview()->SendMessage(WM_KEYDOWN, VK_ESCAPE); }, [&] { frame->SendMessage(WM_CLOSE); },
        [&] {
            frame->GetDlgItem(AFX_IDW_PREVIEW_BAR)->GetDlgItem(AFX_ID_PREVIEW_CLOSE)->SendMessage(BM_CLICK);
        }};
    for (const auto& end : ends) {
        const std::vector<HWND> order = floating_order();
        ASSERT_EQ(order.size(), 3u);
        ASSERT_NE(start(), nullptr);
        end();
        // Wine's desktop moves some behind others later on.
        EXPECT_EQ(floating_order(), order);
        ui_test::pump();
        idle();
        EXPECT_FALSE(frame->IsPrintPreview());
        expect_same(before, shown());
        EXPECT_EQ(::GetFocus(), page->m_hWnd);
    }
}

TEST_F(DockingPreview, AFrameOfAnotherSizeHasItsPanesAtTheSidesAgain) {
    start();
    CRect window;
    frame->GetWindowRect(&window);
    frame->SetWindowPos(nullptr, 0, 0, window.Width() + 60, window.Height() + 40, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(::IsWindowVisible(left->m_hWnd));
    frame->SendMessage(WM_CLOSE);
    idle();
    EXPECT_EQ(in_frame(*left).Width(), 150);
    EXPECT_EQ(in_frame(*panes[1]).Height(), 90);
    EXPECT_TRUE(::IsWindowVisible(left->m_hWnd));
}

TEST_F(DockingPreview, TheFocusReturnsToThePaneThatHadIt) {
    CWnd field;
    for (Pane* const pane : {left, floating}) {
        field.CreateEx(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), pane, 1);
        field.SetFocus();
        ASSERT_NE(start(), nullptr);
        EXPECT_EQ(::GetFocus(), preview()->m_hWnd);
        send_close();
        EXPECT_EQ(::GetFocus(), field.m_hWnd);
        field.DestroyWindow();
    }
}

TEST_F(DockingPreview, AFocusThatIsGoneLeavesItToTheView) {
    CWnd field;
    field.CreateEx(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), left, 1);
    field.SetFocus();
    start();
    left->ShowPane(FALSE, FALSE, FALSE);
    send_close();
    EXPECT_EQ(::GetFocus(), page->m_hWnd);
    left->ShowPane(TRUE, FALSE, FALSE);
    field.SetFocus();
    start();
    field.EnableWindow(FALSE);
    send_close();
    EXPECT_EQ(::GetFocus(), page->m_hWnd);
    field.EnableWindow(TRUE);
    field.SetFocus();
    start();
    field.DestroyWindow();
    send_close();
    EXPECT_EQ(::GetFocus(), page->m_hWnd);
}

TEST_F(DockingPreview, WhatIsShownOrHiddenMeanwhileShowsWhenItIsOver) {
    CPaneFrameWnd* const of_floating = floating->GetParentMiniFrame();
    other->ShowPane(FALSE, FALSE, FALSE);
    left->ShowPane(FALSE, FALSE, FALSE);
    bars[0]->ShowPane(FALSE, FALSE, FALSE);
    start();
    const Shown during = shown();
    other->ShowPane(TRUE, FALSE, FALSE);
    left->ShowPane(TRUE, FALSE, FALSE);
    floating->ShowPane(FALSE, FALSE, FALSE);
    bars[0]->ShowPane(TRUE, FALSE, FALSE);
    bars[1]->ShowPane(FALSE, FALSE, FALSE);
    bars[2]->ShowPane(FALSE, FALSE, FALSE);
    frame->RecalcLayout();
    idle();
    expect_same(during, shown());
    send_close();
    EXPECT_TRUE(::IsWindowVisible(other->m_hWnd));
    EXPECT_TRUE(::IsWindowVisible(left->m_hWnd));
    EXPECT_FALSE(::IsWindowVisible(of_floating->m_hWnd));
    EXPECT_TRUE(::IsWindowVisible(bars[0]->m_hWnd));
    EXPECT_FALSE(::IsWindowVisible(bars[1]->m_hWnd));
    EXPECT_FALSE(::IsWindowVisible(bars[2]->m_hWnd));
}

TEST_F(DockingPreview, WhatGoesMeanwhileIsGone) {
    start();
    left->DestroyWindow();
    floating->DestroyWindow();
    bars[0]->DestroyWindow();
    hidden->SetAutoHideMode(FALSE, CBRS_ALIGN_RIGHT);
    other->DockToFrameWindow(CBRS_ALIGN_BOTTOM);
    ui_test::pump();
    idle();
    EXPECT_FALSE(::IsWindowVisible(hidden->m_hWnd));
    EXPECT_FALSE(::IsWindowVisible(other->m_hWnd));
    send_close();
    EXPECT_TRUE(::IsWindowVisible(hidden->m_hWnd));
    EXPECT_TRUE(::IsWindowVisible(other->m_hWnd));
    for (CMFCAutoHideBar* const strip : CMFCAutoHideBar::of_frame(frame))
        EXPECT_FALSE(strip->IsPaneVisible());
    EXPECT_TRUE(::IsWindowVisible(bars[1]->m_hWnd));
}

TEST_F(DockingPreview, APaneThatHadSlidOutIsOutAgain) {
    hidden->Slide(TRUE, FALSE);
    hidden->SetFocus();
    const Shown before = shown();
    ASSERT_TRUE(before.windows.count(hidden->m_hWnd));
    start();
    EXPECT_FALSE(::IsWindowVisible(hidden->m_hWnd));
    send_close();
    expect_same(before, shown());
    EXPECT_EQ(::GetFocus(), hidden->m_hWnd);
}

TEST_F(DockingPreview, OneThatIsToSlideWaits) {
    start();
    hidden->ShowPane(TRUE, FALSE, FALSE);
    EXPECT_FALSE(::IsWindowVisible(hidden->m_hWnd));
    hidden->ShowPane(FALSE, FALSE, FALSE);
    send_close();
    EXPECT_FALSE(::IsWindowVisible(hidden->m_hWnd));
    start();
    hidden->ShowPane(TRUE, FALSE, FALSE);
    send_close();
    EXPECT_TRUE(::IsWindowVisible(hidden->m_hWnd));
    start();
    hidden->DestroyWindow();
    send_close();
    EXPECT_EQ(preview(), nullptr);
}

TEST_F(DockingPreview, TheMenuBarTakesNoKeysThen) {
    start();
    MSG letter = {frame->m_hWnd, WM_SYSCHAR, 'F', 1 << 29, 0, {0, 0}};
    CWnd::WalkPreTranslateTree(frame->m_hWnd, &letter);
    EXPECT_EQ(bar.open_item(), -1);
    EXPECT_TRUE(menu_frame().told.empty());
    // Alt alone is the system's, which would open a menu of its own.
    EXPECT_FALSE(frame->GetDockingManager()->enters_menu(SC_KEYMENU, 0));
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    send_close();
    EXPECT_EQ(bar.GetHMenu(), all);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    EXPECT_TRUE(frame->GetDockingManager()->enters_menu(SC_KEYMENU, 0));
}

TEST_F(DockingPreview, ADragIsGivenUp) {
    const Shown before = shown();
    press(*left, caption_of(*left));
    move(on_frame(300, 200));
    ASSERT_TRUE(left->IsFloating());
    start();
    EXPECT_FALSE(manager().is_dragging());
    send_close();
    expect_same(before, shown());
    drag(*bars[0], on_frame(300, 300));
    start();
    EXPECT_EQ(::GetCapture(), nullptr);
    send_close();
    expect_same(before, shown());
}

TEST_F(DockingPreview, ADraggedToolbarIsLetGoBeforeTheFrameIsLaidOut) {
    drag(*bars[0], on_frame(300, 300));
    ASSERT_NE(::GetCapture(), nullptr);
    manager().SetPrintPreviewMode(TRUE, nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
    manager().SetPrintPreviewMode(FALSE, nullptr);
    EXPECT_TRUE(bars[0]->IsDocked());
}

TEST_F(DockingPreview, TheFrameIsToldOfBeginAndEnd) {
    std::vector<WPARAM> told;
    start();
    send_close();
    MSG message;
    manager().SetPrintPreviewMode(TRUE, nullptr);
    manager().SetPrintPreviewMode(TRUE, nullptr);
    manager().SetPrintPreviewMode(FALSE, nullptr);
    while (::PeekMessageW(&message, frame->m_hWnd, AFX_WM_POSTSETPREVIEWFRAME, AFX_WM_POSTSETPREVIEWFRAME,
                          PM_REMOVE))
        told.push_back(message.wParam);
    EXPECT_EQ(told, (std::vector<WPARAM>{TRUE, FALSE}));
}

TEST_F(DockingPreview, WhatFloatsOverAnotherFrameStays) {
    auto* const second = new Frame;
    second->Create(nullptr, L"second", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 400, 300));
    second->EnableDocking(CBRS_ALIGN_ANY);
    Pane theirs;
    theirs.Create(L"theirs", second, CSize(100, 100), TRUE, 77, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
    theirs.EnableDocking(CBRS_ALIGN_ANY);
    theirs.FloatPane(CRect(500, 400, 600, 500));
    start();
    EXPECT_TRUE(theirs.IsWindowVisible());
    second->DestroyWindow();
}

TEST_F(DockingPreview, APreviewThatCantBeMadeLeavesEverything) {
    const Shown before = shown();
    CPrintPreviewState state;
    CWnd field;
    field.CreateEx(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), floating, 1);
    const Shown withField = shown();
    field.SetFocus();
    EXPECT_FALSE(page->DoPrintPreview(AFX_IDD_PREVIEW_TOOLBAR, page, RUNTIME_CLASS(NoView), &state));
    expect_same(withField, shown());
    EXPECT_EQ(::GetFocus(), field.m_hWnd);
    field.DestroyWindow();
    AfxGetApp()->SelectPrinter(nullptr, nullptr);
    hasPrinter = false;
    ui_test::when_dialog(L"", [](HWND box) { ::SendMessageW(box, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(start(), nullptr);
    expect_same(before, shown());
}

TEST_F(DockingPreview, AFrameThatGoesMeanwhileTakesEverythingAlong) {
    start();
    const HWND of_floating = floating->GetParentMiniFrame()->m_hWnd, panes_window = left->m_hWnd;
    auto* const next = new Frame;
    next->Create(nullptr, L"next", WS_OVERLAPPEDWINDOW, CRect(0, 0, 10, 10));
    frame->DestroyWindow();
    frame = next;
    EXPECT_FALSE(::IsWindow(of_floating));
    EXPECT_FALSE(::IsWindow(panes_window));
}

TEST_F(DockingPreview, ItsStateIsKeptAsWithoutThePreview) {
    const auto kept = [&] {
        CMemFile stored;
        CArchive archive(&stored, CArchive::store);
        manager().Serialize(archive);
        archive.Close();
        std::vector<BYTE> bytes(static_cast<size_t>(stored.GetLength()));
        stored.SeekToBegin();
        stored.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    };
    const auto before = kept();
    EXPECT_GT(before.size(), 100u);
    start();
    EXPECT_EQ(kept(), before);
}

/// A pane that stays.
class Legend : public CPane {
public:
    BOOL HideInPrintPreviewMode() const override { return FALSE; }
    CSize CalcFixedLayout(BOOL, BOOL) override { return CSize(32767, 23); }
};

TEST_F(DockingPreview, APaneThatWantsToStaysBelowThePages) {
    Legend legend;
    legend.CreateEx(0, nullptr, L"legend", WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, CRect(0, 0, 0, 0), frame, 99);
    frame->AddPane(&legend);
    frame->RecalcLayout();
    start();
    EXPECT_TRUE(legend.IsWindowVisible());
    CRect client;
    frame->GetClientRect(&client);
    EXPECT_EQ(in_frame(legend), CRect(0, client.bottom - 23, client.right, client.bottom));
    EXPECT_EQ(in_frame(*preview()).bottom, client.bottom - 23);
}

TEST(DocumentsPreview, TabsOfDocumentsGoAndComeBack) {
    ui_test::ReplacedImport dialog{::GetModuleHandleW(L"kmfc.dll"), "PrintDlgW", &printDialog};
    ui_test::ReplacedImport context{::GetModuleHandleW(L"kmfc.dll"), "CreateDCW", &createDC};
    auto* const outer = new CMDIFrameWndEx;  // deletes itself
    ASSERT_TRUE(outer->Create(nullptr, L"outer", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(60, 60, 660, 500)));
    AfxGetApp()->m_pMainWnd = outer;
    outer->EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP);
    auto* const child = new CMDIChildWndEx;
    CCreateContext made;
    made.m_pNewViewClass = RUNTIME_CLASS(PageView);
    ASSERT_TRUE(child->Create(nullptr, L"child", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                              CRect(0, 0, 200, 200), outer, &made));
    auto* const inner = static_cast<PageView*>(child->GetDlgItem(AFX_IDW_PANE_FIRST));
    child->SetActiveView(inner);
    outer->RecalcLayout();
    ui_test::pump();
    CRect tabs, before, now;
    outer->GetMDITabs().GetWindowRect(&tabs);
    ASSERT_GT(tabs.Height(), 10);
    ::GetWindowRect(outer->m_hWndMDIClient, &before);
    outer->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
    CWnd* const pages = outer->GetDlgItem(AFX_IDW_PANE_FIRST);
    ASSERT_NE(DYNAMIC_DOWNCAST(CPreviewView, pages), nullptr);
    EXPECT_FALSE(outer->GetMDITabs().IsWindowVisible());
    CRect client;
    outer->GetClientRect(&client);
    pages->GetWindowRect(&now);
    outer->ScreenToClient(&now);
    EXPECT_EQ(now.bottom, client.bottom);
    CRect above;
    outer->GetDlgItem(AFX_IDW_PREVIEW_BAR)->GetWindowRect(&above);
    outer->ScreenToClient(&above);
    EXPECT_EQ(now.top, above.bottom);
    outer->SendMessage(WM_CLOSE);
    EXPECT_TRUE(outer->GetMDITabs().IsWindowVisible());
    outer->GetMDITabs().GetWindowRect(&now);
    EXPECT_EQ(now, tabs);
    ::GetWindowRect(outer->m_hWndMDIClient, &now);
    EXPECT_EQ(now, before);
    // Groups of documents as well.
    outer->EnableMDITabbedGroups(TRUE, CMDITabInfo());
    ui_test::pump();
    CWnd* const strip = static_cast<CWnd*>(outer->GetMDITabGroups().GetHead());
    strip->GetWindowRect(&tabs);
    ASSERT_TRUE(strip->IsWindowVisible());
    outer->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
    EXPECT_FALSE(strip->IsWindowVisible());
    outer->SendMessage(WM_CLOSE);
    EXPECT_TRUE(strip->IsWindowVisible());
    strip->GetWindowRect(&now);
    EXPECT_EQ(now, tabs);
    AfxGetApp()->m_pMainWnd = nullptr;
    AfxGetApp()->SelectPrinter(nullptr, nullptr);
    outer->DestroyWindow();
}

}  // namespace

}  // namespace docking
