#include "ask_file.h"

#include <commdlg.h>

#include <iterator>

CString AskFileToOpen(CWnd& owner, UINT filter) {
    wchar_t path[MAX_PATH] = {};
    CString kinds;
    kinds.LoadString(filter);
    kinds.Replace(L'|', L'\0');
    OPENFILENAMEW request = {};
    request.lStructSize = sizeof(request);
    request.hwndOwner = owner.m_hWnd;
    request.lpstrFilter = kinds;
    request.lpstrFile = path;
    request.nMaxFile = MAX_PATH;
    request.Flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_FILEMUSTEXIST;
    return ::GetOpenFileNameW(&request) ? CString(path) : CString();
}

CString WhyNotWritable(const CString& path) {
    const bool exists = ::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
    const HANDLE file =
        ::CreateFileW(path, GENERIC_WRITE | DELETE, 0, nullptr, exists ? OPEN_EXISTING : CREATE_NEW,
                      exists ? FILE_ATTRIBUTE_NORMAL : FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    const DWORD error = ::GetLastError();
    if (file != INVALID_HANDLE_VALUE) {
        ::CloseHandle(file);
        return {};
    }
    wchar_t words[512] = {};
    ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, words,
                     static_cast<DWORD>(std::size(words)), nullptr);
    CString reason = words;
    reason.Trim();
    return reason;
}
