// CNavDialogImp: the state of a navigation dialog, what it gives the platform's file dialog, and what it
// keeps of a run. Private to the library.
#pragma once

#include <memory>

#include <ktui/nav/nav_dialog.h>

class CNavFileDlg;
class StartTexts;

class CNavDialogImp {
public:
    CNavDialogImp(CNavDialog& owner, CNavDataArray& data, CNavFilterArray& filters);
    ~CNavDialogImp();
    CNavDialogImp(const CNavDialogImp&) = delete;
    CNavDialogImp& operator=(const CNavDialogImp&) = delete;

    /// Runs a new file dialog; IDOK or IDCANCEL.
    INT_PTR DoModal();

    /// The filter of the type shown, or null.
    CNavFilter* CurrentFilter() const;
    /// What follows when the user has chosen another type; the file dialog has its index already.
    void ReactToTypeChange();

    std::unique_ptr<CNavFileDlg> m_fileDialog;  ///< of the last run
    CNavDialog* m_owner;
    CNavDataArray* m_dataArray;
    CNavFilterArray* m_filterArray;
    CString m_dialogCaption;
    CString m_defaultFileExtension;
    int m_defaultFilterIndex = 0;
    int m_forceFilterIndex = -1;
    CString m_forceInitialFolder;
    CString m_defaultInitialFolder;
    CString m_initialFileName;
    int m_confirmReplace = 0;
    int m_acceptAnyFileExtension = 0;
    int m_noURLFileTransfer = 0;
    int m_noURLsAllowed = 0;
    int m_multiSelectAllowed = 0;
    int m_readOnlyAllowed = 1;
    int m_readOnlyHidden = 0;
    int m_readOnlySpecified = 0;
    int m_creatingFile = 0;
    int m_foldersOnly = 0;
    int m_previewPresent = 0;
    int m_previewVisible = 0;
    int m_securityButton = 0;
    int m_partialOpen = 0;
    int m_optionsButton = 0;
    int m_openWithoutTemplate = 0;
    int m_flag8000000 = 0;  ///< only kept
    int m_underlayExport = 0;
    KtUiOpenNoTemplateFlag m_openNoTemplateSelection = kKtUiOpenWithTemplate;
    int m_applicationMode = 0;  ///< 1: places, folders of templates, the extension of the type chosen

private:
    unsigned long platformFlags() const;
    void makeFileDialog(unsigned long flags, const CString& filters);
    INT_PTR runFileDialog();
    void settleDialogName() const;
    unsigned long startFilterIndex() const;
    void setStartFolder(StartTexts& texts) const;
    void setStartName(const StartTexts& texts) const;
    void keepForNextRun() const;
    void enterTemplateFolder() const;
    void retypeName() const;
};
