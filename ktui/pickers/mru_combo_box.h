// CKtUiMRUComboBox: the owner-drawn drop-down that every picker of a drawing property derives from.
//
// It adds to a combo box an image column left of the text; a 64-bit value per item, the cargo, which is what
// a picker really selects; a store of the six most recently used entries; and up to two option items
// (ByLayer, ByBlock) and two Other items, which lead to a dialog of the host. The class is of no use by
// itself: a picker supplies the image, the fixed items and the reaction to Other.
//
//     class Picker : public CKtUiMRUComboBox {
//         void OnAddItems() override { AddItemToList(L"Round", 1); }
//         void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override { ... }
//     };
//
// A list reads: store entries (newest first), option 1, option 2, the picker's own. Other items join at the
// first drop-down. Nothing is persisted.
//
// Escape, a click elsewhere or the loss of the focus cancel an open list: the item selected when it was
// dropped, or by the program since then, is selected again before anybody hears CBN_SELENDCANCEL.
#pragma once

#include <ktui/input/ktui_combo_box.h>
#include <ktui/pickers/mru_store.h>

class KTUI_API CKtUiMRUComboBox : public CKtUiComboBox {
    DECLARE_DYNAMIC(CKtUiMRUComboBox)

public:
    CKtUiMRUComboBox();

    /// Answers 0; nothing in the toolkit calls it.
    virtual int GetItemColors(DRAWITEMSTRUCT& item, DWORD& text, DWORD& background, DWORD& highlight);
    /// Height in pixels of an item: that of the system's icon title font, plus 4.
    virtual int CalcItemHeight();
    /// Draws the image of the item with `cargo` into `rect`. This class draws nothing.
    virtual void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo);
    /// Puts the text of option item `which` (0 or 1) into `text`; answers 1.
    virtual int GetOptionName(int which, CString& text);
    /// Puts the text of Other item `which` (0 or 1) into `text`; answers 1.
    virtual int GetOtherName(int which, CString& text);
    /// Adds the picker's fixed items. This class has none.
    virtual void OnAddItems();
    /// Prepares and fills the control once its window is there.
    virtual void OnComboBoxInit();
    /// Other item `which` (0 or 1) was chosen while item `lastSel` was selected. An override shows its
    /// dialog, finds or adds the item for the answer, puts its index into `newIndex` and answers 1; 0 for a
    /// cancel.
    virtual int OnSelectOther(int which, int lastSel, int& newIndex);
    /// Width in pixels that an item needs besides its text.
    virtual int ExtraWidth();
    /// Width in pixels of the image column.
    virtual int ImageWidth();

    // The flags of the option and Other items. A setter keeps the lowest bit of its argument; a getter
    // answers -1 (all ones) or 0. A change shows in the next list that is filled or dropped.
    int GetUseByLayer() const { return flag(kUseOption1); }
    void SetUseByLayer(int use) { setFlag(kUseOption1, use); }
    int GetUseOption1() const { return GetUseByLayer(); }
    void SetUseOption1(int use) { SetUseByLayer(use); }
    int GetUseByBlock() const { return flag(kUseOption2); }
    void SetUseByBlock(int use) { setFlag(kUseOption2, use); }
    int GetUseOption2() const { return GetUseByBlock(); }
    void SetUseOption2(int use) { SetUseByBlock(use); }
    int GetUseOther() const { return flag(kUseOther1); }
    void SetUseOther(int use) { setFlag(kUseOther1, use); }
    int GetUseOther1() const { return GetUseOther(); }
    void SetUseOther1(int use) { SetUseOther(use); }
    int GetUseOther2() const { return flag(kUseOther2); }
    void SetUseOther2(int use) { setFlag(kUseOther2, use); }
    int GetUseWindows() const { return GetUseOther2(); }
    void SetUseWindows(int use) { SetUseOther2(use); }

    /// Cargo that the option items are given when they are added.
    int GetCargoOption1() const { return m_cargoOption1; }
    void SetCargoOption1(int cargo) { m_cargoOption1 = cargo; }
    int GetCargoOption2() const { return m_cargoOption2; }
    void SetCargoOption2(int cargo) { m_cargoOption2 = cargo; }
    /// A palette for the lookup of colours, or null. Not owned.
    LOGPALETTE* GetLogPalette() const { return m_logPalette; }
    void SetLogPalette(LOGPALETTE* palette) { m_logPalette = palette; }
    /// A palette held for callers. Not owned.
    HPALETTE GetPalette() const { return m_palette; }
    void SetPalette(HPALETTE palette) { m_palette = palette; }
    /// Stored for callers; no separator is drawn.
    void SetSeparatorItem(int index) { m_separatorItem = index; }

    /// Height in pixels of an item as last calculated; 0 at first.
    int ItemHeight() const { return m_itemHeight; }
    /// Calculates the height and applies it to the items and to the selection field.
    void RecalcHeight();

    /// Appends store entries, option items and the picker's items. Never clears the list.
    void AddItems();
    /// Appends an item; answers its index, or -1.
    int AddItemToList(const wchar_t* text, __int64 cargo);
    /// Inserts an item at `index`; answers the index, or -1.
    int InsertItemInList(int index, const wchar_t* text, __int64 cargo);
    /// Answers the index of the item with `cargo`, wherever it came from. Otherwise enters it into the store,
    /// which may evict the oldest (its item stays), and appends an item; answers its index, or -1.
    int AddItemToMRU(const wchar_t* text, int cargo);
    /// Takes the entry with `cargo` out of the store. Its item stays.
    void RemoveItemFromMRU(int cargo);
    /// Index of the first item with `cargo`, or -1.
    int FindItemByCargo(__int64 cargo);
    /// 1 if the store has an entry with `cargo`, otherwise 0.
    int FindCargoInMRU(int cargo) const;
    /// The smallest value not below `seed` that is no cargo of the store.
    int GenerateCargoFromMRU(int seed) const;
    /// Cargo of the selected item, -1 without a selection.
    __int64 GetCurrentItemCargo();
    /// Cargo of item `index`, -1 for an index outside the list.
    __int64 GetItemCargo(__int64 index);
    /// Makes `index` what the control falls back to, unless an Other item is selected now.
    void SetLastSelection(int index);
    /// Shows the dialog of Other item `which` without the list and selects its answer, or the last selection
    /// after a cancel. Sends no notification.
    void SelectOther(int which);

    /// Draws the image of item `index` into `rect`.
    void DrawItemImageFromCargo(CDC* dc, CRect& rect, int index);
    /// Draws the text of item `index` right of the image column of `itemRect`. No focus rectangle.
    void DrawTextAndFocusRect(DRAWITEMSTRUCT* item, CDC* dc, CRect& itemRect, int index, DWORD& textColor,
                              DWORD& backColor);
    /// Tells where the image of `item` lies in its rectangle and which colours its text and background have.
    void SetupForImageDraw(DRAWITEMSTRUCT* item, CDC* dc, CRect& itemRect, CRect& imageRect, DWORD& textColor,
                           DWORD& backColor);
    /// Hooks for subclasses that draw with a palette; nothing here.
    void CreateAndSelectPalette(DRAWITEMSTRUCT* item, CDC* dc);
    void ResetAndRestorePalette(CDC* dc, int state);

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;
    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;
    void GetContentExtent(const wchar_t* text, int& cx, int& cy) override;

