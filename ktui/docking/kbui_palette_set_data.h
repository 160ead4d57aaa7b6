// What a palette set holds. Private to the library.
#pragma once

#include <ktui/docking/xt_tool_tab_ctrl.h>

struct KbUiPaletteSetData {
    explicit KbUiPaletteSetData(CKbUiPaletteSet* owner) : m_owner(owner) {}

    CKbUiPaletteSet* m_owner;
    unsigned long m_style = 0;
    CXToolTabCtrl m_tabs;
    int m_opacity = 100;
    int m_contextPalette = -1;
    int m_autoRollup = 0;
};
