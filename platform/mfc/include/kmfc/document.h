// CDocument: what a program edits, apart from how it is shown.
#pragma once

#include <kmfc/cmd_target.h>
#include <kmfc/lists.h>

class CDocTemplate;
class CFile;
class CFileException;
class CFrameWnd;
class CView;

/// The data of a document. Views show it; the template that made it ties it to them and to frames. A document
/// closes, and deletes itself, when its last frame does.
class KMFC_API CDocument : public CCmdTarget {
    DECLARE_DYNAMIC(CDocument)
public:
    /// What OnDocumentEvent tells.
    enum DocumentEvent { onAfterNewDocument, onAfterOpenDocument, onAfterSaveDocument, onAfterCloseDocument };

    CDocument();
    ~CDocument() override;
    CDocument(const CDocument&) = delete;
    CDocument& operator=(const CDocument&) = delete;

    const CString& GetTitle() const { return m_strTitle; }
    /// The name that frames show; their titles follow.
    virtual void SetTitle(LPCTSTR lpszTitle);
    const CString& GetPathName() const { return m_strPathName; }  ///< empty until it is opened or saved
    /// Makes `lpszPathName`, in full, the document's file, and its name the title.
    virtual void SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU = TRUE);
    CDocTemplate* GetDocTemplate() const { return m_pDocTemplate; }
    virtual BOOL IsModified() { return m_bModified; }
    virtual void SetModifiedFlag(BOOL bModified = TRUE) { m_bModified = bModified; }

    // Views. The document does not own them.
    void AddView(CView* pView);
    /// Without a view left the document closes, unless m_bAutoDelete is off.
    void RemoveView(CView* pView);
    virtual POSITION GetFirstViewPosition() const;
    virtual CView* GetNextView(POSITION& rPosition) const;
    /// Calls OnUpdate of every view but `pSender`, which is null where the document itself has changed.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0, CObject* pHint = nullptr);
    /// OnInitialUpdate of every view.
    void SendInitialUpdate();
    /// Titles of the frames that show the document: numbered when there are several.
    virtual void UpdateFrameCounts();
    /// A view came or went.
    virtual void OnChangedViewList();

    // New, open, save, close.
    /// Empties the document: before another is read into it, and before it goes.
    virtual void DeleteContents() {}
    virtual BOOL OnNewDocument();
    /// Reads the file by Serialize. FALSE, told to the user, when it can't be.
    virtual BOOL OnOpenDocument(LPCTSTR lpszPathName);
    /// Writes the file by Serialize. FALSE, told to the user, when it can't be; the former file is whole
    /// then.
    virtual BOOL OnSaveDocument(LPCTSTR lpszPathName);
    /// Destroys the frames, empties the document and deletes it.
    virtual void OnCloseDocument();
    virtual void OnDocumentEvent(DocumentEvent) {}
    /// Tells the user why a file could not be read or written; `e` may be null.
    virtual void ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL bSaving, UINT nIDPDefault);
    /// Opens a file. One that is written takes the place of the former only by ReleaseFile. Null, with the
    /// reason in `pError`, when it can't be opened.
    virtual CFile* GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError);
    /// Closes and deletes what GetFile gave; with `bAbort` what was written is given up.
    virtual void ReleaseFile(CFile* pFile, BOOL bAbort);
    /// Whether a frame may close: asks to save when it is the last that shows the document.
    virtual BOOL CanCloseFrame(CFrameWnd* pFrame);
    /// Asks to save a document that was changed. FALSE when the user cancels or saving fails.
    virtual BOOL SaveModified();
    virtual void PreCloseFrame(CFrameWnd* pFrame);
    /// Saves under the document's name, or under another where that is missing or read-only.
    virtual BOOL DoFileSave();
    /// Saves as `lpszPathName`; asks for a name without one. With `bReplace` the document goes by it from now
    /// on.
    virtual BOOL DoSave(LPCTSTR lpszPathName, BOOL bReplace = TRUE);
    virtual void OnIdle() {}

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    BOOL m_bAutoDelete = TRUE;  ///< goes with its last view

protected:
    afx_msg void OnFileClose();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();

    CString m_strTitle;
    CString m_strPathName;
    CDocTemplate* m_pDocTemplate = nullptr;
    CPtrList m_viewList;
    BOOL m_bModified = FALSE;

    DECLARE_MESSAGE_MAP()

private:
    /// The frames that show the document, each once, in the order of its views.
    void each_frame(CPtrList& frames) const;
    /// The title without what no file name may have, and the extension of the template.
    CString proposed_name() const;

    friend class CDocTemplate;
};
