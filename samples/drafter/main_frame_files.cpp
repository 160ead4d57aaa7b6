// The main window's File menu: drawings are started, opened, dropped, and closed or saved together.
#include "main_frame.h"

#include <ktui/host/message_box.h>
#include <standin_host.h>

#include <algorithm>

#include "drawing_chooser.h"
#include "dropped_files.h"
#include "messages.h"
#include "recent_drawings.h"
#include "resource.h"

namespace {

/// The path as others name the file too: a lock and the recent drawings know a drawing by it.
CString wholePath(const CString& path) {
    wchar_t whole[MAX_PATH] = {};
    const DWORD length = ::GetFullPathNameW(path, MAX_PATH, whole, nullptr);
    return length > 0 && length < MAX_PATH ? CString(whole) : path;
}

void tell(UINT id, const CString& path) {
    CString text;
    text.Format(id, path.GetString());
    KtUiMessageBox(nullptr, text, MB_ICONEXCLAMATION);
}

}  // namespace

void CMainFrame::OpenAtStart(const std::vector<CString>& files) {
    // A message about a file has a drawing behind it.
    m_first = show(std::make_unique<CDraftDocument>());
    openEach(files, false);
}

bool CMainFrame::OpenDrawing(const CString& file, bool isReadOnly) {
    const CString path = wholePath(file);
    if (CDrawingWindow* const open = WindowOf(path)) {
        open->MDIActivate();
        KeepRecent(path);
        return true;
    }
    auto document = std::make_unique<CDraftDocument>();
    CString holder;
    document->SetReadOnly(isReadOnly);
    if (!isReadOnly && document->lock().Take(path, holder) == CDrawingLock::Result::kInUse) {
        const InUseChoice choice = AskInUse(*this, path, holder);
        if (choice == InUseChoice::kCancel) return false;
        document->SetReadOnly(choice == InUseChoice::kReadOnly);
    }
    OdDbDxfError error;
    if (!document->Open(path, error)) {
        TellUnreadable(*this, path, error, m_active != nullptr ? m_active->ShownName() : CString());
        return false;
    }
    leaveFirst();
    CDrawingWindow* const window = show(std::move(document));
    if (window == nullptr) return false;
    KeepRecent(path);
    const OdDxfReading& reading = window->document().Reading();
    if (reading.mendCount > 0) TellMended(*this, path, reading);
    return true;
}

CDrawingWindow* CMainFrame::show(std::unique_ptr<CDraftDocument> document) {
    auto* const window = new CDrawingWindow(*this, std::move(document), nextNumber());
    return window->Open(*this) ? window : nullptr;
}

int CMainFrame::nextNumber() {
    const std::vector<CDrawingWindow*> all = drawings();
    const auto isTaken = [&](int number) {
        return std::ranges::any_of(all, [&](const CDrawingWindow* each) {
            return each->document().path().isEmpty() && each->number() == number;
        });
    };
    int number = 1;
    while (isTaken(number)) ++number;
    return number;
}

void CMainFrame::leaveFirst() {
    CDrawingWindow* const first = std::exchange(m_first, nullptr);
    // The user may have closed it.
    if (first == nullptr || std::ranges::count(drawings(), first) == 0) return;
    CDraftDocument& document = first->document();
    const bool isUntouched =
        document.path().isEmpty() && !document.history().CanUndo() && !document.history().CanRedo();
    if (isUntouched && !document.database()->isModified()) first->DestroyWindow();
}

void CMainFrame::OnFileNew() {
    auto document = std::make_unique<CDraftDocument>();
    OdDbDxfError error;
    if (!m_options.templateFile.IsEmpty() && !document->StartFrom(m_options.templateFile, error))
        TellUnreadable(*this, m_options.templateFile, error,
                       m_active != nullptr ? m_active->ShownName() : CString());
    show(std::move(document));
}

void CMainFrame::OnFileOpen() {
    const DrawingsToOpen chosen = AskDrawingsToOpen(RecentFolder());
    openEach(chosen.paths, chosen.isReadOnly);
}

void CMainFrame::openEach(const std::vector<CString>& files, bool isReadOnly) {
    for (const CString& file : files) OpenDrawing(file, isReadOnly);
}

bool CMainFrame::mayCloseAll() {
    for (CDrawingWindow* const each : drawings())
        if (!each->MayClose()) return false;
    return true;
}

void CMainFrame::OnCloseAll() {
    if (!mayCloseAll()) return;
    for (CDrawingWindow* const each : drawings()) each->DestroyWindow();
}

void CMainFrame::OnSaveAll() {
    CDrawingWindow* const front = m_active;
    for (CDrawingWindow* const each : drawings()) {
        if (!each->drawing().isModified()) continue;
        each->MDIActivate();
        if (!each->Save()) return;
    }
    if (front != nullptr) front->MDIActivate();
}

void CMainFrame::OpenRecent(int index) {
    const CString path = RecentDrawing(index);
    if (path.IsEmpty()) return;
    if (::GetFileAttributesW(path) == INVALID_FILE_ATTRIBUTES) {
        tell(IDS_RECENT_GONE, path);
        return ForgetRecent(path);
    }
    OpenDrawing(path);
}

/// Each of the files that are dropped on the window is opened.
void CMainFrame::OnDropFiles(HDROP drop) {
    const std::vector<CString> files = TakeDroppedFiles(drop);
    if (!IsWindowEnabled() || isPicking()) return;
    SetForegroundWindow();
    for (const CString& file : files) {
        if (const UINT problem = WhyNoDrawing(file))
            tell(problem, file);
        else
            OpenDrawing(file);
    }
}
