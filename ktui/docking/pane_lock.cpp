#include <ktui/docking/pane_lock.h>

#include <ktui/docking/kbui_dock_control_bar.h>
#include <ktui/docking/multi_pane_frame_wnd_ex.h>

namespace {

PaneLocks locks;

}  // namespace

void KbUiLockPanel(bool docked, bool floating) { locks = {docked, floating}; }

const PaneLocks& PaneLocksInForce() { return locks; }

bool IsCtrlDown() { return (::GetKeyState(VK_CONTROL) & 0xFF00) != 0; }

bool IsToolkitFrame(const CPaneFrameWnd* frame) {
    return frame != nullptr && frame->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWndEx));
}

bool IsPaneLocked(const CPaneFrameWnd* frame) {
    if (IsCtrlDown()) return false;
    return IsToolkitFrame(frame) ? locks.floating : locks.docked;
}
