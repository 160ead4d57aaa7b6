#include "crash_report.h"

#include <atomic>
#include <cstdio>
#include <cwchar>

#include <windows.h>

namespace {

void print_frame(int number, DWORD64 address) {
    HMODULE module = nullptr;
    char name[MAX_PATH] = "?";
    ::GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<LPCSTR>(address), &module);
    if (module != nullptr) ::GetModuleFileNameA(module, name, MAX_PATH);
    // The offset is what addr2line wants, added to the image base of the file.
    std::fprintf(stderr, "  #%d %s+0x%llx\n", number, name,
                 static_cast<unsigned long long>(address - reinterpret_cast<DWORD64>(module)));
}

void print_stack(CONTEXT context) {
    for (int number = 0; number < 40 && context.Rip != 0; ++number) {
        print_frame(number, context.Rip);
        DWORD64 base = 0;
        PRUNTIME_FUNCTION function = ::RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (function == nullptr) {
            context.Rip = *reinterpret_cast<DWORD64*>(context.Rsp);
            context.Rsp += 8;
            continue;
        }
        void* handlerData = nullptr;
        DWORD64 frame = 0;
        ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handlerData, &frame,
                           nullptr);
    }
}

LONG WINAPI report(EXCEPTION_POINTERS* exception) {
    std::fprintf(stderr, "crash: exception %08lx\n", exception->ExceptionRecord->ExceptionCode);
    print_stack(*exception->ContextRecord);
    std::fflush(stderr);
    std::fflush(stdout);
    ::TerminateProcess(::GetCurrentProcess(), kCrashExitCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

std::atomic<unsigned> faults = 0;

/// Whether code at `address` lies in a file of the program's own folder, and not in the system's.
bool is_own_code(const void* address) {
    HMODULE module = nullptr;
    wchar_t program[MAX_PATH] = {}, file[MAX_PATH] = {};
    if (!::GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            static_cast<LPCWSTR>(address), &module))
        return false;
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    ::GetModuleFileNameW(module, file, MAX_PATH);
    const auto folder = std::wcsrchr(program, L'\\') - program;
    return ::_wcsnicmp(program, file, static_cast<size_t>(folder) + 1) == 0;
}

/// Sees every exception first; the system swallows those that leave a window procedure.
LONG WINAPI note_fault(EXCEPTION_POINTERS* exception) {
    const DWORD code = exception->ExceptionRecord->ExceptionCode;
    const bool is_fault = code == EXCEPTION_ACCESS_VIOLATION || code == EXCEPTION_ILLEGAL_INSTRUCTION ||
                          code == EXCEPTION_INT_DIVIDE_BY_ZERO;
    if (is_fault && is_own_code(exception->ExceptionRecord->ExceptionAddress)) {
        ++faults;
        std::fprintf(stderr, "fault: exception %08lx\n", code);
        print_stack(*exception->ContextRecord);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

unsigned fault_count() { return faults; }

void install_crash_report() {
    ::SetUnhandledExceptionFilter(report);
    ::AddVectoredExceptionHandler(1, note_fault);
}
