#include <ktui/dialogs/kbui_tab.h>

#include <ktdsres/resource_ids.h>
#include <ktui/dialogs/kbui_tab_child_dialog.h>
#include <ktui/dialogs/kbui_tab_main_dialog.h>
#include <ktui/dialogs/tab_item_text.h>
#include <ktui/dialogs/tab_pages.h>
#include <ktui/host/accessible.h>
#include <ktui/host/registered_messages.h>
#include <ktui/host/string_resources.h>

IMPLEMENT_DYNAMIC(CKbUiTab, CTabCtrl)

BEGIN_MESSAGE_MAP(CKbUiTab, CTabCtrl)
    ON_NOTIFY_REFLECT_EX(TCN_SELCHANGING, &CKbUiTab::OnSelChanging)
    ON_NOTIFY_REFLECT_EX(TCN_SELCHANGE, &CKbUiTab::OnSelChange)
    ON_MESSAGE(WM_GETOBJECT, &CKbUiTab::OnGetObject)
    ON_REGISTERED_MESSAGE(accessibleMessage, &CKbUiTab::OnAccessible)
END_MESSAGE_MAP()

CKbUiTab::CKbUiTab() = default;
CKbUiTab::~CKbUiTab() = default;

// Kept: the parent is taken for a main dialog without a test.
void CKbUiTab::PreSubclassWindow() {
    CTabCtrl::PreSubclassWindow();
    GetMainDialog()->SetKtdsTabPointer(this);
}

CKbUiTabMainDialog* CKbUiTab::GetMainDialog() { return static_cast<CKbUiTabMainDialog*>(GetParent()); }

int CKbUiTab::AddTab(int index, const CString& name, unsigned templateId, CKbUiTabChildDialog* page) {
    if (page == nullptr) return 0;
    InsertItem(TCIF_TEXT, index, name, 0, 0);
    page->SetKtdsTabPointer(this);
    if (page->m_hWnd == nullptr) {
        const BOOL created = page->Create(templateId, GetParent());
        if (!created) return created;
    } else {
        page->ShowWindow(SW_SHOW);
    }
    // Kept: at the end of the list, wherever the item went.
    m_pages.Add(page);
    PositionTabDialog(page, index);
    BringTabToFront(0);
    return 1;
}

int CKbUiTab::AddTab(int index, unsigned nameId, unsigned templateId, CKbUiTabChildDialog* page) {
    CString name;
    if (!name.LoadString(nameId) || name.IsEmpty()) name.Format(L"%d", nameId);
    AddTab(index, name, templateId, page);
    // Kept: this form doesn't tell success.
    return 0;
}

CRect CKbUiTab::PageArea(int index) const {
    CRect strip, item(0, 0, 0, 0);
    GetClientRect(&strip);
    MapWindowPoints(GetParent(), &strip);
    GetItemRect(index, &item);
    return TabPageArea(strip, item.Height());
}

void CKbUiTab::PositionTabDialog(CKbUiTabChildDialog* page, int index) {
    const CRect area = PageArea(index);
    page->SetWindowPos(&CWnd::wndTop, area.left, area.top, area.Width(), area.Height(), SWP_SHOWWINDOW);
}

int CKbUiTab::BringTabToFront(int index) {
    if (index < 0 || index >= m_pages.GetSize() || index >= GetItemCount()) return 0;
    for (int i = 0; i < m_pages.GetSize(); ++i)
        if (CKbUiTabChildDialog* page = GetDialogPointer(i)) page->ShowWindow(SW_HIDE);
    SetCurSel(index);
    m_activeTab = index;
    if (CKbUiTabChildDialog* page = GetDialogPointer(index)) page->ShowWindow(SW_SHOW);
    return 1;
}

BOOL CKbUiTab::OnSelChanging(NMHDR*, LRESULT* result) {
    m_activeTab = GetCurSel();
    *result = 0;
    if (m_activeTab == -1) return 1;
    CKbUiTabChildDialog* page = GetDialogPointer(m_activeTab);
    if (page != nullptr && page->OnTabChanging()) {
        page->OnTabActivation(0);
        return 0;
    }
    // Kept: an item without a page can't be left either.
    *result = 1;
    return 1;
}

BOOL CKbUiTab::OnSelChange(NMHDR*, LRESULT* result) {
    const int index = GetActiveTab();
    BringTabToFront(index);
    SetFocus();
    *result = 0;
    arriveAt(index);
    return 0;
}

void CKbUiTab::arriveAt(int index) {
    CKbUiTabChildDialog* page = GetDialogPointer(index);
    if (page == nullptr) return;
    page->SetDirty(1);
    page->OnTabActivation(1);
}

int CKbUiTab::GetActiveTab() {
    m_activeTab = GetCurSel();
    return m_activeTab;
}

