#include <ktui/pickers/plot_style_table_scan.h>

#include <afxwin.h>
#include <kh_system.h>
#include <ktut.h>

#include <algorithm>

namespace {

constexpr const wchar_t* kFoldersVariable = L"PrinterStyleSheetDir";

/// The folders of the path variable. An empty piece is a folder like any other: the root.
std::vector<std::wstring> styleTableFolders() {
    std::vector<std::wstring> folders;
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    wchar_t value[kKhPathLength] = {};
    if (!host || host->getPathVariable(kFoldersVariable, value) != kKhStatusOk) return folders;
    const std::wstring all = value;
    for (std::size_t begin = 0; begin <= all.size();) {
        const std::size_t end = std::min(all.find(L';', begin), all.size());
        folders.push_back(all.substr(begin, end - begin));
        begin = end + 1;
    }
    return folders;
}

/// Appends the path of everything in `folder`, subfolders included; false if it can't be read.
bool listFolder(const std::wstring& folder, std::vector<std::wstring>& paths) {
    WIN32_FIND_DATAW found = {};
    const HANDLE search = ::FindFirstFileW((folder + L"\\*.*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return false;
    do paths.push_back(folder + L"\\" + found.cFileName);
    while (::FindNextFileW(search, &found));
    ::FindClose(search);
    return true;
}

bool hasStyleTableExtension(const std::wstring& path) {
    if (path.size() >= 2 * kKhPathLength) return false;
    wchar_t extension[2 * kKhPathLength] = {};
    _wsplitpath(path.c_str(), nullptr, nullptr, nullptr, extension);
    return _wcsicmp(extension, L".stb") == 0 || _wcsicmp(extension, L".ctb") == 0;
}

}  // namespace

std::vector<std::wstring> FindPlotStyleTables() {
    std::vector<std::wstring> paths;
    for (const std::wstring& folder : styleTableFolders())
        if (!listFolder(folder, paths)) listFolder(ktutProgramFolder().c_str() + folder, paths);
    std::erase_if(paths, [](const std::wstring& path) { return !hasStyleTableExtension(path); });
    return paths;
}

std::wstring PlotStyleTableName(const std::wstring& path) {
    const std::size_t backslash = path.rfind(L'\\');
    return backslash == std::wstring::npos || backslash == 0 ? std::wstring() : path.substr(backslash + 1);
}
