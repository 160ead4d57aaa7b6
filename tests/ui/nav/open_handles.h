// The handles of files and threads that a module opens and doesn't close.
#pragma once

#include <mutex>
#include <set>

#include "replaced_import.h"

/// Watches one module, one object at a time; on any thread.
class OpenHandles {
public:
    explicit OpenHandles(HMODULE module)
        : m_files(module, "CreateFileW", &openFile),
          m_threads(module, "CreateThread", &startThread),
          m_closes(module, "CloseHandle", &close) {
        state() = {};
    }
    /// How many were opened, and how many of them are still open.
    static int Opened() {
        const std::lock_guard lock(mutex());
        return state().opened;
    }
    static size_t Left() {
        const std::lock_guard lock(mutex());
        return state().open.size();
    }

private:
    struct State {
        int opened = 0;
        std::set<HANDLE> open;
    };
    static State& state() {
        static State one;
        return one;
    }
    static std::mutex& mutex() {
        static std::mutex one;
        return one;
    }
    static HANDLE noted(HANDLE handle) {
        if (handle == INVALID_HANDLE_VALUE || handle == nullptr) return handle;
        const std::lock_guard lock(mutex());
        ++state().opened;
        state().open.insert(handle);
        return handle;
    }
    /// The system's own, past what stands in for it here.
    template <class Function>
    static Function* systems(const char* name) {
        return reinterpret_cast<Function*>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), name)));
    }
    static HANDLE WINAPI openFile(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                                  DWORD creation, DWORD flags, HANDLE sample) {
        return noted(systems<decltype(openFile)>("CreateFileW")(path, access, share, security, creation,
                                                                flags, sample));
    }
    static HANDLE WINAPI startThread(LPSECURITY_ATTRIBUTES security, SIZE_T stack, LPTHREAD_START_ROUTINE run,
                                     LPVOID parameter, DWORD flags, LPDWORD id) {
        return noted(
            systems<decltype(startThread)>("CreateThread")(security, stack, run, parameter, flags, id));
    }
    static BOOL WINAPI close(HANDLE handle) {
        {
            const std::lock_guard lock(mutex());
            state().open.erase(handle);
        }
        return systems<decltype(close)>("CloseHandle")(handle);
    }
    ui_test::ReplacedImport m_files, m_threads, m_closes;
};
