// The main window's File menu: drawings are opened, saved, dropped, and remembered.
#include "main_frame.h"

#include <afxadv.h>

#include <ktui/host/message_box.h>
#include <ktut.h>
#include <standin_host.h>

#include "ask_file.h"
#include "drawing_chooser.h"
#include "dropped_files.h"
#include "messages.h"
#include "resource.h"

namespace {

CString textOf(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

CString folderOf(const CString& path) { return path.Left(path.ReverseFind(L'\\')); }

/// The path as others name the file too: a lock and the recent drawings know a drawing by it.
CString wholePath(const CString& path) {
    wchar_t whole[MAX_PATH] = {};
    const DWORD length = ::GetFullPathNameW(path, MAX_PATH, whole, nullptr);
    return length > 0 && length < MAX_PATH ? CString(whole) : path;
}

CRecentFileList& recentFiles() { return *AfxGetApp()->m_pRecentFileList; }

void tell(UINT id, const CString& path, int count = 0) {
    CString text;
    text.Format(id, path.GetString(), count);
    KtUiMessageBox(nullptr, text, MB_ICONEXCLAMATION);
}

}  // namespace

bool CMainFrame::OpenDrawing(const CString& file, bool isReadOnly) {
    const CString path = wholePath(file);
    auto document = std::make_unique<CDraftDocument>();
    // The drawing that is open already has its lock.
    const bool isSame = m_document->lock().Holds(path);
    CString holder;
    document->SetReadOnly(isReadOnly);
    if (!isReadOnly && !isSame && document->lock().Take(path, holder) == CDrawingLock::Result::kInUse) {
        const InUseChoice choice = AskInUse(*this, path, holder);
        if (choice == InUseChoice::kCancel) return false;
        document->SetReadOnly(choice == InUseChoice::kReadOnly);
    }
    OdDbDxfError error;
    if (!document->Open(path, error)) {
        TellUnreadable(*this, path, error, shownName());
        return false;
    }
    if (isSame && !isReadOnly) document->lock() = std::move(m_document->lock());
    showDocument(std::move(document));
    keepRecent(path);
    if (m_document->Reading().mendCount > 0) TellMended(*this, path, m_document->Reading());
    return true;
}

void CMainFrame::showDocument(std::unique_ptr<CDraftDocument> document) {
    m_host.SetCurrentDocument(document.get());
    m_view.SetScene({}, false);
    m_document = std::move(document);
    showDrawing(false);
}

bool CMainFrame::saveTo(const CString& path, const OdDxfForm& form) {
    if (m_document->IsReadOnly() && path.CompareNoCase(m_document->path().c_str()) == 0) {
        CString text;
        text.Format(IDS_SAVE_READ_ONLY, path.GetString());
        KtUiMessageBox(nullptr, text, MB_ICONEXCLAMATION);
        return false;
    }
    switch (askLosses(path, form.version)) {
        case LossChoice::kCancel: return false;
        case LossChoice::kSaveAs: return saveAs();
        case LossChoice::kSave: break;
    }
    CDrawingLock lock;
    if (!lockForSaving(path, lock)) return false;
    if (m_document->Save(path, form)) {
        m_document->SetReadOnly(false);
        if (lock.Holds(path)) m_document->lock() = std::move(lock);
        keepRecent(path);
        showTitle();
        showIdle();
        return true;
    }
    const CString reason = WhyNotWritable(path);
    CString text;
    if (reason.IsEmpty())
        text.Format(IDS_WRITE_FAILED, path.GetString());
    else
        text.Format(IDS_WRITE_REFUSED, path.GetString(), reason.GetString());
    KtUiMessageBox(nullptr, text, MB_ICONEXCLAMATION);
    return false;
}

/// Tells what the file would not hold, unless the user knows it already.
LossChoice CMainFrame::askLosses(const CString& path, OdDb::DwgVersion version) {
    std::vector<OdDxfLoss> losses;
    if (!m_document->LosesMore(version, losses)) return LossChoice::kSave;
    const LossChoice choice = AskLosses(*this, path, losses);
    if (choice == LossChoice::kSave) m_document->AcceptLosses(version, losses);
    return choice;
}

bool CMainFrame::lockForSaving(const CString& path, CDrawingLock& lock) {
    if (m_document->lock().Holds(path)) return true;
    CString holder;
    const bool isInUse = lock.Take(path, holder) == CDrawingLock::Result::kInUse;
    // Of the drawing's own file the user was told when it was opened.
    if (!isInUse || path.CompareNoCase(m_document->path().c_str()) == 0) return true;
    TellInUse(path, holder);
    return false;
}

bool CMainFrame::mayDiscard() {
    if (!m_document->database()->isModified()) return true;
    switch (AskUnsavedChanges(*this, shownName())) {
        case UnsavedChoice::kCancel: return false;
        case UnsavedChoice::kDiscard: return true;
        case UnsavedChoice::kSave: break;
    }
    return saveDrawing();
}

/// Asks for a name and a form, and saves the drawing there; false if it wasn't saved.
bool CMainFrame::saveAs() {
    const CString name = m_document->name().isEmpty() ? textOf(IDS_PROPOSED_NAME) : shownName();
    const DrawingToSave to = AskDrawingToSave(folderOf(recentFiles()[0]), name, *m_document);
    return !to.path.IsEmpty() && saveTo(to.path, to.form);
}

void CMainFrame::OnFileNew() {
    if (!mayDiscard()) return;
    auto document = std::make_unique<CDraftDocument>();
    OdDbDxfError error;
    if (!m_options.templateFile.IsEmpty() && !document->StartFrom(m_options.templateFile, error))
        TellUnreadable(*this, m_options.templateFile, error, shownName());
    showDocument(std::move(document));
}

void CMainFrame::OnFileOpen() {
    if (!mayDiscard()) return;
    const DrawingToOpen chosen = AskDrawingToOpen(folderOf(recentFiles()[0]));
    if (!chosen.path.IsEmpty()) OpenDrawing(chosen.path, chosen.isReadOnly);
}

bool CMainFrame::saveDrawing() {
    bool asksName = m_document->path().isEmpty() || m_document->IsReadOnly();
    if (!asksName && m_document->IsFileNewer()) {
        const NewerFileChoice choice = AskNewerFile(*this, m_document->path().c_str());
        if (choice == NewerFileChoice::kCancel) return false;
        asksName = choice == NewerFileChoice::kSaveAs;
    }
    return asksName ? saveAs() : saveTo(m_document->path().c_str(), m_document->form());
}

void CMainFrame::OnFileSave() { saveDrawing(); }

void CMainFrame::OnFileSaveAs() { saveAs(); }

void CMainFrame::keepRecent(const CString& path) {
    // Another drafter may have put its own there since.
    recentFiles().ReadList();
    recentFiles().Add(path);
    recentFiles().WriteList();
}

void CMainFrame::forgetRecent(const CString& path) {
    CRecentFileList& recent = recentFiles();
    recent.ReadList();
    for (int i = 0; i < recent.GetSize(); ++i)
        if (recent[i].CompareNoCase(path) == 0) recent.Remove(i);
    recent.WriteList();
}

void CMainFrame::OnRecentFile(UINT id) {
    const CString path = recentFiles()[static_cast<int>(id - ID_FILE_MRU_FILE1)];
    if (path.IsEmpty()) return;
    if (::GetFileAttributesW(path) == INVALID_FILE_ATTRIBUTES) {
        tell(IDS_RECENT_GONE, path);
        return forgetRecent(path);
    }
    if (mayDiscard()) OpenDrawing(path);
}

/// The first of the files that are dropped on the window is opened.
void CMainFrame::OnDropFiles(HDROP drop) {
    const std::vector<CString> files = TakeDroppedFiles(drop);
    if (files.empty() || !IsWindowEnabled() || m_view.IsPicking()) return;
    const CString& path = files.front();
    SetForegroundWindow();
    if (const UINT problem = WhyNoDrawing(path)) return tell(problem, path);
    if (!mayDiscard() || !OpenDrawing(path) || files.size() == 1) return;
    tell(IDS_DROP_FIRST, path, static_cast<int>(files.size()));
}
