// CDockingManager: the bar that shows the frame's menu, and the keys that lead to it.
#include <kmfc/docking_manager.h>
#include <kmfc/menu_bar.h>
#include <kmfc/pane_frame_wnd.h>

#include "docked_bars.h"
#include "frame_state.h"

using namespace kmfc::docking;

CMFCMenuBar* CDockingManager::menu_bar() const { return m_state->menuBar; }

void CDockingManager::set_menu_bar(CMFCMenuBar* bar) {
    m_state->menuBar = bar;
    bars().menu_bar_changed();
}

bool CDockingManager::opens_menu(const MSG& message) {
    if (message.message != WM_SYSCHAR || m_state->menuBar == nullptr || !m_pParentWnd->IsWindowEnabled())
        return false;
    // Other windows beside the frame have their own letters.
    const HWND root = ::GetAncestor(message.hwnd, GA_ROOT);
    if (root != m_pParentWnd->m_hWnd &&
        DYNAMIC_DOWNCAST(CPaneFrameWnd, CWnd::FromHandlePermanent(root)) == nullptr)
        return false;
    return m_state->menuBar->open_by_letter(static_cast<wchar_t>(message.wParam));
}

bool CDockingManager::enters_menu(UINT command, LPARAM parameter) {
    constexpr UINT kCommandBits = 0xFFF0;
    return (command & kCommandBits) == SC_KEYMENU && parameter == 0 && m_state->menuBar != nullptr &&
           m_pParentWnd->IsWindowEnabled() && m_state->menuBar->toggle_focus();
}

LRESULT CDockingManager::show_menu(HMENU menu) {
    CMFCMenuBar* const bar = m_state->menuBar;
    if (bar == nullptr) return 0;
    if (menu != nullptr) bar->CreateFromMenu(menu, bar->GetHMenu() == nullptr);
    return reinterpret_cast<LRESULT>(bar->GetHMenu());
}

namespace kmfc::docking {

bool DockedBars::is_outermost(const CDockSite& site) const {
    return m_manager.menu_bar() != nullptr && site.side() == Side::top;
}

CSize DockedBars::outermost_size() const {
    CRect rect(0, 0, 0, 0);
    if (site(Side::top) != nullptr && is_outermost(*site(Side::top))) site(Side::top)->GetWindowRect(&rect);
    return rect.Size();
}

void DockedBars::menu_bar_changed() {
    if (m_manager.menu_bar() != nullptr && make_sites())
        // Bars take their room in the order of the windows.
        site(Side::top)->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    m_manager.layout_later();
}

}  // namespace kmfc::docking
