// CKtUiFontComboBox: picks one of the host's fonts, with an icon that tells a shape font from an outline
// font. The styles of the selected font go into a second combo box, the buddy, which the owner supplies. Big
// fonts are left out. The cargo of an item is the host's font, which has to outlive the control.
//
//     picker.setBuddy(&styles, true);
//     picker.setCurrentFont(L"arialbd.ttf");
//     CString file;
//     picker.getCurrentFont(file);
#pragma once

#include <ktui/pickers/mru_combo_box.h>

class CKhFont;

class KTUI_API CKtUiFontComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiFontComboBox)

public:
    CKtUiFontComboBox();
    ~CKtUiFontComboBox() override;

    /// Makes `buddy` the list of styles, null for none; `hide` leaves flagged styles out. Not owned; it shows
    /// the styles from the next selection on.
    void setBuddy(CComboBox* buddy, bool hide);
    /// Selects the font and the style that the font file `name` holds; nothing for an unknown file. Sends no
    /// notification.
    void setCurrentFont(const wchar_t* name);
    /// Puts the font file of the selected style into `name`, or the font's own name if no style is selected
    /// in an enabled buddy. Without a selected font `name` stays.
    void getCurrentFont(CString& name);

    int CalcItemHeight() override;
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    void OnAddItems() override;

protected:
    afx_msg BOOL OnDropDown();
    afx_msg BOOL OnSelChange();
    afx_msg BOOL OnSelEndCancel();
    DECLARE_MESSAGE_MAP()

    bool m_hideFlaggedStyles = true;
    CComboBox* m_buddy = nullptr;  ///< not owned
    HICON m_trueTypeIcon;          ///< for fonts that aren't shape fonts
    HICON m_shxIcon;               ///< for shape fonts

private:
    void showStyles();
    void addStyles(const CKhFont& font);
    bool selectedStyle(CString& text) const;

    __int64 m_shownFont = 0;   ///< cargo of the font whose styles the buddy lists
    __int64 m_formerFont = 0;  ///< the same when the list was dropped
    CString m_formerStyle;     ///< the buddy's when the list was dropped
};
