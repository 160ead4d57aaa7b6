#include <ktui/docking/pane_keys.h>

#include <commctrl.h>

#include <algorithm>
#include <map>
#include <vector>

#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/pane_label.h>
#include <ktui/docking/pane_menu.h>
#include <ktui/docking/pane_mover.h>
#include <ktui/docking/pane_stops.h>
#include <ktui/docking/strip_keys.h>

namespace {

constexpr UINT_PTR kFrameWatch = 0x4B50;  // what is added to the frame's window procedure

std::map<HWND, KeyedFrame> keyedFrames;
HHOOK messageHook = nullptr;

CDockingManager* managerOf(CFrameWnd& frame) {
    if (auto* many = DYNAMIC_DOWNCAST(CMDIFrameWndEx, &frame)) return many->GetDockingManager();
    if (auto* one = DYNAMIC_DOWNCAST(CFrameWndEx, &frame)) return one->GetDockingManager();
    return nullptr;
}

UINT paneMenuMessage() {
    static const UINT message = ::RegisterWindowMessageW(L"KtUiPaneMenu");
    return message;
}

bool isHeld(int key) { return ::GetKeyState(key) < 0; }

/// Place 0 is the middle.
void goOn(const KeyedFrame& keyed, int by) {
    const std::vector<CDockablePane*> stops = PaneStops(keyed);
    const auto now = std::ranges::find(stops, PaneStopWithFocus(keyed));
    const int count = static_cast<int>(stops.size()) + 1;
    const int place = now != stops.end() ? static_cast<int>(now - stops.begin()) + 1 : 0;
    const int next = (place + by + count) % count;
    if (next == 0)
        GoToMiddle(keyed);
    else
        GoToPane(stops[static_cast<std::size_t>(next - 1)]);
}

bool turnPalette(CDockablePane& pane, int by) {
    auto* set = DYNAMIC_DOWNCAST(CKbUiPaletteSet, &pane);
    const int count = set != nullptr ? set->GetPaletteCount() : 0;
    if (count < 2) return false;
    const int next = (std::max(0, set->GetActivePaletteTabIndex()) + by + count) % count;
    set->SetActivePalette(next);
    CKbUiPalette* palette = set->GetPalette(next);
    FocusFirstStop(palette->m_hWnd);
    ShowPaneLabel(set->m_hWnd, palette->GetName());
    return true;
}

bool turnTab(CDockablePane& pane, int by) {
    auto* tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, &pane);
    CMFCBaseTabCtrl* tabs = tabbed != nullptr ? tabbed->GetUnderlyingWindow() : nullptr;
    const int count = tabs != nullptr ? tabs->GetTabsNum() : 0;
    for (int i = 1; i < count; ++i) {
        const int next = (tabs->GetActiveTab() + by * i + count * i) % count;
        if (!tabs->IsTabVisible(next)) continue;
        tabs->SetActiveTab(next);
        GoToPane(&pane);
        return true;
    }
    return false;
}

bool turn(const KeyedFrame& keyed, int by) {
    CDockablePane* pane = PaneStopWithFocus(keyed);
    return pane != nullptr && (turnPalette(*PaneContent(pane), by) || turnTab(*pane, by));
}

/// The main window that a window belongs to, by itself or by a floating frame; null while that is disabled.
const KeyedFrame* frameOf(HWND window) {
    const HWND root = ::GetAncestor(window, GA_ROOT);
    for (const auto& [handle, keyed] : keyedFrames) {
        const CWnd* floating = CWnd::FromHandlePermanent(root);
        const bool isOurs =
            root == handle || (floating != nullptr &&
                               keyed.manager->GetMiniFrames().Find(const_cast<CWnd*>(floating)) != nullptr);
        if (isOurs) return ::IsWindowEnabled(handle) && ::GetCapture() == nullptr ? &keyed : nullptr;
    }
    return nullptr;
}

bool takesF6(const KeyedFrame& keyed) {
    const int by = isHeld(VK_SHIFT) ? -1 : 1;
    if (isHeld(VK_CONTROL)) return turn(keyed, by);
    goOn(keyed, by);
    return true;
}

bool opensMenu(const KeyedFrame& keyed) {
    if (isHeld(VK_CONTROL) || isHeld(VK_SHIFT)) return false;
    CDockablePane* pane = PaneStopWithFocus(keyed);
    if (pane == nullptr) return false;
    // Not from within the hook, which other messages have to pass while the menu shows.
    ::PostMessageW(keyed.frame->m_hWnd, paneMenuMessage(), 0, 0);
    return true;
}

/// Whether the message was ours.
bool takes(const MSG& message) {
    if (TakesKeyOfMove(message)) return true;
    const bool isSystemKey = message.message == WM_SYSKEYDOWN;
    if (message.message != WM_KEYDOWN && !isSystemKey) return false;
    const KeyedFrame* keyed = frameOf(message.hwnd);
    if (keyed == nullptr) return false;
    if (isSystemKey)
        return (message.wParam == VK_OEM_MINUS || message.wParam == VK_SUBTRACT) && opensMenu(*keyed);
    if (isHeld(VK_MENU)) return false;
    if (message.wParam == VK_F6) return takesF6(*keyed);
    return TakesKeyOfStrip(*keyed, message);
}

LRESULT CALLBACK onMessage(int code, WPARAM removes, LPARAM message) {
    auto* const taken = reinterpret_cast<MSG*>(message);
    if (code == HC_ACTION && removes == PM_REMOVE && takes(*taken)) taken->message = WM_NULL;
    return ::CallNextHookEx(messageHook, code, removes, message);
}

void leave(HWND frame);

LRESULT CALLBACK watchFrame(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_NCDESTROY) leave(window);
    if (message == paneMenuMessage()) {
        if (const auto at = keyedFrames.find(window); at != keyedFrames.end()) ShowPaneMenu(at->second);
        return 0;
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

void leave(HWND frame) {
    if (keyedFrames.erase(frame) == 0) return;
    ::RemoveWindowSubclass(frame, watchFrame, kFrameWatch);
    EndMove(true);
    HidePaneLabel();
    if (!keyedFrames.empty()) return;
    ::UnhookWindowsHookEx(messageHook);
    messageHook = nullptr;
}

}  // namespace

BOOL KtUiEnablePaneKeys(CFrameWnd& frame, BOOL enable) {
    CDockingManager* const manager = managerOf(frame);
    if (frame.m_hWnd == nullptr || manager == nullptr) return FALSE;
    if (!enable) {
        leave(frame.m_hWnd);
        return TRUE;
    }
    if (messageHook == nullptr)
        messageHook = ::SetWindowsHookExW(WH_GETMESSAGE, onMessage, nullptr, ::GetCurrentThreadId());
    if (messageHook == nullptr || !::SetWindowSubclass(frame.m_hWnd, watchFrame, kFrameWatch, 0))
        return FALSE;
    keyedFrames[frame.m_hWnd] = {&frame, manager};
    return TRUE;
}
