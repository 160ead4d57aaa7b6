// CNavFileDlg: the platform's old-style Explorer dialog, bent to the application's purpose: buttons of its
// own and a preview, a list of places over the platform's bar, an OK button with a menu, a memory of the
// view, choosing a folder, hot keys, and a shortcut for each file chosen. Private to the library.
//
// The platform's window isn't replaced. It is the parent of this object's window, is driven by messages, and
// is subclassed while it is shown. One dialog at a time has the hot keys.
#pragma once

#include <afxdlgs.h>

#include <memory>

#include <ktui/nav/menu_button.h>

class CListCtrlEx;
class CNavDialogImp;
class CPlaceList;
class CThumbnailCtrl;

class CNavFileDlg : public CFileDialog {
    DECLARE_DYNAMIC(CNavFileDlg)

public:
    /// `owner` outlives this object. `fileName` and `filter` may be null; the filter's pieces are parted by
    /// "|". `open` 0 is a Save dialog.
    CNavFileDlg(CNavDialogImp* owner, int open, const wchar_t* fileName, unsigned long flags,
                const wchar_t* filter);
    ~CNavFileDlg() override;

    /// The state of the navigation dialog that shows this one; never null.
    CNavDialogImp* owner() const { return m_owner; }
    /// Number of the template of own controls; 0 for none.
    unsigned TemplateId() const;
    bool IsOpenDialog() const { return m_bOpenFileDialog != FALSE; }
    /// Whether the user chooses a folder and no files.
    bool IsFoldersOnly() const { return m_foldersOnly; }

    // While the dialog is shown; without a window they do nothing.
    /// The dialog that the user sees; null while there is none.
    HWND PlatformWindow() const { return m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr; }
    /// Selects a type, from 0, as the user would.
    void SelectFilterIndex(int index);
    /// Goes to `folder`; 1 if that could be done or the dialog shows it already.
    int NavigateTo(const wchar_t* folder);
    /// What is typed as the name.
    CString TypedName() const { return GetFileName(); }
    /// Puts `name` into the box of the name, which takes the focus.
    void TypeName(const CString& name);

    // What the buttons and the hot keys do. Each takes the hot keys away until it is done.
    /// Looks for the name typed in the folders of support files, and goes to the first that has it.
    void Locate();
    void FindFile();
    void ShowSaveOptions();
    void ShowSecurityOptions();

protected:
    void OnInitDone() override;
    BOOL OnFileNameOK() override;
    void OnFileNameChange() override;
    void OnFolderChange() override;
    void OnTypeChange() override;
    /// Lays the list of places over the platform's bar.
    virtual void RelayoutPlaces();

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnDestroy();
    afx_msg void OnOpenMenuCommand(UINT command);
    DECLARE_MESSAGE_MAP()

private:
    // The steps of OnInitDone, in their order.
    void dressPlatformWindow() const;
    void hideUnwantedButtons() const;
    void showPreview();
    void showPlaces();
    CString recentFolder() const;
    void subclassPlatformWindow();
    void bareForFolders();
    void makeOpenMenu();
    bool enterFolder() const;
    void focusFirst() const;

    static LRESULT CALLBACK platformWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onPlatformMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void chooseFolder();
    void leaveByCancel();

    bool takesUrl();
    void applyMenuCommand() const;
    void addResults();
    void keepAsRecent(const CString& path) const;
    void savePlaces(int ask);
    void showInPreview();
    void enterChangedFolder();
    void unmarkFocusedItem() const;
    void selectTypedName() const;
    void refreshView() const;

    HWND control(int id) const { return ::GetDlgItem(m_hWnd, id); }
    HWND platformControl(int id) const;

    CNavDialogImp* m_owner;
    CString m_urlText;  ///< an address that was typed in the place of a file
    CMenuButton m_menuButton;
    WNDPROC m_originalWindowProc = nullptr;  ///< of the platform's window
    UINT m_chosenMenuCommand = 0;            ///< last entry picked from the open menu
    std::unique_ptr<CThumbnailCtrl> m_preview;
    CListCtrlEx* m_fileList = nullptr;  ///< Kept: of the first view, and never cleared; not to be followed.
    std::unique_ptr<CPlaceList> m_placesList;
    // Of a dialog that chooses a folder.
    bool m_firstFolderSeen = false;
    bool m_folderChangePending = false;
    bool m_navigating = false;  ///< a press of OK is being simulated
    bool m_foldersOnly = false;
};
