// A strip of tabs to look into, with colours that tell its lines apart.
#pragma once

#include <ktui/docking/xt_tool_tab_ctrl.h>

#include <vector>

#include "expect_rect.h"
#include "picture.h"
#include "ui_test.h"

namespace docking_test {

constexpr COLORREF kPaper = RGB(0, 200, 0), kShadow = RGB(200, 0, 0), kDark = RGB(0, 0, 200);
constexpr DWORD kFlat = WS_VISIBLE | 0x1C;   // lying, tabs fitted, tips
constexpr DWORD kLeft = WS_VISIBLE | 0x1D;   // on its side, tabs standing
constexpr DWORD kRight = WS_VISIBLE | 0x1E;  // on its side, tabs hanging

/// Opens what the strip holds.
class OpenStrip : public CXToolTabCtrl {
public:
    OpenStrip() {
        m_background = kPaper;
        m_shadowColor = kShadow;
        m_darkColor = kDark;
    }
    using CXToolTabCtrl::m_activeTab;
    using CXToolTabCtrl::m_background;
    using CXToolTabCtrl::m_darkColor;
    using CXToolTabCtrl::m_firstVisible;
    using CXToolTabCtrl::m_font;
    using CXToolTabCtrl::m_lastVisible;
    using CXToolTabCtrl::m_marginX;
    using CXToolTabCtrl::m_marginY;
    using CXToolTabCtrl::m_maxTabWidth;
    using CXToolTabCtrl::m_minTabWidth;
    using CXToolTabCtrl::m_nextToolId;
    using CXToolTabCtrl::m_paletteSet;
    using CXToolTabCtrl::m_scrollPoints;
    using CXToolTabCtrl::m_scrollRect;
    using CXToolTabCtrl::m_scrollRgn;
    using CXToolTabCtrl::m_scrollWidth;
    using CXToolTabCtrl::m_shadowColor;
    using CXToolTabCtrl::m_style;
    using CXToolTabCtrl::m_tabHeight;
    using CXToolTabCtrl::m_tabs;
    using CXToolTabCtrl::m_tip;

    /// Puts tabs named after their places into the strip.
    void fill(int count) {
        for (int i = 0; i < count; ++i) {
            CString name;
            name.Format(L"Tab %d", i);
            EXPECT_EQ(InsertTab(i, name, name + L" tip", nullptr), 0);
        }
    }
    CRect rectOf(int index) const { return GetTab(index)->m_rect; }
    int hit(int x, int y) {
        int index = 77;
        m_hitAnswer = HitTest(CPoint(x, y), index);
        return index;
    }
    int m_hitAnswer = 0;
};

struct StripTest : ::testing::Test {
    ui_test::ParentWindow parent;

    void make(CXToolTabCtrl& strip, DWORD style, int width, int height) {
        ASSERT_TRUE(strip.Create(style, CRect(10, 10, 10 + width, 10 + height), &parent, 111));
    }
    /// What the strip shows once it is painted anew.
    ui_test::Picture shown(CXToolTabCtrl& strip) {
        strip.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
        return ui_test::Picture(strip);
    }
    /// Height of a text in the strip's font.
    static int textHeight() {
        const HDC dc = ::GetDC(nullptr);
        const HGDIOBJ former = ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
        SIZE size = {};
        ::GetTextExtentPoint32W(dc, L"test", 4, &size);
        ::SelectObject(dc, former);
        ::ReleaseDC(nullptr, dc);
        return size.cy;
    }
};

}  // namespace docking_test
