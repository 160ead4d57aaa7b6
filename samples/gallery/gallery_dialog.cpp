#include "gallery_dialog.h"

#include "resource.h"

namespace {

constexpr int kLongestLog = 500;  // lines

}  // namespace

BEGIN_MESSAGE_MAP(CGalleryDialog, CKtUiDialog)
    ON_NOTIFY(TVN_SELCHANGED, IDC_PAGES, &CGalleryDialog::OnPage)
    ON_WM_SIZE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CGalleryDialog::CGalleryDialog(CWnd* parent)
    : CKtUiDialog(IDD_GALLERY, parent, AfxGetInstanceHandle()), m_entries(AllPages()) {
    SetDialogName(L"Gallery");
}

BOOL CGalleryDialog::OnInitDialog() {
    CKtUiDialog::OnInitDialog();
    m_tree.SubclassDlgItem(IDC_PAGES, this);
    StretchControlY(IDC_PAGES, 100);
    StretchControlX(IDC_PAGE_PLACE, 100);
    for (const unsigned id : {IDC_LOG, IDC_CODE}) StretchControlY(id, 100);
    StretchControlX(IDC_CODE, 100);
    fillTree();
    OpenPage(0);
    m_tree.SetFocus();
    return FALSE;
}

void CGalleryDialog::fillTree() {
    HTREEITEM family = nullptr;
    CString last;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const GalleryEntry& entry = m_entries[i];
        if (last != entry.family)
            family = m_tree.InsertItem(Both(entry.family, entry.familyChinese), TVI_ROOT, TVI_LAST);
        last = entry.family;
        const HTREEITEM item = m_tree.InsertItem(Both(entry.name, entry.nameChinese), family, TVI_LAST);
        m_tree.SetItemData(item, i + 1);
        m_items.push_back(item);
        m_tree.Expand(family, TVE_EXPAND);
    }
}

void CGalleryDialog::OpenPage(int index) {
    m_tree.SelectItem(m_items[static_cast<std::size_t>(index)]);
    m_tree.EnsureVisible(index == 0 ? m_tree.GetRootItem() : m_items[static_cast<std::size_t>(index)]);
}

void CGalleryDialog::OnPage(NMHDR* header, LRESULT*) {
    const auto& change = *reinterpret_cast<NMTREEVIEWW*>(header);
    // A family has no page of its own; the one that is open stays.
    if (change.itemNew.lParam != 0) show(static_cast<int>(change.itemNew.lParam) - 1);
}

CRect CGalleryDialog::pagePlace() {
    CRect place;
    GetDlgItem(IDC_PAGE_PLACE)->GetWindowRect(&place);
    ScreenToClient(&place);
    return place;
}

void CGalleryDialog::closePage() {
    if (m_page != nullptr && m_page->m_hWnd != nullptr) m_page->DestroyWindow();
    m_page.reset();
}

void CGalleryDialog::show(int index) {
    closePage();
    SendDlgItemMessage(IDC_LOG, LB_RESETCONTENT);
    SendDlgItemMessage(IDC_LOG, LB_SETHORIZONTALEXTENT, 0);
    const GalleryEntry& entry = Entry(index);
    CString code = entry.code;
    code.Replace(L"\n", L"\r\n");
    SetDlgItemText(IDC_CODE, code);
    m_page = entry.make();
    m_page->CreatePage(*this, pagePlace(), [this](const CString& line) { log(line); });
    // Behind the tree in the order of the Tab key.
    m_page->SetWindowPos(&m_tree, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void CGalleryDialog::log(const CString& line) {
    CWnd& list = *GetDlgItem(IDC_LOG);
    if (list.SendMessage(LB_GETCOUNT) >= kLongestLog) list.SendMessage(LB_DELETESTRING, 0);
    const LRESULT at = list.SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.GetString()));
    list.SendMessage(LB_SETTOPINDEX, static_cast<WPARAM>(at));
    CClientDC dc(&list);
    CFont* former = dc.SelectObject(list.GetFont());
    const int width = dc.GetTextExtent(line).cx + 8;
    dc.SelectObject(former);
    if (width > list.SendMessage(LB_GETHORIZONTALEXTENT))
        list.SendMessage(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width));
}

void CGalleryDialog::OnSize(UINT type, int cx, int cy) {
    CKtUiDialog::OnSize(type, cx, cy);
    if (m_page != nullptr) m_page->MoveWindow(pagePlace());
}

void CGalleryDialog::OnDestroy() {
    closePage();
    CKtUiDialog::OnDestroy();
}
