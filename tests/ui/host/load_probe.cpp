// Loads and frees the toolkit three times and writes down, a line each, what it asks of the system and of the
// class layer on its way, with what it holds when it is loaded and what is left behind.
//
//     load_probe <file to write> [plain|themes|<what fails>]
//
// "plain" has the system's own common controls, all else controls of a version with themes.
// The toolkit's imports are replaced between its mapping and its first line of code, so that nothing of the
// load is missed and any step of it can be made to fail.
#include <cstdio>
#include <cwchar>
#include <string>

#include <afxwin.h>
#include <afxcmn.h>
#include <ktui/host/test_door.h>
#include <shlwapi.h>
#include <winternl.h>

#include "replaced_import.h"

namespace {

CWinApp application;

std::FILE* out = nullptr;
std::wstring mode = L"plain";
HMODULE toolkit = nullptr;

/// What stands in the class layer's list of factories when the load begins; never looked into.
COleObjectFactory* const kSomeFactory = reinterpret_cast<COleObjectFactory*>(0x1234);
CRuntimeClass* firstClass = nullptr;

std::string nameOf(HMODULE module) {
    if (!module) return "none";
    wchar_t path[MAX_PATH] = {};
    if (!::GetModuleFileNameW(module, path, MAX_PATH)) return "gone";
    const wchar_t* const slash = std::wcsrchr(path, L'\\');
    std::string name;
    for (const wchar_t* at = slash ? slash + 1 : path; *at; ++at) name += static_cast<char>(towlower(*at));
    return name;
}

// What stands in for the imports. Each writes its line, then calls on.

HMODULE WINAPI LoadLibraryW_(LPCWSTR name) {
    std::fprintf(out, "load %ls\n", name);
    return mode == std::wstring(L"no-") + name ? nullptr : ::LoadLibraryW(name);
}

BOOL WINAPI FreeLibrary_(HMODULE module) {
    std::fprintf(out, "free %s\n", nameOf(module).c_str());
    return ::FreeLibrary(module);
}

HRESULT CALLBACK TellVersion(DLLVERSIONINFO* version) {
    std::fprintf(out, "version of size %s\n", version->cbSize == sizeof *version ? "right" : "wrong");
    version->dwMajorVersion = mode == L"old-controls" ? 5 : 6;
    version->dwMinorVersion = 0x51;
    return mode == L"version-fails" ? E_FAIL : S_OK;
}

void NoButtons() {}

FARPROC WINAPI GetProcAddress_(HMODULE module, LPCSTR name) {
    std::fprintf(out, "find %s %s\n", nameOf(module).c_str(), name);
    const std::wstring wide(name, name + std::strlen(name));
    if (mode == L"no-" + wide) return nullptr;
    if (wide == L"DllGetVersion" && mode != L"plain") return reinterpret_cast<FARPROC>(&TellVersion);
    if (wide == L"InitCommonControlsEx") return reinterpret_cast<FARPROC>(&NoButtons);
    return ::GetProcAddress(module, name);
}

HMODULE WINAPI GetModuleHandleW_(LPCWSTR name) {
    std::fprintf(out, "handle %ls\n", name);
    return ::GetModuleHandleW(name);
}

BOOL WINAPI GetVersionExW_(OSVERSIONINFOW* version) {
    std::fprintf(out, "system of size %s\n",
                 version->dwOSVersionInfoSize == sizeof *version ? "right" : "wrong");
    version->dwPlatformId = 2;
    version->dwMajorVersion = mode == L"old-system" ? 5 : 6;
    version->dwMinorVersion = mode == L"old-system" ? 0 : 3;
    return TRUE;
}

LRESULT CALLBACK ButtonProc(HWND, UINT, WPARAM, LPARAM) { return 0; }

BOOL WINAPI GetClassInfoW_(HINSTANCE instance, LPCWSTR name, WNDCLASSW* found) {
    std::fprintf(out, "class %ls of %s\n", name, nameOf(instance).c_str());
    if (mode == L"no-button") return FALSE;
    found->lpfnWndProc = &ButtonProc;
    return TRUE;
}

HIMAGELIST WINAPI ImageList_LoadImageW_(HINSTANCE instance, LPCWSTR name, int width, int grow, COLORREF mask,
                                        UINT type, UINT flags) {
    std::fprintf(out, "images %s %u %d %d %06lx %u %u\n", nameOf(instance).c_str(),
                 static_cast<unsigned>(reinterpret_cast<UINT_PTR>(name)), width, grow, mask, type, flags);
    return mode == L"no-images" ? nullptr
                                : ::ImageList_LoadImageW(instance, name, width, grow, mask, type, flags);
}

BOOL WINAPI ImageList_Destroy_(HIMAGELIST images) {
    int width = 0, height = 0;
    const BOOL there = ::ImageList_GetIconSize(images, &width, &height);
    const int count = ::ImageList_GetImageCount(images);
    const BOOL gone = ::ImageList_Destroy(images);
    std::fprintf(out, "destroy %d images of %d by %d%s\n", count, width, height,
                 there && gone ? "" : " in vain");
    return gone;
}

BOOL AfxInitExtensionModule_(AFX_EXTENSION_MODULE& state, HMODULE module) {
    const AFX_MODULE_STATE* const shared = AfxGetModuleState();
    std::fprintf(out, "init %s\n", nameOf(module).c_str());
    if (module == toolkit) {
        const bool aside = shared->m_pClassInit == firstClass && shared->m_pFactoryInit == kSomeFactory;
        const bool own = shared->m_classList.m_pHead != firstClass && !shared->m_factoryList.m_pHead;
        std::fprintf(out, "lists %s %s\n", aside ? "aside" : "left", own ? "own" : "mixed");
        if (mode == L"no-own") return FALSE;
    } else if (mode == L"no-resource-module") {
        return FALSE;
    }
    return AfxInitExtensionModule(state, module);
}

void AfxTermExtensionModule_(AFX_EXTENSION_MODULE& state, BOOL all) {
    std::fprintf(out, "term %s %d\n", nameOf(state.hModule).c_str(), all);
    AfxTermExtensionModule(state, all);
}

using JoinChain = void (*)(void*, AFX_EXTENSION_MODULE&, BOOL);
JoinChain joinChain = nullptr;

void JoinChain_(void* object, AFX_EXTENSION_MODULE& state, BOOL isSystem) {
    std::fprintf(out, "chain %s %d\n", nameOf(state.hModule).c_str(), isSystem);
    joinChain(object, state, isSystem);
}

struct Import {
    const char* name;
    void* function;
};

void watch(HMODULE module) {
    const Import imports[] = {
        {"LoadLibraryW", reinterpret_cast<void*>(&LoadLibraryW_)},
        {"FreeLibrary", reinterpret_cast<void*>(&FreeLibrary_)},
        {"GetProcAddress", reinterpret_cast<void*>(&GetProcAddress_)},
        {"GetModuleHandleW", reinterpret_cast<void*>(&GetModuleHandleW_)},
        {"GetVersionExW", reinterpret_cast<void*>(&GetVersionExW_)},
        {"GetClassInfoW", reinterpret_cast<void*>(&GetClassInfoW_)},
        {"ImageList_LoadImageW", reinterpret_cast<void*>(&ImageList_LoadImageW_)},
        {"ImageList_Destroy", reinterpret_cast<void*>(&ImageList_Destroy_)},
        {"_Z22AfxInitExtensionModuleR20AFX_EXTENSION_MODULEP11HINSTANCE__",
         reinterpret_cast<void*>(&AfxInitExtensionModule_)},
        {"_Z22AfxTermExtensionModuleR20AFX_EXTENSION_MODULEi",
         reinterpret_cast<void*>(&AfxTermExtensionModule_)},
    };
    toolkit = module;
    for (const Import& import : imports)
        if (!ui_test::replace_import(module, import.name, import.function))
            std::fprintf(out, "not imported: %s\n", import.name);
    joinChain = reinterpret_cast<JoinChain>(ui_test::replace_import(
        module, "_ZN15CDynLinkLibraryC1ER20AFX_EXTENSION_MODULEi", reinterpret_cast<void*>(&JoinChain_)));
}

// The loader tells of a library when it is mapped and its imports are bound, before its code runs.
struct LoaderNotice {
    ULONG flags;
    const UNICODE_STRING* fullName;
    const UNICODE_STRING* baseName;
    void* base;
    ULONG size;
};
using LoaderCallback = void(CALLBACK*)(ULONG reason, const LoaderNotice* notice, void* context);
using RegisterNotification = LONG(NTAPI*)(ULONG flags, LoaderCallback callback, void* context, void** cookie);
constexpr ULONG kLoaded = 1;

void CALLBACK onLoaderNotice(ULONG reason, const LoaderNotice* notice, void*) {
    if (reason == kLoaded && _wcsicmp(notice->baseName->Buffer, L"ktui.dll") == 0)
        watch(static_cast<HMODULE>(notice->base));
}

bool listenToLoader() {
    const auto listen = reinterpret_cast<RegisterNotification>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "LdrRegisterDllNotification")));
    static void* cookie = nullptr;
    return listen && listen(0, &onLoaderNotice, nullptr, &cookie) == 0;
}

