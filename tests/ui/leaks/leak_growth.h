// Opening and closing a thousand times leaves nothing behind: no window, no GDI object, no registry key, no
// heap block. A test gives what is done once, and this does it and counts.
#pragma once

#include <functional>

#include "leak_count.h"
#include "ui_test.h"

namespace leaks {

constexpr int kTimes = 1000;
constexpr int kBareTimes = 200;  // enough for what the system keeps, which is the same each time
constexpr int kWarmUp = 30;
// Caches of the system's libraries (fonts, cursors, message pools) may still take a few; a leak of one a time
// would be a thousand.
constexpr int kGdiSlack = 4;
// This Wine still holds drawing surfaces (three objects each) of some of the windows that were shown last.
constexpr int kShownGdiSlack = 200;
constexpr size_t kHeapSlack = 300;

constexpr const wchar_t* kDialogsKey = L"Software\\ktui leak test";

/// Keys and values below the settings of these tests.
inline int settings() {
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, (CString(kDialogsKey) + L"\\Properties").GetString(), 0, KEY_READ,
                        &key) != ERROR_SUCCESS)
        return 0;
    DWORD keys = 0, values = 0;
    ::RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                       nullptr, nullptr);
    ::RegCloseKey(key);
    return static_cast<int>(keys + values);
}

/// What is held once the thread has idled, which ends temporary objects.
inline HeldObjects held_when_idle() {
    ui_test::pump();
    for (LONG count = 0; AfxGetApp()->OnIdle(count); ++count) {
    }
    return count_held_objects();
}

/// Heap blocks by which `once` would grow the process over a thousand times.
inline size_t heap_growth(const std::function<void()>& once) {
    for (int i = 0; i < kWarmUp; ++i) once();
    const size_t before = held_when_idle().heapBlocks;
    for (int i = 0; i < kBareTimes; ++i) once();
    const size_t after = held_when_idle().heapBlocks;
    return after > before ? (after - before) * kTimes / kBareTimes : 0;
}

/// `systemGrowth` is what the system's own windows leave when the same is done without the toolkit.
inline void expect_no_growth(const std::function<void()>& once, size_t systemGrowth = 0,
                             int gdiSlack = kGdiSlack) {
    for (int i = 0; i < kWarmUp; ++i) once();
    const HeldObjects before = held_when_idle();
    const int settings_before = settings();
    for (int i = 0; i < kTimes; ++i) once();
    const HeldObjects after = held_when_idle();
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + gdiSlack);
    EXPECT_LE(after.kernelHandles, before.kernelHandles + kGdiSlack);
    EXPECT_LE(after.heapBlocks, before.heapBlocks + systemGrowth + kHeapSlack);
    EXPECT_EQ(settings(), settings_before);
}

/// A dialog template and the windows of its tips, by the system alone. This Wine keeps a small block for each
/// window of some classes.
inline void open_bare_dialog(HWND parent, int id) {
    HINSTANCE module = AfxGetInstanceHandle();
    HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(id), RT_DIALOG);
    auto* dialog_template = static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(module, resource)));
    HWND dialog = ::CreateDialogIndirectParamW(
        module, dialog_template, parent, [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; }, 0);
    ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, dialog, nullptr,
                      nullptr, nullptr);
    ::DestroyWindow(dialog);
}

}  // namespace leaks
