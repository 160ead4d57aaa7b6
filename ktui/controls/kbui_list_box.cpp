#include <ktui/controls/kbui_list_box.h>

#include <ktui/host/text_extent.h>
#include <ktui/controls/tip_geometry.h>
#include <ktui/host/appearance.h>
#include <ktui/host/registered_messages.h>
#include <ktui/host/tip_painting.h>
#include <ktui/input/kbui_combo_box.h>

namespace {

constexpr UINT kNoItem = 65535;  // what the platform answers when it can't say
constexpr COLORREF kDrawnTipFill = 0xF9F9F9;

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiListBox, CListBox)

BEGIN_MESSAGE_MAP(CKbUiListBox, CListBox)
    ON_WM_MOUSEMOVE()
    ON_WM_DESTROY()
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiListBox::OnKbUiMessage)
END_MESSAGE_MAP()

CKbUiListBox::CKbUiListBox() : m_lastMousePoint(0, 0), m_tipRect(0, 0, 0, 0) {}

void CKbUiListBox::OnDestroy() {
    m_comboBox = nullptr;
    CListBox::OnDestroy();
}

int CKbUiListBox::GetItemAtPoint(CPoint& point) {
    BOOL outside = TRUE;
    const UINT item = ItemFromPoint(point, outside);
    return outside || item == kNoItem || !isItem(static_cast<int>(item)) ? -1 : static_cast<int>(item);
}

void CKbUiListBox::GetTextExtent(const wchar_t* text, int& cx, int& cy) {
    if (!MeasureControlText(*this, text, cx, cy)) return;
    ++cx;
    ++cy;
}

BOOL CKbUiListBox::IsOwnerDraw() const {
    return (GetStyle() & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0;
}

int CKbUiListBox::CompareItem(LPCOMPAREITEMSTRUCT item) {
    return isDrawnByComboBox() ? m_comboBox->CompareItem(item) : 0;
}

void CKbUiListBox::DeleteItem(LPDELETEITEMSTRUCT item) {
    if (isDrawnByComboBox()) m_comboBox->DeleteItem(item);
}

void CKbUiListBox::DrawItem(LPDRAWITEMSTRUCT item) {
    if (isDrawnByComboBox()) m_comboBox->DrawItem(item);
}

void CKbUiListBox::MeasureItem(LPMEASUREITEMSTRUCT item) {
    if (isDrawnByComboBox()) m_comboBox->MeasureItem(item);
}

void CKbUiListBox::GetContentExtent(int index, const wchar_t* text, int& cx, int& cy) {
    cx = cy = 0;
    if (isItem(index)) GetTextExtent(text, cx, cy);
}

void CKbUiListBox::OnDrawTip(CDC& dc) {
    if (!IsOwnerDraw() || !isItem(m_tipItem) || m_tipRect.IsRectEmpty()) return;
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_LISTBOX;
    item.CtlID = static_cast<UINT>(GetDlgCtrlID());
    item.itemID = static_cast<UINT>(m_tipItem);
    item.itemAction = ODA_DRAWENTIRE;
    item.hwndItem = m_hWnd;
    item.hDC = dc.m_hDC;
    item.rcItem = CRect(0, 0, m_tipRect.Width(), m_tipRect.Height());
    item.itemData = static_cast<ULONG_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(m_tipItem), 0));

    dc.FillSolidRect(&item.rcItem, KtUiAppearanceColor(kDrawnTipFill, COLOR_WINDOW));
    const ControlFont font(dc, *this);
    dc.SetBkMode(TRANSPARENT);
    SendMessage(WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}

BOOL CKbUiListBox::OnDrawTipText(CKbUiDrawTipText& tip) {
    if (!isItem(m_tipItem)) return FALSE;
    PaintFramedTip(*this, tip);
    return TRUE;
}

KBUI_REPLY CKbUiListBox::OnGetTipSupport(CPoint& point) {
    const int item = GetItemAtPoint(point);
    if (item < 0) return kKbUiReplyNone;
    const bool isSame = item == m_tipItem;
    m_tipItem = item;
    if (IsOwnerDraw()) return isSame ? kKbUiReplyKeepTip : kKbUiReplyDrawnTip;
    return isSame ? kKbUiReplyHandled : kKbUiReplyTextTip;
}

BOOL CKbUiListBox::OnGetTipRect(CRect& rect) {
    rect.SetRectEmpty();
    m_tipItem = GetItemAtPoint(m_lastMousePoint);
    if (m_tipItem < 0) return FALSE;
    SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(m_tipItem),
                reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect)));
    CString text;
    if (!OnGetTipText(text)) return FALSE;
    int cx = 0;
    int cy = 0;
    GetContentExtent(m_tipItem, text.GetString(), cx, cy);
    const TipPlace place = PlaceRowTip(rect, cx, cy);
    rect = place.rect;
    m_tipRect = rect;
    return place.wanted;
}

BOOL CKbUiListBox::OnGetTipText(CString& text) {
    const int item = GetItemAtPoint(m_lastMousePoint);
    if (item < 0) return FALSE;
    GetText(item, text);
    return TRUE;
}

BOOL CKbUiListBox::OnHitTipRect(CPoint& point) { return GetItemAtPoint(point) >= 0; }
