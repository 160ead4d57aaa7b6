// The module state, and the chain of extension modules behind it.
#include <kmfc/module_state.h>

#include <kmfc/app.h>

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace {

CRuntimeClass** current_class_list() { return &AfxGetModuleState()->m_classList.m_pHead; }

/// Walks the classes of the application, then those of each extension module.
CRuntimeClass* next_class(CRuntimeClass* previous) {
    AFX_MODULE_STATE* state = AfxGetModuleState();
    if (previous == nullptr && !state->m_classList.IsEmpty()) return state->m_classList.GetHead();
    if (previous != nullptr && previous->m_pNextClass != nullptr) return previous->m_pNextClass;
    bool found = previous == nullptr;
    if (!found) {
        for (CRuntimeClass* c = state->m_classList.GetHead(); c != nullptr && !found; c = c->m_pNextClass)
            found = c == previous;
    }
    for (CDynLinkLibrary* library = state->m_libraryList.GetHead(); library; library = library->m_pNextDLL) {
        if (found && !library->m_classList.IsEmpty()) return library->m_classList.GetHead();
        for (CRuntimeClass* c = library->m_classList.GetHead(); c != nullptr && !found; c = c->m_pNextClass)
            found = c == previous;
    }
    return nullptr;
}

/// Installs the hooks before any class of any module registers itself.
struct ClassListHooks {
    ClassListHooks() { kmfc::set_class_list_hooks(&current_class_list, &next_class); }
};
__attribute__((init_priority(150))) const ClassListHooks class_list_hooks;

/// The class layer's own library, which holds the texts of its messages.
HMODULE own_module() { return reinterpret_cast<HMODULE>(&__ImageBase); }

BOOL HasResource(HMODULE module, LPCTSTR name, LPCTSTR type) {
    return module != nullptr && ::FindResourceW(module, name, type) != nullptr;
}

HMODULE FindInLibraries(LPCTSTR name, LPCTSTR type, BOOL system) {
    for (CDynLinkLibrary* library = AfxGetModuleState()->m_libraryList.GetHead(); library != nullptr;
         library = library->m_pNextDLL) {
        if ((library->m_bSystem != FALSE) == (system != FALSE) &&
            HasResource(library->m_hResource, name, type))
            return library->m_hResource;
    }
    return nullptr;
}

}  // namespace

AFX_MODULE_STATE* AfxGetModuleState() {
    static AFX_MODULE_STATE* const state = [] {
        auto* made = new AFX_MODULE_STATE;
        made->m_hCurrentInstanceHandle = ::GetModuleHandleW(nullptr);
        made->m_hCurrentResourceHandle = made->m_hCurrentInstanceHandle;
        return made;
    }();
    return state;
}

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem) {
    m_classList.m_pHead = state.pFirstSharedClass;
    m_factoryList.m_pHead = state.pFirstSharedFactory;
    AFX_MODULE_STATE* module = AfxGetModuleState();
    m_pNextDLL = module->m_libraryList.m_pHead;
    module->m_libraryList.m_pHead = this;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource, BOOL bSystem)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(bSystem) {
    AFX_MODULE_STATE* module = AfxGetModuleState();
    m_pNextDLL = module->m_libraryList.m_pHead;
    module->m_libraryList.m_pHead = this;
}

CDynLinkLibrary::~CDynLinkLibrary() {
    CDynLinkLibrary** link = &AfxGetModuleState()->m_libraryList.m_pHead;
    while (*link != nullptr && *link != this) link = &(*link)->m_pNextDLL;
    if (*link == this) *link = m_pNextDLL;
}

namespace {

/// Whether `address` lies in the image of `module`.
bool lies_in(HMODULE module, const void* address) {
    MEMORY_BASIC_INFORMATION memory = {};
    return ::VirtualQuery(address, &memory, sizeof(memory)) != 0 && memory.AllocationBase == module;
}

/// Takes the classes of `module` out of `list` and puts them before `owned`, both in their order; the new
/// head of `owned`.
CRuntimeClass* take_classes(HMODULE module, CRuntimeClass*& list, CRuntimeClass* owned) {
    CRuntimeClass* taken = nullptr;
    CRuntimeClass** end = &taken;
    for (CRuntimeClass** link = &list; *link != nullptr;) {
        CRuntimeClass* each = *link;
        if (!lies_in(module, each)) {
            link = &each->m_pNextClass;
            continue;
        }
        *link = each->m_pNextClass;
        *end = each;
        end = &each->m_pNextClass;
    }
    *end = owned;
    return taken;
}

/// Puts `more` behind the last class of `list`.
void append_classes(CRuntimeClass*& list, CRuntimeClass* more) {
    CRuntimeClass** end = &list;
    while (*end != nullptr) end = &(*end)->m_pNextClass;
    *end = more;
}

}  // namespace

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod) {
    if (hMod == nullptr) return FALSE;
    if (state.bInitialized) return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hMod;
    if (state.hResource == nullptr) state.hResource = hMod;
    AFX_MODULE_STATE* module = AfxGetModuleState();
    // What was set aside comes back first; then the module's own classes leave, wherever they stand, and
    // nobody else's. A module that joins again still has those it took the first time.
    append_classes(module->m_classList.m_pHead, module->m_pClassInit);
    module->m_pClassInit = nullptr;
    state.pFirstSharedClass = take_classes(hMod, module->m_classList.m_pHead, state.pFirstSharedClass);
    state.pFirstSharedFactory = module->m_factoryList.m_pHead;
    module->m_factoryList.m_pHead = module->m_pFactoryInit;
    module->m_pFactoryInit = nullptr;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll) {
    if (!state.bInitialized) return;
    CDynLinkLibrary* library = AfxGetModuleState()->m_libraryList.GetHead();
    while (library != nullptr) {
        CDynLinkLibrary* next = library->m_pNextDLL;
        if (bAll || library->m_hModule == state.hModule) delete library;
        library = next;
    }
    state.bInitialized = FALSE;
    state.hResource = nullptr;
}

HINSTANCE AfxGetInstanceHandle() { return AfxGetModuleState()->m_hCurrentInstanceHandle; }
HINSTANCE AfxGetResourceHandle() { return AfxGetModuleState()->m_hCurrentResourceHandle; }
void AfxSetResourceHandle(HINSTANCE hInstResource) {
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    HINSTANCE current = AfxGetResourceHandle();
    if (HasResource(current, lpszName, lpszType)) return current;
    if (HMODULE found = FindInLibraries(lpszName, lpszType, FALSE)) return found;
    HINSTANCE application = AfxGetInstanceHandle();
    if (application != current && HasResource(application, lpszName, lpszType)) return application;
    if (HMODULE found = FindInLibraries(lpszName, lpszType, TRUE)) return found;
    return HasResource(own_module(), lpszName, lpszType) ? own_module() : current;
}
