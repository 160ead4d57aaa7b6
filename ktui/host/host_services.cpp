#include <ktui/host/host_services.h>

#include <imm.h>
#include <kh_system.h>
#include <od_host_services.h>
#include <ktui/host/host_calls.h>

namespace {

/// The input context of a window, released with the object.
class InputContext {
public:
    explicit InputContext(HWND window) : m_window(window), m_context(::ImmGetContext(window)) {}
    ~InputContext() { ::ImmReleaseContext(m_window, m_context); }
    InputContext(const InputContext&) = delete;
    InputContext& operator=(const InputContext&) = delete;
    HIMC get() const { return m_context; }

private:
    HWND m_window;
    HIMC m_context;
};

}  // namespace

void ShowHostHelp() {
    if (CKhUiHost* host = CKhSystem::instance()->uiHost()) host->showHelp(nullptr);
}

CWnd* HostMainWindow() {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    CWinApp* application = host ? host->application() : nullptr;
    return application ? application->m_pMainWnd : nullptr;
}

CWnd* KtUiMainWindow() {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    return host ? host->mainFrame() : nullptr;
}

void KtUiRootKey(CString& key) {
    if (OdDbHostAppServices* services = oddbHostApplicationServices())
        key = services->registryProductRootKey().c_str();
}

int KtUiEnableToolTips() { return 2; }

void ktuiSetCompositionWindow(HWND window, const POINT& point) {
    if (!window) return;
    const InputContext context(window);
    if (!context.get()) return;
    COMPOSITIONFORM form = {};
    form.dwStyle = CFS_POINT;
    form.ptCurrentPos = point;
    ::ImmSetCompositionWindow(context.get(), &form);
}

void KbUiSubstituteShellFont(CWnd&, CFont&) {}
