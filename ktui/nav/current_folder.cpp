#include <ktui/nav/current_folder.h>

#include <commdlg.h>

#include <optional>
#include <vector>

#include <ktui/nav/place_shell.h>

namespace {

std::optional<CString> toldPath(HWND window, UINT message) {
    wchar_t path[MAX_PATH] = {};
    const LRESULT length = ::SendMessageW(window, message, MAX_PATH, reinterpret_cast<LPARAM>(path));
    // Not only the documented -1: an answered path has at least its closing zero.
    if (length <= 0) return std::nullopt;
    path[MAX_PATH - 1] = L'\0';
    return path;
}

CString nameOfToldList(HWND window) {
    const LRESULT size = ::SendMessageW(window, CDM_GETFOLDERIDLIST, 0, 0);
    if (size <= 0) return {};
    std::vector<BYTE> list(static_cast<std::size_t>(size));
    const LRESULT told = ::SendMessageW(window, CDM_GETFOLDERIDLIST, static_cast<WPARAM>(size),
                                        reinterpret_cast<LPARAM>(list.data()));
    return told > 0 ? ParsingName(reinterpret_cast<const _ITEMIDLIST*>(list.data())) : CString();
}

}  // namespace

CString CurrentFolder(HWND window) {
    for (const UINT message : {CDM_GETFOLDERPATH, CDM_GETFILEPATH})
        if (const auto path = toldPath(window, message)) return *path;
    return nameOfToldList(window);
}
