#include <ktui/dialogs/kbui_dialog.h>

#include <kh_system.h>

#include <ktui/dialogs/elastic.h>

IMPLEMENT_DYNAMIC(CKbUiDialog, CKbUiBaseDialog)

BEGIN_MESSAGE_MAP(CKbUiDialog, CKbUiBaseDialog)
    ON_MESSAGE(WM_INITDIALOG, &CKbUiDialog::HandleInitDialog)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CKbUiDialog::CKbUiDialog(unsigned templateId, CWnd* parent, HINSTANCE resource)
    : CKbUiBaseDialog(templateId, parent, resource),
      m_elastic(new KbUiElastic(this)),
      m_templateId(templateId) {}

CKbUiDialog::~CKbUiDialog() {
    // The window's last messages still ask for the resize state.
    DestroyWindow();
    delete m_elastic;
}

bool CKbUiDialog::isResizable() const {
    return m_hWnd != nullptr && m_elastic != nullptr && !(GetStyle() & DS_MODALFRAME);
}

void CKbUiDialog::OnInitDialogBegin() {
    CRect window;
    GetWindowRect(&window);
    SetDialogMinExtents(window.Width(), window.Height());
    SetDialogMaxExtents(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    if (m_isModal) CenterWindow(nullptr);
}

void CKbUiDialog::OnInitDialogFinish() {}

BOOL CKbUiDialog::OnInitDialog() {
    const BOOL result = CKbUiBaseDialog::OnInitDialog();
    if (!isResizable()) return result;
    CRect window, client, desktop;
    GetWindowRect(&window);
    m_elastic->m_minExtent = {window.Width(), window.Height()};
    m_elastic->m_initialRect = window;
    GetClientRect(&client);
    m_elastic->m_lastClient = client.Size();
    ::GetWindowRect(::GetDesktopWindow(), &desktop);
    m_elastic->m_maxExtent = {desktop.Width(), desktop.Height()};
    return result;
}

LRESULT CKbUiDialog::HandleInitDialog(WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CDialog::HandleInitDialog(wParam, lParam);
    if (m_hWnd == nullptr) return result;
    if (isResizable())
        restorePlacement();
    else
        restorePosition();
    return result;
}

void CKbUiDialog::OnSize(UINT type, int cx, int cy) {
    if (isResizable()) m_elastic->Resize(cx, cy);
    CKbUiBaseDialog::OnSize(type, cx, cy);
}

void CKbUiDialog::OnGetMinMaxInfo(MINMAXINFO* info) { GetElasticMinMaxInfo(*info); }

void CKbUiDialog::OnDestroy() { CKbUiBaseDialog::OnDestroy(); }

void CKbUiDialog::OnOK() {
    StorePixelData();
    CDialog::OnOK();
}

void CKbUiDialog::OnDialogHelp() {}

int CKbUiDialog::DoDialogHelp() { return CKbUiBaseDialog::DoDialogHelp(); }

int CKbUiDialog::registerControl(unsigned id, unsigned kind, long percentX, long percentY) {
    if (m_hWnd == nullptr || ::GetDlgItem(m_hWnd, static_cast<int>(id)) == nullptr || m_elastic == nullptr)
        return 0;
    return m_elastic->Register(id, static_cast<KBUI_ELASTIC_KIND>(kind), static_cast<int>(percentX),
                               static_cast<int>(percentY));
}

int CKbUiDialog::MoveControlX(unsigned id, long percent) {
    return registerControl(id, kKbUiMoveX, percent, 0);
}
int CKbUiDialog::MoveControlY(unsigned id, long percent) {
    return registerControl(id, kKbUiMoveY, 0, percent);
}
int CKbUiDialog::MoveControlXY(unsigned id, long percentX, long percentY) {
    return registerControl(id, kKbUiMoveXY, percentX, percentY);
}
int CKbUiDialog::StretchControlX(unsigned id, long percent) {
    return registerControl(id, kKbUiStretchX, percent, 0);
}
int CKbUiDialog::StretchControlY(unsigned id, long percent) {
    return registerControl(id, kKbUiStretchY, 0, percent);
}
int CKbUiDialog::StretchControlXY(unsigned id, long percentX, long percentY) {
    return registerControl(id, kKbUiStretchXY, percentX, percentY);
}

int CKbUiDialog::SetControlProperty(_dlgControlTag* tags, unsigned long count) {
    for (unsigned long i = 0; i < count; ++i) {
        const _dlgControlTag& tag = tags[i];
        switch (tag.m_kind) {
            case kKbUiMoveX: MoveControlX(tag.m_id, tag.m_percent); break;
            case kKbUiMoveY: MoveControlY(tag.m_id, tag.m_percent); break;
            case kKbUiStretchX: StretchControlX(tag.m_id, tag.m_percent); break;
            case kKbUiStretchY: StretchControlY(tag.m_id, tag.m_percent); break;
            default: break;  // Kept: kinds with two percentages are skipped, a record has only one.
        }
    }
    return 1;
}

void CKbUiDialog::SetDialogMinExtents(int width, int height) {
    if (m_elastic != nullptr) m_elastic->m_minExtent = {width, height};
}

void CKbUiDialog::SetDialogMaxExtents(int width, int height) {
    if (m_elastic != nullptr) m_elastic->m_maxExtent = {width, height};
}

void CKbUiDialog::LockDialogWidth() {
    if (m_elastic == nullptr) return;
    CRect window;
    GetWindowRect(&window);
    m_elastic->m_minExtent.m_width = m_elastic->m_maxExtent.m_width = window.Width();
}

void CKbUiDialog::LockDialogHeight() {
    if (m_elastic == nullptr) return;
    CRect window;
    GetWindowRect(&window);
    m_elastic->m_minExtent.m_height = m_elastic->m_maxExtent.m_height = window.Height();
}

void CKbUiDialog::GetElasticMinMaxInfo(MINMAXINFO& info) {
    if (m_elastic != nullptr) m_elastic->GetMinMaxInfo(info);
}

CSize* CKbUiDialog::GetCurrentDelta() { return m_elastic != nullptr ? &m_elastic->m_currentDelta : nullptr; }

int CKbUiDialog::ForceControlResize(CWnd* control, RECT* rect) {
    if (control == nullptr) return 0;
    control->MoveWindow(rect, FALSE);
    return 1;
}

int CKbUiDialog::ForceControlRepaint(CWnd* control, int flag) {
    return control != nullptr && flag == 1 ? 1 : 0;
}

void CKbUiDialog::SetElasticSize(CSize&, int) {}
void CKbUiDialog::SetPersistency(int) {}
void CKbUiDialog::SetTabSize(__int64, int) {}
int CKbUiDialog::AddControl(CWnd*) { return 0; }
int CKbUiDialog::AutoLoadControl(CWnd*) { return 0; }
int CKbUiDialog::ReloadControl(CWnd*, const wchar_t*) { return 0; }
int CKbUiDialog::RemoveControl(CWnd*) { return 0; }
