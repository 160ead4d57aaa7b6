// CObject, the root of the class tree, and the checked casts that go by run-time class.
#pragma once

#include <cstddef>

#include "kmfc/runtime_class.h"

class CDumpContext;

/// The root class: run-time class information and serialization. Objects are not copied.
class KMFC_API CObject {
public:
    virtual ~CObject();
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /// The class of this very object.
    virtual CRuntimeClass* GetRuntimeClass() const;
    /// Whether the object is of class `pClass` or of one derived from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    /// Whether the class states IMPLEMENT_SERIAL.
    BOOL IsSerializable() const;
    /// Reads or writes the object's fields. The base does nothing.
    virtual void Serialize(CArchive& ar);
    /// Checks the object's invariants; the base has none beyond a live `this`.
    virtual void AssertValid() const;
    /// Describes the object for a developer; the base names its class and its address.
    virtual void Dump(CDumpContext& dc) const;

    static CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject() = default;
};

/// The object itself when it is of class `pClass` or derived from it, else null.
KMFC_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
/// The object; a debug build asserts that it is null or of class `pClass`.
KMFC_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);

#define DYNAMIC_DOWNCAST(class_name, object) \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
