#include <ktui/docking/pane_label.h>

#include <commctrl.h>

namespace {

constexpr UINT kShownFor = 1500;  // milliseconds
constexpr int kInset = 8;         // pixels from the window's corner

HWND label = nullptr;
UINT_PTR timer = 0;

TOOLINFOW toolInfo() {
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
    return tool;
}

void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD) { HidePaneLabel(); }

}  // namespace

void ShowPaneLabel(HWND over, const CString& text, PaneLabelEnd end) {
    HidePaneLabel();
    label = ::CreateWindowExW(WS_EX_TOPMOST | WS_EX_TRANSPARENT, TOOLTIPS_CLASSW, nullptr,
                              WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0,
                              ::GetAncestor(over, GA_ROOT), nullptr, nullptr, nullptr);
    if (label == nullptr) return;
    RECT place = {};
    ::GetWindowRect(over, &place);
    TOOLINFOW tool = toolInfo();
    CString name = text;
    tool.lpszText = name.GetBuffer();
    ::SendMessageW(label, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    ::SendMessageW(label, TTM_TRACKPOSITION, 0, MAKELPARAM(place.left + kInset, place.top + kInset));
    ::SendMessageW(label, TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
    if (end == PaneLabelEnd::kByItself) timer = ::SetTimer(nullptr, 0, kShownFor, onTimer);
}

void HidePaneLabel() {
    if (timer != 0) ::KillTimer(nullptr, timer);
    timer = 0;
    // It may have gone with the window that owned it.
    if (::IsWindow(label)) ::DestroyWindow(label);
    label = nullptr;
}
