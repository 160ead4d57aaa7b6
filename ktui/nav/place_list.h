// CPlaceList: the column of folders beside the files. Private to the library.
#pragma once

#include <ktui/nav/drag_list_box2.h>

class CNavFileDlg;

class CPlaceList : public CDragListBox2 {
public:
    CPlaceList(CNavFileDlg* dialog, const wchar_t* rootKey, const wchar_t* recentFolder);
    ~CPlaceList() override;

    /// Writes the list if it was changed, after a question with `ask`; 0 if that was refused or failed.
    int SavePlaces(int ask);
    /// Selects the row of the folder shown.
    void SyncSelection();
    /// The folder for shortcuts to recent files; may be empty.
    const CString& RecentFolder() const { return m_recentFolder; }
    /// Frees the rows and gives the list box back.
    virtual void FreePlaces();

private:
    CNavFileDlg* m_fileDialog;
    CString m_rootKey;
    CString m_recentFolder;
};
