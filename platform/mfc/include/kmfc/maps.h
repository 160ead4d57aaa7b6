// The map classes of fixed key and value types. All they do is what CMapCore does.
#pragma once

#include "kmfc/map.h"

/// Pointers to pointers; their targets stay the caller's.
class KMFC_API CMapPtrToPtr : public CMapCore<void*, void*, void*, void*> {
    DECLARE_DYNAMIC(CMapPtrToPtr)
public:
    using BASE_KEY = void*;
    using BASE_ARG_KEY = void*;
    using BASE_VALUE = void*;
    using BASE_ARG_VALUE = void*;

    explicit CMapPtrToPtr(INT_PTR nBlockSize = 10) : CMapCore(nBlockSize) {}
};

/// Pointers to 16-bit numbers.
class KMFC_API CMapPtrToWord : public CMapCore<void*, void*, WORD, WORD> {
    DECLARE_DYNAMIC(CMapPtrToWord)
public:
    using BASE_KEY = void*;
    using BASE_ARG_KEY = void*;
    using BASE_VALUE = WORD;
    using BASE_ARG_VALUE = WORD;

    explicit CMapPtrToWord(INT_PTR nBlockSize = 10) : CMapCore(nBlockSize) {}
};

/// 16-bit numbers to pointers, whose targets stay the caller's.
class KMFC_API CMapWordToPtr : public CMapCore<WORD, WORD, void*, void*> {
    DECLARE_DYNAMIC(CMapWordToPtr)
public:
    using BASE_KEY = WORD;
    using BASE_ARG_KEY = WORD;
    using BASE_VALUE = void*;
    using BASE_ARG_VALUE = void*;

    explicit CMapWordToPtr(INT_PTR nBlockSize = 10) : CMapCore(nBlockSize) {}
};

/// 16-bit numbers to objects, which stay the caller's; serializes the objects.
class KMFC_API CMapWordToOb : public CSerialMap<CMapCore<WORD, WORD, CObject*, CObject*>, WORD, CObject*> {
    DECLARE_SERIAL(CMapWordToOb)
public:
    using BASE_KEY = WORD;
    using BASE_ARG_KEY = WORD;
    using BASE_VALUE = CObject*;
    using BASE_ARG_VALUE = CObject*;

    explicit CMapWordToOb(INT_PTR nBlockSize = 10) : CSerialMap(nBlockSize) {}
};

/// Strings to pointers, whose targets stay the caller's.
class KMFC_API CMapStringToPtr : public CMapCore<CString, LPCTSTR, void*, void*> {
    DECLARE_DYNAMIC(CMapStringToPtr)
public:
    using BASE_KEY = CString;
    using BASE_ARG_KEY = LPCTSTR;
    using BASE_VALUE = void*;
    using BASE_ARG_VALUE = void*;

    explicit CMapStringToPtr(INT_PTR nBlockSize = 10) : CMapCore(nBlockSize) {}
    /// The map's own copy of an equal key, in `rKey`; FALSE when there is none.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const {
        const CPair* pair = PLookup(key);
        if (pair) rKey = pair->key;
        return pair != nullptr;
    }
};

/// Strings to objects, which stay the caller's; serializes the objects.
class KMFC_API CMapStringToOb
    : public CSerialMap<CMapCore<CString, LPCTSTR, CObject*, CObject*>, CString, CObject*> {
    DECLARE_SERIAL(CMapStringToOb)
public:
    using BASE_KEY = CString;
    using BASE_ARG_KEY = LPCTSTR;
    using BASE_VALUE = CObject*;
    using BASE_ARG_VALUE = CObject*;

    explicit CMapStringToOb(INT_PTR nBlockSize = 10) : CSerialMap(nBlockSize) {}
    /// The map's own copy of an equal key, in `rKey`; FALSE when there is none.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const {
        const CPair* pair = PLookup(key);
        if (pair) rKey = pair->key;
        return pair != nullptr;
    }
};

/// Strings to strings.
class KMFC_API CMapStringToString
    : public CSerialMap<CMapCore<CString, LPCTSTR, CString, LPCTSTR>, CString, CString> {
    DECLARE_SERIAL(CMapStringToString)
public:
    using BASE_KEY = CString;
    using BASE_ARG_KEY = LPCTSTR;
    using BASE_VALUE = CString;
    using BASE_ARG_VALUE = LPCTSTR;

    explicit CMapStringToString(INT_PTR nBlockSize = 10) : CSerialMap(nBlockSize) {}
    /// The map's own copy of an equal key, in `rKey`; FALSE when there is none.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const {
        const CPair* pair = PLookup(key);
        if (pair) rKey = pair->key;
        return pair != nullptr;
    }
};
