#include <ktui/nav/find_worker.h>

#include <ktui/nav/find_batch.h>
#include <ktui/nav/find_file_dlg.h>
#include <ktui/nav/find_file_walk.h>
#include <ktui/nav/find_messages.h>
#include <ktui/nav/find_once_walk.h>
#include <ktui/nav/find_system_files.h>
#include <ktui/nav/find_walk.h>

namespace {

/// Tells the dialog each thing by a message of its own.
class Teller : public FindListener {
public:
    explicit Teller(const CFindFileDlg& dialog) : m_dialog(dialog), m_window(dialog.m_hWnd) {}

    void Status(const CString& folder) override { send(WM_FIND_STATUS, folder, nullptr); }
    void File(const CString& folder, const FindListing& found) override {
        send(WM_FIND_FILE, folder, found.Name());
    }
    bool IsStopped() const override { return m_dialog.IsStopAsked(); }

private:
    void send(UINT message, const wchar_t* folder, const wchar_t* name) const {
        ::SendMessageW(m_window, message, reinterpret_cast<WPARAM>(folder), reinterpret_cast<LPARAM>(name));
    }
    const CFindFileDlg& m_dialog;
    HWND m_window;
};

void searchOnce(const FindSearchRequest& request) {
    const HWND window = request.m_dialog->m_hWnd;
    FindBatcher batcher(
        [window](const FindBatch& batch) {
            ::SendMessageW(window, WM_FIND_BATCH, 0, reinterpret_cast<LPARAM>(&batch));
        },
        [] { return ::GetTickCount64(); }, [&] { return request.m_dialog->IsStopAsked(); });
    WalkFoldersOnce(request, FindSystemFiles(), batcher);
    batcher.Flush();
}

void search(std::unique_ptr<FindSearchRequest> request) {
    const HWND window = request->m_dialog->m_hWnd;
    if (KtUiFindFileWalk() == kKtUiFindOnce) {
        searchOnce(*request);
    } else {
        Teller teller(*request->m_dialog);
        WalkFolders(*request, FindSystemFiles(), teller);
    }
    ::SendMessageW(window, WM_FIND_DONE, 0, 0);
}

/// The module of this code, held so that it outlives the thread's last steps.
HMODULE holdOwnModule() {
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&search), &module);
    return module;
}

DWORD WINAPI run(void* parameter) {
    const HMODULE module = holdOwnModule();
    search(std::unique_ptr<FindSearchRequest>(static_cast<FindSearchRequest*>(parameter)));
    ::FreeLibraryAndExitThread(module, 0);
}

}  // namespace

HANDLE StartFindThread(std::unique_ptr<FindSearchRequest> request) {
    const HANDLE thread = ::CreateThread(nullptr, 0, &run, request.get(), 0, nullptr);
    if (thread != nullptr) static_cast<void>(request.release());
    return thread;
}
