// CCheckListBox: a list box with a check box before each item.
#pragma once

#include <memory>
#include <unordered_map>

#include <kmfc/list_box.h>

/// A list of items to be checked. The style must have LBS_OWNERDRAWFIXED or LBS_OWNERDRAWVARIABLE, and
/// LBS_HASSTRINGS for texts. The parent hears of a click by CLBN_CHKCHANGE. Checks are 0, 1 and, in the style
/// of three states, 2.
class KMFC_API CCheckListBox : public CListBox {
    DECLARE_DYNAMIC(CCheckListBox)
public:
    CCheckListBox();
    ~CCheckListBox() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    /// BS_CHECKBOX, BS_AUTOCHECKBOX, BS_3STATE or BS_AUTO3STATE: automatic ones follow a click by themselves.
    void SetCheckStyle(UINT nStyle);
    UINT GetCheckStyle() { return m_nStyle; }
    void SetCheck(int nIndex, int nCheck);
    /// 0 for no item.
    int GetCheck(int nIndex);
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    BOOL IsEnabled(int nIndex);
    /// Where the check box of an item stands, for its rectangle.
    virtual CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox);

    // The data of an item is the caller's, as in a list box.
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) {
        return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
    }
    int SetItemHeight(int nIndex, UINT cyItemHeight);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnGetData(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetData(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct Item;
    /// What is kept of an item; with `make` made if need be. Null for no item.
    Item* item(int index, bool make) const;
    CRect check_place(const CRect& item);
    /// Checks the next state and tells the parent.
    void advance(int index);
    void invalidate_item(int index);

    UINT m_nStyle = BS_AUTOCHECKBOX;
    /// By the data that the box keeps of an item, which is the address of what is kept here.
    mutable std::unordered_map<DWORD_PTR, std::unique_ptr<Item>> m_items;
};

/// The notification of a check that changed.
constexpr UINT CLBN_CHKCHANGE = 40;
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)
