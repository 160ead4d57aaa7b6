// CDocManager: finds the template for a file, and speaks with the user on the way.
#include <vector>

#include <kmfc/doc_manager.h>
#include <kmfc/doc_template.h>
#include <kmfc/file_dialog.h>
#include <kmfc/shortcut.h>
#include <kmfc/view.h>

#include "new_kind_dialog.h"

IMPLEMENT_DYNAMIC(CDocManager, CObject)

CDocManager::CDocManager() = default;

CDocManager::~CDocManager() {
    while (!m_templateList.IsEmpty()) delete static_cast<CDocTemplate*>(m_templateList.RemoveHead());
}

void CDocManager::AddDocTemplate(CDocTemplate* pTemplate) {
    ENSURE_ARG(pTemplate != nullptr && m_templateList.Find(pTemplate) == nullptr);
    pTemplate->LoadTemplate();
    m_templateList.AddTail(pTemplate);
}

POSITION CDocManager::GetFirstDocTemplatePosition() const { return m_templateList.GetHeadPosition(); }

CDocTemplate* CDocManager::GetNextDocTemplate(POSITION& pos) const {
    return static_cast<CDocTemplate*>(m_templateList.GetNext(pos));
}

BOOL CDocManager::SaveAllModified() {
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;)
        if (!GetNextDocTemplate(place)->SaveAllModified()) return FALSE;
    return TRUE;
}

void CDocManager::CloseAllDocuments(BOOL bEndSession) {
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;)
        GetNextDocTemplate(place)->CloseAllDocuments(bEndSession);
}

int CDocManager::GetOpenDocumentCount() {
    int count = 0;
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;) {
        const CDocTemplate* kind = GetNextDocTemplate(place);
        for (POSITION next = kind->GetFirstDocPosition(); next != nullptr; kind->GetNextDoc(next)) ++count;
    }
    return count;
}

namespace {

/// Adds the kind to a filter of the file dialog, and the extension of the first to `defaultExtension`.
void append_filter(CString& filter, const CDocTemplate& kind, CString& defaultExtension) {
    CString name, extension;
    if (!kind.GetDocString(name, CDocTemplate::filterName) ||
        !kind.GetDocString(extension, CDocTemplate::filterExt))
        return;
    if (defaultExtension.IsEmpty()) defaultExtension = extension.Mid(1);
    filter += name + L"|*" + extension + L"|";
}

/// Shows the document that is open already, by the first of its views.
void activate(const CDocument& document) {
    POSITION place = document.GetFirstViewPosition();
    CView* view = place != nullptr ? document.GetNextView(place) : nullptr;
    CFrameWnd* frame = view != nullptr ? view->GetParentFrame() : nullptr;
    if (frame == nullptr) return;
    frame->ActivateFrame();
    CWnd* main = AfxGetMainWnd();
    if (main != frame)
        if (auto* top = DYNAMIC_DOWNCAST(CFrameWnd, main)) top->ActivateFrame();
}

/// The path of a name as a user or the shell gave it: without quotes, in full, that of a shortcut's file.
CString whole_path(LPCTSTR name) {
    CString path(name);
    path.Trim(L'"');
    wchar_t full[MAX_PATH * 4];
    const DWORD length = ::GetFullPathNameW(path, static_cast<DWORD>(std::size(full)), full, nullptr);
    if (length > 0 && length < std::size(full)) path = full;
    CString target;
    if (path.Right(4).CompareNoCase(L".lnk") == 0 &&
        AfxResolveShortcut(AfxGetMainWnd(), path, target.GetBuffer(MAX_PATH), MAX_PATH)) {
        target.ReleaseBuffer();
        return target;
    }
    return path;
}

}  // namespace

BOOL CDocManager::DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                                   CDocTemplate* pTemplate) {
    CString title, filter, extension, all;
    title.LoadString(nIDSTitle);
    if (pTemplate != nullptr) {
        append_filter(filter, *pTemplate, extension);
    } else {
        for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;)
            append_filter(filter, *GetNextDocTemplate(place), extension);
    }
    if (all.LoadString(AFX_IDS_ALLFILTER)) filter += all + L"|*.*|";
    filter += L"|";
    CFileDialog dialog(bOpenFileDialog, extension.IsEmpty() ? nullptr : extension.GetString(), fileName,
                       lFlags | (bOpenFileDialog ? 0U : static_cast<DWORD>(OFN_OVERWRITEPROMPT)), filter);
    dialog.m_ofn.lpstrTitle = title;
    if (dialog.DoModal() != IDOK) return FALSE;
    fileName = dialog.GetPathName();
    return TRUE;
}

void CDocManager::OnFileNew() {
    std::vector<CDocTemplate*> kinds;
    CString name;
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr;) {
        CDocTemplate* kind = GetNextDocTemplate(place);
        if (kind->GetDocString(name, CDocTemplate::fileNewName)) kinds.push_back(kind);
    }
    // Without a name for the list a kind is made where it is the only one.
    if (kinds.empty() && !m_templateList.IsEmpty())
        kinds.push_back(static_cast<CDocTemplate*>(m_templateList.GetHead()));
    if (kinds.empty()) {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
        return;
    }
    CDocTemplate* kind = kinds.front();
    if (kinds.size() > 1) {
        kmfc::NewKindDialog dialog(kinds);
        if (dialog.DoModal() != IDOK) return;
        kind = dialog.chosen();
    }
    kind->OpenDocumentFile(nullptr);
}

void CDocManager::OnFileOpen() {
    CString path;
    CWinApp* app = AfxGetApp();
    const DWORD flags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;
    if (app == nullptr || !app->DoPromptFileName(path, AFX_IDS_OPENFILE, flags, TRUE, nullptr)) return;
    app->OpenDocumentFile(path);
}

CDocument* CDocManager::OpenDocumentFile(LPCTSTR lpszFileName) {
    return OpenDocumentFile(lpszFileName, TRUE);
}

CDocument* CDocManager::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU) {
    ENSURE_ARG(lpszFileName != nullptr);
    const CString path = whole_path(lpszFileName);
    CDocTemplate* best = nullptr;
    CDocument* open = nullptr;
    CDocTemplate::Confidence confidence = CDocTemplate::noAttempt;
    for (POSITION place = GetFirstDocTemplatePosition(); place != nullptr && open == nullptr;) {
        CDocTemplate* kind = GetNextDocTemplate(place);
        const CDocTemplate::Confidence match = kind->MatchDocType(path, open);
        if (match <= confidence) continue;
        confidence = match;
        best = kind;
    }
    if (open != nullptr) {
        activate(*open);
        return open;
    }
    if (best != nullptr) return best->OpenDocumentFile(path, bAddToMRU, TRUE);
    AfxMessageBox(AFX_IDP_FAILED_TO_OPEN_DOC);
    return nullptr;
}
