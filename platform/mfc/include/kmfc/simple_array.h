// CSimpleArray: a growing array of values, as functions of the system's templates take it.
#pragma once

#include <vector>

#include <afx.h>

/// Places count from 0; FALSE and -1 report failures. An index outside throws CInvalidArgException.
template <class T>
class CSimpleArray {
public:
    int GetSize() const { return static_cast<int>(m_items.size()); }
    BOOL Add(const T& value) { return m_items.push_back(value), TRUE; }
    BOOL Remove(const T& value) {
        const int place = Find(value);
        return place >= 0 && RemoveAt(place);
    }
    BOOL RemoveAt(int nIndex) {
        if (!has(nIndex)) return FALSE;
        m_items.erase(m_items.begin() + nIndex);
        return TRUE;
    }
    void RemoveAll() { m_items.clear(); }
    int Find(const T& value) const {
        for (int i = 0; i < GetSize(); ++i)
            if (m_items[static_cast<size_t>(i)] == value) return i;
        return -1;
    }
    BOOL SetAtIndex(int nIndex, const T& value) {
        if (!has(nIndex)) return FALSE;
        m_items[static_cast<size_t>(nIndex)] = value;
        return TRUE;
    }
    T& operator[](int nIndex) {
        ENSURE_ARG(has(nIndex));
        return m_items[static_cast<size_t>(nIndex)];
    }
    const T& operator[](int nIndex) const {
        ENSURE_ARG(has(nIndex));
        return m_items[static_cast<size_t>(nIndex)];
    }
    T* GetData() const { return const_cast<T*>(m_items.data()); }

private:
    bool has(int index) const { return index >= 0 && index < GetSize(); }
    std::vector<T> m_items;
};
