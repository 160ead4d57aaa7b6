// Pages in place of a frame's own window: what is called and shown, how pages are gone through, how it ends.
#include <afxadv.h>
#include <afxcmn.h>
#include <afxext.h>
#include <afxpriv.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "picture.h"
#include "printer_names.h"
#include "replaced_import.h"
#include "ui_test.h"

namespace {

std::vector<std::string> heard;
bool hasPrinter = true;
/// What the printer says of its paper, by number; others are those of the context.
std::map<int, int> paper;

HDC WINAPI createDC(const wchar_t*, const wchar_t*, const wchar_t*, const DEVMODEW*) {
    return hasPrinter ? ::CreateCompatibleDC(nullptr) : nullptr;
}
int WINAPI capsOf(HDC dc, int index) {
    const auto told = paper.find(index);
    return told != paper.end() ? told->second : ::GetDeviceCaps(dc, index);
}
BOOL WINAPI printDialog(PRINTDLGW* data) {
    heard.push_back((data->Flags & PD_RETURNDEFAULT) ? "default printer" : "dialog");
    if (!hasPrinter) return FALSE;
    data->hDevNames = ui_test::printer_names(L"winspool", L"Plotter", L"LPT9:");
    return TRUE;
}

/// Four pages, of which each has a red area as wide as a tenth of the page for its number.
class PagesView : public CView {
    DECLARE_DYNCREATE(PagesView)
public:
    static constexpr UINT kUnknown = 0xFFFF;
    UINT last = 4, endsBefore = 0, wanted = 0, first = 1;
    bool prepares = true, isMetric = false;
    BOOL wasPreview = FALSE, wasPrinting = FALSE;
    CRect usable{0, 0, 0, 0};
    POINT endedAt{-1, -1};
    UINT endedOn = 0;

