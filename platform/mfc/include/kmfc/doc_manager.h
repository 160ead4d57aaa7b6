// CDocManager: the application's document templates.
#pragma once

#include <afxcoll.h>

class CDocTemplate;
class CDocument;

/// Holds and owns the templates; made by CWinApp::AddDocTemplate.
class KMFC_API CDocManager : public CObject {
    DECLARE_DYNAMIC(CDocManager)
public:
    CDocManager();
    ~CDocManager() override;

    virtual void AddDocTemplate(CDocTemplate* pTemplate);
    virtual POSITION GetFirstDocTemplatePosition() const;
    virtual CDocTemplate* GetNextDocTemplate(POSITION& pos) const;
    /// Writes the types of files of the templates to the registry (HKEY_CLASSES_ROOT), so that the shell
    /// opens them with this program. `bCompat` adds printing and an icon; a type of another program keeps its
    /// files.
    virtual void RegisterShellFileTypes(BOOL bCompat);
    /// Takes away what RegisterShellFileTypes wrote.
    void UnregisterShellFileTypes();
    /// Opens the file by the template that fits best. One that is open already is activated.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU);
    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    virtual int GetOpenDocumentCount();
    /// The file dialog: for `pTemplate`, or all of them for null. FALSE when it was cancelled.
    virtual BOOL DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                                  CDocTemplate* pTemplate);
    /// A new document; asks for its kind where there are several.
    virtual void OnFileNew();
    virtual void OnFileOpen();

protected:
    CPtrList m_templateList;
};
