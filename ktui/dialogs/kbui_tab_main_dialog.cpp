#include <ktui/dialogs/kbui_tab_main_dialog.h>

#include <ktui/dialogs/kbui_tab.h>
#include <ktui/dialogs/kbui_tab_child_dialog.h>
#include <ktui/dialogs/tab_item_text.h>
#include <ktui/dialogs/tab_pages.h>

IMPLEMENT_DYNAMIC(CKbUiTabMainDialog, CKbUiDialog)

BEGIN_MESSAGE_MAP(CKbUiTabMainDialog, CKbUiDialog)
    ON_WM_SIZE()
END_MESSAGE_MAP()

CKbUiTabMainDialog::CKbUiTabMainDialog(unsigned templateId, CWnd* parent, HINSTANCE resource)
    : CKbUiDialog(templateId, parent, resource) {}

CKbUiTabMainDialog::~CKbUiTabMainDialog() = default;

BOOL CKbUiTabMainDialog::OnInitDialog() {
    const BOOL result = CKbUiDialog::OnInitDialog();
    m_xtab.Initialize(m_tab, this);
    return result;
}

int CKbUiTabMainDialog::AddTab(int index, const wchar_t* name, unsigned templateId,
                               CKbUiTabChildDialog* page) {
    return m_tab != nullptr ? m_tab->AddTab(index, CString(name), templateId, page) : 0;
}

int CKbUiTabMainDialog::AddTab(int index, unsigned nameId, unsigned templateId, CKbUiTabChildDialog* page) {
    return m_tab != nullptr ? m_tab->AddTab(index, nameId, templateId, page) : 0;
}

int CKbUiTabMainDialog::RemoveTab(int index) { return m_tab != nullptr ? m_tab->RemoveTab(index) : 0; }

int CKbUiTabMainDialog::GetTabIndex(CKbUiTabChildDialog* page) {
    return m_tab != nullptr ? m_tab->GetTabIndex(page) : -1;
}

void CKbUiTabMainDialog::SetDefaultButton(int id) {
    SendMessage(DM_SETDEFID, static_cast<WPARAM>(id));
    m_defaultButton = id;
}

void CKbUiTabMainDialog::UpdateDefaultButton(HWND from, HWND to) {
    if (from == to) return;
    ::SetFocus(to);
    SetDefaultButton(::GetDlgCtrlID(to));
}

int CKbUiTabMainDialog::GetInitialRequestedTabIndex() {
    const int count = m_tab != nullptr ? m_tab->GetItemCount() : 0;
    return InitialTabIndex(m_initialTabIndex, count, [this](int index, CString& text) {
        return m_tab != nullptr && ReadTabItemText(*m_tab, index, text);
    });
}

void CKbUiTabMainDialog::tellPages(void (CKbUiTabChildDialog::*event)()) {
    if (m_tab == nullptr) return;
    for (int i = 0; i < m_tab->GetItemCount(); ++i)
        if (CKbUiTabChildDialog* page = m_tab->GetDialogPointer(i)) (page->*event)();
}

void CKbUiTabMainDialog::OnOK() {
    // A page that fails has said so; the user stays on the page in front, whichever that is.
    if (m_tab != nullptr && !m_tab->ExchangeData(1)) return;
    tellPages(&CKbUiTabChildDialog::OnMainDialogOK);
    StorePixelData();
    CDialog::OnOK();
}

void CKbUiTabMainDialog::OnCancel() {
    tellPages(&CKbUiTabChildDialog::OnMainDialogCancel);
    CDialog::OnCancel();
}

void CKbUiTabMainDialog::RaiseApplyEvent() {
    tellPages(&CKbUiTabChildDialog::OnMainDialogApply);
    SetFocus();
}

void CKbUiTabMainDialog::OnSize(UINT type, int cx, int cy) {
    CKbUiDialog::OnSize(type, cx, cy);
    if (m_tab == nullptr || m_tab->m_hWnd == nullptr) return;
    const CRect area = m_tab->PageArea(0);
    for (int i = 0; i < m_tab->GetItemCount(); ++i)
        if (CKbUiTabChildDialog* page = m_tab->GetDialogPointer(i)) page->MoveWindow(&area, TRUE);
}

int CKbUiTabMainDialog::AddExtendedTabs() { return 0; }
int CKbUiTabMainDialog::TranslateTabKey() { return 0; }
int CKbUiTabMainDialog::AddApplicationTabs(const wchar_t*) { return 0; }
