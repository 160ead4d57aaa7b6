// A control's class over a window that belongs to another object.
#pragma once

#include <windows.h>

namespace kmfc {

/// Neither owns nor destroys the window.
template <class Control>
class ControlOverView {
public:
    ControlOverView() = default;
    ~ControlOverView() { m_control.m_hWnd = nullptr; }
    ControlOverView(const ControlOverView&) = delete;
    ControlOverView& operator=(const ControlOverView&) = delete;

    Control& over(HWND window) const {
        m_control.m_hWnd = window;
        return m_control;
    }

private:
    mutable Control m_control;
};

}  // namespace kmfc