int CKbUiTab::SetActiveTab(int index) {
    const int count = GetItemCount();
    if (count == 0) return -1;
    if (index >= count) index = 0;
    const int former = GetCurSel();
    if (index == former) return index;
    // Kept: the page that is left isn't asked.
    if (CKbUiTabChildDialog* page = GetDialogPointer(former)) page->OnTabActivation(0);
    BringTabToFront(index);
    arriveAt(index);
    return index;
}

int CKbUiTab::RemoveTab(int index) {
    if (index < 0 || index >= m_pages.GetSize() || index >= GetItemCount()) return 0;
    CTabCtrl::DeleteItem(index);
    if (CKbUiTabChildDialog* page = GetDialogPointer(index)) page->ShowWindow(SW_HIDE);
    m_pages.RemoveAt(index);
    const int selected = GetActiveTab();
    SetActiveTab(selected == -1 ? 0 : selected);
    return 1;
}

int CKbUiTab::DeleteItem(int index) { return RemoveTab(index); }

int CKbUiTab::DestroyTab(int index, int save) {
    CKbUiTabChildDialog* page = GetDialogPointer(index);
    // Kept: it is the tab window whose data is exchanged, not the page's.
    if (page != nullptr && page->IsDirty() && save == 1) UpdateData(1);
    RemoveTab(index);
    if (page != nullptr) page->DestroyWindow();
    return 1;
}

int CKbUiTab::GetTabIndex(CKbUiTabChildDialog* page) {
    for (int i = 0; i < m_pages.GetSize(); ++i)
        if (m_pages[i] == page) return i;
    return -1;
}

CKbUiTabChildDialog* CKbUiTab::GetDialogPointer(int index) {
    if (index < 0 || index >= m_pages.GetSize()) return nullptr;
    return static_cast<CKbUiTabChildDialog*>(m_pages[index]);
}

void CKbUiTab::SetApplyButtonID(unsigned id) {
    m_applyButtonId = id;
    m_dirty = GetDlgItem(static_cast<int>(id)) != nullptr ? 1 : 0;
}

void CKbUiTab::SetChildFocus() { SetCurFocus(GetCurSel()); }

void CKbUiTab::SetValidationInfo(CDataExchange* exchange) {
    const int id = ::GetDlgCtrlID(exchange->m_hWndLastControl);
    if (CWnd* control = GetDlgItem(id)) control->SetFocus();
}

int CKbUiTab::ExchangeData(int save) {
    for (int i = 0; i < m_pages.GetSize(); ++i) {
        CKbUiTabChildDialog* page = GetDialogPointer(i);
        if (page != nullptr && !page->ExchangeData(save)) return 0;
    }
    return 1;
}

LRESULT CKbUiTab::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = AnswerGetObject(*this, wParam, lParam);
    return answer ? answer : Default();
}

LRESULT CKbUiTab::OnAccessible(WPARAM wParam, LPARAM lParam) {
    const auto request = static_cast<KbUiAccessibleRequest>(wParam);
    if (request == KbUiAccessibleRequest::kLater) {
        changeAsAUserDoes(static_cast<int>(lParam));
        return 1;
    }
    auto& item = *reinterpret_cast<KbUiAccessibleItem*>(lParam);
    const int index = item.child - 1;
    if (request == KbUiAccessibleRequest::kAct)
        return index >= 0 &&
               PostMessage(accessibleMessage, static_cast<WPARAM>(KbUiAccessibleRequest::kLater), index);
    if (index >= 0) return tellOfItem(index, item);
    CString caption;
    GetWindowText(caption);
    item.name = WithoutAccessKey(caption);
    item.role = ROLE_SYSTEM_PAGETABLIST;
    item.children = GetItemCount();
    return 1;
}

LRESULT CKbUiTab::tellOfItem(int index, KbUiAccessibleItem& item) {
    if (index >= GetItemCount()) return 0;
    CString text;
    ReadTabItemText(*this, index, text);
    item.name = WithoutAccessKey(text);
    item.role = ROLE_SYSTEM_PAGETAB;
    item.defaultAction = LoadToolkitString(IDS_ACTION_SWITCH, L"切换");
    GetItemRect(index, &item.place);
    item.states = STATE_SYSTEM_SELECTABLE;
    if (index == GetCurSel()) item.states |= STATE_SYSTEM_SELECTED;
    // The mark of the focus is on one item only.
    if (index != GetCurFocus()) item.statesWithout = STATE_SYSTEM_FOCUSED;
    return 1;
}

LRESULT CKbUiTab::notify(UINT code) {
    NMHDR header = {m_hWnd, static_cast<UINT_PTR>(GetDlgCtrlID()), code};
    return GetParent()->SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

void CKbUiTab::changeAsAUserDoes(int index) {
    if (index == GetCurSel() || index >= GetItemCount() || !IsWindowEnabled()) return;
    if (notify(TCN_SELCHANGING) != 0) return;
    SetCurSel(index);
    notify(TCN_SELCHANGE);
}
