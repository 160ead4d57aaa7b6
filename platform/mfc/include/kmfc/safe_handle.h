// The handle of an object that may be missing: what a parameter that may be null is passed on by.
//
// The pointer is an argument here, so the compiler keeps the test for null. It may drop that test in a member
// function, whose object it takes to be there.
#pragma once

#include <type_traits>

namespace kmfc {

/// The member of a wrapper class that holds its handle.
template <class T>
auto& handle_member(T& object) {
    if constexpr (requires { object.m_hWnd; }) {
        return object.m_hWnd;
    } else if constexpr (requires { object.m_hDC; }) {
        return object.m_hDC;
    } else if constexpr (requires { object.m_hObject; }) {
        return object.m_hObject;
    } else if constexpr (requires { object.m_hMenu; }) {
        return object.m_hMenu;
    } else {
        return object.m_hImageList;
    }
}

/// The handle that `object` wraps (window, device context, drawing object, menu, image list); null for a null
/// pointer. The object stays the caller's.
template <class T>
auto safe_handle(const T* object) {
    using Handle = std::remove_cvref_t<decltype(handle_member(*object))>;
    return object != nullptr ? handle_member(*object) : Handle{};
}

}  // namespace kmfc
