#include <ktui/nav/drag_list_box2.h>

#include <commctrl.h>

IMPLEMENT_DYNAMIC(CDragListBox2, CListBox)

BEGIN_MESSAGE_MAP(CDragListBox2, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

namespace {

const UINT dragListMessage = ::RegisterWindowMessageW(DRAGLISTMSGSTRING);

constexpr int kMarkHeight = 4;  // pixels

}  // namespace

CDragListBox2::CDragListBox2() = default;
CDragListBox2::~CDragListBox2() { DestroyWindow(); }

void CDragListBox2::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    if (!::MakeDragList(m_hWnd)) AfxThrowInvalidArgException();
}

int CDragListBox2::RowAt(POINT point) {
    const int top = GetTopIndex();
    POINT screen = point;
    ClientToScreen(&screen);
    const int row = ::LBItemFromPt(m_hWnd, screen, TRUE);
    if (GetTopIndex() != top) UpdateWindow();
    if (row >= 0) return row;
    CRect client;
    GetClientRect(&client);
    return client.PtInRect(point) ? GetCount() : -1;
}

LRESULT CDragListBox2::tell(UINT notification, CPoint point) {
    ClientToScreen(&point);
    DRAGLISTINFO info = {notification, m_hWnd, point};
    return SendMessage(dragListMessage, static_cast<WPARAM>(GetDlgCtrlID()), reinterpret_cast<LPARAM>(&info));
}

BOOL CDragListBox2::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message != dragListMessage) return CListBox::OnChildNotify(message, wParam, lParam, result);
    const auto& info = *reinterpret_cast<const DRAGLISTINFO*>(lParam);
    POINT point = info.ptCursor;
    ScreenToClient(&point);
    switch (info.uNotification) {
        case DL_BEGINDRAG: *result = BeginDrag(point); break;
        case DL_DRAGGING: *result = static_cast<LRESULT>(Dragging(point)); break;
        case DL_DROPPED: Dropped(m_pressItem, point); break;
        case DL_CANCELDRAG: CancelDrag(point); break;
        default: break;
    }
    return TRUE;
}

// The press isn't passed on: the row is selected at release.
void CDragListBox2::OnLButtonDown(UINT, CPoint point) {
    m_dragStarted = 0;
    m_pressItem = RowAt(point);
}

void CDragListBox2::OnMouseMove(UINT flags, CPoint point) {
    if (!(flags & MK_LBUTTON)) {
        CListBox::OnMouseMove(flags, point);
    } else if (GetCapture() == this) {
        const LRESULT cursor = tell(DL_DRAGGING, point);
        ::SetCursor(::LoadCursorW(nullptr, cursor == DL_STOPCURSOR ? IDC_NO : IDC_ARROW));
    } else if (!m_dragStarted && GetCount() > 0) {
        TRACKMOUSEEVENT hovering = {sizeof hovering, TME_CANCEL | TME_HOVER | TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&hovering);
        m_dragStarted = 1;
        SetCapture();
        tell(DL_BEGINDRAG, point);
    }
}

void CDragListBox2::OnLButtonUp(UINT, CPoint point) {
    if (GetCapture() == this) {
        ::ReleaseCapture();
        tell(DL_DROPPED, point);
    } else {
        if (GetCurSel() != LB_ERR) Invalidate();
        if (m_pressItem == RowAt(point)) SetCurSel(m_pressItem);
    }
    m_pressItem = -1;
}

void CDragListBox2::OnKillFocus(CWnd* taker) {
    ::ReleaseCapture();
    m_pressItem = -1;
    CListBox::OnKillFocus(taker);
}

int CDragListBox2::BeginDrag(POINT) {
    m_lastInsert = -1;
    return 1;
}

void CDragListBox2::CancelDrag(POINT) { DrawInsert(-1); }

UINT CDragListBox2::Dragging(POINT point) {
    const int row = RowAt(point);
    if (row == m_pressItem || row == m_pressItem + 1) {
        DrawInsert(-1);
        return DL_STOPCURSOR;
    }
    DrawInsert(row);
    return row >= 0 ? DL_MOVECURSOR : DL_STOPCURSOR;
}

void CDragListBox2::Dropped(int row, POINT point) {
    DrawInsert(-1);
    const int target = RowAt(point);
    if (row < 0 || row >= GetCount() || target == -1 || target == row || target == row + 1) return;
    moveRow(row, target);
    m_dragModified = 1;
}

void CDragListBox2::moveRow(int from, int to) {
    const int top = GetTopIndex();
    CString text;
    GetText(from, text);
    const DWORD_PTR data = GetItemData(from);
    const int height = GetItemHeight(from);
    const bool wasSelected = GetCurSel() == from;
    DeleteString(static_cast<UINT>(from));
    if (from < to) --to;
    InsertString(to, text);
    SetItemData(to, data);
    SetItemHeight(to, static_cast<UINT>(height));
    if (wasSelected) SetCurSel(to);
    if (GetTopIndex() != top) SetTopIndex(top);
}

void CDragListBox2::DrawInsert(int row) {
    if (row == m_lastInsert) return;
    invertMark(m_lastInsert);
    invertMark(row);
    m_lastInsert = row;
}

void CDragListBox2::invertMark(int row) {
    const int count = GetCount();
    if (row < 0 || row > count || count == 0) return;
    CRect rect;
    GetItemRect(row < count ? row : count - 1, &rect);
    const int middle = row < count ? rect.top : rect.bottom;
    CClientDC dc(this);
    CBrush* const former = dc.SelectObject(CDC::GetHalftoneBrush());
    dc.PatBlt(rect.left, middle - kMarkHeight / 2, rect.Width(), kMarkHeight, PATINVERT);
    dc.SelectObject(former);
}
