#include <ktui/controls/kbui_list_ctrl.h>

#include <ktui/host/registered_messages.h>
#include <ktui/host/text_extent.h>
#include <ktui/controls/tip_geometry.h>

IMPLEMENT_DYNAMIC(CKbUiListCtrl, CListCtrl)

BEGIN_MESSAGE_MAP(CKbUiListCtrl, CListCtrl)
    ON_WM_MOUSEMOVE()
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiListCtrl::OnKbUiMessage)
END_MESSAGE_MAP()

CKbUiListCtrl::CKbUiListCtrl() : m_lastMousePoint(0, 0), m_tipRect(0, 0, 0, 0) {}

void CKbUiListCtrl::PreSubclassWindow() {
    CListCtrl::PreSubclassWindow();
    const HWND header = ListView_GetHeader(m_hWnd);
    if (!header || m_header.m_hWnd) return;
    m_header.SubclassWindow(header);
    m_header.SetKbUiParent(GetKbUiParent());
}

int CKbUiListCtrl::ColumnCount() const { return ListView_GetItemCount(m_hWnd); }

void CKbUiListCtrl::GetItemAtPoint(CPoint& point, int& item, int& column) {
    LVHITTESTINFO hit = {};
    hit.pt = point;
    const bool found = ListView_SubItemHitTest(m_hWnd, &hit) >= 0;
    item = found ? hit.iItem : -1;
    column = found ? hit.iSubItem : -1;
}

BOOL CKbUiListCtrl::GetSubItemRect(int item, int column, CRect& rect) {
    CRect icon(0, 0, 0, 0);
    CRect label(0, 0, 0, 0);
    const BOOL found = ListView_GetSubItemRect(m_hWnd, item, column, LVIR_ICON, &icon);
    if (!found) {
        rect.SetRectEmpty();
        return found;
    }
    const BOOL labelFound = ListView_GetSubItemRect(m_hWnd, item, column, LVIR_LABEL, &label);
    rect.SubtractRect(&label, &icon);
    rect = TrimSubItemLabel(rect, column);
    return labelFound;
}

BOOL CKbUiListCtrl::IsOwnerDraw() const { return (GetStyle() & LVS_OWNERDRAWFIXED) != 0; }

void CKbUiListCtrl::GetContentExtent(int item, int column, const wchar_t* text, int& cx, int& cy) {
    cx = cy = 0;
    if (m_header.m_hWnd) {
        const bool isCell =
            item >= 0 && item < GetItemCount() && column >= 0 && column < m_header.GetItemCount();
        if (!isCell) return;
    }
    MeasureControlText(*this, text, cx, cy);
}

BOOL CKbUiListCtrl::OnDrawTipText(CKbUiDrawTipText& tip) {
    if (m_tipItem < 0 || m_tipItem >= GetItemCount()) return FALSE;
    tip.m_dc.DrawText(tip.m_text, &tip.m_rect, DT_SINGLELINE | DT_VCENTER);
    return TRUE;
}

KBUI_REPLY CKbUiListCtrl::OnGetTipSupport(CPoint& point) {
    int item = -1;
    int column = -1;
    GetItemAtPoint(point, item, column);
    if (item < 0) return kKbUiReplyNone;
    const bool isSame = item == m_tipItem && column == m_tipColumn;
    m_tipItem = item;
    m_tipColumn = column;
    if (IsOwnerDraw()) return kKbUiReplyDrawnTip;
    return isSame ? kKbUiReplyHandled : kKbUiReplyTextTip;
}

BOOL CKbUiListCtrl::OnGetTipRect(CRect& rect) {
    rect.SetRectEmpty();
    int item = -1;
    int column = -1;
    GetItemAtPoint(m_lastMousePoint, item, column);
    if (item < 0) return FALSE;
    GetSubItemRect(item, column, rect);
    if (!m_header.m_hWnd) {
        CRect client;
        GetClientRect(&client);
        if (rect.left < client.left) rect.left = client.left;
        if (rect.right > client.right) rect.right = client.right;
    }
    const CString text = GetItemText(item, column);
    int cx = 0;
    int cy = 0;
    GetContentExtent(item, column, text.GetString(), cx, cy);
    const TipPlace place = PlaceCellTip(rect, cx, cy);
    if (!place.wanted) return FALSE;
    rect = place.rect;
    m_tipRect = rect;
    m_tipItem = item;
    m_tipColumn = column;
    return TRUE;
}

BOOL CKbUiListCtrl::OnGetTipText(CString& text) {
    int item = -1;
    int column = -1;
    GetItemAtPoint(m_lastMousePoint, item, column);
    if (item < 0) return FALSE;
    text = GetItemText(item, column);
    return TRUE;
}

BOOL CKbUiListCtrl::OnHitTipRect(CPoint&) {
    int item = -1;
    int column = -1;
    // Kept: the point of the last move is tested, not the argument.
    GetItemAtPoint(m_lastMousePoint, item, column);
    return item >= 0 && column >= 0;
}
