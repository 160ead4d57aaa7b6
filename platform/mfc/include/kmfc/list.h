// CList and the list behind every list class of the layer.
#pragma once

#include "kmfc/element_helpers.h"
#include "kmfc/node_pool.h"
#include "kmfc/position.h"

/// A doubly linked list. A POSITION stays good until its own element is removed; a null one, or an access to
/// an empty list's ends, throws CInvalidArgException.
template <class TYPE, class ARG_TYPE>
class CListCore : public CObject {
public:
    /// `nBlockSize` is how many nodes are allocated at a time.
    explicit CListCore(INT_PTR nBlockSize = 10) : m_pool(nBlockSize) {}
    ~CListCore() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return checked(m_pNodeHead)->data; }
    const TYPE& GetHead() const { return checked(m_pNodeHead)->data; }
    TYPE& GetTail() { return checked(m_pNodeTail)->data; }
    const TYPE& GetTail() const { return checked(m_pNodeTail)->data; }
    /// Remove an end and answer its element.
    TYPE RemoveHead() { return take(checked(m_pNodeHead)); }
    TYPE RemoveTail() { return take(checked(m_pNodeTail)); }
    POSITION AddHead(ARG_TYPE newElement) { return insert(nullptr, newElement, m_pNodeHead); }
    POSITION AddTail(ARG_TYPE newElement) { return insert(m_pNodeTail, newElement, nullptr); }
    /// Add a copy of another list's elements, in its order.
    void AddHead(CListCore* pNewList);
    void AddTail(CListCore* pNewList);
    void RemoveAll();

    POSITION GetHeadPosition() const { return position_of(m_pNodeHead); }
    POSITION GetTailPosition() const { return position_of(m_pNodeTail); }
    /// The element at the position, which moves to the next (previous) one, null at the end.
    TYPE& GetNext(POSITION& rPosition) { return step(rPosition, &Node::next)->data; }
    const TYPE& GetNext(POSITION& rPosition) const { return step(rPosition, &Node::next)->data; }
    TYPE& GetPrev(POSITION& rPosition) { return step(rPosition, &Node::previous)->data; }
    const TYPE& GetPrev(POSITION& rPosition) const { return step(rPosition, &Node::previous)->data; }

    TYPE& GetAt(POSITION position) { return node_of(position)->data; }
    const TYPE& GetAt(POSITION position) const { return node_of(position)->data; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { node_of(pos)->data = newElement; }
    void RemoveAt(POSITION position) { static_cast<void>(take(node_of(position))); }
    /// Insert beside a position, or at the head (InsertBefore) or tail (InsertAfter) when it is null.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /// The first element equal to `searchValue` behind `startAfter` (from the head when null), or null.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    /// The position of element `nIndex`, null when there is none.
    POSITION FindIndex(INT_PTR nIndex) const;

private:
    struct Node {
        Node* previous;
        Node* next;
        TYPE data;
    };

    static POSITION position_of(Node* node) { return reinterpret_cast<POSITION>(node); }
    static Node* checked(Node* node) {
        if (!node) AfxThrowInvalidArgException();
        return node;
    }
    static Node* node_of(POSITION position) { return checked(reinterpret_cast<Node*>(position)); }
    static Node* step(POSITION& position, Node* Node::*direction) {
        Node* node = node_of(position);
        position = position_of(node->*direction);
        return node;
    }
    POSITION insert(Node* previous, ARG_TYPE element, Node* next);
    TYPE take(Node* node);

    kmfc::NodePool<Node> m_pool;
    Node* m_pNodeHead = nullptr;
    Node* m_pNodeTail = nullptr;
    INT_PTR m_nCount = 0;
};

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::insert(Node* previous, ARG_TYPE element, Node* next) {
    Node* node = m_pool.make(previous, next, TYPE(element));
    (previous ? previous->next : m_pNodeHead) = node;
    (next ? next->previous : m_pNodeTail) = node;
    ++m_nCount;
    return position_of(node);
}

template <class TYPE, class ARG_TYPE>
TYPE CListCore<TYPE, ARG_TYPE>::take(Node* node) {
    TYPE data(std::move(node->data));
    (node->previous ? node->previous->next : m_pNodeHead) = node->next;
    (node->next ? node->next->previous : m_pNodeTail) = node->previous;
    --m_nCount;
    m_pool.destroy(node);
    return data;
}

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::AddHead(CListCore* pNewList) {
    if (!pNewList || pNewList == this) AfxThrowInvalidArgException();
    for (Node* node = pNewList->m_pNodeTail; node; node = node->previous) AddHead(node->data);
}

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::AddTail(CListCore* pNewList) {
    if (!pNewList || pNewList == this) AfxThrowInvalidArgException();
    for (Node* node = pNewList->m_pNodeHead; node; node = node->next) AddTail(node->data);
}

template <class TYPE, class ARG_TYPE>
void CListCore<TYPE, ARG_TYPE>::RemoveAll() {
    Node* node = m_pNodeHead;
    m_pNodeHead = m_pNodeTail = nullptr;
    m_nCount = 0;
    while (node) {
        Node* const next = node->next;
        m_pool.destroy(node);
        node = next;
    }
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement) {
    if (!position) return AddHead(newElement);
    Node* node = node_of(position);
    return insert(node->previous, newElement, node);
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement) {
    if (!position) return AddTail(newElement);
    Node* node = node_of(position);
    return insert(node, newElement, node->next);
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const {
    for (Node* node = startAfter ? node_of(startAfter)->next : m_pNodeHead; node; node = node->next) {
        if (CompareElements(&node->data, &searchValue)) return position_of(node);
    }
    return nullptr;
}

template <class TYPE, class ARG_TYPE>
POSITION CListCore<TYPE, ARG_TYPE>::FindIndex(INT_PTR nIndex) const {
    if (nIndex < 0 || nIndex >= m_nCount) return nullptr;
    Node* node = m_pNodeHead;
    while (nIndex-- > 0) node = node->next;
    return position_of(node);
}

/// Adds serialization by SerializeElements to a list.
template <class List, class TYPE>
class CSerialList : public List {
public:
    using List::List;
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(this->GetCount()));
            for (POSITION at = this->GetHeadPosition(); at;)
                SerializeElements<TYPE>(ar, &this->GetNext(at), 1);
            return;
        }
        for (DWORD_PTR count = ar.ReadCount(); count > 0; --count) {
            TYPE element{};
            SerializeElements<TYPE>(ar, &element, 1);
            this->AddTail(element);
        }
    }
};

/// A doubly linked list of any type that can be copied. `ARG_TYPE` is how elements are passed.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CSerialList<CListCore<TYPE, ARG_TYPE>, TYPE> {
public:
    using CSerialList<CListCore<TYPE, ARG_TYPE>, TYPE>::CSerialList;
};
