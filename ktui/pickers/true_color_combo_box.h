// CKtUiTrueColorComboBox: picks any colour of a drawing: indexed, true, or from a colour book.
//
// The cargo of an item is an index into a table of 25 colours: 0 ByLayer, 1 ByBlock, 2 to 8 the standard
// colours 1 to 7, 9 to 24 the colours added at run time, newest first. The store of the base stays empty.
#pragma once

#include <ktui/pickers/mru_combo_box.h>
#include <od_cm_color.h>
#include <od_rx.h>

#include <array>
#include <memory>

/// Deletes an object that was allocated with the drawing runtime's allocator.
struct RuntimeColorDelete {
    void operator()(OdCmColor* color) const {
        color->~OdCmColor();
        odrxFree(color);
    }
};

class KTUI_API CKtUiTrueColorComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiTrueColorComboBox)

public:
    CKtUiTrueColorComboBox();
    ~CKtUiTrueColorComboBox() override;

    /// Colour shown for colour index `index`, red in the low byte.
    virtual DWORD GetColorFromIndex(int index);
    /// Lets the user pick a colour, starting from `color`. `layerColor` is shown for ByLayer; `allowMeta`
    /// non-zero offers ByLayer and ByBlock. Answers 1 with the choice in `color`, 0 for a cancel or without a
    /// host.
    virtual int GetOtherColor(OdCmColor& color, const OdCmColor& layerColor, int allowMeta);
    /// Puts the colour of the current layer into `color`; FALSE if there is no such layer.
    virtual BOOL GetCurrentLayerColor(OdCmColor& color);
    /// Non-zero if the current layer's colour is overridden in the viewport, which the ByLayer item then
    /// says. This class answers 0.
    virtual int GetCurrentLayerVpOverride();
    /// Colour of `index` in `palette`; the host's colour without a palette or for an index outside it; 0
    /// while the host has no colours.
    virtual DWORD LookupColor(int index, LOGPALETTE* palette);

    /// Colour that the ByBlock swatch shows; colour index 7 at first.
    const OdCmColor& GetBlockColor() const { return m_blockColor; }
    void SetBlockColor(const OdCmColor& color) { m_blockColor = color; }

    /// Enters a colour right behind the standard colours unless it is in the list; answers its list index, or
    /// -1. The seventeenth colour drops the oldest.
    int AddColorToMRU(const OdCmColor& color);
    /// Answers -1 and does nothing: the store of the base isn't used.
    int AddItemToMRU(const wchar_t* text, int cargo);
    /// List index of the first table entry equal to `color`, or -1.
    int FindItemByColor(const OdCmColor& color);
    /// Puts the selected item's colour into `color`; leaves it alone if the item has none.
    void GetCurrentItemColor(OdCmColor& color);
    /// Colour of table entry `cargo`, red in the low byte; 0 if there is no such entry.
    DWORD getColorByCargo(int cargo);
    /// Colour that `color` is shown in, red in the low byte.
    DWORD getColorData(OdCmColor color);
    /// First index, 0 to 255, that is shown in `color`; 0 if there is none.
    int GetColorIndex(DWORD color);
    /// Inserts an item at `index`; answers the index, or -1.
    int AddItemToList(const wchar_t* text, int index, __int64 cargo);
    /// Drops the colours added at run time from the table and puts the nine fixed ones back. The list stays.
    void initKtCmColorTable();
    /// Lets the user pick a colour in the system's dialog, starting from `color`. Answers 1 with the choice
    /// in `color`, 0 for a cancel.
    int GetWindowsColor(OdCmColor& color);

    void GetLBString(int index, CString& text) override;
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    int GetOtherName(int which, CString& text) override;
    void OnAddItems() override;
    int OnSelectOther(int which, int lastSel, int& newIndex) override;

protected:
    using TableColor = std::unique_ptr<OdCmColor, RuntimeColorDelete>;

    static constexpr int kTableSize = 25;
    static constexpr int kByLayerEntry = 0;
    static constexpr int kByBlockEntry = 1;
    static constexpr int kFirstStandardEntry = 2;  ///< colour index 1
    static constexpr int kForegroundEntry = 8;     ///< colour index 7
    static constexpr int kFirstAddedEntry = 9;
    static constexpr int kLastEntry = kTableSize - 1;

    /// Table entry `cargo`, or null if there is none.
    OdCmColor* entryAt(__int64 cargo) const;
    /// Replaces table entry `entry` by a copy of `color`.
    void setEntry(int entry, const OdCmColor& color);
    /// Deletes table entry `entry`.
    void clearEntry(int entry) { m_colorTable[static_cast<std::size_t>(entry)].reset(); }
    /// Makes room at the first added entry: moves the others up, in the table and in the list.
    void shiftAddedEntries();
    /// Appends the standard colours from entry 2 to `lastEntry` to the list.
    void addStandardColors(int lastEntry);

    OdCmColor m_blockColor;
    std::array<TableColor, kTableSize> m_colorTable;

private:
    static TableColor makeColor(const OdCmColor& color);
    void dropOldestOfFullList();
    int positionOfNewest();
};
