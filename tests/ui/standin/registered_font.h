// A font that the user's list in the registry names as long as the object lives.
#pragma once

#include <afxwin.h>

namespace ui_test {

class RegisteredFont {
public:
    explicit RegisteredFont(const CString& path) {
        ::RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_WRITE, nullptr, &m_key, nullptr);
        ::RegSetValueExW(m_key, kValue, 0, REG_SZ, reinterpret_cast<const BYTE*>(path.GetString()),
                         static_cast<DWORD>((path.GetLength() + 1) * static_cast<int>(sizeof(wchar_t))));
    }
    ~RegisteredFont() {
        ::RegDeleteValueW(m_key, kValue);
        ::RegCloseKey(m_key);
    }
    RegisteredFont(const RegisteredFont&) = delete;
    RegisteredFont& operator=(const RegisteredFont&) = delete;

private:
    static constexpr const wchar_t* kKey = L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Fonts";
    static constexpr const wchar_t* kValue = L"ktui test font (TrueType)";
    HKEY m_key = nullptr;
};

}  // namespace ui_test
