#include <ktui/controls/kbui_header_ctrl.h>

#include <ktui/controls/tip_geometry.h>
#include <ktui/host/registered_messages.h>
#include <ktui/host/text_extent.h>

namespace {

constexpr int kItemTextSize = 255;  // characters, terminator included

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiHeaderCtrl, CHeaderCtrl)

BEGIN_MESSAGE_MAP(CKbUiHeaderCtrl, CHeaderCtrl)
    ON_WM_MOUSEMOVE()
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiHeaderCtrl::OnKbUiMessage)
END_MESSAGE_MAP()

CKbUiHeaderCtrl::CKbUiHeaderCtrl() : m_lastMousePoint(0, 0), m_tipRect(0, 0, 0, 0) {}

int CKbUiHeaderCtrl::GetItemAtPoint(CPoint& point) {
    const int count = GetItemCount();
    for (int index = 0; index < count; ++index) {
        CRect rect(0, 0, 0, 0);
        if (Header_GetItemRect(m_hWnd, index, &rect) && rect.PtInRect(point)) return index;
    }
    return -1;
}

BOOL CKbUiHeaderCtrl::GetItemRect(int index, CRect& rect) {
    const BOOL found = Header_GetItemRect(m_hWnd, index, &rect);
    rect = HeaderTipArea(rect);
    return found;
}

void CKbUiHeaderCtrl::GetText(int index, CString& text) {
    wchar_t buffer[kItemTextSize] = {};
    HDITEMW item = {};
    item.mask = HDI_TEXT;
    item.pszText = buffer;
    item.cchTextMax = kItemTextSize;
    if (GetItem(index, &item) && item.pszText)
        text = item.pszText;
    else
        text.Empty();
}

int CKbUiHeaderCtrl::IsOwnerDraw(int index) {
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    return GetItem(index, &item) && (item.fmt & HDF_OWNERDRAW) ? 1 : 0;
}

void CKbUiHeaderCtrl::GetContentExtent(int index, const wchar_t* text, int& cx, int& cy) {
    cx = cy = 0;
    if (isItem(index)) MeasureControlText(*this, text, cx, cy);
}

void CKbUiHeaderCtrl::OnDrawTip(CDC&) {
    // Kept: an owner-drawn item is asked for its format and drawn by nobody.
    if (m_tipRect.IsRectEmpty()) IsOwnerDraw(m_tipItem);
}

BOOL CKbUiHeaderCtrl::OnDrawTipText(CKbUiDrawTipText& tip) {
    if (!isItem(m_tipItem)) return FALSE;
    tip.m_dc.DrawText(tip.m_text, &tip.m_rect, DT_SINGLELINE | DT_VCENTER);
    return TRUE;
}

KBUI_REPLY CKbUiHeaderCtrl::OnGetTipSupport(CPoint& point) {
    const int item = GetItemAtPoint(point);
    if (item < 0) return kKbUiReplyNone;
    // Kept: the format of the item under the former tip decides, not that of the item under the point.
    if (IsOwnerDraw(m_tipItem)) {
        m_tipItem = item;
        return kKbUiReplyDrawnTip;
    }
    if (item == m_tipItem) return kKbUiReplyHandled;
    m_tipItem = item;
    return kKbUiReplyTextTip;
}

BOOL CKbUiHeaderCtrl::OnGetTipRect(CRect& rect) {
    rect.SetRectEmpty();
    const int item = GetItemAtPoint(m_lastMousePoint);
    if (item < 0) return FALSE;
    GetItemRect(item, rect);
    CString text;
    GetText(item, text);
    int cx = 0;
    int cy = 0;
    GetContentExtent(item, text.GetString(), cx, cy);
    const TipPlace place = PlaceCellTip(rect, cx, cy);
    if (!place.wanted) return FALSE;
    rect = place.rect;
    m_tipRect = rect;
    m_tipItem = item;
    return TRUE;
}

BOOL CKbUiHeaderCtrl::OnGetTipText(CString& text) {
    GetText(m_tipItem, text);
    return TRUE;
}

BOOL CKbUiHeaderCtrl::OnHitTipRect(CPoint& point) { return GetItemAtPoint(point) >= 0; }
