// Property sheets, and frames with a toolbar and a status bar, made, used and destroyed a thousand times.
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>

#include "leak_growth.h"
#include "empty_page.h"

namespace {

using namespace leaks;

constexpr UINT kCommand = 2001, kPane = 61201;

class BarsAndSheets : public ::testing::Test {
protected:
    void openSheet() {
        CPropertySheet sheet(L"sheet", &parent);
        EmptyPage first, second;
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        const int button = ++opened % 2 == 0 ? PSBTN_OK : PSBTN_CANCEL;
        ui_test::later([&] {
            ASSERT_NE(first.m_hWnd, nullptr);
            sheet.SetActivePage(1);
            first.SetModified();
            sheet.PressButton(button);
        });
        ASSERT_EQ(sheet.DoModal(), button == PSBTN_OK ? IDOK : IDCANCEL);
    }
    void openFrame() {
        auto* frame = new CFrameWnd;
        ASSERT_TRUE(
            frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 450, 350)));
        CToolBar tools;
        CStatusBar status;
        ASSERT_TRUE(tools.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_TOOLTIPS));
        CBitmap pictures;
        CClientDC dc(frame);
        pictures.CreateCompatibleBitmap(&dc, 32, 15);
        ASSERT_TRUE(tools.SetBitmap(pictures));
        const UINT commands[] = {kCommand, ID_SEPARATOR, kCommand + 1};
        ASSERT_TRUE(tools.SetButtons(commands, 3));
        ASSERT_TRUE(tools.SetButtonText(0, L"text"));
        ASSERT_TRUE(status.Create(frame));
        ASSERT_TRUE(status.SetIndicators(nullptr, 2));
        status.SetPaneInfo(0, ID_SEPARATOR, SBPS_STRETCH, 50);
        frame->RecalcLayout();
        frame->SetMessageText(L"message");
        frame->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        ui_test::pump();
        frame->DestroyWindow();
    }
    void openBareFrame() {
        const HWND frame = ::CreateWindowExW(0, L"#32770", L"bare", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50,
                                             400, 300, nullptr, nullptr, nullptr, nullptr);
        constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | CCS_NORESIZE | CCS_NOPARENTALIGN;
        const HWND tools = ::CreateWindowExW(0, TOOLBARCLASSNAMEW, nullptr, kStyle, 0, 0, 400, 30, frame,
                                             nullptr, nullptr, nullptr);
        ::CreateWindowExW(0, STATUSCLASSNAMEW, nullptr, kStyle, 0, 250, 400, 20, frame, nullptr, nullptr,
                          nullptr);
        ::SendMessageW(tools, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        TBBUTTON buttons[2] = {};
        for (TBBUTTON& each : buttons) each.fsState = TBSTATE_ENABLED;
        ::SendMessageW(tools, TB_ADDBUTTONSW, 2, reinterpret_cast<LPARAM>(buttons));
        ui_test::pump();
        ::DestroyWindow(frame);
    }
    ui_test::ParentWindow parent;
    int opened = 0;
};

}  // namespace

TEST_F(BarsAndSheets, AThousandPropertySheetsLeaveNothing) {
    const size_t growth = heap_growth([&] { open_bare_sheet(parent, 0); });
    expect_no_growth([&] { openSheet(); }, growth, kShownGdiSlack);
    EXPECT_EQ(opened, kTimes + kWarmUp);
}

TEST_F(BarsAndSheets, AThousandFramesWithBarsLeaveNothing) {
    const size_t growth = heap_growth([&] { openBareFrame(); });
    expect_no_growth([&] { openFrame(); }, growth, kShownGdiSlack);
}