    using CView::m_pDocument;

protected:
    void OnDraw(CDC* dc) override { dc->FillSolidRect(0, 0, 50, 50, RGB(0, 0, 255)); }
    BOOL OnPreparePrinting(CPrintInfo* info) override {
        heard.push_back("prepare");
        wasPreview = info->m_bPreview;
        info->SetMinPage(first);
        info->SetMaxPage(last);
        info->m_nNumPreviewPages = wanted;
        return prepares ? DoPreparePrinting(info) : FALSE;
    }
    void OnBeginPrinting(CDC* dc, CPrintInfo*) override {
        heard.push_back("begin");
        wasPrinting = dc->IsPrinting();
    }
    void OnPrepareDC(CDC* dc, CPrintInfo* info) override {
        CView::OnPrepareDC(dc, info);
        if (info == nullptr) return;
        heard.push_back("dc " + std::to_string(info->m_nCurPage));
        if (endsBefore != 0 && info->m_nCurPage >= endsBefore) info->m_bContinuePrinting = FALSE;
        if (isMetric) dc->SetMapMode(MM_LOMETRIC);
    }
    void OnPrint(CDC* dc, CPrintInfo* info) override {
        heard.push_back("print " + std::to_string(info->m_nCurPage));
        usable = info->m_rectDraw;
        CRect mark = usable;
        mark.right = mark.left + usable.Width() * static_cast<int>(info->m_nCurPage) / 10;
        dc->FillSolidRect(&mark, RGB(255, 0, 0));
        EXPECT_TRUE(dc->IsPrinting());
    }
    void OnEndPrinting(CDC* dc, CPrintInfo*) override {
        heard.push_back("finish");
        EXPECT_NE(dc->m_hDC, nullptr);
    }
    void OnEndPrintPreview(CDC* dc, CPrintInfo* info, POINT point, CPreviewView* view) override {
        heard.push_back("end of preview");
        endedAt = point;
        endedOn = info->m_nCurPage;
        CView::OnEndPrintPreview(dc, info, point, view);
    }
    afx_msg void OnPrintCommand() { heard.push_back("print command"); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(PagesView, CView)

BEGIN_MESSAGE_MAP(PagesView, CView)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
    ON_COMMAND(ID_FILE_PRINT, &PagesView::OnPrintCommand)
END_MESSAGE_MAP()

class PrintPreview : public ::testing::Test {
protected:
    PrintPreview() : frame(new CFrameWnd) {
        heard.clear();
        hasPrinter = true;
        paper.clear();
        for (const ui_test::ReplacedImport* each : {&dialog, &context, &caps}) EXPECT_TRUE(each->isThere());
        frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 690, 530));
        frameWindow = frame->m_hWnd;
        AfxGetApp()->m_pMainWnd = frame;
        menu = ::CreateMenu();
        ::AppendMenuW(menu, MF_STRING, ID_FILE_PRINT, L"&Print");
        ::SetMenu(frame->m_hWnd, menu);
        ACCEL key = {FVIRTKEY | FCONTROL, 'P', ID_FILE_PRINT};
        keys = ::CreateAcceleratorTableW(&key, 1);
        frame->m_hAccelTable = keys;
        tools.CreateEx(frame);
        EXPECT_TRUE(status.Create(frame));
        status.SetIndicators(nullptr, 1);
        hidden.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | CBRS_TOP, CRect(0, 0, 0, 0), AFX_IDW_TOOLBAR + 7);
        CCreateContext made;
        made.m_pNewViewClass = RUNTIME_CLASS(PagesView);
        view = static_cast<PagesView*>(frame->CreateView(&made));
        frame->SetActiveView(view);
        frame->RecalcLayout();
        ui_test::pump();
    }
    ~PrintPreview() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        AfxGetApp()->SelectPrinter(nullptr, nullptr);
        if (::IsWindow(frameWindow)) frame->DestroyWindow();
        ::DestroyAcceleratorTable(keys);
    }
    CPreviewView* start() {
        frame->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
        ui_test::pump();
        return preview();
    }
    CPreviewView* preview() { return DYNAMIC_DOWNCAST(CPreviewView, frame->GetDlgItem(AFX_IDW_PANE_FIRST)); }
    CWnd* bar() { return frame->GetDlgItem(AFX_IDW_PREVIEW_BAR); }
    void press(UINT button) {
        bar()->GetDlgItem(static_cast<int>(button))->SendMessage(BM_CLICK);
        ui_test::pump();
    }
    void idle() {
        frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        frame->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    }
    bool enabled(UINT button) {
        idle();
        return bar()->GetDlgItem(static_cast<int>(button))->IsWindowEnabled() != FALSE;
    }
    CString message() { return ui_test::text_of(status.m_hWnd); }
    /// Widths of the red areas of sheets along the middle of the preview, in pixels.
    std::vector<int> marks() {
        preview()->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        const ui_test::Picture shown(*preview());
        std::vector<int> widths;
        COLORREF former = 0;
        for (int x = 0; x < shown.width(); ++x) {
            const COLORREF color = shown.at(x, shown.height() / 2);
            if (color == RGB(255, 0, 0)) {
                if (former != color) widths.push_back(0);
                ++widths.back();
            }
            former = color;
        }
        return widths;
    }
    /// Of a whole sheet beside `count` - 1 others, whose paper is as large as the screen.
    int mark(UINT page, int count = 1) {
        CRect client;
        preview()->GetClientRect(&client);
        const double wide = ::GetSystemMetrics(SM_CXSCREEN), high = ::GetSystemMetrics(SM_CYSCREEN);
        const double scale =
            std::min((client.Width() - 10 * (count + 1)) / (wide * count), (client.Height() - 20) / high);
        return static_cast<int>(std::lround(wide * scale * page / 10));
    }
    void expect_marks(const std::vector<UINT>& pages) {
        const std::vector<int> shown = marks();
        ASSERT_EQ(shown.size(), pages.size());
        for (size_t i = 0; i < pages.size(); ++i)
            EXPECT_NEAR(shown[i], mark(pages[i], static_cast<int>(pages.size())), 2) << pages[i];
    }

    HMODULE layer = ::GetModuleHandleW(L"kmfc.dll");
    ui_test::ReplacedImport dialog{layer, "PrintDlgW", &printDialog};
    ui_test::ReplacedImport context{layer, "CreateDCW", &createDC};
    ui_test::ReplacedImport caps{layer, "GetDeviceCaps", &capsOf};
    CFrameWnd* frame;  // deletes itself
    HWND frameWindow = nullptr;
    HMENU menu;
    HACCEL keys;
    CToolBar tools, hidden;
    CStatusBar status;
    PagesView* view;
};

