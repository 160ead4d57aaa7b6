// The worksheet's fixed answers.
#include <ktui/dialogs/kbui_dialog_worksheet.h>

#include <ktui/host/module.h>

#include <utility>

#include "dialog_fixture.h"

namespace {

class OpenSheet : public CKtUiDialogWorksheet {
public:
    explicit OpenSheet(CWnd* parent) : CKtUiDialogWorksheet(IDD_ELASTIC, CKbUiWorksheetDraw(), parent) {}
    using CKbUiDialogWorksheet::OnInitDialog;
    using CKbUiDialogWorksheet::OnMoving;
    using CKbUiDialogWorksheet::OnNcCreate;
    using CKbUiDialogWorksheet::OnPaint;
    using CKbUiDialogWorksheet::PreCreateWindow;
    using CKtUiDialogWorksheet::AppMainWindow;
    using CKtUiDialogWorksheet::AppResourceInstance;
};

class Worksheet : public DialogTest {
protected:
    Worksheet() : sheet(&parent) {}
    OpenSheet sheet;
};

TEST_F(Worksheet, HasNoTheme) {
    EXPECT_EQ(sheet.GetTheme(), nullptr);
    EXPECT_EQ(sheet.SetTheme(nullptr), 0);
    sheet.ThemeModified(nullptr);
    sheet.SetDraw(CKbUiWorksheetDraw());
    EXPECT_EQ(sheet.SetDefaultDraw(), 0);
    EXPECT_EQ(sheet.GetTheme(), nullptr);
}

TEST_F(Worksheet, TheMainWindowIsTheHostsAndTheResourcesAreTheApplications) {
    CWnd* const former = std::exchange(AfxGetApp()->m_pMainWnd, &parent);
    EXPECT_EQ(sheet.AppMainWindow(), &parent);
    host.hasUiHost = false;
    EXPECT_EQ(sheet.AppMainWindow(), nullptr);
    host.hasUiHost = true;
    AfxGetApp()->m_pMainWnd = former;
    EXPECT_EQ(sheet.AppResourceInstance(), KtUiAppResourceInstance());
}

TEST_F(Worksheet, ItsOwnOperationsAnswerZero) {
    CREATESTRUCT create = {};
    MSG message = {};
    EXPECT_EQ(sheet.OnInitDialog(), 0);
    EXPECT_EQ(sheet.PreCreateWindow(create), 0);
    EXPECT_EQ(sheet.PreTranslateMessage(&message), 0);
    EXPECT_EQ(sheet.OnNcCreate(&create), 0);
    EXPECT_EQ(sheet.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, parent.m_hWnd, nullptr), 0);
    EXPECT_EQ(sheet.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 9, 9), &parent, 0), 0);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(Worksheet, IsMadeFromItsTemplateAndKeepsItsWindowWhenToldToDestroyIt) {
    HWND window = nullptr;
    {
        OpenSheet modeless(&parent);
        ASSERT_TRUE(modeless.Create(IDD_ELASTIC, &parent));
        window = modeless.m_hWnd;
        EXPECT_NE(modeless.GetDlgItem(IDC_FIRST), nullptr);
        EXPECT_EQ(modeless.DestroyWindow(), 0);
        EXPECT_TRUE(::IsWindow(window));
    }
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(Worksheet, TheMessagesOfItsMapHaveNoEffect) {
    ASSERT_TRUE(sheet.Create(IDD_ELASTIC, &parent));
    EXPECT_EQ(sheet.SendMessage(WM_NCHITTEST, 0, 0), HTNOWHERE);
    EXPECT_EQ(sheet.SendMessage(WM_ERASEBKGND, 0, 0), 0);
    EXPECT_EQ(sheet.SendMessage(WM_QUERYDRAGICON), 0);
    EXPECT_EQ(sheet.SendMessage(WM_NCACTIVATE, TRUE), 0);
    CDC* dc = sheet.GetDC();
    EXPECT_EQ(sheet.SendMessage(WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(dc->m_hDC),
                                reinterpret_cast<LPARAM>(sheet.m_hWnd)),
              0);
    sheet.ReleaseDC(dc);
    // A size change moves no control.
    CRect before, after;
    sheet.MoveControlX(IDC_FIRST, 100);
    sheet.GetDlgItem(IDC_FIRST)->GetWindowRect(&before);
    sheet.SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
    sheet.GetDlgItem(IDC_FIRST)->GetWindowRect(&after);
    EXPECT_EQ(before, after);
}

/// Notes the messages that get as far as the platform's own processing.
template <class Sheet>
class Noting : public Sheet {
public:
    using Sheet::Sheet;
    std::vector<UINT> processed;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        processed.push_back(message);
        return Sheet::DefWindowProc(message, wParam, lParam);
    }
};

