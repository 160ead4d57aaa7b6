// The main window's File menu: drawings are opened, saved, dropped, and remembered.
#include "main_frame.h"

#include <ktui/host/message_box.h>
#include <ktut.h>
#include <standin_host.h>

#include "ask_file.h"
#include "dropped_files.h"
#include "messages.h"
#include "recent_list.h"
#include "resource.h"

namespace {

CString textOf(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

CString folderOf(const CString& path) { return path.Left(path.ReverseFind(L'\\')); }

/// Where the recent drawings are kept, per user.
class RecentStore {
public:
    RecentStore() : m_keeper(0) { m_keeper.SetDialogName(L"RecentDrawings"); }
    std::vector<OdString> Load() {
        std::vector<OdString> files;
        CString path;
        for (std::size_t i = 0; i < kMostRecentFiles; ++i)
            if (m_keeper.GetDialogData(name(i), path) && !path.IsEmpty()) files.push_back(OdString(path));
        return files;
    }
    void Save(const std::vector<OdString>& files) {
        for (std::size_t i = 0; i < kMostRecentFiles; ++i)
            m_keeper.SetDialogData(name(i), i < files.size() ? files[i].c_str() : L"");
    }

private:
    static CString name(std::size_t index) {
        CString text;
        text.Format(L"File%d", static_cast<int>(index + 1));
        return text;
    }
    CKtUiDialog m_keeper;
};

void tell(UINT id, const CString& path, int count = 0) {
    CString text;
    text.Format(id, path.GetString(), count);
    KtUiMessageBox(nullptr, text, MB_ICONEXCLAMATION);
}

}  // namespace

bool CMainFrame::OpenDrawing(const CString& path) {
    auto document = std::make_unique<CDraftDocument>();
    // The drawing that is open already has its lock.
    const bool isSame = m_document->lock().Holds(path);
    CString holder;
    if (!isSame && document->lock().Take(path, holder) == CDrawingLock::Result::kInUse) {
        const InUseChoice choice = AskInUse(*this, path, holder);
        if (choice == InUseChoice::kCancel) return false;
        document->SetReadOnly(choice == InUseChoice::kReadOnly);
    }
    OdDbDxfError error;
    if (!document->Open(path, error)) {
        TellUnreadable(*this, path, error, shownName());
        return false;
    }
    if (isSame) document->lock() = std::move(m_document->lock());
    showDocument(std::move(document));
    keepRecent(path);
    return true;
}

void CMainFrame::showDocument(std::unique_ptr<CDraftDocument> document) {
    m_host.SetCurrentDocument(document.get());
    m_view.SetScene({}, false);
    m_document = std::move(document);
    showDrawing(false);
}

bool CMainFrame::saveTo(const CString& path) {
    if (m_document->IsReadOnly() && path.CompareNoCase(m_document->path().c_str()) == 0) {
        CString text;
        text.Format(IDS_SAVE_READ_ONLY, path.GetString());
        KtUiMessageBox(nullptr, text, MB_ICONEXCLAMATION);
        return false;
    }
    if (m_document->Save(path)) {
        CString holder;
        m_document->SetReadOnly(false);
        m_document->lock().Take(path, holder);
        keepRecent(path);
        showTitle();
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

bool CMainFrame::mayDiscard() {
    if (!m_document->database()->isModified()) return true;
    switch (AskUnsavedChanges(*this, shownName())) {
        case UnsavedChoice::kCancel: return false;
        case UnsavedChoice::kDiscard: return true;
        case UnsavedChoice::kSave: break;
    }
    return saveDrawing();
}

CString CMainFrame::askFileName(bool forSaving) {
    const CString folder = m_recent.empty() ? CString() : folderOf(m_recent.front().c_str());
    CString name;
    if (forSaving) name = m_document->name().isEmpty() ? textOf(IDS_PROPOSED_NAME) : shownName();
    return AskFileName(*this, {IDS_FILE_FILTER, L"dxf", forSaving, name, folder});
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
    const CString path = askFileName(false);
    if (!path.IsEmpty()) OpenDrawing(path);
}

bool CMainFrame::saveDrawing() {
    bool asksName = m_document->path().isEmpty() || m_document->IsReadOnly();
    if (!asksName && m_document->IsFileNewer()) {
        const NewerFileChoice choice = AskNewerFile(*this, m_document->path().c_str());
        if (choice == NewerFileChoice::kCancel) return false;
        asksName = choice == NewerFileChoice::kSaveAs;
    }
    const CString path = asksName ? askFileName(true) : CString(m_document->path().c_str());
    return !path.IsEmpty() && saveTo(path);
}

void CMainFrame::OnFileSave() { saveDrawing(); }

void CMainFrame::OnFileSaveAs() {
    const CString path = askFileName(true);
    if (!path.IsEmpty()) saveTo(path);
}

void CMainFrame::loadRecent() { m_recent = RecentStore().Load(); }

void CMainFrame::keepRecent(const CString& path) {
    wchar_t whole[MAX_PATH] = {};
    const bool isWhole = ::GetFullPathNameW(path, MAX_PATH, whole, nullptr) < MAX_PATH;
    m_recent = WithRecent(m_recent, isWhole ? OdString(whole) : OdString(path));
    RecentStore().Save(m_recent);
}

void CMainFrame::OnRecentFile(UINT id) {
    const std::size_t index = id - ID_RECENT_FILE;
    if (index >= m_recent.size() || !mayDiscard()) return;
    const CString path = m_recent[index].c_str();
    if (::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES) {
        OpenDrawing(path);
        return;
    }
    tell(IDS_RECENT_GONE, path);
    m_recent = WithoutRecent(m_recent, m_recent[index]);
    RecentStore().Save(m_recent);
}

/// The menu shows the recent drawings in the place of one greyed item.
void CMainFrame::OnUpdateRecent(CCmdUI* item) {
    if (item->m_pMenu == nullptr) return;
    if (m_recent.empty()) {
        item->SetText(textOf(IDS_NO_RECENT));
        item->Enable(FALSE);
        return;
    }
    for (UINT i = 0; i < kMostRecentFiles; ++i) item->m_pMenu->DeleteMenu(ID_RECENT_FILE + i, MF_BYCOMMAND);
    for (std::size_t i = 0; i < m_recent.size(); ++i)
        item->m_pMenu->InsertMenu(item->m_nIndex++, MF_STRING | MF_BYPOSITION,
                                  ID_RECENT_FILE + static_cast<UINT>(i), RecentEntry(i, m_recent[i]));
    item->m_nIndex--;
    item->m_nIndexMax = item->m_pMenu->GetMenuItemCount();
    item->m_bEnableChanged = TRUE;
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
