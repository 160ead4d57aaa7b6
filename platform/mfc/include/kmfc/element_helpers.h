// The functions that say how the collection templates copy, compare, hash and serialize their elements.
//
// Each has a general version; a program specializes or overloads them for types of its own.
#pragma once

#include <type_traits>

#include "kmfc/archive.h"

/// Copies `nCount` elements one by one.
template <class TYPE>
void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount) {
    while (nCount-- > 0) *pDest++ = *pSrc++;
}

/// Whether an element equals an argument it is looked up by.
template <class TYPE, class ARG_TYPE>
BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2) {
    return *pElement1 == *pElement2;
}

/// A hash of a key: of its characters for strings and texts, of its value for numbers and pointers.
template <class ARG_KEY>
UINT AFXAPI HashKey(ARG_KEY key) {
    using Key = std::remove_cvref_t<ARG_KEY>;
    if constexpr (std::is_convertible_v<const Key&, LPCWSTR> && !std::is_arithmetic_v<Key>) {
        UINT hash = 0;
        for (LPCWSTR at = static_cast<LPCWSTR>(key); *at; ++at)
            hash = (hash << 5) + hash + static_cast<UINT>(*at);
        return hash;
    } else if constexpr (std::is_convertible_v<const Key&, LPCSTR> && !std::is_arithmetic_v<Key>) {
        UINT hash = 0;
        for (LPCSTR at = static_cast<LPCSTR>(key); *at; ++at) {
            hash = (hash << 5) + hash + static_cast<unsigned char>(*at);
        }
        return hash;
    } else {
        // Multiplying spreads pointers, whose low bits are all alike.
        const auto bits = static_cast<unsigned long long>((DWORD_PTR)(key));
        return static_cast<UINT>((bits * 0x9E3779B97F4A7C15ULL) >> 32);
    }
}

/// Reads or writes `nCount` elements: through the archive's operators where the type has them, else as bytes.
template <class TYPE>
void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount) {
    constexpr bool kHasOperators = requires(CArchive & archive, TYPE & element) {
        archive << element;
        archive >> element;
    };
    for (; nCount-- > 0; ++pElements) {
        if constexpr (kHasOperators) {
            if (ar.IsStoring()) {
                ar << *pElements;
            } else {
                ar >> *pElements;
            }
        } else {
            static_assert(std::is_trivially_copyable_v<TYPE>, "specialize SerializeElements for this type");
            if (ar.IsStoring()) {
                ar.Write(pElements, sizeof(TYPE));
            } else if (ar.Read(pElements, sizeof(TYPE)) != sizeof(TYPE)) {
                AfxThrowArchiveException(CArchiveException::endOfFile);
            }
        }
    }
}