/// Whether `message`, sent to `sheet`, gets there.
template <class Sheet>
bool isProcessed(Noting<Sheet>& sheet, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    sheet.processed.clear();
    sheet.SendMessage(message, wParam, lParam);
    return std::find(sheet.processed.begin(), sheet.processed.end(), message) != sheet.processed.end();
}

/// Both names of the class with the messages that the application's name has handlers for.
class WorksheetMessages : public Worksheet {
protected:
    WorksheetMessages() : kept(IDD_ELASTIC, &parent, nullptr), base(IDD_ELASTIC, &parent, nullptr) {
        kept.Create(IDD_ELASTIC, &parent);
        base.Create(IDD_ELASTIC, &parent);
    }
    Noting<CKtUiDialogWorksheet> kept;
    Noting<CKbUiDialogWorksheet> base;
};

TEST_F(WorksheetMessages, OfItsMapEndAtTheirHandlers) {
    const struct {
        UINT message;
        WPARAM word;
    } ended[] = {{WM_MOUSEMOVE, 0},  {WM_SIZE, SIZE_RESTORED}, {WM_NCHITTEST, 0},    {WM_NCPAINT, 1},
                 {WM_NCACTIVATE, 0}, {WM_NCLBUTTONUP, 0},      {WM_NCMOUSEMOVE, 0},  {WM_LBUTTONDOWN, 0},
                 {WM_LBUTTONUP, 0},  {WM_QUERYDRAGICON, 0},    {WM_NCLBUTTONDOWN, 0}};
    for (const auto& each : ended) {
        EXPECT_FALSE(isProcessed(kept, each.message, each.word)) << std::hex << each.message;
        EXPECT_TRUE(isProcessed(base, each.message, each.word))
            << "without a map: " << std::hex << each.message;
    }
}

TEST_F(WorksheetMessages, OfTheSystemGoOnToThePlatform) {
    EXPECT_TRUE(isProcessed(kept, WM_SYSCOLORCHANGE));
    EXPECT_TRUE(isProcessed(kept, WM_SYSCOMMAND, SC_HOTKEY));
    EXPECT_TRUE(isProcessed(kept, WM_MOVE));
}

TEST_F(WorksheetMessages, AnOwnerDrawnControlIsDrawnOnTheBaseAlone) {
    struct Drawn : CButton {
        int times = 0;
        void DrawItem(LPDRAWITEMSTRUCT) override { ++times; }
    } onKept, onBase;
    onKept.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 20, 20), &kept, 77);
    onBase.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 20, 20), &base, 77);
    for (Drawn* each : {&onKept, &onBase}) {
        each->GetParent()->ShowWindow(SW_SHOW);
        each->RedrawWindow();
    }
    EXPECT_EQ(onKept.times, 0);
    EXPECT_GT(onBase.times, 0);
    onKept.DestroyWindow();
    onBase.DestroyWindow();
}

TEST_F(Worksheet, BothConstructorsAreThoseOfTheDialog) {
    CKbUiWorksheetDraw draw;
    CKbUiDialogWorksheet plain(IDD_ELASTIC, &parent, nullptr), drawn(IDD_ELASTIC, draw, &parent, nullptr);
    CString first, second;
    plain.GetDialogName(first);
    drawn.GetDialogName(second);
    EXPECT_EQ(first, second);
    EXPECT_EQ(first.Right(5), L"-C8-0");
    EXPECT_EQ(plain.GetUseTips(), 1);
}

}  // namespace
