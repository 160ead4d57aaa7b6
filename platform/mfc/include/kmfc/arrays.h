// The array classes of fixed element type. All they do is what CArrayCore does.
#pragma once

#include "kmfc/array.h"

/// Bytes.
class KMFC_API CByteArray : public CSerialArray<CArrayCore<BYTE, BYTE>, BYTE> {
    DECLARE_SERIAL(CByteArray)
};

/// 16-bit numbers.
class KMFC_API CWordArray : public CSerialArray<CArrayCore<WORD, WORD>, WORD> {
    DECLARE_SERIAL(CWordArray)
};

/// 32-bit numbers.
class KMFC_API CDWordArray : public CSerialArray<CArrayCore<DWORD, DWORD>, DWORD> {
    DECLARE_SERIAL(CDWordArray)
};

/// Unsigned numbers; not serializable.
class KMFC_API CUIntArray : public CArrayCore<UINT, UINT> {
    DECLARE_DYNAMIC(CUIntArray)
};

/// Pointers, whose targets stay the caller's; not serializable.
class KMFC_API CPtrArray : public CArrayCore<void*, void*> {
    DECLARE_DYNAMIC(CPtrArray)
};

/// Pointers to objects, which stay the caller's; serializes the objects.
class KMFC_API CObArray : public CSerialArray<CArrayCore<CObject*, CObject*>, CObject*> {
    DECLARE_SERIAL(CObArray)
};

/// Strings. Takes texts as well as strings.
class KMFC_API CStringArray : public CSerialArray<CArrayCore<CString, const CString&>, CString> {
    DECLARE_SERIAL(CStringArray)
};
