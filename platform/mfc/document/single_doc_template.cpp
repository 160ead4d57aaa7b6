// CSingleDocTemplate: one document, whose frame is the main window.
#include <kmfc/doc_template.h>
#include <kmfc/view.h>

IMPLEMENT_DYNAMIC(CSingleDocTemplate, CDocTemplate)

CSingleDocTemplate::CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                       CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass) {}

CSingleDocTemplate::~CSingleDocTemplate() = default;

void CSingleDocTemplate::AddDocument(CDocument* pDoc) {
    ENSURE(m_pOnlyDoc == nullptr);
    CDocTemplate::AddDocument(pDoc);
    m_pOnlyDoc = pDoc;
}

void CSingleDocTemplate::RemoveDocument(CDocument* pDoc) {
    ENSURE(m_pOnlyDoc == pDoc);
    CDocTemplate::RemoveDocument(pDoc);
    m_pOnlyDoc = nullptr;
}

// Places count the documents: 1 before the only one.
POSITION CSingleDocTemplate::GetFirstDocPosition() const {
    return m_pOnlyDoc != nullptr ? BEFORE_START_POSITION : nullptr;
}

CDocument* CSingleDocTemplate::GetNextDoc(POSITION& rPos) const {
    CDocument* document = rPos == BEFORE_START_POSITION ? m_pOnlyDoc : nullptr;
    rPos = nullptr;
    return document;
}

void CSingleDocTemplate::SetDefaultTitle(CDocument* pDocument) {
    CString name;
    if (!GetDocString(name, docName)) name.LoadString(AFX_IDS_UNTITLED);
    pDocument->SetTitle(name);
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible) {
    return OpenDocumentFile(lpszPathName, TRUE, bMakeVisible);
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) {
    CDocument* document = m_pOnlyDoc;
    const bool wasOpen = document != nullptr;
    if (wasOpen && !document->SaveModified()) return nullptr;
    CFrameWnd* frame = nullptr;
    if (!wasOpen) {
        frame = make_with_frame(document);
        if (frame == nullptr) return nullptr;
    }
    if (!fill(*document, lpszPathName, bAddToMRU != FALSE, wasOpen)) {
        if (!wasOpen) frame->DestroyWindow();  // and the document with its view
        return nullptr;
    }
    CWinThread* thread = AfxGetThread();
    if (frame == nullptr && thread != nullptr) frame = DYNAMIC_DOWNCAST(CFrameWnd, thread->GetMainWnd());
    if (thread != nullptr && thread->m_pMainWnd == nullptr) thread->m_pMainWnd = frame;
    if (frame != nullptr) InitialUpdateFrame(frame, document, bMakeVisible);
    return document;
}
