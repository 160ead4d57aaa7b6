// CPlaceList: the column of large folder icons beside a navigation dialog's files. Private to the library.
//
//     list = new CPlaceList(this, rootKey, recentFolder);
//     list->SubclassDlgItem(57015, this);   // reads the places
//     list->SyncSelection();                // at each change of the folder
//     list->SavePlaces(0);                  // at OK
//     list->FreePlaces();
//
// The control is an owner-drawn list box of variable height with texts, unsorted. A click goes to a folder;
// rows are dragged into another order, added by drop or by a menu, and edited. All dialogs of an application
// share one list, which is written back only when something was changed; the last one to write wins.
#pragma once

#include <afxcmn.h>

#include <memory>
#include <optional>

#include <ktui/nav/drag_list_box2.h>

class CNavFileDlg;
class PatientPlaces;
struct PlaceItem;

class CPlaceList : public CDragListBox2 {
    DECLARE_DYNAMIC(CPlaceList)

public:
    /// `fileDialog` outlives the list. `rootKey` lies below the current user and ends with a backslash.
    /// `recentFolder` is where "History" leads; it may be empty.
    CPlaceList(CNavFileDlg* fileDialog, const wchar_t* rootKey, const wchar_t* recentFolder);
    ~CPlaceList() override;

    /// Inserts a row before row `index`, -1 appends; its index, or -1 if the control refuses it. `type` is a
    /// PlaceType; a standard folder takes path and caption from the shell. Doesn't count as a change.
    int AddPlace(const CString& path, const CString& display, int type, int index);
    /// Stores the rows if they were changed; with `ask` other than 0 the user is asked first, and No gives
    /// the changes up. 1 if they were stored or nothing was changed, else 0.
    int SavePlaces(int ask);
    /// Selects the row of the folder that the dialog shows.
    void SyncSelection();
    const CString& RecentFolder() const { return m_recentFolder; }
    /// Frees the rows and lets go of the control.
    virtual void FreePlaces();

    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    void PreSubclassWindow() override;

    afx_msg void OnDestroy();
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnMouseHover(UINT flags, CPoint point);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg BOOL OnSelectionChange();
    afx_msg void OnRemove();
    afx_msg void OnAddCurrentFolder();
    afx_msg void OnAdd();
    afx_msg void OnProperties();
    afx_msg void OnRestoreStandardFolders();
    DECLARE_MESSAGE_MAP()

private:
    void loadPlaces();
    /// Appends the standard folders that no row has; whether there were any.
    bool restoreStandardFolders();
    bool hasType(int type) const;
    bool storePlaces() const;
    void freeRows();
    void goToSelectedPlace();
    /// The same with what GetFileAttributesW answers for the path.
    void goTo(const CString& path, DWORD attributes);

    // Of a list that doesn't wait for drives (never_blocked.h).
    PatientPlaces& patient();
    /// Gives a row the icon of `path`, or a plain one until that has come.
    void fetchIcon(PlaceItem& item, const CString& path);
    void takeReadIcon(unsigned request, HICON icon);
    void goToReadFolder(const CString& path, std::optional<DWORD> attributes);
    /// Asks whether the folder answers; it is gone to when it has.
    void askForFolder(const CString& path, unsigned limit);

    /// The row's data; null for a row that isn't there.
    PlaceItem* itemAt(int row) const;
    /// The first row with this path, case doesn't count; -1 for none.
    int findPath(const CString& path) const;
    /// The row under the mouse; -1 outside of all.
    int rowUnderCursor() const;
    void redrawRow(int row);
    CString currentFolder() const;

    CNavFileDlg* m_fileDialog;
    CString m_rootKey;
    CString m_recentFolder;
    int m_hotItem = -1;      ///< row under the mouse
    int m_contextItem = -1;  ///< row under the mouse when the menu was asked for
    int m_modified = 0;      ///< any change but another order
    CToolTipCtrl m_toolTip;
    int m_tipItem = -1;  ///< row that the tip was last shown for
    CBrush m_ground;
    std::unique_ptr<PatientPlaces> m_patient;  ///< there once a limit was set
};
