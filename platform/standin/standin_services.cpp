// The facets without windows: settings, colours, files, services.
#include <ktut.h>

#include "color_schemes.h"
#include "dash_pattern.h"
#include "standin_facets.h"

namespace {

/// A key of the user's settings that closes itself; null when it cannot be had.
class SettingsKey {
public:
    SettingsKey(const wchar_t* section, REGSAM access) {
        CString path;
        const OdString file = ktutProfileFileName(), root = ktutProfileRootName();
        path.Format(L"%s\\%s\\%s", file.c_str(), root.c_str(), section);
        const bool writes = (access & KEY_SET_VALUE) != 0;
        if (writes)
            ::RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, access, nullptr, &m_key, nullptr);
        else
            ::RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, access, &m_key);
    }
    ~SettingsKey() {
        if (m_key != nullptr) ::RegCloseKey(m_key);
    }
    SettingsKey(const SettingsKey&) = delete;
    SettingsKey& operator=(const SettingsKey&) = delete;
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

bool fileExists(const CString& path) {
    const DWORD attributes = ::GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace

bool StandinProfileStore::getProfileInt(const wchar_t* section, const wchar_t* key, int& value, int) {
    const SettingsKey settings(section, KEY_READ);
    DWORD stored = 0, size = sizeof(stored), type = 0;
    if (settings.get() == nullptr ||
        ::RegQueryValueExW(settings.get(), key, nullptr, &type, reinterpret_cast<BYTE*>(&stored), &size) !=
            ERROR_SUCCESS ||
        type != REG_DWORD)
        return false;
    value = static_cast<int>(stored);
    return true;
}

bool StandinProfileStore::getProfileString(const wchar_t* section, const wchar_t* key, OdString& value, int) {
    const SettingsKey settings(section, KEY_READ);
    wchar_t text[1024] = {};
    DWORD size = sizeof(text) - sizeof(wchar_t), type = 0;
    if (settings.get() == nullptr ||
        ::RegQueryValueExW(settings.get(), key, nullptr, &type, reinterpret_cast<BYTE*>(text), &size) !=
            ERROR_SUCCESS ||
        type != REG_SZ)
        return false;
    value = text;
    return true;
}

bool StandinProfileStore::setProfileInt(const wchar_t* section, const wchar_t* key, int value, int) {
    const SettingsKey settings(section, KEY_READ | KEY_WRITE);
    return settings.get() != nullptr &&
           ::RegSetValueExW(settings.get(), key, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                            sizeof(value)) == ERROR_SUCCESS;
}

COLORREF StandinColorServices::colorOfIndex(int index) { return odcmLookupRGB(index, odcmAcadDarkPalette()); }

int StandinColorServices::currentColorScheme(int) {
    return static_cast<int>(m_scheme == StandinColorScheme::kSystem ? SystemColorScheme() : m_scheme);
}

bool StandinColorServices::schemeColor(int scheme, int role, COLORREF& color, int) {
    return ColorOfScheme(scheme, role, color);
}

CKhService* StandinServiceManager::getService(const wchar_t* name) {
    const auto found = m_services.find(name);
    return found != m_services.end() ? found->second : nullptr;
}

void StandinRuntimeHost::findFile(OdString& path, const wchar_t* name, const OdDbDatabase* drawing, int) {
    path.empty();
    if (fileExists(name)) {
        wchar_t full[MAX_PATH] = {};
        if (::GetFullPathNameW(name, MAX_PATH, full, nullptr) != 0) path = full;
        return;
    }
    std::vector<CString> folders;
    if (drawing != nullptr) {
        OdString drive, directory;
        if (ktutSplitPath(drawing->getFilename(), &drive, &directory, nullptr, nullptr))
            folders.push_back(CString(drive) + directory.c_str());
    }
    folders.insert(folders.end(), m_folders.begin(), m_folders.end());
    for (const CString& folder : folders) {
        const CString candidate = ktutCombinePath(folder, name).c_str();
        if (!fileExists(candidate)) continue;
        path = candidate.GetString();
        return;
    }
}

int StandinRuntimeHost::supportDirectories(wchar_t (*buffer)[kKhPathLength], int count) {
    const int number = static_cast<int>(m_folders.size());
    if (buffer == nullptr) return number;
    const int filled = std::min(number, count);
    for (int i = 0; i < filled; ++i) {
        wcsncpy(buffer[i], m_folders[static_cast<size_t>(i)], kKhPathLength - 1);
        buffer[i][kKhPathLength - 1] = 0;
    }
    return filled;
}

void StandinPaletteSizing::fillBackground(HDC dc, const RECT& rect) {
    ::FillRect(dc, &rect, ::GetSysColorBrush(COLOR_BTNFACE));
}

void StandinLinetypePreview::drawLinetype(HDC dc, const RECT& rect, const OdDbObjectId& id,
                                          COLORREF foreground, COLORREF background) {
    if (dc == nullptr) return;
    std::vector<double> dashes;
    if (const auto record = id.open<OdDbLinetypeTableRecord>())
        for (const double dash : record->dashes()) dashes.push_back(dash);
    DrawLinetypeSample(*CDC::FromHandle(dc), rect, dashes, foreground, background);
}