using Heard = std::vector<std::string>;

TEST_F(PrintPreview, ShowsTheFirstPageInPlaceOfTheView) {
    ASSERT_NE(start(), nullptr);
    EXPECT_EQ(heard, (Heard{"prepare", "default printer", "begin", "dc 1", "print 1"}));
    EXPECT_TRUE(view->wasPreview);
    EXPECT_TRUE(view->wasPrinting);
    EXPECT_EQ(view->usable, CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)));
    EXPECT_EQ(frame->GetActiveView(), preview());
    EXPECT_EQ(::GetFocus(), preview()->m_hWnd);
    EXPECT_FALSE(view->IsWindowVisible());
    EXPECT_FALSE(tools.IsWindowVisible());
    EXPECT_TRUE(status.IsWindowVisible());
    EXPECT_TRUE(bar()->IsWindowVisible());
    EXPECT_EQ(::GetMenu(frameWindow), nullptr);
    EXPECT_EQ(frame->m_hAccelTable, nullptr);
    EXPECT_EQ(message(), L"Page 1");
    expect_marks({1});
    // Around the sheet is the system's colour of what lies behind documents.
    EXPECT_EQ(ui_test::Picture(*preview()).at(2, 2), ::GetSysColor(COLOR_APPWORKSPACE));
}

TEST_F(PrintPreview, ClosedThereIsEverythingAsItWas) {
    CPreviewView* const shown = start();
    shown->SetCurrentPage(3);
    heard.clear();
    press(AFX_ID_PREVIEW_CLOSE);
    EXPECT_EQ(heard, (Heard{"end of preview", "finish"}));
    EXPECT_EQ(view->endedOn, 3U);
    EXPECT_EQ(CPoint(view->endedAt), CPoint(0, 0));
    EXPECT_EQ(frame->GetDlgItem(AFX_IDW_PANE_FIRST), view);
    EXPECT_EQ(frame->GetDlgItem(AFX_IDW_PREVIEW_BAR), nullptr);
    EXPECT_TRUE(view->IsWindowVisible());
    EXPECT_EQ(frame->GetActiveView(), view);
    EXPECT_EQ(::GetFocus(), view->m_hWnd);
    EXPECT_TRUE(tools.IsWindowVisible());
    EXPECT_FALSE(hidden.IsWindowVisible());
    EXPECT_EQ(::GetMenu(frameWindow), menu);
    EXPECT_EQ(frame->m_hAccelTable, keys);
    CRect client, place;
    frame->GetClientRect(&client);
    view->GetWindowRect(&place);
    EXPECT_EQ(place.Width(), client.Width());
    // And it can be shown again.
    EXPECT_NE(start(), nullptr);
}

TEST_F(PrintPreview, NextAndPreviousGoThroughThePages) {
    start();
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_PREV));
    for (const UINT page : {2U, 3U, 4U}) {
        EXPECT_TRUE(enabled(AFX_ID_PREVIEW_NEXT));
        press(AFX_ID_PREVIEW_NEXT);
        expect_marks({page});
    }
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_NEXT));
    EXPECT_EQ(message(), L"Page 4");
    preview()->SendMessage(WM_KEYDOWN, VK_NEXT);
    EXPECT_EQ(preview()->GetCurrentPage(), 4U);
    press(AFX_ID_PREVIEW_PREV);
    expect_marks({3});
    // A page that was shown before isn't printed again.
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "print 3"), 1);
    preview()->SendMessage(WM_KEYDOWN, VK_HOME);
    EXPECT_EQ(preview()->GetCurrentPage(), 1U);
    preview()->SendMessage(WM_KEYDOWN, VK_PRIOR);
    EXPECT_EQ(preview()->GetCurrentPage(), 1U);
    preview()->SendMessage(WM_KEYDOWN, VK_END);
    EXPECT_EQ(preview()->GetCurrentPage(), 4U);
}

