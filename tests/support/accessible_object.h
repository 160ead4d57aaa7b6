// What an assistive program learns of a window.
#pragma once

#include <afxwin.h>
#include <oleacc.h>

#include <string>

#include <gtest/gtest.h>

namespace ui_test {

class AccessibleObject {
public:
    explicit AccessibleObject(HWND window) {
        EXPECT_EQ(::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                               __uuidof(IAccessible), reinterpret_cast<void**>(&m_object)),
                  S_OK);
    }
    ~AccessibleObject() {
        if (m_object) m_object->Release();
    }
    AccessibleObject(const AccessibleObject&) = delete;
    AccessibleObject& operator=(const AccessibleObject&) = delete;

    IAccessible* operator->() const { return m_object; }

    std::wstring name(LONG child = 0) const { return text(&IAccessible::get_accName, child); }
    std::wstring value(LONG child = 0) const { return text(&IAccessible::get_accValue, child); }
    std::wstring description(LONG child = 0) const { return text(&IAccessible::get_accDescription, child); }
    std::wstring action(LONG child = 0) const { return text(&IAccessible::get_accDefaultAction, child); }
    std::wstring keys(LONG child = 0) const { return text(&IAccessible::get_accKeyboardShortcut, child); }
    LONG role(LONG child = 0) const { return number(&IAccessible::get_accRole, child); }
    LONG state(LONG child = 0) const { return number(&IAccessible::get_accState, child); }
    CRect place(LONG child = 0) const {
        LONG left = 0, top = 0, width = 0, height = 0;
        EXPECT_EQ(m_object->accLocation(&left, &top, &width, &height, of(child)), S_OK);
        return CRect(CPoint(left, top), CSize(width, height));
    }
    HRESULT act(LONG child = 0) const { return m_object->accDoDefaultAction(of(child)); }

    static VARIANT of(LONG child) {
        VARIANT variant = {};
        variant.vt = VT_I4;
        variant.lVal = child;
        return variant;
    }

private:
    std::wstring text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*), LONG child) const {
        BSTR found = nullptr;
        const HRESULT result = (m_object->*get)(of(child), &found);
        const std::wstring copy = found ? found : L"";
        EXPECT_EQ(result, found ? S_OK : S_FALSE);
        ::SysFreeString(found);
        return copy;
    }
    LONG number(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, VARIANT*), LONG child) const {
        VARIANT found = {};
        EXPECT_EQ((m_object->*get)(of(child), &found), S_OK);
        EXPECT_EQ(found.vt, VT_I4);
        return found.lVal;
    }
    IAccessible* m_object = nullptr;
};

}  // namespace ui_test
