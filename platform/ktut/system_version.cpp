#include "ktut.h"

#ifdef _WIN32

#include <windows.h>

int ktutOSVersion() {
    // The usual question is answered for the version that a program was made for; this one tells the truth.
    using Question = LONG(WINAPI*)(OSVERSIONINFOW*);
    OSVERSIONINFOW info = {};
    info.dwOSVersionInfoSize = sizeof info;
    const HMODULE module = GetModuleHandleW(L"ntdll.dll");
    const auto ask = reinterpret_cast<Question>(module ? GetProcAddress(module, "RtlGetVersion") : nullptr);
    if (!ask || ask(&info) != 0) return 0;
    return static_cast<int>(info.dwMajorVersion * 100 + info.dwMinorVersion);
}

#else

int ktutOSVersion() { return 0; }

#endif
