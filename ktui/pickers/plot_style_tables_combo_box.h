// CKtUiPlotStyleTablesComboBox: picks a plot style table by the name of its file, colour-dependent (.ctb) or
// named (.stb). The list begins with an item for no table; the others are what the folders of the host's path
// variable "PrinterStyleSheetDir" hold. Items have no cargo: the owner reads the text.
//
//     CString file;
//     if (picker.GetCurSel() > 0) picker.GetLBText(picker.GetCurSel(), file);
#pragma once

#include <ktui/pickers/mru_combo_box.h>

class KTUI_API CKtUiPlotStyleTablesComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiPlotStyleTablesComboBox)

public:
    CKtUiPlotStyleTablesComboBox();
    /// With `itemsAdded` 0 the subclass's OnAddItems waits for the first drop-down. The image column is off
    /// and no file type is stored.
    explicit CKtUiPlotStyleTablesComboBox(int itemsAdded);

    /// Stores which kinds of table are wanted, for subclasses: the list has both kinds regardless.
    void SetFileType(bool color, bool named);
    /// Whether item `index` stands for a missing file. This class knows of none: false.
    bool IsMissing(int index);
    /// Adds nothing and answers 0.
    int AddMissingStyleTable(const wchar_t* name);
    /// Puts the text of item `index` into `text`; throws for an index outside the list.
    void GetLBText(int index, CString& text) const;

    int CalcItemHeight() override;
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    void OnAddItems() override;
    void OnComboBoxInit() override;
    int ImageWidth() override;

protected:
    afx_msg BOOL OnDropDown();
    DECLARE_MESSAGE_MAP()

    CBitmap m_bitmap;              ///< for subclasses; deleted with the control
    int m_showImage = 0;           ///< non-zero for an image column as wide as an item is high
    bool m_fileTypeColor = false;  ///< colour-dependent tables are wanted
    bool m_fileTypeNamed = false;  ///< named tables are wanted
    int m_itemsAdded;              ///< non-zero once OnAddItems has run, or if the initialisation runs it
};
