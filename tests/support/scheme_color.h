// One colour of the system, replaced for as long as a test needs it.
#pragma once

#include <windows.h>

namespace ui_test {

class SchemeColor {
public:
    /// `index` is COLOR_...
    SchemeColor(int index, COLORREF color) : m_index(index), m_former(::GetSysColor(index)) {
        ::SetSysColors(1, &m_index, &color);
    }
    ~SchemeColor() { ::SetSysColors(1, &m_index, &m_former); }
    SchemeColor(const SchemeColor&) = delete;
    SchemeColor& operator=(const SchemeColor&) = delete;

private:
    int m_index;
    COLORREF m_former;
};

}  // namespace ui_test
