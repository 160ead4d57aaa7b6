// Another resolution of every window, and a host that follows it or doesn't.
#pragma once

#include <ktui/host/appearance.h>

#include <vector>

namespace ui_test {

/// Shows another resolution for as long as it lives.
class FakeResolution {
public:
    explicit FakeResolution(UINT dpi, BOOL follows = TRUE) : m_former(KtUiExchangeDpiSource(dpiOf)) {
        fakeDpi() = dpi;
        KtUiFollowSystemAppearance(follows);
    }
    ~FakeResolution() {
        KtUiFollowSystemAppearance(FALSE);
        KtUiExchangeDpiSource(m_former);
    }

    /// Changes the resolution meanwhile.
    void show(UINT dpi) const { fakeDpi() = dpi; }
    /// The windows whose resolution was asked for.
    static std::vector<HWND>& asked() {
        static std::vector<HWND> windows;
        return windows;
    }
    FakeResolution(const FakeResolution&) = delete;
    FakeResolution& operator=(const FakeResolution&) = delete;

private:
    static UINT& fakeDpi() {
        static UINT dpi = 96;
        return dpi;
    }
    static UINT dpiOf(HWND window) {
        asked().push_back(window);
        return fakeDpi();
    }
    KtUiDpiSource m_former;
};

}  // namespace ui_test
