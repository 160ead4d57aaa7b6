#include <ktui/dialogs/kbui_dialog_worksheet.h>

#include <ktui/host/host_calls.h>
#include <ktui/host/module.h>

IMPLEMENT_DYNAMIC(CKbUiDialogWorksheet, CKbUiDialog)
IMPLEMENT_DYNAMIC(CKtUiDialogWorksheet, CKbUiDialogWorksheet)

BEGIN_MESSAGE_MAP(CKtUiDialogWorksheet, CKbUiDialogWorksheet)
    ON_WM_MOUSEMOVE()
    ON_WM_DRAWITEM()
    ON_WM_SIZE()
    ON_WM_NCHITTEST()
    ON_WM_NCPAINT()
    ON_WM_NCACTIVATE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCMOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_SYSCOMMAND()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_QUERYDRAGICON()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CKbUiDialogWorksheet::CKbUiDialogWorksheet(unsigned templateId, CWnd* parent, HINSTANCE resource)
    : CKbUiDialog(templateId, parent, resource) {}

CKbUiDialogWorksheet::CKbUiDialogWorksheet(unsigned templateId, const CKbUiWorksheetDraw&, CWnd* parent,
                                           HINSTANCE resource)
    : CKbUiDialog(templateId, parent, resource) {}

CKbUiDialogWorksheet::~CKbUiDialogWorksheet() = default;

// Kept: each of these does nothing, and answers 0 where it has a result.
BOOL CKbUiDialogWorksheet::CreateEx(DWORD, LPCTSTR, LPCTSTR, DWORD, int, int, int, int, HWND, HMENU, LPVOID) {
    return 0;
}
BOOL CKbUiDialogWorksheet::CreateEx(DWORD, LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT, LPVOID) {
    return 0;
}
BOOL CKbUiDialogWorksheet::DestroyWindow() { return 0; }
BOOL CKbUiDialogWorksheet::PreTranslateMessage(MSG*) { return 0; }
BOOL CKbUiDialogWorksheet::OnInitDialog() { return 0; }
BOOL CKbUiDialogWorksheet::PreCreateWindow(CREATESTRUCT&) { return 0; }
void CKbUiDialogWorksheet::PostNcDestroy() {}
CKbUiTheme* CKbUiDialogWorksheet::GetTheme() const { return nullptr; }
int CKbUiDialogWorksheet::SetTheme(CKbUiTheme*) { return 0; }
void CKbUiDialogWorksheet::ThemeModified(CKbUiTheme*) {}
void CKbUiDialogWorksheet::SetDraw(const CKbUiWorksheetDraw&) {}
int CKbUiDialogWorksheet::SetDefaultDraw() { return 0; }
void CKbUiDialogWorksheet::OnClose() {}
HBRUSH CKbUiDialogWorksheet::OnCtlColor(CDC*, CWnd*, UINT) { return nullptr; }
void CKbUiDialogWorksheet::OnDestroy() {}
void CKbUiDialogWorksheet::OnDrawItem(int, LPDRAWITEMSTRUCT) {}
BOOL CKbUiDialogWorksheet::OnEraseBkgnd(CDC*) { return 0; }
void CKbUiDialogWorksheet::OnGetMinMaxInfo(MINMAXINFO*) {}
void CKbUiDialogWorksheet::OnIconEraseBkgnd(CDC*) {}
void CKbUiDialogWorksheet::OnKillFocus(CWnd*) {}
void CKbUiDialogWorksheet::OnLButtonDblClk(UINT, CPoint) {}
void CKbUiDialogWorksheet::OnLButtonDown(UINT, CPoint) {}
void CKbUiDialogWorksheet::OnLButtonUp(UINT, CPoint) {}
void CKbUiDialogWorksheet::OnMeasureItem(int, LPMEASUREITEMSTRUCT) {}
void CKbUiDialogWorksheet::OnMouseMove(UINT, CPoint) {}
void CKbUiDialogWorksheet::OnMoving(UINT, LPRECT) {}
BOOL CKbUiDialogWorksheet::OnNcActivate(BOOL) { return 0; }
void CKbUiDialogWorksheet::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) {}
BOOL CKbUiDialogWorksheet::OnNcCreate(LPCREATESTRUCT) { return 0; }
void CKbUiDialogWorksheet::OnNcDestroy() {}
LRESULT CKbUiDialogWorksheet::OnNcHitTest(CPoint) { return 0; }
void CKbUiDialogWorksheet::OnNcLButtonDown(UINT, CPoint) {}
void CKbUiDialogWorksheet::OnNcLButtonUp(UINT, CPoint) {}
void CKbUiDialogWorksheet::OnNcMouseMove(UINT, CPoint) {}
void CKbUiDialogWorksheet::OnNcPaint() {}
void CKbUiDialogWorksheet::OnPaint() {}
HCURSOR CKbUiDialogWorksheet::OnQueryDragIcon() { return nullptr; }
void CKbUiDialogWorksheet::OnSetFocus(CWnd*) {}
void CKbUiDialogWorksheet::OnSize(UINT, int, int) {}
void CKbUiDialogWorksheet::OnSizing(UINT, LPRECT) {}
void CKbUiDialogWorksheet::OnStyleChanged(int, LPSTYLESTRUCT) {}
void CKbUiDialogWorksheet::OnStyleChanging(int, LPSTYLESTRUCT) {}

CKtUiDialogWorksheet::CKtUiDialogWorksheet(unsigned templateId, CWnd* parent, HINSTANCE resource)
    : CKbUiDialogWorksheet(templateId, parent, resource) {}

CKtUiDialogWorksheet::CKtUiDialogWorksheet(unsigned templateId, const CKbUiWorksheetDraw& draw, CWnd* parent,
                                           HINSTANCE resource)
    : CKbUiDialogWorksheet(templateId, draw, parent, resource) {}

CKtUiDialogWorksheet::~CKtUiDialogWorksheet() = default;

CWnd* CKtUiDialogWorksheet::AppMainWindow() { return HostMainWindow(); }
HINSTANCE CKtUiDialogWorksheet::AppResourceInstance() { return KtUiAppResourceInstance(); }
const wchar_t* CKtUiDialogWorksheet::AppRootKey() { return m_appRootKey; }

void CKtUiDialogWorksheet::OnSysColorChange() { CKbUiDialogWorksheet::OnSysColorChange(); }
void CKtUiDialogWorksheet::OnSysCommand(UINT, LPARAM) { Default(); }
