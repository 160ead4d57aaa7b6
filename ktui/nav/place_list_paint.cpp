// How the Places list looks: its rows, the row under the mouse, and the tip.
#include <ktui/nav/place_list.h>

#include <utility>

#include <ktui/host/appearance.h>
#include <ktui/host/contrast.h>
#include <ktui/nav/place_item.h>

namespace {

// Kept: whatever the theme is.
constexpr COLORREF kGround = RGB(191, 205, 219), kTextColor = RGB(255, 255, 255);
constexpr COLORREF kDarkEdge = 0x10;  // Kept: a very dark red.

// Pixels.
constexpr int kMarginX = 2;
constexpr int kMarginY = 5;
constexpr int kBoxSize = 42;
constexpr int kIconSize = 32;
constexpr int kIconTop = 5;
constexpr int kTextMargin = 5;

/// Whether a host that follows the system has it in dark colours, among which the agreed ones would glare.
bool isDark() {
    return KtUiFollowsSystemAppearance() &&
           ContrastRatio(kGround, ::GetSysColor(COLOR_WINDOWTEXT)) < kTextContrast;
}
COLORREF ground() { return isDark() ? ::GetSysColor(COLOR_WINDOW) : kGround; }
COLORREF textColor() { return isDark() ? ::GetSysColor(COLOR_WINDOWTEXT) : kTextColor; }

void drawFrame(CDC& dc, const CRect& box, bool isSunken) {
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    dc.Draw3dRect(&box, isSunken ? kDarkEdge : light, isSunken ? light : kDarkEdge);
}

void drawCaption(CDC& dc, const CWnd* parent, const CString& caption, CRect place) {
    CFont* const font = parent != nullptr ? parent->GetFont() : nullptr;
    CFont* const former = font != nullptr ? dc.SelectObject(font) : nullptr;
    const COLORREF formerColor = dc.SetTextColor(textColor());
    const int formerMode = dc.SetBkMode(TRANSPARENT);
    dc.DrawText(caption, caption.GetLength(), &place,
                DT_CENTER | DT_BOTTOM | DT_SINGLELINE | DT_END_ELLIPSIS);
    dc.SetBkMode(formerMode);
    dc.SetTextColor(formerColor);
    if (former != nullptr) dc.SelectObject(former);
}

}  // namespace

void CPlaceList::DrawItem(LPDRAWITEMSTRUCT drawn) {
    const int row = static_cast<int>(drawn->itemID);
    const PlaceItem* const item = itemAt(row);
    if (item == nullptr) return;
    CDC& dc = *CDC::FromHandle(drawn->hDC);
    const auto pixels = [this](int agreed) { return KtUiAppearancePixels(m_hWnd, agreed); };
    CRect place(drawn->rcItem);
    place.DeflateRect(pixels(kMarginX), pixels(kMarginY));
    const int middle = (place.left + place.right) / 2;
    const int left = middle - pixels(kBoxSize) / 2;
    const CRect box(left, place.top, left + pixels(kBoxSize), place.top + pixels(kBoxSize));
    const bool isSelected = (drawn->itemState & ODS_SELECTED) != 0;
    if (isSelected || row == m_hotItem) drawFrame(dc, box, isSelected);
    if (item->m_icon != nullptr) {
        // The system's large icons have its size for them, which is that of no other screen.
        const int side = KtUiFollowsSystemAppearance() ? pixels(kIconSize) : 0;
        ::DrawIconEx(dc, middle - pixels(kIconSize) / 2, place.top + pixels(kIconTop), item->m_icon, side,
                     side, 0, nullptr, side != 0 ? DI_NORMAL : DI_NORMAL | DI_DEFAULTSIZE);
    }
    place.DeflateRect(pixels(kTextMargin), 0);
    drawCaption(dc, GetParent(), item->m_display, place);
}

BOOL CPlaceList::OnEraseBkgnd(CDC* dc) {
    CRect client;
    GetClientRect(&client);
    dc->FillSolidRect(&client, ground());
    return TRUE;
}

// The space beneath the rows is painted in this on some systems.
HBRUSH CPlaceList::CtlColor(CDC* dc, UINT) {
    dc->SetBkColor(ground());
    if (isDark()) return ::GetSysColorBrush(COLOR_WINDOW);
    if (m_ground.m_hObject == nullptr) m_ground.CreateSolidBrush(kGround);
    return m_ground;
}

// A row that was unselected by a key still has its frame.
BOOL CPlaceList::OnSelectionChange() {
    Invalidate();
    return FALSE;
}

int CPlaceList::rowUnderCursor() const {
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ScreenToClient(&cursor);
    BOOL isOutside = FALSE;
    const int row = static_cast<int>(ItemFromPoint(cursor, isOutside));
    if (isOutside || row >= GetCount()) return -1;
    // The platform tells the last row for the space beneath it too.
    CRect place;
    if (row == GetCount() - 1 && (GetItemRect(row, &place) == LB_ERR || !place.PtInRect(cursor))) return -1;
    return row;
}

void CPlaceList::redrawRow(int row) {
    CRect place;
    if (row >= 0 && GetItemRect(row, &place) != LB_ERR) InvalidateRect(&place);
}

void CPlaceList::OnMouseMove(UINT flags, CPoint point) {
    CDragListBox2::OnMouseMove(flags, point);
    if (flags & MK_LBUTTON) return;
    const int row = rowUnderCursor();
    if (row != m_hotItem) {
        redrawRow(std::exchange(m_hotItem, row));
        redrawRow(row);
    }
    TRACKMOUSEEVENT tracking = {sizeof tracking, TME_HOVER | TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&tracking);
}

void CPlaceList::OnMouseLeave() { redrawRow(std::exchange(m_hotItem, -1)); }

void CPlaceList::OnMouseHover(UINT flags, CPoint point) {
    const PlaceItem* const item = itemAt(m_hotItem);
    if (item == nullptr) {
        m_toolTip.Activate(FALSE);
        m_tipItem = -1;
        return;
    }
    if (m_tipItem == m_hotItem && m_toolTip.IsWindowVisible()) return;
    m_tipItem = m_hotItem;
    m_toolTip.UpdateTipText(item->m_display, this);
    m_toolTip.Activate(TRUE);
    MSG move = {};
    move.hwnd = m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.wParam = flags;
    move.lParam = MAKELPARAM(point.x, point.y);
    m_toolTip.RelayEvent(&move);
}
