// The stand-in host with a profile of the test's own.
#pragma once

#include <ktut.h>

#include "standin_fixture.h"

namespace ui_test {

inline const wchar_t* const kHostSettings = L"Software\\ktui host test";

class HostTest : public StandinTest {
protected:
    HostTest() {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kHostSettings);
        ktutSetProfileFileName(kHostSettings);
    }
    ~HostTest() override {
        ktutSetProfileFileName(nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kHostSettings);
    }
    /// A value in the registry as the profile store keeps it, -1 for none.
    static long stored(const wchar_t* section, const wchar_t* key) {
        DWORD value = 0, size = sizeof(value);
        const std::wstring path = std::wstring(kHostSettings) + L"\\Default\\" + section;
        const LSTATUS status =
            ::RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key, RRF_RT_REG_DWORD, nullptr, &value, &size);
        return status == ERROR_SUCCESS ? static_cast<long>(value) : -1;
    }
    static void storeText(const wchar_t* section, const wchar_t* key, const std::wstring& text) {
        const std::wstring path = std::wstring(kHostSettings) + L"\\Default\\" + section;
        ::RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), key, REG_SZ, text.c_str(),
                          static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }
};

}  // namespace ui_test
