#include "tool_bar_resource.h"

#include <cstring>

#include <kmfc/module_state.h>

namespace {

using kmfc::ToolBarResource;

const LPCTSTR kToolBarType = MAKEINTRESOURCEW(241);

/// The numbers of a resource, which are of type `Number` there, behind a head of `head` numbers: width,
/// height and count are its last three. False when the bytes are not as many as the count says.
template <class Number>
bool read_numbers(const BYTE* bytes, size_t size, size_t head, ToolBarResource& bar) {
    const auto at = [bytes](size_t place) {
        Number number = 0;
        memcpy(&number, bytes + place * sizeof number, sizeof number);
        return static_cast<UINT>(number);
    };
    if (size < head * sizeof(Number)) return false;
    const UINT width = at(head - 3), height = at(head - 2), count = at(head - 1);
    constexpr UINT kLargest = 0x7FFF;
    if (width == 0 || height == 0 || width > kLargest || height > kLargest) return false;
    if (count > kLargest || size < (head + count) * sizeof(Number)) return false;
    bar.image = CSize(static_cast<int>(width), static_cast<int>(height));
    for (size_t i = 0; i < count; ++i) bar.commands.push_back(at(head + i));
    return true;
}

}  // namespace

bool kmfc::read_tool_bar(LPCTSTR name, ToolBarResource& bar) {
    HINSTANCE module = AfxFindResourceHandle(name, kToolBarType);
    HRSRC place = ::FindResourceW(module, name, kToolBarType);
    HGLOBAL loaded = place != nullptr ? ::LoadResource(module, place) : nullptr;
    const auto* bytes = loaded != nullptr ? static_cast<const BYTE*>(::LockResource(loaded)) : nullptr;
    if (bytes == nullptr) return false;
    const size_t size = ::SizeofResource(module, place);
    WORD start[2] = {};
    if (size >= sizeof start) memcpy(start, bytes, sizeof start);
    // Words behind version 1; a free resource compiler writes double words and no version.
    if (start[1] != 0) return start[0] == 1 && read_numbers<WORD>(bytes, size, 4, bar);
    return read_numbers<DWORD>(bytes, size, 3, bar);
}
