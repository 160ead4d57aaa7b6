// CDocTemplate: what belongs together, a kind of document, its views, its frames and their resources.
#pragma once

#include <kmfc/cmd_target.h>
#include <kmfc/document.h>
#include <kmfc/lists.h>

/// Makes documents with a frame and a view of the classes that it was given. The application owns it, by
/// CWinApp::AddDocTemplate. The string resource of its id has seven parts, each ended by a line break: see
/// DocStringIndex.
class KMFC_API CDocTemplate : public CCmdTarget {
    DECLARE_DYNAMIC(CDocTemplate)
public:
    enum DocStringIndex {
        windowTitle,      ///< of a frame without document, in programs with one document
        docName,          ///< what untitled documents are called
        fileNewName,      ///< name in the list of kinds that File New offers; none keeps it out
        filterName,       ///< text of the file dialog, such as "Drawings (*.dxf)"
        filterExt,        ///< extension with its point
        regFileTypeId,    ///< identifier of the type of file in the registry
        regFileTypeName,  ///< its name there
    };
    /// How well a file fits, from worst to best.
    enum Confidence {
        noAttempt,
        maybeAttemptForeign,
        maybeAttemptNative,
        yesAttemptForeign,
        yesAttemptNative,
        yesAlreadyOpen,
    };

    ~CDocTemplate() override;
    CDocTemplate(const CDocTemplate&) = delete;
    CDocTemplate& operator=(const CDocTemplate&) = delete;

    virtual void LoadTemplate();
    /// Part `index` of the template's string; FALSE when it is missing or empty.
    virtual BOOL GetDocString(CString& rString, DocStringIndex index) const;

    virtual POSITION GetFirstDocPosition() const = 0;
    virtual CDocument* GetNextDoc(POSITION& rPos) const = 0;
    virtual void AddDocument(CDocument* pDoc);
    virtual void RemoveDocument(CDocument* pDoc);
    /// Whether the file is one for this template. A document that has it open is handed out.
    virtual Confidence MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch);
    virtual CDocument* CreateNewDocument();
    /// A frame with a view on `pDoc`, not shown yet; `pOther` is a frame that it is modelled on, or null.
    virtual CFrameWnd* CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther);
    /// First update of the frame's views; shows it with `bMakeVisible`.
    virtual void InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible = TRUE);
    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    /// Opens a file, or a new document for a null path. Null when it failed, which was told to the user, or
    /// when the user cancelled.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) = 0;
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) = 0;
    virtual void SetDefaultTitle(CDocument* pDocument) = 0;
    virtual void OnIdle();

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    UINT GetResId() const { return m_nIDResource; }

protected:
    CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                 CRuntimeClass* pViewClass);

    /// A new document and its frame, not shown yet. Null for both when one can't be made, which is told.
    CFrameWnd* make_with_frame(CDocument*& document);
    /// New contents for a document: an untitled one for a null path, otherwise the file's. FALSE when it
    /// failed. A document that was open keeps what it had, as far as it can.
    bool fill(CDocument& document, LPCTSTR path, bool addToRecent, bool wasOpen);

    UINT m_nIDResource;
    CRuntimeClass* m_pDocClass;
    CRuntimeClass* m_pFrameClass;
    CRuntimeClass* m_pViewClass;
    CString m_strDocStrings;
};

/// For programs that have one document open at a time; its frame is the program's main window.
class KMFC_API CSingleDocTemplate : public CDocTemplate {
    DECLARE_DYNAMIC(CSingleDocTemplate)
public:
    CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                       CRuntimeClass* pViewClass);
    ~CSingleDocTemplate() override;

    void AddDocument(CDocument* pDoc) override;
    void RemoveDocument(CDocument* pDoc) override;
    POSITION GetFirstDocPosition() const override;
    CDocument* GetNextDoc(POSITION& rPos) const override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) override;
    void SetDefaultTitle(CDocument* pDocument) override;

protected:
    CDocument* m_pOnlyDoc = nullptr;
};

/// For programs that have any number of documents open, each with frames of its own.
class KMFC_API CMultiDocTemplate : public CDocTemplate {
    DECLARE_DYNAMIC(CMultiDocTemplate)
public:
    CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                      CRuntimeClass* pViewClass);
    ~CMultiDocTemplate() override;

    HMENU m_hMenuShared = nullptr;   ///< menu of the id, shown for all of its frames; the template's own
    HACCEL m_hAccelTable = nullptr;  ///< accelerators of the id
    UINT m_nUntitledCount = 0;       ///< untitled documents so far

    void LoadTemplate() override;
    void AddDocument(CDocument* pDoc) override;
    void RemoveDocument(CDocument* pDoc) override;
    POSITION GetFirstDocPosition() const override;
    CDocument* GetNextDoc(POSITION& rPos) const override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) override;
    void SetDefaultTitle(CDocument* pDocument) override;

protected:
    CPtrList m_docList;
};
