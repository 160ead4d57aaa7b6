// Pages shown in place of a frame's view and put away, a thousand times.
#include <afxadv.h>
#include <afxext.h>
#include <afxpriv.h>

#include "leak_growth.h"
#include "printer_names.h"
#include "replaced_import.h"
#include "ui_test.h"

namespace {

using namespace leaks;

class PagesView : public CView {
    DECLARE_DYNCREATE(PagesView)
public:
    int printed = 0;

protected:
    void OnDraw(CDC* dc) override { dc->FillSolidRect(0, 0, 50, 50, RGB(0, 0, 255)); }
    BOOL OnPreparePrinting(CPrintInfo* info) override {
        info->SetMaxPage(3);
        info->m_nNumPreviewPages = 2;
        return DoPreparePrinting(info);
    }
    void OnPrint(CDC* dc, CPrintInfo* info) override {
        ++printed;
        CView::OnPrint(dc, info);
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(PagesView, CView)

BEGIN_MESSAGE_MAP(PagesView, CView)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

HDC WINAPI createDC(const wchar_t*, const wchar_t*, const wchar_t*, const DEVMODEW*) {
    return ::CreateCompatibleDC(nullptr);
}

}  // namespace

TEST(PrintPreview, AThousandTimesOpenedAndClosedLeavesNothing) {
    const ui_test::ReplacedImport context(::GetModuleHandleW(L"kmfc.dll"), "CreateDCW", &createDC);
    ASSERT_TRUE(context.isThere());
    AfxGetApp()->SelectPrinter(ui_test::printer_names(L"winspool", L"Plotter", L"LPT9:"), nullptr);
    auto* const frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(20, 20, 620, 520)));
    AfxGetApp()->m_pMainWnd = frame;
    CCreateContext how;
    how.m_pNewViewClass = RUNTIME_CLASS(PagesView);
    auto* const view = static_cast<PagesView*>(frame->CreateView(&how));
    frame->SetActiveView(view);
    int shown = 0;
    expect_no_growth([&] {
        frame->SendMessage(WM_COMMAND, ID_FILE_PRINT_PREVIEW);
        CWnd* const preview = frame->GetDlgItem(AFX_IDW_PANE_FIRST);
        shown += preview != view ? 1 : 0;
        preview->SendMessage(WM_COMMAND, AFX_ID_PREVIEW_NEXT);
        frame->SendMessage(WM_CLOSE);
        ui_test::pump();
    });
    EXPECT_EQ(shown, kTimes + kWarmUp);
    // The hidden frame paints nothing, so only the pages that are looked for are recorded: the second and the
    // third.
    EXPECT_EQ(view->printed, 2 * (kTimes + kWarmUp));
    AfxGetApp()->m_pMainWnd = nullptr;
    AfxGetApp()->SelectPrinter(nullptr, nullptr);
    frame->DestroyWindow();
}
