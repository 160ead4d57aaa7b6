// CDocTemplate: makes documents and frames, and fills them.
#include <kmfc/doc_template.h>
#include <kmfc/view.h>

IMPLEMENT_DYNAMIC(CDocTemplate, CCmdTarget)

CDocTemplate::CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                           CRuntimeClass* pViewClass)
    : m_nIDResource(nIDResource),
      m_pDocClass(pDocClass),
      m_pFrameClass(pFrameClass),
      m_pViewClass(pViewClass) {
    CDocTemplate::LoadTemplate();
}

CDocTemplate::~CDocTemplate() = default;

void CDocTemplate::LoadTemplate() {
    if (m_strDocStrings.IsEmpty()) m_strDocStrings.LoadString(m_nIDResource);
}

BOOL CDocTemplate::GetDocString(CString& rString, DocStringIndex index) const {
    return AfxExtractSubString(rString, m_strDocStrings, index) && !rString.IsEmpty();
}

void CDocTemplate::AddDocument(CDocument* pDoc) {
    ENSURE_ARG(pDoc != nullptr && pDoc->m_pDocTemplate == nullptr);
    pDoc->m_pDocTemplate = this;
}

void CDocTemplate::RemoveDocument(CDocument* pDoc) {
    ENSURE_ARG(pDoc != nullptr && pDoc->m_pDocTemplate == this);
    pDoc->m_pDocTemplate = nullptr;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch) {
    ENSURE_ARG(lpszPathName != nullptr);
    rpDocMatch = nullptr;
    for (POSITION place = GetFirstDocPosition(); place != nullptr;) {
        CDocument* document = GetNextDoc(place);
        if (document->GetPathName().CompareNoCase(lpszPathName) != 0) continue;
        rpDocMatch = document;
        return yesAlreadyOpen;
    }
    CString extension;
    if (!GetDocString(extension, filterExt)) return yesAttemptForeign;
    const CString path(lpszPathName);
    const int dot = path.ReverseFind(L'.');
    const bool named = dot > path.ReverseFind(L'\\');
    return named && path.Mid(dot).CompareNoCase(extension) == 0 ? yesAttemptNative : yesAttemptForeign;
}

CDocument* CDocTemplate::CreateNewDocument() {
    if (m_pDocClass == nullptr) return nullptr;
    auto* document = static_cast<CDocument*>(m_pDocClass->CreateObject());
    if (document != nullptr) AddDocument(document);
    return document;
}

CFrameWnd* CDocTemplate::CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther) {
    if (m_pFrameClass == nullptr) return nullptr;
    auto* frame = static_cast<CFrameWnd*>(m_pFrameClass->CreateObject());
    if (frame == nullptr) return nullptr;
    CCreateContext context;
    context.m_pNewViewClass = m_pViewClass;
    context.m_pCurrentDoc = pDoc;
    context.m_pNewDocTemplate = this;
    context.m_pCurrentFrame = pOther;
    // A frame that can't be made deletes itself.
    return frame->LoadFrame(m_nIDResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context) ? frame
                                                                                                    : nullptr;
}

void CDocTemplate::InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible) {
    pFrame->InitialUpdateFrame(pDoc, bMakeVisible);
}

CFrameWnd* CDocTemplate::make_with_frame(CDocument*& document) {
    document = CreateNewDocument();
    CFrameWnd* frame = nullptr;
    if (document != nullptr) {
        // A frame that fails takes its view along, and must not take the document.
        const BOOL goes = document->m_bAutoDelete;
        document->m_bAutoDelete = FALSE;
        frame = CreateNewFrame(document, nullptr);
        document->m_bAutoDelete = goes;
    }
    if (frame != nullptr) return frame;
    delete document;
    document = nullptr;
    AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
    return nullptr;
}

bool CDocTemplate::fill(CDocument& document, LPCTSTR path, bool addToRecent, bool wasOpen) {
    if (path == nullptr) {
        SetDefaultTitle(&document);
        return document.OnNewDocument();
    }
    const CWaitCursor wait;
    const BOOL modified = document.IsModified();
    document.SetModifiedFlag(FALSE);
    if (document.OnOpenDocument(path)) {
        document.SetPathName(path, addToRecent);
        return true;
    }
    if (wasOpen && !document.IsModified()) {
        // Nothing was touched.
        document.SetModifiedFlag(modified);
    } else if (wasOpen) {
        SetDefaultTitle(&document);
        document.OnNewDocument();
    }
    return false;
}

BOOL CDocTemplate::SaveAllModified() {
    for (POSITION place = GetFirstDocPosition(); place != nullptr;)
        if (!GetNextDoc(place)->SaveModified()) return FALSE;
    return TRUE;
}

void CDocTemplate::CloseAllDocuments(BOOL) {
    for (POSITION place = GetFirstDocPosition(); place != nullptr;) GetNextDoc(place)->OnCloseDocument();
}

void CDocTemplate::OnIdle() {
    for (POSITION place = GetFirstDocPosition(); place != nullptr;) GetNextDoc(place)->OnIdle();
}

BOOL CDocTemplate::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
