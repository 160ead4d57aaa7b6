// Run-time class information: what a class is called, what it derives from, how to make one.
//
// Every class that states DECLARE_DYNAMIC (or _DYNCREATE, _SERIAL) owns one CRuntimeClass, which is entered
// into the class list of the module being started and taken out when that module is unloaded.
#pragma once

#include "kmfc/diagnostics.h"

class CArchive;
class CObject;
struct AFX_CLASSINIT;

/// What is known of a class at run time. Objects are static data of the class they describe; never created
/// or deleted by callers.
struct KMFC_API CRuntimeClass {
    LPCSTR m_lpszClassName;  ///< the class name as written in the source
    int m_nObjectSize;       ///< size of an object, in bytes
    UINT m_wSchema;          ///< schema number of IMPLEMENT_SERIAL, 0xFFFF when not serializable
    CObject*(PASCAL* m_pfnCreateObject)();  ///< makes an object with new; null when not dynamically creatable
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();  ///< class of the base, null for CObject
    CRuntimeClass* m_pNextClass;                  ///< next class of the same module's list

    /// A new object owned by the caller, or null when the class cannot be created or memory is short.
    CObject* CreateObject();
    /// The same by class name; null as well when no class of that name is registered.
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCWSTR lpszClassName);
    /// The registered class of that name, or null. The newest registration wins.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    static CRuntimeClass* PASCAL FromName(LPCWSTR lpszClassName);
    /// Whether this class is `pBaseClass` or derives from it.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /// Writes the class name and schema of this class.
    void Store(CArchive& ar) const;
    /// Reads a class name and schema; null when no such class is registered.
    static CRuntimeClass* PASCAL Load(CArchive& ar, UINT* pwSchemaNum);
};

/// Enters a class into the list of the module being started. Called once by the static data of each class.
KMFC_API void AFXAPI AfxClassInit(CRuntimeClass* pNewClass);

namespace kmfc {

/// Walks the classes that FromName may find: called with `previous` null for the first, null when at the end.
using ClassWalker = CRuntimeClass* (*)(CRuntimeClass* previous);

/// Answers the head of the list that new classes are linked into.
using ClassListHead = CRuntimeClass** (*)();

/// How classes are entered and walked.
struct ClassListHooks {
    ClassListHead head;
    ClassWalker walker;
};

/// Replaces where new classes are entered, and how all classes are walked; answers what was in force. Null
/// restores one list for the whole process. Used by the module state, which keeps a list per module.
KMFC_API ClassListHooks set_class_list_hooks(ClassListHead head, ClassWalker walker);

/// Takes a class out of the list it is in, if it is in the current one.
KMFC_API void unregister_class(CRuntimeClass* runtime_class);

}  // namespace kmfc

/// Registers a class for as long as the module that holds it is loaded.
struct AFX_CLASSINIT {
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass) : m_class(pNewClass) { AfxClassInit(pNewClass); }
    ~AFX_CLASSINIT() { kmfc::unregister_class(m_class); }
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_class;
};

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

#define DECLARE_DYNAMIC(class_name)                               \
public:                                                           \
    static CRuntimeClass class##class_name;                       \
    [[maybe_unused]] static CRuntimeClass* PASCAL GetThisClass(); \
    [[maybe_unused]] CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name) \
    DECLARE_DYNAMIC(class_name)       \
    [[maybe_unused]] static CObject* PASCAL CreateObject();

#define DECLARE_SERIAL(class_name) \
    DECLARE_DYNCREATE(class_name)  \
    friend CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb);

#define KMFC_IMPLEMENT_CLASS(class_name, base_class_name, schema, create)                  \
    CRuntimeClass class_name::class##class_name = {                                        \
        #class_name, static_cast<int>(sizeof(class_name)), schema,                         \
        create,      &base_class_name::GetThisClass,       nullptr};                       \
    static const AFX_CLASSINIT afx_class_init_##class_name(RUNTIME_CLASS(class_name));     \
    CRuntimeClass* PASCAL class_name::GetThisClass() { return RUNTIME_CLASS(class_name); } \
    CRuntimeClass* class_name::GetRuntimeClass() const { return RUNTIME_CLASS(class_name); }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    KMFC_IMPLEMENT_CLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                  \
    CObject* PASCAL class_name::CreateObject() { return new class_name; } \
    KMFC_IMPLEMENT_CLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, schema)                           \
    CObject* PASCAL class_name::CreateObject() { return new class_name; }               \
    KMFC_IMPLEMENT_CLASS(class_name, base_class_name, schema, class_name::CreateObject) \
    CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb) {                       \
        pOb = static_cast<class_name*>(ar.ReadObject(RUNTIME_CLASS(class_name)));       \
        return ar;                                                                      \
    }

/// Schema flag of IMPLEMENT_SERIAL: Serialize accepts older schema numbers and asks GetObjectSchema.
#define VERSIONABLE_SCHEMA (0x80000000)
