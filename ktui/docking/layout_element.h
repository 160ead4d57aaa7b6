// An XML element as plain values, so that what reads and writes layouts needs no XML library.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

#include <utility>
#include <vector>

namespace layouts {

struct Element {
    CString name;
    std::vector<std::pair<CString, CString>> attributes;
    std::vector<Element> children;  ///< elements only, in their order

    /// The value of an attribute, or null.
    const CString* find(const wchar_t* attribute) const;
    void put(const wchar_t* attribute, const CString& value);
    void put(const wchar_t* attribute, long value);
    /// A new last child.
    Element& add(const wchar_t* child);
    bool operator==(const Element& other) const;
};

constexpr int kDeepestElement = 128;  ///< no file of layouts nests deeper

}  // namespace layouts
