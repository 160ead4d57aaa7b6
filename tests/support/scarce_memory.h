// Memory that runs out when a test says so.
//
// A module takes its memory by the "malloc" that it imports from the C library; watch_malloc puts a counting
// one in its place, in that module alone.
#pragma once

#include <cstdlib>

#include <cstring>

#include <windows.h>

namespace ui_test {

/// How many more requests are granted; negative grants all. Those behind them are refused, one or all.
inline long grantedRequests = -1;
inline bool refuseAllBehind = false;
/// Requests refused so far.
inline long refusedRequests = 0;

inline void* scarce_malloc(std::size_t size) {
    if (grantedRequests > 0) {
        --grantedRequests;
    } else if (grantedRequests == 0) {
        if (!refuseAllBehind) grantedRequests = -1;
        ++refusedRequests;
        return nullptr;
    }
    return std::malloc(size);
}

/// Has `module` ask scarce_malloc from now on; false if it imports no "malloc".
inline bool watch_malloc(HMODULE module) {
    if (!module) return false;
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress); from->Name;
         ++from) {
        const auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->OriginalFirstThunk);
        auto* entry = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->FirstThunk);
        for (; name->u1.AddressOfData; ++name, ++entry) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) continue;
            const auto* import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), "malloc") != 0) continue;
            DWORD former = 0;
            ::VirtualProtect(entry, sizeof *entry, PAGE_READWRITE, &former);
            entry->u1.Function = reinterpret_cast<ULONG_PTR>(&scarce_malloc);
            ::VirtualProtect(entry, sizeof *entry, former, &former);
            return true;
        }
    }
    return false;
}

}  // namespace ui_test
