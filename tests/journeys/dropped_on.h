// Drops files on a window of another program, as the shell does: their names are in the memory of that
// program.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include <shlobj.h>
#include <windows.h>

namespace journey {

/// False if the window's program can't be reached.
inline bool DropOn(HWND window, const std::vector<std::wstring>& files) {
    std::wstring names;
    for (const std::wstring& file : files) names += file + L'\0';
    names += L'\0';
    std::vector<char> block(sizeof(DROPFILES) + names.size() * sizeof(wchar_t));
    auto* const head = reinterpret_cast<DROPFILES*>(block.data());
    head->pFiles = sizeof(DROPFILES);
    head->fWide = TRUE;
    std::memcpy(block.data() + sizeof(DROPFILES), names.data(), names.size() * sizeof(wchar_t));
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    const HANDLE program =
        ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE | PROCESS_VM_READ, FALSE, process);
    if (program == nullptr) return false;
    void* const there =
        ::VirtualAllocEx(program, nullptr, block.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    const bool isThere = there != nullptr &&
                         ::WriteProcessMemory(program, there, block.data(), block.size(), nullptr) != FALSE;
    ::CloseHandle(program);
    return isThere && ::PostMessageW(window, WM_DROPFILES, reinterpret_cast<WPARAM>(there), 0) != FALSE;
}

}  // namespace journey