TEST_F(PrintPreview, TwoPagesStandBesideEachOther) {
    view->wanted = 2;
    start();
    EXPECT_EQ(message(), L"Pages 1-2");
    expect_marks({1, 2});
    press(AFX_ID_PREVIEW_NEXT);
    press(AFX_ID_PREVIEW_CLOSE);
    EXPECT_EQ(view->endedOn, 2U) << "not the page that was recorded last";
    start();
    idle();
    EXPECT_EQ(ui_test::text_of(bar()->GetDlgItem(AFX_ID_PREVIEW_NUMPAGE)->m_hWnd), L"One Pa&ge");
    press(AFX_ID_PREVIEW_NEXT);
    expect_marks({2, 3});
    press(AFX_ID_PREVIEW_NEXT);
    expect_marks({3, 4});
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_NEXT));
    press(AFX_ID_PREVIEW_NUMPAGE);
    expect_marks({3});
    idle();
    EXPECT_EQ(ui_test::text_of(bar()->GetDlgItem(AFX_ID_PREVIEW_NUMPAGE)->m_hWnd), L"&Two Pages");
    press(AFX_ID_PREVIEW_NEXT);
    press(AFX_ID_PREVIEW_NUMPAGE);
    expect_marks({3, 4});
}

TEST_F(PrintPreview, TheApplicationSaysHowManyPagesWhereTheViewDoesnt) {
    AfxGetApp()->m_nNumPreviewPages = 2;
    start();
    AfxGetApp()->m_nNumPreviewPages = 0;
    EXPECT_EQ(message(), L"Pages 1-2");
}

TEST_F(PrintPreview, ADocumentOfUnknownLengthEndsItself) {
    view->last = PagesView::kUnknown;
    view->endsBefore = 3;
    start();
    EXPECT_TRUE(enabled(AFX_ID_PREVIEW_NEXT));
    press(AFX_ID_PREVIEW_NEXT);
    EXPECT_TRUE(enabled(AFX_ID_PREVIEW_NEXT));
    press(AFX_ID_PREVIEW_NEXT);
    EXPECT_EQ(preview()->GetCurrentPage(), 2U);
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_NEXT));
    expect_marks({2});
    // The page that wasn't is asked for once.
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "dc 3"), 1);
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "print 3"), 0);
}

TEST_F(PrintPreview, BehindTheEndIsTheLastPage) {
    view->last = PagesView::kUnknown;
    view->endsBefore = 3;
    start();
    preview()->SendMessage(WM_KEYDOWN, VK_END);
    EXPECT_EQ(preview()->GetCurrentPage(), 1U);
    preview()->SetCurrentPage(5);
    EXPECT_EQ(preview()->GetCurrentPage(), 2U);
    expect_marks({2});
}

TEST_F(PrintPreview, WhatIsLeftOfThePageIsInTheViewsUnits) {
    view->isMetric = true;
    start();
    EXPECT_GT(view->usable.Width(), 100);
    EXPECT_LT(view->usable.bottom, -100);
    EXPECT_NE(view->usable.Width(), ::GetSystemMetrics(SM_CXSCREEN));
    expect_marks({1});
}

TEST_F(PrintPreview, ASingleSheetHasNothingBesideIt) {
    view->last = 1;
    view->wanted = 2;
    start();
    expect_marks({1});
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_NUMPAGE));
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_NEXT));
}

TEST_F(PrintPreview, PagesMayBeginLater) {
    view->first = 3;
    start();
    EXPECT_EQ(message(), L"Page 3");
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_PREV));
    preview()->SetCurrentPage(1);
    EXPECT_EQ(preview()->GetCurrentPage(), 3U);
}

