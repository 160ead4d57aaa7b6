// CDocument: its views, its file, its end.
#include <kmfc/archive.h>
#include <kmfc/doc_template.h>
#include <kmfc/document.h>
#include <kmfc/view.h>

#include "replacing_file.h"

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

BEGIN_MESSAGE_MAP(CDocument, CCmdTarget)
    ON_COMMAND(ID_FILE_CLOSE, &CDocument::OnFileClose)
    ON_COMMAND(ID_FILE_SAVE, &CDocument::OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, &CDocument::OnFileSaveAs)
END_MESSAGE_MAP()

CDocument::CDocument() = default;

CDocument::~CDocument() {
    // Views that are left show nothing from here on.
    for (POSITION place = m_viewList.GetHeadPosition(); place != nullptr;)
        static_cast<CView*>(m_viewList.GetNext(place))->m_pDocument = nullptr;
    if (m_pDocTemplate != nullptr) m_pDocTemplate->RemoveDocument(this);
}

void CDocument::SetTitle(LPCTSTR lpszTitle) {
    m_strTitle = lpszTitle;
    UpdateFrameCounts();
}

void CDocument::SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU) {
    ENSURE_ARG(lpszPathName != nullptr && *lpszPathName != L'\0');
    wchar_t full[MAX_PATH * 4];
    const DWORD length = ::GetFullPathNameW(lpszPathName, static_cast<DWORD>(std::size(full)), full, nullptr);
    m_strPathName = length > 0 && length < std::size(full) ? full : lpszPathName;
    // The title is what the shell would show of the name.
    wchar_t title[MAX_PATH] = {};
    if (::GetFileTitleW(m_strPathName, title, MAX_PATH) == 0 && title[0] != L'\0')
        SetTitle(title);
    else
        SetTitle(m_strPathName.Mid(m_strPathName.ReverseFind(L'\\') + 1));
    CWinApp* app = AfxGetApp();
    if (bAddToMRU && app != nullptr) app->AddToRecentFileList(m_strPathName);
}

void CDocument::AddView(CView* pView) {
    ENSURE_ARG(pView != nullptr && pView->m_pDocument == nullptr);
    m_viewList.AddTail(pView);
    pView->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* pView) {
    ENSURE_ARG(pView != nullptr && pView->m_pDocument == this);
    m_viewList.RemoveAt(m_viewList.Find(pView));
    pView->m_pDocument = nullptr;
    OnChangedViewList();
}

void CDocument::OnChangedViewList() {
    if (m_viewList.IsEmpty() && m_bAutoDelete)
        OnCloseDocument();
    else
        UpdateFrameCounts();
}

POSITION CDocument::GetFirstViewPosition() const { return m_viewList.GetHeadPosition(); }

CView* CDocument::GetNextView(POSITION& rPosition) const {
    return static_cast<CView*>(m_viewList.GetNext(rPosition));
}

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint) {
    for (POSITION place = GetFirstViewPosition(); place != nullptr;) {
        CView* view = GetNextView(place);
        if (view != pSender) view->OnUpdate(pSender, lHint, pHint);
    }
}

void CDocument::SendInitialUpdate() {
    for (POSITION place = GetFirstViewPosition(); place != nullptr;) GetNextView(place)->OnInitialUpdate();
}

void CDocument::each_frame(CPtrList& frames) const {
    for (POSITION place = m_viewList.GetHeadPosition(); place != nullptr;) {
        const CView* view = static_cast<CView*>(m_viewList.GetNext(place));
        CFrameWnd* frame = view->m_hWnd != nullptr ? view->GetParentFrame() : nullptr;
        if (frame != nullptr && frames.Find(frame) == nullptr) frames.AddTail(frame);
    }
}

void CDocument::UpdateFrameCounts() {
    CPtrList frames;
    each_frame(frames);
    int number = frames.GetCount() > 1 ? 1 : -1;
    for (POSITION place = frames.GetHeadPosition(); place != nullptr;) {
        auto* frame = static_cast<CFrameWnd*>(frames.GetNext(place));
        frame->m_nWindow = number;
        if (number > 0) ++number;
        frame->OnUpdateFrameTitle(TRUE);
    }
}

BOOL CDocument::OnNewDocument() {
    DeleteContents();
    m_strPathName.Empty();
    SetModifiedFlag(FALSE);
    OnDocumentEvent(onAfterNewDocument);
    return TRUE;
}

