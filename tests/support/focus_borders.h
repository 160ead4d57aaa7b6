// Other measures of the system's focus border for as long as a test needs them.
#pragma once

#include <windows.h>

namespace ui_test {

class FocusBorders {
public:
    /// Both in pixels.
    FocusBorders(UINT width, UINT height) {
        ::SystemParametersInfoW(SPI_GETFOCUSBORDERWIDTH, 0, &m_width, 0);
        ::SystemParametersInfoW(SPI_GETFOCUSBORDERHEIGHT, 0, &m_height, 0);
        set(width, height);
    }
    ~FocusBorders() { set(m_width, m_height); }
    FocusBorders(const FocusBorders&) = delete;
    FocusBorders& operator=(const FocusBorders&) = delete;

private:
    static void set(UINT width, UINT height) {
        ::SystemParametersInfoW(SPI_SETFOCUSBORDERWIDTH, 0, reinterpret_cast<void*>(ULONG_PTR{width}), 0);
        ::SystemParametersInfoW(SPI_SETFOCUSBORDERHEIGHT, 0, reinterpret_cast<void*>(ULONG_PTR{height}), 0);
    }
    UINT m_width = 1, m_height = 1;
};

}  // namespace ui_test
