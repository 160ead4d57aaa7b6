// Labels that the user changes, tips, and the state that is kept.
#include <algorithm>

#include <kmfc/app.h>
#include <kmfc/archive.h>
#include <kmfc/base_tab_ctrl.h>
#include <kmfc/edit.h>
#include <kmfc/exceptions.h>
#include <kmfc/frame.h>
#include <kmfc/global_data.h>
#include <kmfc/tool_tip_ctrl.h>

#include "tab_label_edit.h"

namespace {

constexpr DWORD kStateVersion = 1;
constexpr DWORD kMostTabs = 10000;  // more than that were never saved

}  // namespace

BOOL CMFCBaseTabCtrl::StartRenameTab(int iTab) { return m_bIsInPlaceEdit && tab(iTab) != nullptr; }

void CMFCBaseTabCtrl::CalcRectEdit(CRect& rectEdit) { rectEdit.DeflateRect(1, 1); }

void CMFCBaseTabCtrl::edit_label(int index) {
    if (tab(index) == nullptr || m_pInPlaceEdit != nullptr) return;
    CRect rect = tab(index)->m_rect;
    CalcRectEdit(rect);
    m_pInPlaceEdit = new CEdit;
    if (!m_pInPlaceEdit->Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, rect, this,
                                kmfc::kLabelEditId)) {
        delete m_pInPlaceEdit;
        m_pInPlaceEdit = nullptr;
        return;
    }
    m_iEdited = index;
    m_pInPlaceEdit->SetFont(&afxGlobalData.fontRegular);
    m_pInPlaceEdit->SetWindowText(tab(index)->m_strText);
    m_pInPlaceEdit->SetFocus();
    m_pInPlaceEdit->SetSel(0, -1);
}

/// Gives the label the text of the box, if the owner lets it.
bool CMFCBaseTabCtrl::accept_label() {
    CString text;
    m_pInPlaceEdit->GetWindowText(text);
    if (tab(m_iEdited) == nullptr || text == tab(m_iEdited)->m_strText || !OnRenameTab(m_iEdited, text))
        return false;
    SetTabLabel(m_iEdited, text);
    tell_owner(AFX_WM_ON_RENAME_TAB, static_cast<WPARAM>(m_iEdited), reinterpret_cast<LPARAM>(this));
    return true;
}

void CMFCBaseTabCtrl::close_edit(bool accept) {
    if (m_pInPlaceEdit == nullptr) return;
    if (accept) accept_label();
    CEdit* const edit = m_pInPlaceEdit;
    m_pInPlaceEdit = nullptr;  // losing the focus comes here again
    m_iEdited = -1;
    const bool focused = ::GetFocus() == edit->m_hWnd;
    edit->DestroyWindow();
    delete edit;
    if (focused && ::IsWindow(m_hWnd)) SetFocus();
}

BOOL CMFCBaseTabCtrl::RenameTab() {
    if (m_pInPlaceEdit == nullptr) return FALSE;
    const CMFCTabInfo* const edited = tab(m_iEdited);
    const CString former = edited != nullptr ? edited->m_strText : CString();
    const int id = edited != nullptr ? edited->m_iTabID : -1;
    close_edit(true);
    const CMFCTabInfo* const now = tab(GetTabByID(id));
    return now != nullptr && now->m_strText != former;
}

void CMFCBaseTabCtrl::OnLabelKillFocus() { close_edit(true); }

BOOL CMFCBaseTabCtrl::PreTranslateMessage(MSG* pMsg) {
    if (m_pToolTip->GetSafeHwnd() != nullptr && pMsg->message >= WM_MOUSEFIRST &&
        pMsg->message <= WM_MOUSELAST)
        m_pToolTip->RelayEvent(pMsg);
    if (m_pInPlaceEdit != nullptr && pMsg->message == WM_KEYDOWN && pMsg->hwnd == m_pInPlaceEdit->m_hWnd) {
        if (pMsg->wParam == VK_RETURN || pMsg->wParam == VK_ESCAPE) {
            close_edit(pMsg->wParam == VK_RETURN);
            return TRUE;
        }
        // The other keys are the box's own.
        ::TranslateMessage(pMsg);
        ::DispatchMessageW(pMsg);
        return TRUE;
    }
    return CWnd::PreTranslateMessage(pMsg);
}

// Tips.

BOOL CMFCBaseTabCtrl::EnableCustomToolTips(BOOL bEnable) {
    m_bCustomToolTips = bEnable;
    update_tips();
    return TRUE;
}

