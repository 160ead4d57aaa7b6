// Module state: where resources come from, which classes and extension modules are registered.
//
// One AFX_MODULE_STATE serves the process; extension modules join it through AFX_EXTENSION_MODULE and
// CDynLinkLibrary, which chain their resources and run-time classes behind the application's.
#pragma once

#include <kmfc/cmd_target.h>

class CWinApp;
class CDynLinkLibrary;
class COleObjectFactory;

/// A singly linked list through a member of its elements; it owns nothing.
template <class T>
struct CSimpleHeadList {
    T* m_pHead = nullptr;
    T* GetHead() const { return m_pHead; }
    BOOL IsEmpty() const { return m_pHead == nullptr; }
    void RemoveAll() { m_pHead = nullptr; }
};

/// State shared by the application and its extension modules.
class KMFC_API AFX_MODULE_STATE {
public:
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;  ///< where AfxFindResourceHandle looks first
    LPCTSTR m_lpszCurrentAppName = nullptr;
    CWinApp* m_pCurrentWinApp = nullptr;

    CRuntimeClass* m_pClassInit = nullptr;  ///< head of the list before an extension module's classes joined
    CSimpleHeadList<CRuntimeClass> m_classList;
    COleObjectFactory* m_pFactoryInit = nullptr;
    CSimpleHeadList<COleObjectFactory> m_factoryList;
    CSimpleHeadList<CDynLinkLibrary> m_libraryList;  ///< newest first
};

/// What an extension module keeps about itself between AfxInitExtensionModule and AfxTermExtensionModule.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
    CRuntimeClass* pFirstSharedClass;
    COleObjectFactory* pFirstSharedFactory;
};

/// An extension module in the chain that AfxFindResourceHandle and CRuntimeClass::FromName walk.
/// Built with `new`; AfxTermExtensionModule deletes it.
class KMFC_API CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource, BOOL bSystem = FALSE);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    CSimpleHeadList<CRuntimeClass> m_classList;
    CSimpleHeadList<COleObjectFactory> m_factoryList;
    BOOL m_bSystem;  ///< system modules are searched after the application itself
    CDynLinkLibrary* m_pNextDLL;
};

KMFC_API AFX_MODULE_STATE* AfxGetModuleState();
/// Records the classes that joined since the module's load began as `state`'s, and clears the pending lists.
/// Returns FALSE when `hMod` is null.
KMFC_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod);
/// Takes the module's CDynLinkLibrary objects out of the chain (all modules' with `bAll`) and deletes them.
KMFC_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

KMFC_API HINSTANCE AfxGetInstanceHandle();
KMFC_API HINSTANCE AfxGetResourceHandle();
KMFC_API void AfxSetResourceHandle(HINSTANCE hInstResource);
/// The first module that holds resource `lpszName` of `lpszType`: the current resource module, then the
/// extension modules newest first, the application, the system modules and the class layer itself; the
/// current resource module when none does.
KMFC_API HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
