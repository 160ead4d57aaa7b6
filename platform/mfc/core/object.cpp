#include "kmfc/object.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include "afx.h"

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr,
                                       nullptr};

namespace {

CRuntimeClass* process_classes = nullptr;

CRuntimeClass** process_class_list() { return &process_classes; }

CRuntimeClass* next_process_class(CRuntimeClass* previous) {
    return previous ? previous->m_pNextClass : process_classes;
}

kmfc::ClassListHooks hooks = {process_class_list, next_process_class};

/// Class names are identifiers, so anything else than ASCII cannot match.
std::string narrow_name(LPCWSTR name) {
    std::string result;
    for (; *name; ++name) result.push_back(*name < 0x80 ? static_cast<char>(*name) : '?');
    return result;
}

}  // namespace

kmfc::ClassListHooks kmfc::set_class_list_hooks(ClassListHead head, ClassWalker walker) {
    const ClassListHooks previous = hooks;
    hooks = {head ? head : process_class_list, walker ? walker : next_process_class};
    return previous;
}

void kmfc::unregister_class(CRuntimeClass* runtime_class) {
    for (CRuntimeClass** link = hooks.head(); *link; link = &(*link)->m_pNextClass) {
        if (*link == runtime_class) {
            *link = runtime_class->m_pNextClass;
            return;
        }
    }
}

void AFXAPI AfxClassInit(CRuntimeClass* pNewClass) {
    CRuntimeClass** head = hooks.head();
    pNewClass->m_pNextClass = *head;
    *head = pNewClass;
}

CObject* CRuntimeClass::CreateObject() {
    if (!m_pfnCreateObject) return nullptr;
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (CMemoryException* e) {
        e->Delete();
        return nullptr;
    }
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName) {
    CRuntimeClass* found = FromName(lpszClassName);
    return found ? found->CreateObject() : nullptr;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCWSTR lpszClassName) {
    CRuntimeClass* found = FromName(lpszClassName);
    return found ? found->CreateObject() : nullptr;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName) {
    if (!lpszClassName) return nullptr;
    for (CRuntimeClass* c = hooks.walker(nullptr); c; c = hooks.walker(c)) {
        if (std::strcmp(c->m_lpszClassName, lpszClassName) == 0) return c;
    }
    return nullptr;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCWSTR lpszClassName) {
    return lpszClassName ? FromName(narrow_name(lpszClassName).c_str()) : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    for (const CRuntimeClass* c = this; c; c = c->m_pfnGetBaseClass ? c->m_pfnGetBaseClass() : nullptr) {
        if (c == pBaseClass) return TRUE;
    }
    return FALSE;
}

CObject::~CObject() = default;
CRuntimeClass* CObject::GetRuntimeClass() const { return RUNTIME_CLASS(CObject); }
CRuntimeClass* PASCAL CObject::GetThisClass() { return RUNTIME_CLASS(CObject); }
BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const { return GetRuntimeClass()->IsDerivedFrom(pClass); }
BOOL CObject::IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }
void CObject::Serialize(CArchive&) {}
void CObject::AssertValid() const {}
void CObject::Dump(CDumpContext& dc) const {
    dc << L"a " << GetRuntimeClass()->m_lpszClassName << L" at " << static_cast<const void*>(this) << L"\n";
}

void AFXAPI AfxDoForAllClasses(void (*pfn)(const CRuntimeClass* pClass, void* pContext), void* pContext) {
    for (CRuntimeClass* c = hooks.walker(nullptr); c; c = hooks.walker(c)) pfn(c, pContext);
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AFXAPI AfxStaticDownCast([[maybe_unused]] CRuntimeClass* pClass, CObject* pObject) {
    ASSERT(!pObject || pObject->IsKindOf(pClass));
    return pObject;
}

void AFXAPI AfxAssertFailedLine(const char* file, int line) {
    char text[512];
    std::snprintf(text, sizeof text, "assertion failed: %s(%d)\n", file, line);
#ifdef _WIN32
    OutputDebugStringA(text);
#endif
    std::fputs(text, stderr);
    std::abort();
}
