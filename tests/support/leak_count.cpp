#include "leak_count.h"

#include <vector>

#include <windows.h>
#include <winternl.h>

namespace {

/// One entry of the GDI handle table that Windows maps into every process.
struct GdiEntry {
    UINT64 object;
    ULONG owner;
    USHORT unique;
    UCHAR type, flags;
    UINT64 userPointer;
};
constexpr int kGdiTableSize = 16384;
constexpr size_t kGdiTableOffset = 0xF8;  // in the process environment block, 64-bit

int count_gdi() {
    auto* block = reinterpret_cast<BYTE*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const GdiEntry* table = *reinterpret_cast<GdiEntry**>(block + kGdiTableOffset);
    int count = 0;
    for (int i = 0; table != nullptr && i < kGdiTableSize; ++i)
        if (table[i].type != 0) ++count;
    return count;
}

int count_windows() {
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& n = *reinterpret_cast<int*>(parameter);
            ++n;
            ::EnumChildWindows(
                window,
                [](HWND, LPARAM p) -> BOOL {
                    ++*reinterpret_cast<int*>(p);
                    return TRUE;
                },
                parameter);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

int count_handles() {
    DWORD count = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &count);
    return static_cast<int>(count);
}

void count_heap(HeldObjects& held) {
    HANDLE heaps[64];
    const DWORD number = ::GetProcessHeaps(64, heaps);
    for (DWORD i = 0; i < number && i < 64; ++i) {
        PROCESS_HEAP_ENTRY entry = {};
        ::HeapLock(heaps[i]);
        while (::HeapWalk(heaps[i], &entry)) {
            if (!(entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)) continue;
            held.heapBytes += entry.cbData;
            ++held.heapBlocks;
        }
        ::HeapUnlock(heaps[i]);
    }
}

}  // namespace

HeldObjects count_held_objects() {
    HeldObjects held;
    held.gdiObjects = count_gdi();
    held.windows = count_windows();
    held.kernelHandles = count_handles();
    count_heap(held);
    return held;
}
