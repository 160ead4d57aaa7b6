#include "tool_bars.h"

#include <ktui/ktui.h>

namespace {

constexpr int kLargerPercents[] = {125, 150, 200};  // of the pictures behind those of a bar

/// The pictures that are nearest to the screen's resolution and not larger, scaled where it lies between.
UINT picturesOf(UINT bar) {
    constexpr int kPlainDpi = 96;
    const int percent = ::MulDiv(100, afxGlobalData.m_nDpi, kPlainDpi);
    UINT larger = 0;
    for (const int each : kLargerPercents)
        if (percent >= each) ++larger;
    return bar + larger;
}

void nameBar(CMFCToolBar& bar, UINT name) {
    CString text;
    text.LoadString(name);
    bar.SetWindowText(text);
    bar.EnableDocking(CBRS_ALIGN_ANY);
}

bool createBar(CMFCToolBar& bar, CMDIFrameWndEx& frame, UINT id, UINT name) {
    if (!bar.Create(&frame, AFX_DEFAULT_TOOLBAR_STYLE, id) || !bar.LoadToolBar(id)) return false;
    const UINT pictures = picturesOf(id);
    if (pictures != id && !bar.LoadBitmap(pictures)) return false;
    nameBar(bar, name);
    return true;
}

}  // namespace

bool CToolBars::Create(CMDIFrameWndEx& frame) {
    if (!m_menu.Create(&frame)) return false;
    nameBar(m_menu, IDS_MENU_BAR);
    if (!createBar(m_file, frame, IDR_FILE_BAR, IDS_FILE_BAR) ||
        !createBar(m_view, frame, IDR_VIEW_BAR, IDS_VIEW_BAR))
        return false;
    frame.DockPane(&m_menu, AFX_IDW_DOCKBAR_TOP);
    frame.DockPane(&m_view, AFX_IDW_DOCKBAR_TOP);
    frame.DockPaneLeftOf(&m_file, &m_view);
    return true;
}

void CToolBars::Toggle(UINT command) {
    CMFCToolBar& bar = command == ID_VIEW_TOOLBAR_FILE ? m_file : m_view;
    bar.ShowPane(!bar.IsVisible(), FALSE, FALSE);
}

void CToolBars::Enable(bool menu, bool tools) {
    if (m_menu.m_hWnd != nullptr) m_menu.EnableWindow(menu);
    for (CMFCToolBar* const bar : {&m_file, &m_view})
        if (bar->m_hWnd != nullptr) bar->EnableWindow(tools);
}
