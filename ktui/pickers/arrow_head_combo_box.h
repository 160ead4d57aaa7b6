// CKtUiArrowHeadComboBox: picks the arrowhead of a dimension. The cargo of an item is the arrowhead's number,
// 0 to 19; a user's own arrowhead gets one from 20 on. The owner maps the cargo to a block.
#pragma once

#include <ktui/pickers/mru_combo_box.h>
#include <ktui/pickers/strip_look.h>

class KTUI_API CKtUiArrowHeadComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiArrowHeadComboBox)

public:
    /// Number of the arrowheads; a user's own have a cargo from here on.
    static constexpr int kCount = 20;

    /// Loads the names of the arrowheads, which all these pickers share, in the language in force.
    CKtUiArrowHeadComboBox();

    /// Enters the user's arrowhead `text` into store and list under a new cargo; answers its list index, or
    /// -1.
    int AddArrowHeadToMRU(const wchar_t* text);

    /// Non-zero lists the oblique arrowhead; 0 at first. A change shows in the next list that is filled.
    int GetUseOrigin2() const { return m_useOrigin2; }
    void SetUseOrigin2(int use) { m_useOrigin2 = use; }

    int CalcItemHeight() override;
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    int GetOtherName(int which, CString& text) override;
    void OnAddItems() override;

protected:
    CBitmap m_strip;  ///< empty if it couldn't be loaded; items then show no image
    int m_itemCount;
    int m_imageSize;  ///< pixels
    int m_useOrigin2 = 0;

private:
    CDC m_stripContext;     ///< holds the strip from the first picture on, and goes before it
    StripLook m_stripLook;  ///< what the strip was loaded for; unused with the agreed look
};