BOOL CDocument::OnOpenDocument(LPCTSTR lpszPathName) {
    CFileException error;
    CFile* file = GetFile(lpszPathName, CFile::modeRead | CFile::shareDenyWrite, &error);
    if (file == nullptr) {
        ReportSaveLoadException(lpszPathName, &error, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        return FALSE;
    }
    DeleteContents();
    // A document that fails to load differs from its file.
    SetModifiedFlag();
    try {
        CArchive archive(file, CArchive::load | CArchive::bNoFlushOnDelete);
        const CWaitCursor wait;
        if (file->GetLength() != 0) Serialize(archive);
        archive.Close();
        ReleaseFile(file, FALSE);
    } catch (CException* e) {
        ReleaseFile(file, TRUE);
        DeleteContents();
        ReportSaveLoadException(lpszPathName, e, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        e->Delete();
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    OnDocumentEvent(onAfterOpenDocument);
    return TRUE;
}

BOOL CDocument::OnSaveDocument(LPCTSTR lpszPathName) {
    CFileException error;
    CFile* file =
        GetFile(lpszPathName, CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive, &error);
    if (file == nullptr) {
        ReportSaveLoadException(lpszPathName, &error, TRUE, AFX_IDP_INVALID_FILENAME);
        return FALSE;
    }
    bool released = false;
    try {
        CArchive archive(file, CArchive::store | CArchive::bNoFlushOnDelete);
        const CWaitCursor wait;
        Serialize(archive);
        archive.Close();
        released = true;
        ReleaseFile(file, FALSE);
    } catch (CException* e) {
        if (!released) ReleaseFile(file, TRUE);
        ReportSaveLoadException(lpszPathName, e, TRUE, AFX_IDP_FAILED_TO_SAVE_DOC);
        e->Delete();
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    OnDocumentEvent(onAfterSaveDocument);
    return TRUE;
}

CFile* CDocument::GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    CFile* file = (nOpenFlags & CFile::modeCreate) != 0 ? new kmfc::ReplacingFile : new CFile;
    if (file->Open(lpszFileName, nOpenFlags, pError)) return file;
    delete file;
    return nullptr;
}

void CDocument::ReleaseFile(CFile* pFile, BOOL bAbort) {
    // The object goes whatever Close throws.
    struct Owner {
        CFile* file;
        ~Owner() { delete file; }
    } const owner{pFile};
    if (bAbort)
        pFile->Abort();
    else
        pFile->Close();
}

void CDocument::ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL bSaving, UINT nIDPDefault) {
    if (e != nullptr && e->IsKindOf(RUNTIME_CLASS(CUserException))) return;  // it was told already
    const CString name = lpszPathName;
    CString text;
    AfxFormatString1(text, nIDPDefault, name);
    if (text.IsEmpty())
        AfxFormatString1(text, bSaving ? AFX_IDP_FAILED_TO_SAVE_DOC : AFX_IDP_FAILED_TO_OPEN_DOC, name);
    wchar_t reason[512] = {};
    if (e != nullptr && e->GetErrorMessage(reason, static_cast<UINT>(std::size(reason))) &&
        reason[0] != L'\0')
        text += CString(L"\n\n") + reason;
    AfxMessageBox(text, MB_ICONEXCLAMATION, nIDPDefault);
}

BOOL CDocument::CanCloseFrame(CFrameWnd* pFrame) {
    CPtrList frames;
    each_frame(frames);
    for (POSITION place = frames.GetHeadPosition(); place != nullptr;)
        if (frames.GetNext(place) != pFrame) return TRUE;
    return SaveModified();
}

BOOL CDocument::SaveModified() {
    if (!IsModified()) return TRUE;
    CString name =
        m_strPathName.IsEmpty() ? m_strTitle : m_strPathName.Mid(m_strPathName.ReverseFind(L'\\') + 1);
    if (name.IsEmpty()) name.LoadString(AFX_IDS_UNTITLED);
    CString question;
    AfxFormatString1(question, AFX_IDP_ASK_TO_SAVE, name);
    switch (AfxMessageBox(question, MB_YESNOCANCEL | MB_ICONEXCLAMATION, AFX_IDP_ASK_TO_SAVE)) {
        case IDYES: return DoFileSave();
        case IDNO: return TRUE;
        default: return FALSE;
    }
}

void CDocument::PreCloseFrame(CFrameWnd*) {}

void CDocument::OnCloseDocument() {
    // The last view must not close it a second time.
    const BOOL goes = m_bAutoDelete;
    m_bAutoDelete = FALSE;
    CPtrList frames;
    each_frame(frames);
    for (POSITION place = frames.GetHeadPosition(); place != nullptr;) {
        auto* frame = static_cast<CFrameWnd*>(frames.GetNext(place));
        PreCloseFrame(frame);
        frame->DestroyWindow();
    }
    m_bAutoDelete = goes;
    DeleteContents();
    OnDocumentEvent(onAfterCloseDocument);
    if (goes) delete this;
}

BOOL CDocument::DoFileSave() {
    const DWORD attributes = m_strPathName.IsEmpty() ? 0 : ::GetFileAttributesW(m_strPathName);
    const bool readOnly =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    return DoSave(readOnly || m_strPathName.IsEmpty() ? nullptr : m_strPathName.GetString());
}

CString CDocument::proposed_name() const {
    const int end = m_strTitle.FindOneOf(L"<>:\"/\\|?*#%;");
    CString name = end < 0 ? m_strTitle : m_strTitle.Left(end);
    CString extension;
    if (m_pDocTemplate != nullptr && m_pDocTemplate->GetDocString(extension, CDocTemplate::filterExt))
        name += extension;
    return name;
}

BOOL CDocument::DoSave(LPCTSTR lpszPathName, BOOL bReplace) {
    CString path = lpszPathName;
    if (path.IsEmpty()) {
        path = bReplace && m_strPathName.IsEmpty() ? proposed_name() : m_strPathName;
        CWinApp* app = AfxGetApp();
        if (app == nullptr ||
            !app->DoPromptFileName(path, bReplace ? AFX_IDS_SAVEFILE : AFX_IDS_SAVEFILECOPY,
                                   OFN_HIDEREADONLY | OFN_PATHMUSTEXIST, FALSE, m_pDocTemplate))
            return FALSE;
    }
    const CWaitCursor wait;
    const BOOL modified = IsModified();
    if (!OnSaveDocument(path)) return FALSE;
    if (bReplace)
        SetPathName(path);
    else
        SetModifiedFlag(modified);  // a copy saves nothing of the document's own
    return TRUE;
}

BOOL CDocument::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    return m_pDocTemplate != nullptr && m_pDocTemplate->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CDocument::OnFileClose() {
    if (SaveModified()) OnCloseDocument();
}
void CDocument::OnFileSave() { DoFileSave(); }
void CDocument::OnFileSaveAs() { DoSave(nullptr); }
