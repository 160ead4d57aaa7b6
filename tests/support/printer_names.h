// The block that names a printer, as print dialogs give it.
#pragma once

#include <windows.h>

#include <algorithm>
#include <string>

namespace ui_test {

/// The block is the caller's.
inline HGLOBAL printer_names(const wchar_t* driver, const wchar_t* device, const wchar_t* port) {
    const std::wstring all[] = {driver, device, port};
    std::size_t size = sizeof(DEVNAMES) / sizeof(wchar_t);
    WORD places[3] = {};
    for (int i = 0; i < 3; ++i) {
        places[i] = static_cast<WORD>(size);
        size += all[i].size() + 1;
    }
    const HGLOBAL block = ::GlobalAlloc(GHND, size * sizeof(wchar_t));
    auto* names = static_cast<DEVNAMES*>(::GlobalLock(block));
    *names = {places[0], places[1], places[2], 0};
    for (int i = 0; i < 3; ++i)
        std::copy_n(all[i].c_str(), all[i].size() + 1, reinterpret_cast<wchar_t*>(names) + places[i]);
    ::GlobalUnlock(block);
    return block;
}

}  // namespace ui_test
