#include "font_places.h"

#include <windows.h>

#include <shlobj.h>

#include <algorithm>
#include <array>

namespace {

constexpr const wchar_t* kFontsKey = L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Fonts";
const std::array<HKEY, 2> kRoots{HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER};

/// The list of fonts below a root of the registry; null if there is none. Closes itself.
class FontsKey {
public:
    explicit FontsKey(HKEY root) { ::RegOpenKeyExW(root, kFontsKey, 0, KEY_READ, &m_key); }
    ~FontsKey() {
        if (m_key) ::RegCloseKey(m_key);
    }
    FontsKey(const FontsKey&) = delete;
    FontsKey& operator=(const FontsKey&) = delete;
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

bool isWholePath(const std::wstring& path) {
    return path.size() > 3 && (path[1] == L':' || (path[0] == L'\\' && path[1] == L'\\'));
}

void addFiles(HKEY root, std::vector<std::wstring>& files) {
    const FontsKey key(root);
    if (!key.get()) return;
    constexpr DWORD kLongest = 16384;  // the longest name of a value, in characters
    std::vector<wchar_t> name(kLongest);
    wchar_t file[1024];
    for (DWORD index = 0;; ++index) {
        DWORD nameLength = kLongest;
        DWORD bytes = sizeof file - sizeof(wchar_t);
        DWORD type = 0;
        const LSTATUS answer = ::RegEnumValueW(key.get(), index, name.data(), &nameLength, nullptr, &type,
                                               reinterpret_cast<BYTE*>(file), &bytes);
        if (answer == ERROR_MORE_DATA) continue;
        if (answer != ERROR_SUCCESS) return;
        if (type != REG_SZ) continue;
        file[bytes / sizeof(wchar_t)] = 0;
        if (isWholePath(file)) files.emplace_back(file);
    }
}

/// A folder of the shell's, with a separator behind; empty if there is none.
std::wstring shellFolder(int id) {
    wchar_t path[MAX_PATH] = {};
    if (::SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path) != S_OK || !path[0]) return {};
    std::wstring folder(path);
    if (folder.back() != L'\\') folder += L'\\';
    return folder;
}

}  // namespace

std::vector<std::wstring> systemFontFolders() {
    std::vector<std::wstring> folders;
    wchar_t windows[MAX_PATH] = {};
    if (::GetWindowsDirectoryW(windows, MAX_PATH) != 0) folders.push_back(std::wstring(windows) + L"\\Fonts");
    const std::wstring local = shellFolder(CSIDL_LOCAL_APPDATA);
    if (!local.empty()) folders.push_back(local + L"Microsoft\\Windows\\Fonts");
    return folders;
}

std::vector<std::wstring> registeredFontFiles() {
    std::vector<std::wstring> files;
    for (HKEY root : kRoots) addFiles(root, files);
    std::sort(files.begin(), files.end());
    files.erase(std::unique(files.begin(), files.end()), files.end());
    return files;
}

std::vector<std::int64_t> registeredFontTimes() {
    std::vector<std::int64_t> times;
    for (HKEY root : kRoots) {
        const FontsKey key(root);
        FILETIME time = {};
        if (key.get())
            ::RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                               nullptr, nullptr, nullptr, &time);
        times.push_back(
            static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime));
    }
    return times;
}

std::wstring userFontCacheFile() {
    const std::wstring local = shellFolder(CSIDL_LOCAL_APPDATA);
    return local.empty() ? std::wstring() : local + L"Velmora\\ktui\\fonts.cache";
}
