// CCheckListBox: each item's data of the list box stands for the check and the caller's own data.
#include <kmfc/check_list_box.h>

#include <algorithm>

#include <kmfc/dc.h>

/// What is kept of an item.
struct CCheckListBox::Item {
    int check = 0;
    bool isEnabled = true;
    DWORD_PTR data = 0;  ///< the caller's
};

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_MESSAGE(LB_GETITEMDATA, &CCheckListBox::OnGetData)
    ON_MESSAGE(LB_SETITEMDATA, &CCheckListBox::OnSetData)
END_MESSAGE_MAP()

namespace {

constexpr int kCheckMargin = 1;  // pixels around a check box

int check_size() { return ::GetSystemMetrics(SM_CXMENUCHECK); }

}  // namespace

CCheckListBox::CCheckListBox() = default;
CCheckListBox::~CCheckListBox() {
    if (m_hWnd != nullptr) DestroyWindow();
}

BOOL CCheckListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    // The check boxes are the class's own drawing.
    if (!(dwStyle & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE))) dwStyle |= LBS_OWNERDRAWFIXED;
    return CListBox::Create(dwStyle, rect, pParentWnd, nID);
}

CCheckListBox::Item* CCheckListBox::item(int index, bool make) const {
    auto* self = const_cast<CCheckListBox*>(this);
    if (m_hWnd == nullptr || index < 0 || index >= GetCount()) return nullptr;
    const auto data =
        static_cast<DWORD_PTR>(self->DefWindowProc(LB_GETITEMDATA, static_cast<WPARAM>(index), 0));
    if (const auto found = m_items.find(data); found != m_items.end()) return found->second.get();
    if (!make) return nullptr;
    auto made = std::make_unique<Item>();
    made->data = data;
    Item* kept = made.get();
    m_items.emplace(reinterpret_cast<DWORD_PTR>(kept), std::move(made));
    self->DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(kept));
    return kept;
}

void CCheckListBox::SetCheckStyle(UINT nStyle) {
    const bool known = nStyle == BS_CHECKBOX || nStyle == BS_AUTOCHECKBOX || nStyle == BS_3STATE ||
                       nStyle == BS_AUTO3STATE || nStyle == 0;
    if (known) m_nStyle = nStyle;
}

void CCheckListBox::SetCheck(int nIndex, int nCheck) {
    const int most = m_nStyle == BS_3STATE || m_nStyle == BS_AUTO3STATE ? 2 : 1;
    if (nCheck < 0 || nCheck > most) return;
    Item* kept = item(nIndex, true);
    if (kept == nullptr) return;
    kept->check = nCheck;
    invalidate_item(nIndex);
}

int CCheckListBox::GetCheck(int nIndex) {
    const Item* kept = item(nIndex, false);
    return kept != nullptr ? kept->check : 0;
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled) {
    Item* kept = item(nIndex, true);
    if (kept == nullptr) return;
    kept->isEnabled = bEnabled != FALSE;
    invalidate_item(nIndex);
}

BOOL CCheckListBox::IsEnabled(int nIndex) {
    const Item* kept = item(nIndex, false);
    return kept == nullptr || kept->isEnabled;
}

void CCheckListBox::invalidate_item(int index) {
    CRect place;
    if (GetItemRect(index, &place) != LB_ERR) InvalidateRect(&place, FALSE);
}

LRESULT CCheckListBox::OnGetData(WPARAM wParam, LPARAM) {
    const int index = static_cast<int>(wParam);
    if (index < 0 || index >= GetCount()) return LB_ERR;
    const Item* kept = item(index, false);
    return kept != nullptr ? static_cast<LRESULT>(kept->data) : Default();
}

LRESULT CCheckListBox::OnSetData(WPARAM wParam, LPARAM lParam) {
    Item* kept = item(static_cast<int>(wParam), true);
    if (kept == nullptr) return LB_ERR;
    kept->data = static_cast<DWORD_PTR>(lParam);
    return 0;
}

DWORD_PTR CCheckListBox::GetItemData(int nIndex) const { return CListBox::GetItemData(nIndex); }
int CCheckListBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return CListBox::SetItemData(nIndex, dwItemData);
}

int CCheckListBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    const int result = CListBox::SetItemHeight(nIndex, cyItemHeight);
    Invalidate();
    return result;
}

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect rectCheckBox) { return rectCheckBox; }

CRect CCheckListBox::check_place(const CRect& item) {
    const int size = check_size();
    const int top = item.top + (item.Height() - size) / 2;
    const CRect usual(item.left + kCheckMargin, top, item.left + kCheckMargin + size, top + size);
    return OnGetCheckPosition(item, usual);
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    const int index = static_cast<int>(lpDrawItemStruct->itemID);
    if (index < 0 || index >= GetCount()) return;
    CDC& dc = *CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect place(lpDrawItemStruct->rcItem);
    const bool isSelected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    const bool isEnabled = IsWindowEnabled() && IsEnabled(index);

    const int check = GetCheck(index);
    CRect box = check_place(place);
    dc.FillSolidRect(CRect(place.left, place.top, box.right + kCheckMargin, place.bottom),
                     ::GetSysColor(COLOR_WINDOW));
    UINT state = check == 2 ? DFCS_BUTTON3STATE | DFCS_CHECKED : DFCS_BUTTONCHECK;
    if (check == 1) state |= DFCS_CHECKED;
    if (!isEnabled) state |= DFCS_INACTIVE;
    dc.DrawFrameControl(&box, DFC_BUTTON, state);

    place.left = box.right + kCheckMargin;
    const int paper = isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW;
    const int ink = !isEnabled ? COLOR_GRAYTEXT : isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
    dc.FillSolidRect(&place, ::GetSysColor(paper));
    if (GetStyle() & LBS_HASSTRINGS) {
        CString text;
        GetText(index, text);
        dc.SetTextColor(::GetSysColor(ink));
        dc.SetBkMode(TRANSPARENT);
        CRect inside = place;
        inside.left += 2 * kCheckMargin;
        dc.DrawText(text, &inside, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
    if (lpDrawItemStruct->itemState & ODS_FOCUS) dc.DrawFocusRect(&place);
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    CClientDC dc(this);
    CFont* former = dc.SelectObject(GetFont());
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    if (former != nullptr) dc.SelectObject(former);
    const int least = check_size() + 2 * kCheckMargin;
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(std::max<int>(metrics.tmHeight, least));
}

BOOL CCheckListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    if (message == WM_DELETEITEM) {
        DELETEITEMSTRUCT told = *reinterpret_cast<LPDELETEITEMSTRUCT>(lParam);
        const auto found = m_items.find(told.itemData);
        if (found != m_items.end()) {
            told.itemData = found->second->data;
            m_items.erase(found);
        }
        DeleteItem(&told);
        return TRUE;
    }
    return CListBox::OnChildNotify(message, wParam, lParam, pLResult);
}

void CCheckListBox::advance(int index) {
    if (m_nStyle == 0 || !IsEnabled(index)) return;
    if (m_nStyle == BS_AUTOCHECKBOX || m_nStyle == BS_AUTO3STATE)
        SetCheck(index, (GetCheck(index) + 1) % (m_nStyle == BS_AUTO3STATE ? 3 : 2));
    const CWnd* parent = GetParent();
    if (parent != nullptr)
        parent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE),
                            reinterpret_cast<LPARAM>(m_hWnd));
}

void CCheckListBox::OnLButtonDown(UINT, CPoint point) {
    BOOL outside = TRUE;
    const int index = static_cast<int>(ItemFromPoint(point, outside));
    CRect place;
    const bool onBox = !outside && GetItemRect(index, &place) != LB_ERR && check_place(place).PtInRect(point);
    Default();
    if (onBox) advance(index);
}

void CCheckListBox::OnLButtonDblClk(UINT nFlags, CPoint point) {
    CCheckListBox::OnLButtonDown(nFlags, point);
}

void CCheckListBox::OnKeyDown(UINT nChar, UINT, UINT) {
    if (nChar != VK_SPACE) {
        Default();
        return;
    }
    const int index = GetCaretIndex();
    if (index >= 0 && index < GetCount()) advance(index);
}
