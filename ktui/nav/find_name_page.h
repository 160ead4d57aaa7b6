// CDlgFindPage1: names, types and locations of the files to be found. Private to the library.
#pragma once

#include <ktui/nav/combo_dir.h>
#include <ktui/nav/find_page.h>
#include <ktui/nav/history_combo.h>

class CDlgFindPage1 : public FindPage {
public:
    CDlgFindPage1();

    /// Fills the type box from a filter text, in zero-terminated pairs, that outlives the page, and selects
    /// the type `index`, from 1; the first one for an index that there is not.
    void FillTypes(const wchar_t* filter, int index);
    /// Adds a location that the search begins at, and selects it.
    void SelectLocation(const CString& folder);
    /// The folders to search, each with a separator. Selects the drives where nothing is selected.
    void GetFolders(CStringArray& folders);
    /// The patterns to search for; the name goes into the history.
    void GetPatterns(CStringArray& patterns);
    bool IncludesSubfolders() const;
    /// Empties the name and selects the drives. Kept: type and subfolders stay as they are.
    void Reset();
    void EnableControls(bool enable);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    afx_msg void OnBrowse();
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    /// The patterns of the selected type, joined by ";".
    CString selectedType() const;

    CComBoDir m_location;
    CHistoryCombo m_name;
};