void tellChain() {
    std::fprintf(out, "chain is");
    for (CDynLinkLibrary* each = AfxGetModuleState()->m_libraryList.GetHead(); each; each = each->m_pNextDLL)
        std::fprintf(out, " %s", nameOf(each->m_hResource).c_str());
    std::fprintf(out, "\n");
}

void tellLoaded() {
    const auto door = reinterpret_cast<decltype(&KtUiTestDoor)>(
        reinterpret_cast<void*>(::GetProcAddress(toolkit, "_Z12KtUiTestDoorv")));
    const ToolkitModule& held = door().loadedToolkit();
    std::fprintf(out, "own %s, resources %s %d\n", nameOf(held.ownModule.hModule).c_str(),
                 nameOf(held.resourceLibrary).c_str(), held.resourceModuleReady);
    std::fprintf(out, "active %s\n", nameOf(AfxGetResourceHandle()).c_str());
    std::fprintf(out, "versions %06lx %08lx\n", held.osVersionCode, held.commonControlsVersion);
    std::fprintf(out, "button %s, controls %s, images %s, themes %s\n", held.buttonWndProc ? "yes" : "no",
                 held.initCommonControlsEx ? "yes" : "no", held.arrowImageList ? "yes" : "no",
                 nameOf(held.themeLibrary).c_str());
    const ThemeApi none;
    const ThemeApi api = door().exchangeThemeApi(none);
    const auto systems = reinterpret_cast<void*>(::GetProcAddress(held.themeLibrary, "OpenThemeData"));
    const bool isSystems = held.themeLibrary && reinterpret_cast<void*>(api.openThemeData) == systems;
    std::fprintf(out, "theme entries %s%s\n", isSystems ? "system" : "fallback",
                 api.bufferedPaintRenderAnimation ? " and animation" : "");
    door().exchangeThemeApi(api);
}