TEST_F(PrintPreview, ZoomsInThreeSteps) {
    start();
    const int whole = marks()[0];
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_ZOOMOUT));
    press(AFX_ID_PREVIEW_ZOOMIN);
    EXPECT_EQ(preview()->GetZoomState(), 1);
    const int nearer = marks()[0];
    EXPECT_GT(nearer, whole + 10);
    press(AFX_ID_PREVIEW_ZOOMIN);
    const int nearest = marks()[0];
    EXPECT_GT(nearest, nearer + 10);
    EXPECT_FALSE(enabled(AFX_ID_PREVIEW_ZOOMIN));
    press(AFX_ID_PREVIEW_ZOOMOUT);
    EXPECT_EQ(marks()[0], nearer);
    preview()->SendMessage(WM_KEYDOWN, VK_SUBTRACT);
    EXPECT_EQ(marks()[0], whole);
    preview()->SetZoomState(99);
    EXPECT_EQ(preview()->GetZoomState(), 2);
}

TEST_F(PrintPreview, AClickComesNearerToItsPlace) {
    start();
    CRect client;
    preview()->GetClientRect(&client);
    const auto click = [&] {
        preview()->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right / 2, client.bottom / 2));
    };
    click();
    click();
    EXPECT_EQ(preview()->GetZoomState(), 2);
    // The middle of the sheet is in the middle still, so its red first tenth isn't seen.
    EXPECT_TRUE(marks().empty());
    SCROLLINFO across = {};
    preview()->GetScrollInfo(SB_HORZ, &across, SIF_ALL);
    EXPECT_NEAR(across.nPos, (across.nMax + 1 - static_cast<int>(across.nPage)) / 2, 12);
    const int place = across.nPos;
    press(AFX_ID_PREVIEW_CLOSE);
    EXPECT_EQ(view->endedAt.x, place);
    start();
    for (const int zoom : {1, 2, 0}) {
        click();
        EXPECT_EQ(preview()->GetZoomState(), zoom);
    }
}

