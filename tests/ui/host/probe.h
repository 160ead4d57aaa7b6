// Runs a small program beside the tests and waits for it.
#pragma once

#include <string>

#include <windows.h>

namespace ui_test {

constexpr DWORD kProbeNotStarted = 1000;
constexpr DWORD kProbeStuck = 1001;

/// Runs `command` in `folder` and answers its exit code, or one of the two above.
inline DWORD run_probe(std::wstring command, const std::wstring& folder) {
    constexpr DWORD kDeadline = 20000;  // milliseconds
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                          &startup, &process))
        return kProbeNotStarted;
    DWORD code = kProbeStuck;
    if (::WaitForSingleObject(process.hProcess, kDeadline) == WAIT_OBJECT_0)
        ::GetExitCodeProcess(process.hProcess, &code);
    else
        ::TerminateProcess(process.hProcess, kProbeStuck);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

}  // namespace ui_test
