// A module that adds a page to a tabbed dialog of another module.
#include "tab_extension_module.h"

#include <string>

#include <ktui/dialogs/ktui_tab_dialogs.h>

namespace {

AFX_EXTENSION_MODULE module = {};

class Page : public CKtUiTabChildDialog {
public:
    std::string calls;

protected:
    void OnTabActivation(int active) override { calls += active ? 'A' : 'a'; }
    void OnMainDialogOK() override { calls += 'O'; }
    int OnTabChanging() override {
        calls += '?';
        return 1;
    }
};

Page page;

}  // namespace

extern "C" __declspec(dllexport) int addExtensionPage(CKbUiTabExtensionManager& manager,
                                                      const wchar_t* wanted) {
    if (CString(manager.GetDialogName()) != wanted) return -1;
    return manager.AddTab(module.hModule, kExtensionTemplate, L"extension", &page);
}

extern "C" __declspec(dllexport) CKbUiTabChildDialog* extensionPage() { return &page; }

extern "C" __declspec(dllexport) const char* extensionCalls() { return page.calls.c_str(); }

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) return AfxInitExtensionModule(module, instance);
    if (reason == DLL_PROCESS_DETACH) AfxTermExtensionModule(module);
    return TRUE;
}