/// One tip for each tab that shows; its id is the tab's, from 1 on.
void CMFCBaseTabCtrl::update_tips() {
    if (m_pToolTip->GetSafeHwnd() == nullptr) return;
    while (m_pToolTip->GetToolCount() > 0) {
        TOOLINFOW tool = {};
        tool.cbSize = sizeof(tool);
        if (m_pToolTip->SendMessage(TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)) == 0) break;
        m_pToolTip->SendMessage(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    for (int i = 0; i < GetTabsNum(); ++i)
        if (!tab(i)->m_rect.IsRectEmpty())
            m_pToolTip->AddTool(this, LPSTR_TEXTCALLBACKW, tab(i)->m_rect,
                                static_cast<UINT_PTR>(tab(i)->m_iTabID) + 1);
}

/// The text of a tab's tip: what the frame says with tips of its own, otherwise a label that is cut.
BOOL CMFCBaseTabCtrl::OnToolTipText(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    if (m_pToolTip == nullptr || pNMHDR->hwndFrom != m_pToolTip->m_hWnd) return FALSE;
    const int index = GetTabByID(static_cast<int>(pNMHDR->idFrom) - 1);
    if (index == -1) return TRUE;
    CMFCTabToolTipInfo info;
    info.m_pTabWnd = this;
    info.m_nTabIndex = index;
    const CMFCTabInfo& shown = *tab(index);
    if (m_bCustomToolTips) {
        CWnd* const frame = GetTopLevelFrame();
        CWnd* const asked = frame->GetSafeHwnd() != nullptr ? frame : GetParent();
        if (asked->GetSafeHwnd() != nullptr)
            asked->SendMessage(AFX_WM_ON_GET_TAB_TOOLTIP, 0, reinterpret_cast<LPARAM>(&info));
    }
    if (info.m_strText.IsEmpty() && (shown.m_bIconOnly || shown.m_nFullWidth > shown.m_rect.Width()))
        info.m_strText = shown.m_strText;
    auto& text = *reinterpret_cast<NMTTDISPINFOW*>(pNMHDR);
    wcsncpy(text.szText, info.m_strText, std::size(text.szText) - 1);
    text.szText[std::size(text.szText) - 1] = L'\0';
    text.lpszText = text.szText;
    return TRUE;
}

// State.

void CMFCBaseTabCtrl::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << kStateVersion << static_cast<DWORD>(GetTabsNum()) << m_iActiveTab;
        for (int i = 0; i < GetTabsNum(); ++i)
            ar << static_cast<DWORD>(::GetDlgCtrlID(tab(i)->m_pWnd->GetSafeHwnd())) << tab(i)->m_bVisible
               << tab(i)->m_strText;
        return;
    }
    DWORD version = 0, count = 0;
    int active = -1;
    ar >> version >> count >> active;
    if (version != kStateVersion || count > kMostTabs) AfxThrowArchiveException(CArchiveException::badSchema);
    std::vector<RestoredTab> restored;
    for (DWORD i = 0; i < count; ++i) {
        RestoredTab read = {};
        DWORD id = 0;
        BOOL visible = TRUE;
        ar >> id >> visible >> read.label;
        read.id = id;
        read.visible = visible != FALSE;
        restored.push_back(read);
    }
    m_restored.swap(restored);
    m_restoredActive = active;
}

void CMFCBaseTabCtrl::ApplyRestoredTabInfo(BOOL bUseTabIndexes) {
    const std::vector<RestoredTab> restored = std::move(m_restored);
    m_restored.clear();
    int next = 0, active = -1;
    for (size_t i = 0; i < restored.size(); ++i) {
        int found = bUseTabIndexes ? static_cast<int>(i) : -1;
        for (int t = next; !bUseTabIndexes && t < GetTabsNum() && found == -1; ++t)
            if (static_cast<UINT>(::GetDlgCtrlID(tab(t)->m_pWnd->GetSafeHwnd())) == restored[i].id) found = t;
        if (tab(found) == nullptr) continue;
        MoveTab(found, next);
        tab(next)->m_strText = restored[i].label;
        if (tab(next)->m_bVisible != static_cast<BOOL>(restored[i].visible))
            ShowTab(next, restored[i].visible, FALSE, FALSE);
        if (static_cast<int>(i) == m_restoredActive) active = next;
        ++next;
    }
    RecalcLayout();
    if (active != -1 && tab(active)->m_bVisible) SetActiveTab(active);
}
