// The screen's device context for as long as it is needed.
#pragma once

#include <windows.h>

namespace kmfc {

class ScreenDC {
public:
    ScreenDC() : m_dc(::GetDC(nullptr)) {}
    ~ScreenDC() { ::ReleaseDC(nullptr, m_dc); }
    ScreenDC(const ScreenDC&) = delete;
    ScreenDC& operator=(const ScreenDC&) = delete;
    operator HDC() const { return m_dc; }

private:
    HDC m_dc;
};

}  // namespace kmfc
