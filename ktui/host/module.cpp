// Load and unload of the library. The order of the steps is binding: each needs what the earlier ones made.
#include <ktui/host/loaded_module.h>

#include <ktui/host/platform_versions.h>
#include <ktui/host/theme_api.h>
#include <ktui/res/resource_ids.h>

#include <shlwapi.h>

#include <new>
#include <utility>

namespace {

constexpr int kArrowSize = 9;  // pixels
constexpr COLORREF kArrowMask = 0xFF00FF;

/// Moves the classes and factories that are registered so far aside, so that AfxInitExtensionModule sees
/// those of this library and no others. Has to be made before any other static object of the library.
struct ClassListsSetAside {
    ClassListsSetAside() {
        AFX_MODULE_STATE* state = AfxGetModuleState();
        state->m_pClassInit = state->m_classList.m_pHead;
        state->m_pFactoryInit = state->m_factoryList.m_pHead;
        state->m_classList.m_pHead = nullptr;
        state->m_factoryList.m_pHead = nullptr;
    }
};

const ClassListsSetAside classListsSetAside __attribute__((init_priority(101)));

// Held beside resourceLibrary, which the unload frees: strings are wanted until the very end.
const HMODULE stringLibrary = ::LoadLibraryW(L"ktdsres");

ToolkitModule toolkit;

/// Runs one step of the load, which may run out of memory. Nothing may be thrown out of a module's entry.
template <class Step>
void RunGuarded(Step step) {
    try {
        step();
    } catch (CException* exhausted) {
        exhausted->Delete();
    } catch (const std::bad_alloc&) {
    }
}

/// Has the resource search look into `module`. Without memory for that the module stays out of the chain.
void AddToModuleChain(AFX_EXTENSION_MODULE& module) {
    RunGuarded([&module] { new CDynLinkLibrary(module, FALSE); });
}

/// AfxInitExtensionModule, which for want of memory fails like for any other reason.
BOOL InitExtensionModule(AFX_EXTENSION_MODULE& module, HMODULE handle) {
    BOOL result = FALSE;
    RunGuarded([&] { result = AfxInitExtensionModule(module, handle); });
    return result;
}

void JoinResourceChain() {
    if (toolkit.resourceModuleReady || !InitExtensionModule(toolkit.resourceModule, toolkit.resourceLibrary))
        return;
    toolkit.resourceModuleReady = 1;
    AddToModuleChain(toolkit.resourceModule);
}

DWORD ReadOsVersionCode() {
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    ::GetVersionExW(&version);
    return MakeOsVersionCode(version.dwPlatformId, version.dwMajorVersion, version.dwMinorVersion);
}

template <class Function>
Function FindExport(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

DWORD ReadCommonControlsVersion(HMODULE controls) {
    const auto getVersion = FindExport<DLLGETVERSIONPROC>(controls, "DllGetVersion");
    DLLVERSIONINFO version = {};
    version.cbSize = sizeof version;
    if (!getVersion || FAILED(getVersion(&version))) return kUntoldControlsVersion;
    return MakeControlsVersion(version.dwMajorVersion, version.dwMinorVersion);
}

void SetUpButtonsAndThemes() {
    toolkit.arrowImageList =
        ::ImageList_LoadImageW(toolkit.ownModule.hModule, MAKEINTRESOURCEW(IDB_DROP_ARROWS), kArrowSize, 1,
                               kArrowMask, IMAGE_BITMAP, 0);
    if (!toolkit.arrowImageList) return;
    const HMODULE controls = ::GetModuleHandleW(L"COMCTL32.DLL");
    toolkit.osVersionCode = ReadOsVersionCode();
    toolkit.commonControlsVersion = ReadCommonControlsVersion(controls);
    toolkit.initCommonControlsEx =
        FindExport<decltype(toolkit.initCommonControlsEx)>(controls, "InitCommonControlsEx");

    const ThemeResolution found =
        ResolveThemeEntries(toolkit.osVersionCode, toolkit.commonControlsVersion, SystemThemeLibrary());
    toolkit.themeLibrary = static_cast<HMODULE>(found.module);
    ExchangeThemeApi(MakeThemeApi(found));
}

void ReadButtonWndProc() {
    WNDCLASSW button = {};
    if (::GetClassInfoW(nullptr, L"BUTTON", &button)) toolkit.buttonWndProc = button.lpfnWndProc;
}

BOOL Attach(HINSTANCE instance) {
    if (!InitExtensionModule(toolkit.ownModule, instance)) return FALSE;
    toolkit.resourceLibrary = ::LoadLibraryW(L"ktdsres.dll");
    AfxGetModuleState()->m_hCurrentResourceHandle = toolkit.resourceLibrary;
    JoinResourceChain();
    SetUpButtonsAndThemes();
    ReadButtonWndProc();
    AddToModuleChain(toolkit.ownModule);
    return TRUE;
}

void Detach() {
    if (toolkit.themeLibrary) ::FreeLibrary(std::exchange(toolkit.themeLibrary, nullptr));
    if (toolkit.arrowImageList) ::ImageList_Destroy(std::exchange(toolkit.arrowImageList, nullptr));
    if (toolkit.resourceModuleReady) {
        AfxTermExtensionModule(toolkit.resourceModule, FALSE);
        toolkit.resourceModuleReady = 0;
    }
    if (toolkit.resourceLibrary) ::FreeLibrary(std::exchange(toolkit.resourceLibrary, nullptr));
    AfxTermExtensionModule(toolkit.ownModule, FALSE);
}

}  // namespace

const ToolkitModule& LoadedToolkit() { return toolkit; }

HMODULE StringLibrary() { return stringLibrary; }

HMODULE KtUiOwnModule() { return toolkit.ownModule.hModule; }

void InitKtUiDLL() {}

void InitKbUiDLL() { InitKtUiDLL(); }

HINSTANCE KtUiAppResourceInstance() { return AfxGetModuleState()->m_hCurrentResourceHandle; }

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    switch (reason) {
        case DLL_PROCESS_ATTACH: return Attach(instance);
        case DLL_PROCESS_DETACH: Detach(); return TRUE;
        default: return TRUE;
    }
}
