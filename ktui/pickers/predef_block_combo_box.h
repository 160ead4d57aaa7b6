// CKtUiPredefBlockComboBox: picks a predefined callout block. The cargo of an item is the block's number, 0
// to 5; 6 leads to a block of the user's, and one that was used before has a cargo from 7 on.
#pragma once

#include <ktui/pickers/mru_combo_box.h>
#include <ktui/pickers/strip_look.h>

class KTUI_API CKtUiPredefBlockComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiPredefBlockComboBox)

public:
    CKtUiPredefBlockComboBox();

    /// Enters the user's block `text` into store and list under a new cargo; answers its list index, or -1.
    int AddPredefBlockToMRU(const wchar_t* text);

    int CalcItemHeight() override;
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    void OnAddItems() override;

protected:
    CBitmap m_strip;  ///< empty if it couldn't be loaded; items then show no image
    int m_itemCount;  ///< of the blocks with a picture
    int m_imageSize;  ///< pixels

private:
    CDC m_stripContext;     ///< holds the strip from the first picture on, and goes before it
    StripLook m_stripLook;  ///< what the strip was loaded for; unused with the agreed look
};
