#include <kmfc/drag_list_box.h>

#include <commctrl.h>

IMPLEMENT_DYNAMIC(CDragListBox, CListBox)

namespace {

UINT drag_message() {
    static const UINT message = ::RegisterWindowMessageW(DRAGLISTMSGSTRING);
    return message;
}

}  // namespace

CDragListBox::~CDragListBox() {
    if (m_hWnd != nullptr) DestroyWindow();
}

void CDragListBox::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    ENSURE(::MakeDragList(m_hWnd));
}

int CDragListBox::ItemFromPt(CPoint pt, BOOL bAutoScroll) const {
    return ::LBItemFromPt(m_hWnd, pt, bAutoScroll);
}

void CDragListBox::DrawInsert(int nItem) { ::DrawInsert(::GetParent(m_hWnd), m_hWnd, nItem); }

BOOL CDragListBox::BeginDrag(CPoint pt) {
    DrawInsert(ItemFromPt(pt));
    return TRUE;
}

void CDragListBox::CancelDrag(CPoint) { DrawInsert(-1); }

UINT CDragListBox::Dragging(CPoint pt) {
    DrawInsert(ItemFromPt(pt));
    return DL_MOVECURSOR;
}

void CDragListBox::Dropped(int nSrcIndex, CPoint pt) {
    DrawInsert(-1);
    const int target = ItemFromPt(pt);
    if (nSrcIndex < 0 || target < 0 || target == nSrcIndex || target == nSrcIndex + 1) return;
    CString text;
    GetText(nSrcIndex, text);
    const DWORD_PTR data = GetItemData(nSrcIndex);
    DeleteString(static_cast<UINT>(nSrcIndex));
    const int moved = InsertString(nSrcIndex < target ? target - 1 : target, text);
    SetItemData(moved, data);
    SetCurSel(moved);
}

BOOL CDragListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    if (message != drag_message()) return CListBox::OnChildNotify(message, wParam, lParam, pLResult);
    const auto& info = *reinterpret_cast<const DRAGLISTINFO*>(lParam);
    LRESULT result = 0;
    switch (info.uNotification) {
        case DL_BEGINDRAG:
            m_nDragged = ItemFromPt(info.ptCursor);
            result = BeginDrag(info.ptCursor);
            break;
        case DL_DRAGGING: result = static_cast<LRESULT>(Dragging(info.ptCursor)); break;
        case DL_DROPPED: Dropped(m_nDragged, info.ptCursor); break;
        case DL_CANCELDRAG: CancelDrag(info.ptCursor); break;
        default: return FALSE;
    }
    if (pLResult != nullptr) *pLResult = result;
    return TRUE;
}
