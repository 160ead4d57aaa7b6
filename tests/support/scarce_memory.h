// Memory that runs out when a test says so.
//
// A module takes its memory by the "malloc" that it imports from the C library; watch_malloc puts a counting
// one in its place, in that module alone.
#pragma once

#include <cstdlib>

#include "replaced_import.h"

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
    return replace_import(module, "malloc", &scarce_malloc) != nullptr;
}

}  // namespace ui_test
