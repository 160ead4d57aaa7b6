#include <ktui/nav/platform_file_dialog.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/platform_versions.h>

namespace {

constexpr UINT kGetShellBrowser = WM_USER + 7;  // WM_GETISHELLBROWSER: an IShellBrowser, not counted
constexpr std::uint32_t kFirstLaterMajor = 6;

}  // namespace

bool IsLaterSystem() { return OsMajorVersion(LoadedToolkit().osVersionCode) >= kFirstLaterMajor; }

void FindShellView(HWND dialog, ComReference<IShellView>& view) {
    auto* const browser = reinterpret_cast<IShellBrowser*>(::SendMessageW(dialog, kGetShellBrowser, 0, 0));
    if (browser != nullptr) browser->QueryActiveShellView(view.place());
}

void FindFolderView(HWND dialog, ComReference<IFolderView>& view) {
    ComReference<IShellView> shown;
    FindShellView(dialog, shown);
    if (shown) shown->QueryInterface(IID_IFolderView, view.anyPlace());
}

HWND FindFileList(HWND dialog) {
    const HWND view = ::GetDlgItem(dialog, kPlatformView);
    return view != nullptr ? ::GetWindow(view, GW_CHILD) : nullptr;
}
