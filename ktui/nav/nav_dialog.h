// CNavDialog: asks the user for files or a folder, through the platform's file dialog.
//
//     CNavDataArray chosen;
//     CNavFilterArray filters;                       // filled by the caller
//     CKtUiNavDialog dialog(chosen, filters);
//     dialog.SetDialogCaption(L"Open drawing");
//     if (dialog.DoModal() == IDOK) open(chosen.GetData(0)->GetText());
//
// It shows no template of its own and reports nothing in words. Results are appended to the caller's array.
// Many operations are there for clients to link against; their fixed answers are said with them.
#pragma once

#include <ktui/dialogs/kbui_dialog.h>
#include <ktui/nav/nav_data.h>
#include <ktui/nav/nav_filter.h>

class CNavDialogImp;
class CNavFileDlg;

/// What the open menu said about a drawing that starts without a template.
enum KtUiOpenNoTemplateFlag : int {
    kKtUiOpenWithTemplate = 0,
    kKtUiOpenNoTemplateImperial = 1,
    kKtUiOpenNoTemplateMetric = 2,
};

/// Entries of the tools menu that have a place.
enum NavToolsMenuItem : int { kNavToolsMenuFirst = 1, kNavToolsMenuSecond = 2 };

/// How looking into a typed text ended.
enum OkHandlerErr : int { kNavOkHandled = 0 };

class KTUI_API CNavDialog : public CKbUiDialog {
    DECLARE_DYNAMIC(CNavDialog)

public:
    /// `data` takes the results and `filters` are the types offered; both stay the caller's and outlive the
    /// dialog. The template is never shown, but enters the name under which the dialog keeps its data.
    CNavDialog(CNavDataArray& data, CNavFilterArray& filters, unsigned templateId = 0, CWnd* parent = nullptr,
               HINSTANCE resource = nullptr);
    ~CNavDialog() override;

    /// Shows the dialog; IDOK or IDCANCEL. May be called again. Throws CInvalidArgException for a first
    /// filter without patterns, and for an OK without results in the application's dialog.
    INT_PTR DoModal() override;

    /// The state behind the accessors; the dialog's own.
    CNavDialogImp* GetImpObject() const { return m_imp; }
    CNavDataArray* GetDataArray() const;
    CNavFilterArray* GetFilterArray() const;

    // Settings, for before DoModal. Texts are good until they are next set; null sets the empty one.
    const wchar_t* GetDialogCaption() const;
    void SetDialogCaption(const wchar_t* caption);
    /// With or without a leading "*."; empty takes the first pattern of the first filter.
    const wchar_t* GetDefaultFileExtension() const;
    void SetDefaultFileExtension(const wchar_t* extension);
    /// Type shown at first, from 0, unless one is stored.
    int GetDefaultFilterIndex() const;
    void SetDefaultFilterIndex(int index);
    /// Type shown at first in any case, from 0; -1 for none.
    int GetForceFilterIndex() const;
    void SetForceFilterIndex(int index);
    /// Folder shown at first; the forced one wins over the default one, and both over the stored one.
    const wchar_t* GetForceInitialFolder() const;
    void SetForceInitialFolder(const wchar_t* folder);
    const wchar_t* GetDefaultInitialFolder() const;
    void SetDefaultInitialFolder(const wchar_t* folder);
    const wchar_t* GetInitialFileName() const;
    void SetInitialFileName(const wchar_t* name);
    /// Asks before a file is replaced; in an Open dialog, requires that file and path are there.
    int GetConfirmReplace() const;
    void SetConfirmReplace(int confirm);
    int GetAcceptAnyFileExtension() const;
    void SetAcceptAnyFileExtension(int accept);
    int GetNoURLFileTransfer() const;
    void SetNoURLFileTransfer(int none);
    int GetNoURLsAllowed() const;
    void SetNoURLsAllowed(int none);
    int GetMultiSelectAllowed() const;
    void SetMultiSelectAllowed(int allowed);
    int GetReadOnlyAllowed() const;
    void SetReadOnlyAllowed(int allowed);
    int GetReadOnlyHidden() const;
    void SetReadOnlyHidden(int hidden);
    /// Whether the user asked for a file to read only.
    int GetReadOnlySpecified() const;
    void SetReadOnlySpecified(int specified);
    /// 0 for an Open dialog, else a Save dialog.
    int GetCreatingFile() const;
    void SetCreatingFile(int creating);
    int GetFoldersOnly() const;
    void SetFoldersOnly(int only);
    int GetPreviewPresent() const;
    void SetPreviewPresent(int present);
    int GetPreviewVisible() const;
    /// A visible preview is present too.
    void SetPreviewVisible(int visible);

