// The application's profile: a registry tree after SetRegistryKey, an .INI file before.
#include <vector>

#include <kmfc/app.h>

namespace {

/// An open registry key that closes itself.
class ProfileKey {
public:
    explicit ProfileKey(HKEY key) : m_key(key) {}
    ProfileKey(ProfileKey&& other) noexcept : m_key(other.m_key) { other.m_key = nullptr; }
    ~ProfileKey() {
        if (m_key != nullptr) ::RegCloseKey(m_key);
    }
    ProfileKey(const ProfileKey&) = delete;
    ProfileKey& operator=(const ProfileKey&) = delete;
    explicit operator bool() const { return m_key != nullptr; }
    HKEY get() const { return m_key; }

    static ProfileKey Create(HKEY parent, const CString& path) {
        HKEY key = nullptr;
        ::RegCreateKeyExW(parent, path, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, nullptr,
                          &key, nullptr);
        return ProfileKey(key);
    }

private:
    HKEY m_key;
};

CString application_path(const CWinApp& app) {
    return CString(L"Software\\") + app.m_pszRegistryKey + L"\\" + app.m_pszProfileName;
}

ProfileKey section_key(const CWinApp& app, LPCTSTR section) {
    return ProfileKey::Create(HKEY_CURRENT_USER, application_path(app) + L"\\" + section);
}

/// The bytes of a value, empty when it is missing.
std::vector<BYTE> read_value(const ProfileKey& key, LPCTSTR entry, DWORD wantedType) {
    DWORD type = 0, size = 0;
    if (!key || ::RegQueryValueExW(key.get(), entry, nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return {};
    if (type != wantedType) return {};
    std::vector<BYTE> bytes(size + sizeof(wchar_t));
    if (::RegQueryValueExW(key.get(), entry, nullptr, nullptr, bytes.data(), &size) != ERROR_SUCCESS)
        return {};
    bytes.resize(size);
    return bytes;
}

BOOL write_value(const ProfileKey& key, LPCTSTR entry, DWORD type, const void* data, DWORD size) {
    return key &&
           ::RegSetValueExW(key.get(), entry, 0, type, static_cast<const BYTE*>(data), size) == ERROR_SUCCESS;
}

/// An entry of an .INI file, however long.
CString read_file_entry(LPCTSTR file, LPCTSTR section, LPCTSTR entry, LPCTSTR fallback) {
    std::vector<wchar_t> text(256);
    for (;;) {
        const auto room = static_cast<DWORD>(text.size());
        // One less than the room there is tells that the text was cut.
        if (::GetPrivateProfileStringW(section, entry, fallback, text.data(), room, file) + 1 < room)
            return text.data();
        text.resize(text.size() * 2);
    }
}

/// Bytes as letters from A to P, the low half of each first: a text file holds no others.
CString encode_bytes(const BYTE* data, UINT count) {
    CString text;
    for (UINT i = 0; i < count; ++i) {
        text += static_cast<wchar_t>(L'A' + (data[i] & 0xF));
        text += static_cast<wchar_t>(L'A' + (data[i] >> 4));
    }
    return text;
}

std::vector<BYTE> decode_bytes(const CString& text) {
    std::vector<BYTE> bytes;
    for (int i = 0; i + 1 < text.GetLength(); i += 2)
        bytes.push_back(static_cast<BYTE>(((text[i] - L'A') & 0xF) | ((text[i + 1] - L'A') & 0xF) << 4));
    return bytes;
}

}  // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    m_strRegistryKey = lpszRegistryKey;
    m_pszRegistryKey = m_strRegistryKey;
    m_strProfileName = m_pszAppName != nullptr ? m_pszAppName : L"";
    m_pszProfileName = m_strProfileName;
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    if (m_pszRegistryKey == nullptr)
        return ::GetPrivateProfileIntW(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    const std::vector<BYTE> bytes = read_value(section_key(*this, lpszSection), lpszEntry, REG_DWORD);
    if (bytes.size() != sizeof(DWORD)) return static_cast<UINT>(nDefault);
    return *reinterpret_cast<const DWORD*>(bytes.data());
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    if (m_pszRegistryKey != nullptr)
        return write_value(section_key(*this, lpszSection), lpszEntry, REG_DWORD, &nValue, sizeof(nValue));
    CString text;
    text.Format(L"%d", nValue);
    return ::WritePrivateProfileStringW(lpszSection, lpszEntry, text, m_pszProfileName);
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    const LPCTSTR fallback = lpszDefault != nullptr ? lpszDefault : L"";
    if (m_pszRegistryKey == nullptr) {
        return read_file_entry(m_pszProfileName, lpszSection, lpszEntry, fallback);
    }
    const ProfileKey key = section_key(*this, lpszSection);
    DWORD type = 0;
    if (!key || ::RegQueryValueExW(key.get(), lpszEntry, nullptr, &type, nullptr, nullptr) != ERROR_SUCCESS ||
        type != REG_SZ)
        return fallback;
    std::vector<BYTE> bytes = read_value(key, lpszEntry, REG_SZ);
    bytes.resize(bytes.size() / sizeof(wchar_t) * sizeof(wchar_t) + sizeof(wchar_t), 0);
    return reinterpret_cast<const wchar_t*>(bytes.data());
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileStringW(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    if (lpszEntry == nullptr) {
        const ProfileKey application = ProfileKey::Create(HKEY_CURRENT_USER, application_path(*this));
        return application && ::RegDeleteTreeW(application.get(), lpszSection) == ERROR_SUCCESS;
    }
    const ProfileKey key = section_key(*this, lpszSection);
    if (lpszValue == nullptr) return key && ::RegDeleteValueW(key.get(), lpszEntry) == ERROR_SUCCESS;
    return write_value(key, lpszEntry, REG_SZ, lpszValue,
                       static_cast<DWORD>((wcslen(lpszValue) + 1) * sizeof(wchar_t)));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    const std::vector<BYTE> bytes =
        m_pszRegistryKey != nullptr
            ? read_value(section_key(*this, lpszSection), lpszEntry, REG_BINARY)
            : decode_bytes(read_file_entry(m_pszProfileName, lpszSection, lpszEntry, L""));
    if (bytes.empty()) return FALSE;
    *ppData = new BYTE[bytes.size()];
    memcpy(*ppData, bytes.data(), bytes.size());
    *pBytes = static_cast<UINT>(bytes.size());
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    if (m_pszRegistryKey != nullptr)
        return write_value(section_key(*this, lpszSection), lpszEntry, REG_BINARY, pData, nBytes);
    return ::WritePrivateProfileStringW(lpszSection, lpszEntry, encode_bytes(pData, nBytes),
                                        m_pszProfileName);
}
