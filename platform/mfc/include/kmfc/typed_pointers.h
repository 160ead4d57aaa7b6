// CTypedPtrArray, CTypedPtrList, CTypedPtrMap: the collections of plain pointers with the pointers' own type.
//
// They own no more than their bases do: the pointers' targets stay the caller's.
#pragma once

#include "kmfc/arrays.h"
#include "kmfc/lists.h"
#include "kmfc/maps.h"

/// CPtrArray or CObArray of TYPE, a pointer.
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS {
public:
    TYPE GetAt(INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return (TYPE&)BASE_CLASS::ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1) {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, CTypedPtrArray* pNewArray) {
        BASE_CLASS::InsertAt(nStartIndex, pNewArray);
    }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
};

/// CPtrList or CObList of TYPE, a pointer.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS {
public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE& GetHead() { return (TYPE&)BASE_CLASS::GetHead(); }
    TYPE GetHead() const { return (TYPE)BASE_CLASS::GetHead(); }
    TYPE& GetTail() { return (TYPE&)BASE_CLASS::GetTail(); }
    TYPE GetTail() const { return (TYPE)BASE_CLASS::GetTail(); }
    TYPE RemoveHead() { return (TYPE)BASE_CLASS::RemoveHead(); }
    TYPE RemoveTail() { return (TYPE)BASE_CLASS::RemoveTail(); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE& GetNext(POSITION& rPosition) { return (TYPE&)BASE_CLASS::GetNext(rPosition); }
    TYPE GetNext(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) { return (TYPE&)BASE_CLASS::GetPrev(rPosition); }
    TYPE GetPrev(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetPrev(rPosition); }
    TYPE& GetAt(POSITION position) { return (TYPE&)BASE_CLASS::GetAt(position); }
    TYPE GetAt(POSITION position) const { return (TYPE)BASE_CLASS::GetAt(position); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
};

/// CMapPtrToPtr, CMapWordToPtr, CMapStringToPtr ... with the types of key and value.
template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS {
public:
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& rValue) const {
        typename BASE_CLASS::BASE_VALUE found{};
        if (!BASE_CLASS::Lookup(key, found)) return FALSE;
        rValue = (VALUE)found;
        return TRUE;
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key) { return (VALUE&)BASE_CLASS::operator[](key); }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const {
        typename BASE_CLASS::BASE_KEY key{};
        typename BASE_CLASS::BASE_VALUE value{};
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = (KEY)key;
        rValue = (VALUE)value;
    }
};
