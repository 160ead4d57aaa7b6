// A provider of previews that answers when a test lets it, for each file by itself.
#pragma once

#include <ktui/nav/never_blocked.h>
#include <ktui/nav/thumbnail.h>

#include <algorithm>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "ui_test.h"

/// Stands in for the host's provider while it lives. Files whose name begins with "slow" wait for Open.
class SlowPreviews {
public:
    SlowPreviews() : m_former(KtUiSetThumbnailProvider(&provide)) { current() = this; }
    ~SlowPreviews() {
        OpenAll();
        // Each thread has answered when all bitmaps that were made have been looked for by their owners.
        EXPECT_TRUE(ui_test::pump_until([this] { return busy() == 0; }, 5000));
        KtUiSetThumbnailProvider(m_former);
        current() = nullptr;
    }

    /// Lets the call for a file named like this answer, now or later.
    void Open(const std::wstring& name) {
        const std::lock_guard lock(m_mutex);
        m_open[name] = true;
        m_changed.notify_all();
    }
    void OpenAll() {
        const std::lock_guard lock(m_mutex);
        m_allOpen = true;
        m_changed.notify_all();
    }
    /// The files asked for so far, in order.
    std::vector<std::wstring> asked() {
        const std::lock_guard lock(m_mutex);
        return m_asked;
    }
    int calls() { return static_cast<int>(asked().size()); }
    /// Calls that have not answered.
    int busy() {
        const std::lock_guard lock(m_mutex);
        return m_busy;
    }
    /// The bitmap answered last for a file named like this, alive or not.
    HBITMAP answered(const std::wstring& name) {
        const std::lock_guard lock(m_mutex);
        return m_answered[name];
    }
    DWORD thread() {
        const std::lock_guard lock(m_mutex);
        return m_thread;
    }
    SIZE room() {
        const std::lock_guard lock(m_mutex);
        return m_room;
    }

    static constexpr COLORREF kColor = RGB(10, 200, 30);
    static constexpr int kWidth = 20, kHeight = 10;  // pixels of the previews

private:
    static SlowPreviews*& current() {
        static SlowPreviews* previews = nullptr;
        return previews;
    }
    static HBITMAP provide(const wchar_t* path, int width, int height) {
        return current()->answer(path, {width, height});
    }
    HBITMAP answer(const wchar_t* path, SIZE room) {
        const std::wstring name = std::filesystem::path(path).filename().wstring();
        std::unique_lock lock(m_mutex);
        m_asked.push_back(name);
        m_thread = ::GetCurrentThreadId();
        m_room = room;
        ++m_busy;
        if (name.rfind(L"slow", 0) == 0) m_changed.wait(lock, [&] { return m_allOpen || m_open[name]; });
        --m_busy;
        return m_answered[name] = picture();
    }
    static HBITMAP picture() {
        const BITMAPINFO info = {{sizeof(BITMAPINFOHEADER), kWidth, kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0},
                                 {}};
        void* bits = nullptr;
        const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        constexpr DWORD kBytes = GetRValue(kColor) << 16 | GetGValue(kColor) << 8 | GetBValue(kColor);
        std::fill_n(static_cast<DWORD*>(bits), kWidth * kHeight, kBytes);
        return bitmap;
    }

    const KtUiThumbnailProvider m_former;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::wstring, bool> m_open;
    bool m_allOpen = false;
    std::vector<std::wstring> m_asked;
    std::map<std::wstring, HBITMAP> m_answered;
    int m_busy = 0;
    DWORD m_thread = 0;
    SIZE m_room = {};
};

/// The limit of a test, taken back at its end.
class NeverBlocked {
public:
    explicit NeverBlocked(unsigned limit) : m_former(KtUiSetNeverBlocked(limit)) {}
    ~NeverBlocked() { KtUiSetNeverBlocked(m_former); }
    NeverBlocked(const NeverBlocked&) = delete;
    NeverBlocked& operator=(const NeverBlocked&) = delete;

private:
    const unsigned m_former;
};
