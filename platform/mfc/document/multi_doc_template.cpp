// CMultiDocTemplate: any number of documents.
#include <kmfc/doc_template.h>
#include <kmfc/view.h>

IMPLEMENT_DYNAMIC(CMultiDocTemplate, CDocTemplate)

CMultiDocTemplate::CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                     CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass) {
    CMultiDocTemplate::LoadTemplate();
}

CMultiDocTemplate::~CMultiDocTemplate() {
    // Accelerators from a resource need no end.
    if (m_hMenuShared != nullptr) ::DestroyMenu(m_hMenuShared);
}

void CMultiDocTemplate::LoadTemplate() {
    CDocTemplate::LoadTemplate();
    const LPCTSTR name = MAKEINTRESOURCEW(m_nIDResource);
    if (m_hMenuShared == nullptr) m_hMenuShared = ::LoadMenuW(AfxFindResourceHandle(name, RT_MENU), name);
    if (m_hAccelTable == nullptr)
        m_hAccelTable = ::LoadAcceleratorsW(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
}

void CMultiDocTemplate::AddDocument(CDocument* pDoc) {
    CDocTemplate::AddDocument(pDoc);
    m_docList.AddTail(pDoc);
}

void CMultiDocTemplate::RemoveDocument(CDocument* pDoc) {
    CDocTemplate::RemoveDocument(pDoc);
    m_docList.RemoveAt(m_docList.Find(pDoc));
}

POSITION CMultiDocTemplate::GetFirstDocPosition() const { return m_docList.GetHeadPosition(); }

CDocument* CMultiDocTemplate::GetNextDoc(POSITION& rPos) const {
    return static_cast<CDocument*>(m_docList.GetNext(rPos));
}

void CMultiDocTemplate::SetDefaultTitle(CDocument* pDocument) {
    CString name;
    if (GetDocString(name, docName))
        name.AppendFormat(L"%u", m_nUntitledCount);
    else
        name.LoadString(AFX_IDS_UNTITLED);
    pDocument->SetTitle(name);
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible) {
    return OpenDocumentFile(lpszPathName, TRUE, bMakeVisible);
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) {
    CDocument* document = nullptr;
    CFrameWnd* frame = make_with_frame(document);
    if (frame == nullptr) return nullptr;
    if (lpszPathName == nullptr) ++m_nUntitledCount;
    if (!fill(*document, lpszPathName, bAddToMRU != FALSE, false)) {
        if (lpszPathName == nullptr) --m_nUntitledCount;
        frame->DestroyWindow();
        return nullptr;
    }
    InitialUpdateFrame(frame, document, bMakeVisible);
    return document;
}
