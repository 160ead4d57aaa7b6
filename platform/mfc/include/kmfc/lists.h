// The list classes of fixed element type. All they do is what CListCore does.
#pragma once

#include "kmfc/list.h"

/// Pointers, whose targets stay the caller's; not serializable.
class KMFC_API CPtrList : public CListCore<void*, void*> {
    DECLARE_DYNAMIC(CPtrList)
public:
    explicit CPtrList(INT_PTR nBlockSize = 10) : CListCore(nBlockSize) {}
};

/// Pointers to objects, which stay the caller's; serializes the objects.
class KMFC_API CObList : public CSerialList<CListCore<CObject*, CObject*>, CObject*> {
    DECLARE_SERIAL(CObList)
public:
    explicit CObList(INT_PTR nBlockSize = 10) : CSerialList(nBlockSize) {}
};

/// Strings. Takes texts as well as strings.
class KMFC_API CStringList : public CSerialList<CListCore<CString, const CString&>, CString> {
    DECLARE_SERIAL(CStringList)
public:
    explicit CStringList(INT_PTR nBlockSize = 10) : CSerialList(nBlockSize) {}
};
