#include <ktui/docking/layout_element.h>

namespace layouts {

const CString* Element::find(const wchar_t* attribute) const {
    for (const auto& [each, value] : attributes)
        if (each == attribute) return &value;
    return nullptr;
}

void Element::put(const wchar_t* attribute, const CString& value) {
    attributes.emplace_back(attribute, value);
}

void Element::put(const wchar_t* attribute, long value) {
    CString text;
    text.Format(L"%ld", value);
    put(attribute, text);
}

Element& Element::add(const wchar_t* child) {
    children.push_back({child, {}, {}});
    return children.back();
}

bool Element::operator==(const Element& other) const {
    return name == other.name && attributes == other.attributes && children == other.children;
}

}  // namespace layouts