protected:
    BOOL OnGetTipRect(CRect& rect) override;
    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg BOOL OnDropDown();
    afx_msg BOOL OnCloseUp();
    afx_msg BOOL OnSelEndOk();
    DECLARE_MESSAGE_MAP()

    // Bits of m_mruFlags.
    static constexpr unsigned kMadeByCreate = 1;
    static constexpr unsigned kUseOption1 = 2;
    static constexpr unsigned kUseOption2 = 4;
    static constexpr unsigned kUseOther1 = 8;
    static constexpr unsigned kUseOther2 = 16;

    int flag(unsigned bit) const { return m_mruFlags & bit ? -1 : 0; }
    void setFlag(unsigned bit, int use) { m_mruFlags = use & 1 ? m_mruFlags | bit : m_mruFlags & ~bit; }

    unsigned m_mruFlags = 0;
    int m_cargoOption1 = kCargoOption1;
    int m_cargoOption2 = kCargoOption2;
    LOGPALETTE* m_logPalette = nullptr;
    HPALETTE m_palette = nullptr;
    int m_itemHeight = 0;
    int m_lastSelection = -1;
    MruStore m_mru;
    int m_separatorItem = -1;

private:
    void addOtherItem(int which);
    int chosenOther(int selection);
    void followOpenList(UINT notification);
    void followProgram(UINT message, WPARAM wParam);

    bool m_isBeingCreated = false;
    bool m_isListOpen = false;
    int m_formerSelection = -1;  ///< while the list is open: what a cancel puts back
};
