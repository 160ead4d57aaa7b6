// The keys that the toolkit opens and makes, with the text and the rights that it hands to the registry.
#pragma once

#include <vector>

#include <afx.h>

#include "replaced_import.h"

namespace ui_test {

/// Watches the toolkit's calls for as long as the object lives; one at a time.
class WatchedRegistry {
public:
    struct Call {
        bool made;  ///< by RegCreateKeyExW
        HKEY parent;
        CString key;
        REGSAM rights;
        CString className;
    };
    std::vector<Call> calls;

    WatchedRegistry() {
        current() = this;
        const HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
        m_open = replace_import(toolkit, "RegOpenKeyExW", &open);
        m_create = replace_import(toolkit, "RegCreateKeyExW", &create);
    }
    ~WatchedRegistry() {
        const HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
        if (m_open) replace_import(toolkit, "RegOpenKeyExW", m_open);
        if (m_create) replace_import(toolkit, "RegCreateKeyExW", m_create);
        current() = nullptr;
    }
    WatchedRegistry(const WatchedRegistry&) = delete;
    WatchedRegistry& operator=(const WatchedRegistry&) = delete;

private:
    using Open = decltype(::RegOpenKeyExW);
    using Create = decltype(::RegCreateKeyExW);

    static WatchedRegistry*& current() {
        static WatchedRegistry* watched = nullptr;
        return watched;
    }
    static LSTATUS WINAPI open(HKEY parent, LPCWSTR name, DWORD options, REGSAM rights, PHKEY key) {
        current()->calls.push_back({false, parent, name ? name : L"", rights, L""});
        return current()->m_open(parent, name, options, rights, key);
    }
    static LSTATUS WINAPI create(HKEY parent, LPCWSTR name, DWORD reserved, LPWSTR className, DWORD options,
                                 REGSAM rights, const LPSECURITY_ATTRIBUTES security, PHKEY key,
                                 LPDWORD disposition) {
        current()->calls.push_back({true, parent, name ? name : L"", rights, className ? className : L""});
        return current()->m_create(parent, name, reserved, className, options, rights, security, key,
                                   disposition);
    }
    Open* m_open = nullptr;
    Create* m_create = nullptr;
};

}  // namespace ui_test
