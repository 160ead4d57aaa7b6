#include <ktui/nav/list_ctrl_ex.h>

#include <ktui/nav/file_dialog_rules.h>
#include <ktui/nav/nav_file_dlg.h>
#include <ktui/nav/view_memory.h>

IMPLEMENT_DYNAMIC(CListCtrlEx, CListCtrl)

BEGIN_MESSAGE_MAP(CListCtrlEx, CListCtrl)
    ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

CListCtrlEx::~CListCtrlEx() = default;

void CListCtrlEx::PostNcDestroy() { delete this; }

void CListCtrlEx::OnShowWindow(BOOL shown, UINT status) {
    CListCtrl::OnShowWindow(shown, status);
    if (shown) ShowFirst();
}

void CListCtrlEx::ShowFirst() {
    if (m_done) return;
    ApplyViewState(*m_dialog, m_hWnd);
    if (GetItemCount() == 0) return;
    m_done = true;
    markFile(NameToShow(m_dialog->GetOFN().lpstrFile, m_dialog->IsOpenDialog()));
}

void CListCtrlEx::markFile(const CString& name) {
    for (int row = 0; row < GetItemCount(); ++row) {
        if (GetItemText(row, 0) != name) continue;
        constexpr UINT kMarked = LVIS_SELECTED | LVIS_FOCUSED;
        SetItemState(row, kMarked, kMarked);
        EnsureVisible(row, FALSE);
        return;
    }
}
