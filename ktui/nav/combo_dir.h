// CComBoDir, the box of locations: folders and drives with the shell's icons, the saved ones behind the fixed
// ones. Private to the library.
//
// It fills itself when it takes the window of a dialog's template, and stores the saved ones when that goes.
#pragma once

#include <afxcmn.h>

#include <memory>

#include <ktui/nav/history_store.h>
#include <ktui/nav/list_box_dir.h>

class CComBoDir : public CComboBoxEx {
public:
    CComBoDir();
    ~CComBoDir() override;

    /// Adds a location: its text, and its path or a list of paths in double quotes. Its place, or that of the
    /// one with the same value; -1 for an empty argument, and for what the shell has no icon for.
    int AddLocation(const CString& name, const CString& value);
    /// The selected location's value, trimmed; empty for none.
    CString SelectedValue() const;
    /// Selects the drives if they are there, else what comes first.
    void SelectFirst();
    /// Scrolls the text to its beginning: a path that is too long shows its drive.
    void ShowBeginning();
    /// Adds a text that was typed instead of chosen, and selects it.
    void TakeTypedText();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void PreSubclassWindow() override;
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void addComputer();
    void addDrives();
    void addChildrenOfComputer();
    void addFixed(const CString& name, const CString& value);
    /// Shows the text in a tip if it is wider than the box.
    void showTip();

    std::unique_ptr<CImageList> m_shellImages;  ///< the shell's own, detached at the end
    CStringArray m_names;
    CStringArray m_values;
    int m_fixedCount = 0;  ///< how many come before the saved ones
    HistoryStore m_history;
    std::unique_ptr<CListBoxDir> m_list;
    std::unique_ptr<CToolTip> m_tip;
};
