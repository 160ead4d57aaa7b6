#include <ktui/docking/strip_keys.h>

#include <commctrl.h>

#include <algorithm>

#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/name_edit.h>
#include <ktui/docking/pane_label.h>
#include <ktui/docking/tab_strip_layout.h>
#include <ktui/docking/xt_tool_tab_ctrl.h>

namespace {

constexpr UINT_PTR kFocusMark = 0x4B53;  // what is added to the strip's window procedure
constexpr int kMarkInset = 2;            // pixels within the tab

void drawMark(const CXToolTabCtrl& strip) {
    const int active = strip.GetActiveTab();
    if (active < 0 || active >= strip.GetTabCount()) return;
    CRect client, mark = strip.GetTab(active)->m_rect;
    strip.GetClientRect(&client);
    if (strip.IsTurned()) mark = strip::TurnedBack(mark, client.Height());
    mark.DeflateRect(kMarkInset, kMarkInset);
    const HDC dc = ::GetDC(strip.m_hWnd);
    ::DrawFocusRect(dc, &mark);
    ::ReleaseDC(strip.m_hWnd, dc);
}

LRESULT CALLBACK markFocus(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    // The mark inverts what is below, so all of that is painted anew.
    if (message == WM_PAINT) ::InvalidateRect(window, nullptr, FALSE);
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_PAINT) {
        if (const auto* strip = dynamic_cast<CXToolTabCtrl*>(CWnd::FromHandlePermanent(window)))
            drawMark(*strip);
    } else if (message == WM_KILLFOCUS || message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(window, markFocus, kFocusMark);
        ::InvalidateRect(window, nullptr, FALSE);
    }
    return result;
}

void tellPalette(CKbUiPaletteSet& set) {
    if (const CKbUiPalette* palette = set.GetActivePalette()) ShowPaneLabel(set.m_hWnd, palette->GetName());
}

void goToStrip(CKbUiPaletteSet& set) {
    CXToolTabCtrl& strip = set.GetStrip();
    strip.SetFocus();
    ::SetWindowSubclass(strip.m_hWnd, markFocus, kFocusMark, 0);
    strip.Invalidate(FALSE);
    tellPalette(set);
}

void goIntoPalette(const CKbUiPaletteSet& set, bool last) {
    const CKbUiPalette* palette = set.GetActivePalette();
    if (palette == nullptr) return;
    const std::vector<HWND> stops = TabStopsIn(palette->m_hWnd);
    if (stops.empty())
        ::SetFocus(palette->m_hWnd);
    else
        ::SetFocus(last ? stops.back() : stops.front());
}

/// The first tab is the lowest of a strip that stands.
int stepOf(WPARAM key, bool stands) {
    switch (key) {
        case VK_RIGHT: return 1;
        case VK_LEFT: return -1;
        case VK_UP: return stands ? 1 : -1;
        case VK_DOWN: return stands ? -1 : 1;
        default: return 0;
    }
}

bool takesOnStrip(CKbUiPaletteSet& set, WPARAM key) {
    const CXToolTabCtrl& strip = set.GetStrip();
    if (const int by = stepOf(key, strip.IsTurned()); by != 0) {
        const int next = std::clamp(set.GetActivePaletteTabIndex() + by, 0, set.GetPaletteCount() - 1);
        set.SetActivePalette(next);
        tellPalette(set);
        return true;
    }
    switch (key) {
        case VK_F2:
            if (const CKbUiPalette* palette = set.GetActivePalette())
                ::SendMessageW(palette->m_hWnd, kBeginNameEdit, 0, 0);
            return true;
        case VK_RETURN: goIntoPalette(set, false); return true;
        case VK_TAB: goIntoPalette(set, ::GetKeyState(VK_SHIFT) < 0); return true;
        default: return false;
    }
}

/// Whether Tab in a palette leaves it: at its last control, or with Shift at its first.
bool leavesPalette(const CKbUiPalette& palette, HWND focus, const MSG& message) {
    const LRESULT code = ::SendMessageW(focus, WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&message));
    if (code & (DLGC_WANTTAB | DLGC_WANTALLKEYS)) return false;
    const std::vector<HWND> stops = TabStopsIn(palette.m_hWnd);
    if (stops.empty()) return true;
    const HWND end = ::GetKeyState(VK_SHIFT) < 0 ? stops.front() : stops.back();
    return focus == end || ::IsChild(end, focus);
}

}  // namespace

bool TakesKeyOfStrip(const KeyedFrame& keyed, const MSG& message) {
    if (::GetKeyState(VK_CONTROL) < 0) return false;
    CDockablePane* pane = PaneStopWithFocus(keyed);
    auto* set = pane != nullptr ? DYNAMIC_DOWNCAST(CKbUiPaletteSet, PaneContent(pane)) : nullptr;
    if (set == nullptr || !::IsWindowVisible(set->GetStrip().GetSafeHwnd())) return false;
    const HWND focus = ::GetFocus();
    if (focus == set->GetStrip().m_hWnd) return takesOnStrip(*set, message.wParam);
    if (message.wParam != VK_TAB) return false;
    const CKbUiPalette* palette = set->GetActivePalette();
    const bool inPalette =
        palette != nullptr && (focus == palette->m_hWnd || ::IsChild(palette->m_hWnd, focus));
    if (focus != set->m_hWnd && !(inPalette && leavesPalette(*palette, focus, message))) return false;
    goToStrip(*set);
    return true;
}