/// One load and what follows; false if the library can't be loaded.
bool loadOnce() {
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    firstClass = state->m_classList.m_pHead;
    state->m_factoryList.m_pHead = kSomeFactory;
    std::fprintf(out, "-- load\n");
    const HMODULE module = ::LoadLibraryW(L"ktui.dll");
    if (module) {
        std::fprintf(out, "-- loaded\n");
        tellLoaded();
        tellChain();
        std::fprintf(out, "-- unload\n");
        ::FreeLibrary(module);
    }
    std::fprintf(out, "-- left\n");
    std::fprintf(out, "toolkit %s\n", ::GetModuleHandleW(L"ktui.dll") ? "loaded" : "gone");
    std::fprintf(out, "classes %s\n", state->m_classList.m_pHead == firstClass ? "as before" : "changed");
    tellChain();
    return module != nullptr;
}

/// How many holders the resource library has left; lets go of all of them.
int holdersOfTheResourceLibrary() {
    int holders = 0;
    while (const HMODULE library = ::GetModuleHandleW(L"ktdsres.dll")) {
        ::FreeLibrary(library);
        ++holders;
    }
    return holders;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 2 || !(out = ::_wfopen(arguments[1], L"w"))) return 1;
    if (count > 2) mode = arguments[2];
    // Held here, so that only the toolkit itself comes and goes.
    for (const wchar_t* name : {L"ktrx.dll", L"ktdb.dll", L"ktut.dll", L"odrt.dll", L"comctl32.dll"})
        if (!::LoadLibraryW(name)) return 2;
    if (!listenToLoader()) return 3;
    for (int i = 0; i < 3; ++i) {
        const bool isLoaded = loadOnce();
        if (!isLoaded && mode != L"no-own") return 4;
    }
    std::fprintf(out, "-- holders\n%d\n", holdersOfTheResourceLibrary());
    std::fclose(out);
    return 0;
}
