// shown_page PAGE FILE: stands in for the program that shows help pages, and writes into FILE which page it
// was asked for. The file is there with its whole text or not at all.
#include <string>

#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    if (__argc != 3) return 1;
    const std::wstring page = __wargv[1], file = __wargv[2], draft = file + L".draft";
    const HANDLE out = ::CreateFileW(draft.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
    if (out == INVALID_HANDLE_VALUE) return 1;
    DWORD written = 0;
    ::WriteFile(out, page.data(), static_cast<DWORD>(page.size() * sizeof(wchar_t)), &written, nullptr);
    ::CloseHandle(out);
    return ::MoveFileExW(draft.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