    /// The type shown, from 0; 0 before the first DoModal.
    int GetFilterIndex() const;
    /// Selects a type, from 0, while the dialog is shown.
    void SetFilterIndex(int index);
    /// The forced type, else a default one other than 0, else the one shown.
    int GetInitialFilterIndex() const;
    /// Goes to `folder` while the dialog is shown; 1 if that could be done.
    int NavigateToFolder(const wchar_t* folder);
    /// The filter shown, with its first pattern in `extension`; null, with `extension` left alone, without
    /// one. Throws CInvalidArgException for a filter without patterns.
    CNavFilter* GetCurrentFileExtension(CString& extension) const;
    /// The folder of the first result without its backslash; leaves `folder` alone without results.
    void GetCurrentFolderForPersistence(CString& folder) const;
    /// The text of the only result; leaves `path` alone for none or several.
    void GetSingleDataFullPath(CString& path) const;
    /// Takes white space from the front of `text`, and with `both` from its end.
    void TrimWhiteSpace(CString& text, int both) const;

    // Kept: fixed answers, and operations that do nothing.
    int GetToolsMenuItemsPresent() const { return 3; }
    void SetToolsMenuItemsPresent(int items);
    /// 0 for item 1, 1 for item 2, -1 for any other.
    int GetToolsMenuItemPosition(NavToolsMenuItem item) const;
    int GetNoExtraExtensions() const { return 0; }
    void SetNoExtraExtensions(int none);
    int GetNoExtraExtensionsInPlaces() const { return 0; }
    void SetNoExtraExtensionsInPlaces(int none);
    int GetNoFTP() const { return 0; }
    void SetNoFTP(int none);
    int GetNoPlacesList() const { return 0; }
    void SetNoPlacesList(int none);
    int GetUseRegExtensionFlags() const { return 1; }
    void SetUseRegExtensionFlags(int use);
    void SetViewMode(int mode);
    int GetOkButtonText(CString& text) const;
    void SetOkButtonText(const wchar_t* text);
    void SetOkButtonMenuExists(int exists);
    CListCtrl* GetFolderListCtrl() const { return nullptr; }
    void SetFolderListCtrl(CListCtrl* list);
    int SetFolderComboCurSel(int index);
    int AddDataToHistory(CNavData* data);
    int BrowseCurrentObject(int flags);
    int InsertUserItemInPlaces(CNavData* data);
    int GetPersonalFolderPath(CString& path);

    /// The host's program name; answers 1.
    virtual int GetProductName(CString& name);
    /// Kept: answers 1 and changes nothing.
    virtual int UpdateFileExtension(CString& name);
    /// Asked at OK; non-zero keeps the dialog open.
    virtual int OnFileNameOK();
    /// The folder for shortcuts to recent files; 1 if there is one.
    virtual int GetRecentDirectory(CString& folder);
    /// The address that a browser starts at; answers 1.
    virtual int GetDefaultBrowserStartURL(CString& url);
    /// Told at each change of the selected name.
    virtual void OnFileNameChange();
    virtual void OnFileNameSelectionChange();
    /// Told at each change of the type, once everything else is done.
    virtual void OnFilterChange();
    /// Told when the places have moved the folder.
    virtual void OnFolderChange();
    virtual void OnFolderItemChange();

    // Kept: these do nothing, and those with a result answer 0.
    virtual OkHandlerErr CombineDataTextWithFolderName(CNavData& data);
    virtual OkHandlerErr PreprocessData(CNavData& data);
    virtual int FindInSearchPath(CString& path);
    virtual int LaunchBrowserDialog(CString& url);
    virtual int OnUrlOK(const wchar_t* url);
    virtual void ReportURLTransferStatus(int status);
    virtual int VerifyURLSave(const wchar_t* url);
    virtual int BeginDownloadFiles(int count);
    virtual int GetDownloadActionCodes(int& open, int& save);
    virtual int GetAllDialogsData(const wchar_t* value, CString& text);
    virtual int GetAllDialogsData(const wchar_t* value, unsigned long& number);
    virtual int SetAllDialogsData(const wchar_t* value, const wchar_t* text);
    virtual int SetAllDialogsData(const wchar_t* value, unsigned long number);
    virtual void DisplaySearchError(const wchar_t* name);
    virtual void OnDoAddToFavorites();
    virtual void OnDoFind();
    virtual void OnDoLocate();
    virtual void OnURLDownloadSuccess(const wchar_t* url, const wchar_t* path);
    virtual void PrepareOkMenu(CMenu& menu);
    virtual void PrepareToolsMenu(CMenu& menu);
    virtual void PrepareViewsMenu(CMenu& menu);
    virtual void Refresh();
    virtual void UpdateUIState();
    virtual int LocateFile(const wchar_t* name, CString& path);
    void OnDialogHelp() override;
    virtual void OnDialogHelp(const wchar_t* topic);
    KBUI_REPLY OnNotifyControlChange(unsigned id, __int64 data) override;
    KBUI_REPLY OnNotifyGeneric(unsigned id, __int64 data) override;
    void DoDataExchange(CDataExchange* exchange) override;

private:
    friend class CNavFileDlg;  // asks for the root key

    CNavDialogImp* m_imp;  ///< the dialog's own
};
