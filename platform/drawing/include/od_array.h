// OdArray, the growable array of the drawing runtime's interfaces: a vector with the runtime's names.
#pragma once

#include <cassert>
#include <cstddef>
#include <initializer_list>
#include <vector>

/// A growable array with value semantics. Indexes must lie in 0 to length() - 1.
template <class T>
class OdArray {
public:
    OdArray() = default;
    OdArray(std::initializer_list<T> items) : m_items(items) {}

    /// Count of elements.
    int length() const { return static_cast<int>(m_items.size()); }
    /// The same as length(), in the standard library's type.
    std::size_t size() const { return m_items.size(); }
    bool isEmpty() const { return m_items.empty(); }

    T& operator[](int index) {
        assert(index >= 0 && index < length());
        return m_items[static_cast<std::size_t>(index)];
    }
    const T& operator[](int index) const {
        assert(index >= 0 && index < length());
        return m_items[static_cast<std::size_t>(index)];
    }
    /// A copy-free read of one element.
    const T& at(int index) const { return (*this)[index]; }

    /// Puts `item` at the end; its index is the result.
    int append(const T& item) {
        m_items.push_back(item);
        return length() - 1;
    }
    /// Puts `item` before the element at `index`; `index` may be length().
    void insertAt(int index, const T& item) {
        assert(index >= 0 && index <= length());
        m_items.insert(m_items.begin() + index, item);
    }
    /// Takes the element at `index` out.
    void removeAt(int index) {
        assert(index >= 0 && index < length());
        m_items.erase(m_items.begin() + index);
    }
    /// Takes every element out.
    void removeAll() { m_items.clear(); }
    /// The same as removeAll().
    void clear() { m_items.clear(); }
    /// Makes room for `count` elements without adding any.
    void reserve(int count) { m_items.reserve(static_cast<std::size_t>(count)); }
    /// Makes the length `count`; new elements are value-initialised.
    void resize(int count) { m_items.resize(static_cast<std::size_t>(count)); }
    /// Whether an element equals `item`; its index goes to `index` if that is not null.
    bool contains(const T& item, int* index = nullptr) const {
        for (int i = 0; i < length(); ++i)
            if (m_items[static_cast<std::size_t>(i)] == item) {
                if (index) *index = i;
                return true;
            }
        return false;
    }

    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::vector<T> m_items;
};