TEST_F(PrintPreview, BarsScrollPlacesOrPages) {
    start();
    SCROLLINFO down = {};
    preview()->GetScrollInfo(SB_VERT, &down, SIF_ALL);
    EXPECT_EQ(down.nMin, 1);
    EXPECT_EQ(down.nMax, 4);
    EXPECT_EQ(down.nPos, 1);
    preview()->SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(preview()->GetCurrentPage(), 2U);
    preview()->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
    EXPECT_EQ(preview()->GetCurrentPage(), 3U);
    preview()->SendMessage(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(preview()->GetCurrentPage(), 1U);
    preview()->SetZoomState(2);
    const int mark = marks()[0];
    preview()->SendMessage(WM_HSCROLL, SB_LINEDOWN);
    // Of the margin and the sheet's edge 11 pixels go first.
    EXPECT_EQ(marks()[0], mark + 11 - 30);
    preview()->SendMessage(WM_HSCROLL, SB_LINEUP);
    EXPECT_EQ(marks()[0], mark);
    preview()->SendMessage(WM_VSCROLL, SB_BOTTOM);
    preview()->GetScrollInfo(SB_VERT, &down, SIF_ALL);
    EXPECT_EQ(down.nPos, down.nMax + 1 - static_cast<int>(down.nPage));
    // A window that grew shows all again.
    preview()->SetZoomState(0);
    frame->SetWindowPos(nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
    expect_marks({1});
}

TEST_F(PrintPreview, PaperIsLargerThanWhatIsPrinted) {
    const int wide = ::GetSystemMetrics(SM_CXSCREEN), high = ::GetSystemMetrics(SM_CYSCREEN);
    paper = {{PHYSICALWIDTH, wide * 2},
             {PHYSICALHEIGHT, high * 2},
             {PHYSICALOFFSETX, wide / 2},
             {PHYSICALOFFSETY, high / 2}};
    view->first = view->last = 10;
    start();
    // All that is printable is red, which is half of the paper and in its middle.
    const ui_test::Picture shown(*preview());
    int left = 0, red = 0, right = 0;
    for (int x = 0; x < shown.width(); ++x) {
        const COLORREF color = shown.at(x, shown.height() / 2);
        if (color == RGB(255, 255, 255)) ++(red == 0 ? left : right);
        if (color == RGB(255, 0, 0)) ++red;
    }
    EXPECT_NEAR(left, red / 2, 3);
    EXPECT_NEAR(right, red / 2, 3);
    EXPECT_GT(red, 100);
}

TEST_F(PrintPreview, PrintingClosesItFirst) {
    start();
    heard.clear();
    press(AFX_ID_PREVIEW_PRINT);
    EXPECT_EQ(heard, (Heard{"end of preview", "finish", "print command"}));
    EXPECT_EQ(preview(), nullptr);
}

TEST_F(PrintPreview, EscapeAndTheFramesCloseButtonEndThePreviewOnly) {
    start();
    preview()->SendMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(preview(), nullptr);
    start();
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(preview(), nullptr);
    EXPECT_TRUE(::IsWindow(frameWindow));
}

TEST_F(PrintPreview, WithoutAPrinterOrAJobNothingChanges) {
    view->prepares = false;
    EXPECT_EQ(start(), nullptr);
    EXPECT_EQ(heard, (Heard{"prepare"}));
    view->prepares = true;
    hasPrinter = false;
    bool told = false;
    ui_test::when_dialog(L"", [&](HWND box) {
        told = true;
        ::SendMessageW(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(start(), nullptr);
    EXPECT_TRUE(told);
    EXPECT_TRUE(view->IsWindowVisible());
    EXPECT_TRUE(tools.IsWindowVisible());
    EXPECT_EQ(::GetMenu(frameWindow), menu);
}

TEST_F(PrintPreview, ASecondOneIsNotBegun) {
    start();
    heard.clear();
    view->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
    EXPECT_TRUE(heard.empty());
}

TEST_F(PrintPreview, AFrameThatGoesEndsTheJob) {
    start();
    heard.clear();
    frame->DestroyWindow();
    EXPECT_EQ(heard, (Heard{"finish"}));
}

TEST_F(PrintPreview, AChildsPagesStandInTheWholeMainWindow) {
    auto* const outer = new CMDIFrameWnd;  // deletes itself
    ASSERT_TRUE(outer->Create(nullptr, L"outer", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(60, 60, 660, 500)));
    AfxGetApp()->m_pMainWnd = outer;
    auto* const child = new CMDIChildWnd;
    CCreateContext made;
    made.m_pNewViewClass = RUNTIME_CLASS(PagesView);
    ASSERT_TRUE(child->Create(nullptr, L"child", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                              CRect(0, 0, 200, 200), outer, &made));
    auto* const inner = static_cast<PagesView*>(child->GetDlgItem(AFX_IDW_PANE_FIRST));
    child->SetActiveView(inner);
    heard.clear();
    outer->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
    auto* const shown = DYNAMIC_DOWNCAST(CPreviewView, outer->GetDlgItem(AFX_IDW_PANE_FIRST));
    ASSERT_NE(shown, nullptr);
    EXPECT_FALSE(::IsWindowVisible(outer->m_hWndMDIClient));
    CRect client, place;
    outer->GetClientRect(&client);
    shown->GetWindowRect(&place);
    EXPECT_EQ(place.Width(), client.Width());
    outer->SendMessage(WM_COMMAND, AFX_ID_PREVIEW_NEXT);
    EXPECT_EQ(shown->GetCurrentPage(), 2U);
    outer->SendMessage(WM_CLOSE);
    EXPECT_TRUE(::IsWindowVisible(outer->m_hWndMDIClient));
    EXPECT_EQ(outer->GetDlgItem(AFX_IDW_PANE_FIRST)->m_hWnd, outer->m_hWndMDIClient);
    EXPECT_EQ(child->GetActiveView(), inner);
    EXPECT_EQ(::GetFocus(), inner->m_hWnd);
    EXPECT_EQ(heard.back(), "finish");
    AfxGetApp()->m_pMainWnd = frame;
    outer->DestroyWindow();
}

}  // namespace
