// A drawing's part of the File menu: it is saved, and asks before its changes are lost.
#include "drawing_window.h"

#include <ktui/host/message_box.h>
#include <ktut.h>

#include "ask_file.h"
#include "drawing_chooser.h"
#include "recent_drawings.h"
#include "resource.h"

namespace {

void tell(UINT id, const CString& path) {
    CString text;
    text.Format(id, path.GetString());
    KtUiMessageBox(nullptr, text, MB_ICONEXCLAMATION);
}

}  // namespace

CString CDrawingWindow::proposedName() const {
    if (!m_document->name().isEmpty()) return m_document->name().c_str();
    CString name;
    name.Format(IDS_PROPOSED_NAME, m_number);
    return name;
}

bool CDrawingWindow::saveTo(const CString& path, const OdDxfForm& form) {
    if (m_document->IsReadOnly() && path.CompareNoCase(m_document->path().c_str()) == 0) {
        tell(IDS_SAVE_READ_ONLY, path);
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
        KeepRecent(path);
        showTitle();
        m_desk.SayIdle();
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

LossChoice CDrawingWindow::askLosses(const CString& path, OdDb::DwgVersion version) {
    std::vector<OdDxfLoss> losses;
    if (!m_document->LosesMore(version, losses)) return LossChoice::kSave;
    const LossChoice choice = AskLosses(m_desk.DialogOwner(), path, losses);
    if (choice == LossChoice::kSave) m_document->AcceptLosses(version, losses);
    return choice;
}

bool CDrawingWindow::lockForSaving(const CString& path, CDrawingLock& lock) {
    const CDrawingWindow* const other = m_desk.WindowOf(path);
    if (other != nullptr && other != this) {
        tell(IDS_SAVE_OPEN_HERE, path);
        return false;
    }
    if (m_document->lock().Holds(path)) return true;
    CString holder;
    const bool isInUse = lock.Take(path, holder) == CDrawingLock::Result::kInUse;
    // Of the drawing's own file the user was told when it was opened.
    if (!isInUse || path.CompareNoCase(m_document->path().c_str()) == 0) return true;
    TellInUse(path, holder);
    return false;
}

bool CDrawingWindow::MayClose() {
    if (!drawing().isModified()) return true;
    MDIActivate();
    switch (AskUnsavedChanges(m_desk.DialogOwner(), ShownName())) {
        case UnsavedChoice::kCancel: return false;
        case UnsavedChoice::kDiscard: return true;
        case UnsavedChoice::kSave: break;
    }
    return Save();
}

/// Asks for a name and a form, and saves the drawing there; false if it wasn't saved.
bool CDrawingWindow::saveAs() {
    const DrawingToSave to = AskDrawingToSave(RecentFolder(), proposedName(), *m_document);
    return !to.path.IsEmpty() && saveTo(to.path, to.form);
}

bool CDrawingWindow::Save() {
    bool asksName = m_document->path().isEmpty() || m_document->IsReadOnly();
    if (!asksName && m_document->IsFileNewer()) {
        const NewerFileChoice choice = AskNewerFile(m_desk.DialogOwner(), m_document->path().c_str());
        if (choice == NewerFileChoice::kCancel) return false;
        asksName = choice == NewerFileChoice::kSaveAs;
    }
    return asksName ? saveAs() : saveTo(m_document->path().c_str(), m_document->form());
}

void CDrawingWindow::OnFileSave() { Save(); }

void CDrawingWindow::OnFileSaveAs() { saveAs(); }

void CDrawingWindow::OnFileClose() { PostMessage(WM_CLOSE); }
