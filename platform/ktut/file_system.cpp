// What asks the file system. Windows and POSIX stand beside each other; the rules are the same.
#include <filesystem>
#include <string>

#include "ktut.h"

#ifdef _WIN32
#include <windows.h>

#include <shlobj.h>
#else
#include <cstdlib>
#endif

namespace {

namespace fs = std::filesystem;

fs::path toPath(const wchar_t* text) {
#ifdef _WIN32
    return fs::path(text);
#else
    return fs::path(odUtf8(text));
#endif
}

OdString fromPath(const fs::path& path) {
#ifdef _WIN32
    return OdString(path.wstring());
#else
    return odWide(path.string());
#endif
}

/// The whole path without dots and trailing separators; empty if the system can't tell.
OdString fullPath(const wchar_t* text) {
    std::error_code problem;
    fs::path whole = fs::absolute(toPath(text), problem).lexically_normal();
    if (problem) return {};
    if (!whole.has_filename() && whole.has_relative_path()) whole = whole.parent_path();
    return fromPath(whole);
}

/// The folder under which users' programs keep their files.
fs::path userDataFolder() {
#ifdef _WIN32
    wchar_t buffer[MAX_PATH] = L"";
    return SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, buffer) == S_OK ? buffer
                                                                                                 : L"";
#else
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) return data;
    const char* home = std::getenv("HOME");
    return home && *home ? fs::path(home) / ".local" / "share" : fs::path();
#endif
}

}  // namespace

bool ktutDirectoryExists(const wchar_t* path) {
    std::error_code problem;
    return path && *path && fs::is_directory(toPath(path), problem);
}

bool ktutPathExists(const wchar_t* path) {
    std::error_code problem;
    return path && *path && fs::exists(toPath(path), problem);
}

bool ktutPathIsSame(const wchar_t* a, const wchar_t* b) {
    if (!a || !b || !*a || !*b) return false;
    const OdString x = fullPath(a);
    const OdString y = fullPath(b);
#ifdef _WIN32
    return !x.isEmpty() && x.iCompare(y) == 0;
#else
    return !x.isEmpty() && x == y;
#endif
}

bool ktutGetAppDataDir(OdString& folder) {
    const fs::path base = userDataFolder();
    if (base.empty()) return false;
    const fs::path whole = base / "Velmora" / "ktui";
    std::error_code problem;
    fs::create_directories(whole, problem);
    if (!fs::is_directory(whole, problem)) return false;
    folder = fromPath(whole);
    return true;
}
