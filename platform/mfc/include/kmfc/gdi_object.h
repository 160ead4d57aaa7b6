// CGdiObject: an object that owns a GDI handle.
#pragma once

#include <afx.h>

class CDC;
class CWnd;

/// Base of the wrappers of GDI handles. The destructor deletes the handle; Detach gives it to the caller.
/// FromHandle makes a temporary object that lasts until the thread is idle and never deletes its handle.
class KMFC_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
public:
    CGdiObject() = default;
    ~CGdiObject() override;

    operator HGDIOBJ() const { return m_hObject; }
    /// The handle, null for a null object.
    HGDIOBJ GetSafeHandle() const;
    /// The object of the handle: its permanent one, else a temporary one of the class that fits the handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. FALSE for null. A handle that the object had before goes as by Detach.
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the handle to the caller.
    HGDIOBJ Detach();
    /// Deletes the handle, if any.
    BOOL DeleteObject();
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObjectW(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    BOOL operator==(const CGdiObject& obj) const { return obj.m_hObject == m_hObject; }

    HGDIOBJ m_hObject = nullptr;
};
