// CKtUiColorComboBox: picks an indexed colour of a drawing. The cargo of an item is its colour index: ByLayer
// 256, ByBlock 0, the standard colours 1 to 7, a colour from the dialog its own.
#pragma once

#include <ktui/pickers/mru_combo_box.h>

class KTUI_API CKtUiColorComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiColorComboBox)

public:
    CKtUiColorComboBox();

    /// Lets the user pick an index, starting from `current`. `layerIndex` is shown for ByLayer; `allowMeta` 1
    /// offers ByLayer and ByBlock. Answers 1 with the choice in `chosen`, 0 for a cancel or without a host.
    virtual int GetOtherColorIndex(int current, int layerIndex, int allowMeta, int& chosen);
    /// Lets the user pick a colour in the system's dialog, starting from `color`. Answers 1 with the choice
    /// in `color`, 0 for a cancel.
    virtual int GetWindowsColor(DWORD& color);
    /// Colour shown for `index`, red in the low byte.
    virtual DWORD GetColorFromIndex(int index);
    /// Answers -1; nothing in the toolkit calls it.
    virtual int GetColorIndex(DWORD color);
    /// Colour index of the current layer; -1 if there is none.
    virtual int GetCurrentLayerColorIndex();
    /// Colour of `index` in `palette`; the host's colour without a palette or for an index outside it; 0
    /// while the host has no colours.
    virtual DWORD LookupColor(int index, LOGPALETTE* palette);

    /// Colour index that the ByBlock swatch shows; 7 at first.
    int GetBlockColorIndex() const { return m_blockColorIndex; }
    void SetBlockColorIndex(int index) { m_blockColorIndex = index; }

    /// Enters a colour into the store and the list unless it is in the list; answers its list index, or -1.
    int AddColorToMRU(int index);
    /// List index of colour `index`, or -1.
    int FindItemByColorIndex(int index) { return FindItemByCargo(index); }
    /// Colour index of the selected item, -1 without a selection or for a cargo beyond any index.
    int GetCurrentItemColorIndex() { return indexOf(GetCurrentItemCargo()); }
    /// Colour index of item `listIndex`, -1 for an index outside the list or a cargo beyond any index.
    int GetItemColorIndex(int listIndex) { return indexOf(GetItemCargo(listIndex)); }

    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    int GetOtherName(int which, CString& text) override;
    void OnAddItems() override;
    int OnSelectOther(int which, int lastSel, int& newIndex) override;

protected:
    int m_blockColorIndex = 7;

private:
    /// The cargo as a colour index; -1 if it doesn't fit.
    static int indexOf(__int64 cargo);
};
