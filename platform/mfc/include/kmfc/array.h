// CArray and the array behind every array class of the layer.
#pragma once

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include "kmfc/element_helpers.h"

/// A growing array. Indices go from 0; one out of range throws CInvalidArgException, short memory
/// CMemoryException. New elements are value-initialized, so numbers start at 0. References and the data
/// pointer are good until the array next grows.
template <class TYPE, class ARG_TYPE>
class CArrayCore : public CObject {
public:
    CArrayCore() = default;
    ~CArrayCore() override { RemoveAll(); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    /// The highest index, -1 when empty.
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    /// Makes the array `nNewSize` elements long. `nGrowBy`, unless -1, is by how many elements it grows from
    /// now on (0: by half).
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void FreeExtra();
    void RemoveAll() { SetSize(0); }

    TYPE& GetAt(INT_PTR nIndex) { return m_pData[checked(nIndex)]; }
    const TYPE& GetAt(INT_PTR nIndex) const { return m_pData[checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_pData[checked(nIndex)] = newElement; }
    TYPE& ElementAt(INT_PTR nIndex) { return m_pData[checked(nIndex)]; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_pData[checked(nIndex)]; }
    TYPE& operator[](INT_PTR nIndex) { return m_pData[checked(nIndex)]; }
    const TYPE& operator[](INT_PTR nIndex) const { return m_pData[checked(nIndex)]; }
    /// The elements in a row; null when none was ever held.
    TYPE* GetData() { return m_pData; }
    const TYPE* GetData() const { return m_pData; }

    /// Sets an element, growing the array if need be.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    /// Appends an element and answers its index.
    INT_PTR Add(ARG_TYPE newElement) {
        SetAtGrow(m_nSize, newElement);
        return m_nSize - 1;
    }
    /// Appends a copy of another array's elements and answers the first one's index.
    INT_PTR Append(const CArrayCore& src);
    /// Becomes a copy of another array.
    void Copy(const CArrayCore& src);

    /// Inserts `nCount` copies before `nIndex`; beyond the end, the gap is filled with new elements.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    /// Inserts a copy of another array's elements.
    void InsertAt(INT_PTR nStartIndex, CArrayCore* pNewArray);
    /// Removes `nCount` elements from `nIndex` on, all of which must be there.
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

private:
    /// Makes room for `count` elements at `index`, and for new ones before it when that is beyond the end.
    void insert_gap(INT_PTR index, INT_PTR count);
    INT_PTR checked(INT_PTR index) const {
        if (index < 0 || index >= m_nSize) AfxThrowInvalidArgException();
        return index;
    }
    void reserve(INT_PTR size);
    void move_to(INT_PTR capacity);

    TYPE* m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;
};

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy) {
    if (nNewSize < 0) AfxThrowInvalidArgException();
    if (nGrowBy >= 0) m_nGrowBy = nGrowBy;
    if (nNewSize == 0) {
        std::destroy_n(m_pData, m_nSize);
        ::operator delete(static_cast<void*>(m_pData), std::align_val_t(alignof(TYPE)));
        m_pData = nullptr;
        m_nSize = m_nMaxSize = 0;
    } else if (nNewSize <= m_nSize) {
        std::destroy(m_pData + nNewSize, m_pData + m_nSize);
        m_nSize = nNewSize;
    } else {
        reserve(nNewSize);
        std::uninitialized_value_construct(m_pData + m_nSize, m_pData + nNewSize);
        m_nSize = nNewSize;
    }
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::reserve(INT_PTR size) {
    if (size <= m_nMaxSize) return;
    const INT_PTR step = m_nGrowBy > 0 ? m_nGrowBy : std::max<INT_PTR>(m_nSize / 2, 4);
    move_to(m_nSize == 0 ? std::max(size, m_nGrowBy) : std::max(size, m_nMaxSize + step));
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::move_to(INT_PTR capacity) {
    if (static_cast<size_t>(capacity) > static_cast<size_t>(-1) / 2 / sizeof(TYPE)) AfxThrowMemoryException();
    void* memory = ::operator new(static_cast<size_t>(capacity) * sizeof(TYPE),
                                  std::align_val_t(alignof(TYPE)), std::nothrow);
    if (!memory) AfxThrowMemoryException();
    auto* fresh = static_cast<TYPE*>(memory);
    std::uninitialized_move_n(m_pData, m_nSize, fresh);
    std::destroy_n(m_pData, m_nSize);
    ::operator delete(static_cast<void*>(m_pData), std::align_val_t(alignof(TYPE)));
    m_pData = fresh;
    m_nMaxSize = capacity;
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::FreeExtra() {
    if (m_nSize != m_nMaxSize && m_nSize > 0) move_to(m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
    if (nIndex < 0) AfxThrowInvalidArgException();
    if (nIndex < m_nSize) {
        m_pData[nIndex] = newElement;
        return;
    }
    TYPE element(newElement);  // the argument may lie in this array, which is about to move
    SetSize(nIndex + 1);
    m_pData[nIndex] = std::move(element);
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArrayCore<TYPE, ARG_TYPE>::Append(const CArrayCore& src) {
    if (&src == this) AfxThrowInvalidArgException();
    const INT_PTR first = m_nSize;
    SetSize(m_nSize + src.m_nSize);
    CopyElements<TYPE>(m_pData + first, src.m_pData, src.m_nSize);
    return first;
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::Copy(const CArrayCore& src) {
    if (&src == this) return;
    SetSize(src.m_nSize);
    CopyElements<TYPE>(m_pData, src.m_pData, src.m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::insert_gap(INT_PTR index, INT_PTR count) {
    const INT_PTR old_size = m_nSize;
    SetSize(std::max(old_size, index) + count);
    if (index < old_size) std::rotate(m_pData + index, m_pData + old_size, m_pData + m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount) {
    if (nIndex < 0 || nCount <= 0) AfxThrowInvalidArgException();
    const TYPE element(newElement);
    insert_gap(nIndex, nCount);
    std::fill_n(m_pData + nIndex, nCount, element);
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, CArrayCore* pNewArray) {
    if (nStartIndex < 0 || !pNewArray || pNewArray == this) AfxThrowInvalidArgException();
    if (pNewArray->m_nSize == 0) return;
    insert_gap(nStartIndex, pNewArray->m_nSize);
    CopyElements<TYPE>(m_pData + nStartIndex, pNewArray->m_pData, pNewArray->m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArrayCore<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount) {
    if (nIndex < 0 || nCount < 0 || nCount > m_nSize || nIndex > m_nSize - nCount)
        AfxThrowInvalidArgException();
    std::move(m_pData + nIndex + nCount, m_pData + m_nSize, m_pData + nIndex);
    std::destroy(m_pData + m_nSize - nCount, m_pData + m_nSize);
    m_nSize -= nCount;
}

/// Adds serialization by SerializeElements to an array.
template <class Array, class TYPE>
class CSerialArray : public Array {
public:
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(this->GetSize()));
            SerializeElements<TYPE>(ar, this->GetData(), this->GetSize());
            return;
        }
        // One by one, so that a count made up by a damaged file fails at the file's end.
        const DWORD_PTR count = ar.ReadCount();
        this->RemoveAll();
        for (DWORD_PTR i = 0; i < count; ++i) {
            this->SetSize(static_cast<INT_PTR>(i) + 1);
            SerializeElements<TYPE>(ar, this->GetData() + i, 1);
        }
    }
};

/// A growing array of any type that can be copied. `ARG_TYPE` is how elements are passed, TYPE const& by
/// default.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CSerialArray<CArrayCore<TYPE, ARG_TYPE>, TYPE> {};
