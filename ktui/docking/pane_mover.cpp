#include <ktui/docking/pane_mover.h>

#include <algorithm>
#include <vector>

#include <ktdsres/pane_keys_ids.h>
#include <ktui/docking/pane_label.h>
#include <ktui/host/string_resources.h>

namespace {

constexpr int kStep = 8;  // pixels; with Ctrl one

/// What the arrow keys do at the moment. Windows may go at any time, so there are only handles.
struct Move {
    HWND pane = nullptr;
    HWND frame = nullptr;  ///< floating; null when docked
    PaneMove what = PaneMove::kPlace;
    CRect from{0, 0, 0, 0};  ///< of the frame
    struct Divider {
        HWND window;
        CSize moved;
    };
    std::vector<Divider> dividers;  ///< in the order in which they were moved
};
Move underWay;

CRect placeOf(HWND window) {
    CRect rect(0, 0, 0, 0);
    ::GetWindowRect(window, &rect);
    return rect;
}

CPaneDivider* dividerOf(HWND window) {
    return DYNAMIC_DOWNCAST(CPaneDivider, CWnd::FromHandlePermanent(window));
}

bool meet(int low, int high, int otherLow, int otherHigh) { return low < otherHigh && otherLow < high; }

/// The divider beside a docked pane that lies across: one behind it, or else one before it; null for none.
HWND dividerBeside(HWND pane, bool horizontal) {
    const CRect place = placeOf(pane);
    HWND before = nullptr;
    for (HWND child = ::GetWindow(::GetParent(pane), GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const CPaneDivider* divider = dividerOf(child);
        if (divider == nullptr || !::IsWindowVisible(child) ||
            (divider->IsHorizontal() != FALSE) == horizontal)
            continue;
        const CRect line = placeOf(child);
        const bool beside = horizontal ? meet(line.top, line.bottom, place.top, place.bottom)
                                       : meet(line.left, line.right, place.left, place.right);
        if (!beside) continue;
        if (horizontal ? line.left == place.right : line.top == place.bottom) return child;
        if (horizontal ? line.right == place.left : line.bottom == place.top) before = child;
    }
    return before;
}

void moveDivider(CSize by) {
    const HWND window = dividerBeside(underWay.pane, by.cx != 0);
    CPaneDivider* divider = dividerOf(window);
    if (divider == nullptr) return;
    const CPoint before = placeOf(window).TopLeft();
    CPoint offset(by);
    divider->Move(offset);
    if (::IsWindow(window)) underWay.dividers.push_back({window, placeOf(window).TopLeft() - before});
}

void moveFrame(CSize by) {
    CRect place = placeOf(underWay.frame);
    if (underWay.what == PaneMove::kPlace)
        place.OffsetRect(by.cx, by.cy);
    else
        place.BottomRight() += by;
    // The window itself holds its least size.
    ::SetWindowPos(underWay.frame, nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

void tellWhat() {
    const bool isPlace = underWay.what == PaneMove::kPlace;
    ShowPaneLabel(underWay.pane,
                  isPlace ? LoadToolkitString(IDS_PANE_MOVE_HINT, L"方向键移动，Enter 确认，Esc 还原")
                          : LoadToolkitString(IDS_PANE_SIZE_HINT, L"方向键调整大小，Enter 确认，Esc 还原"),
                  PaneLabelEnd::kWhenHidden);
}

/// The direction of an arrow key; null size for another key.
CSize directionOf(WPARAM key) {
    switch (key) {
        case VK_LEFT: return CSize(-1, 0);
        case VK_RIGHT: return CSize(1, 0);
        case VK_UP: return CSize(0, -1);
        case VK_DOWN: return CSize(0, 1);
        default: return CSize(0, 0);
    }
}

void step(CSize direction) {
    const int pixels = ::GetKeyState(VK_CONTROL) < 0 ? 1 : kStep;
    const CSize by(direction.cx * pixels, direction.cy * pixels);
    if (underWay.frame != nullptr)
        moveFrame(by);
    else
        moveDivider(by);
    tellWhat();
}

void goBack(const Move& move) {
    if (::IsWindow(move.frame))
        ::SetWindowPos(move.frame, nullptr, move.from.left, move.from.top, move.from.Width(),
                       move.from.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    std::for_each(move.dividers.rbegin(), move.dividers.rend(), [](const Move::Divider& moved) {
        CPoint back(-moved.moved.cx, -moved.moved.cy);
        if (CPaneDivider* divider = dividerOf(moved.window)) divider->Move(back);
    });
}

bool isPress(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_NCLBUTTONDOWN:
        case WM_NCRBUTTONDOWN:
        case WM_NCMBUTTONDOWN: return true;
        default: return false;
    }
}

bool isModifier(WPARAM key) { return key == VK_CONTROL || key == VK_SHIFT; }

}  // namespace

bool CanMovePane(CDockablePane& pane) { return pane.GetParentMiniFrame() != nullptr; }

bool CanSizePane(CDockablePane& pane) {
    if (pane.IsAutoHideMode()) return false;
    return pane.GetParentMiniFrame() != nullptr || dividerBeside(pane.m_hWnd, true) != nullptr ||
           dividerBeside(pane.m_hWnd, false) != nullptr;
}

void BeginMove(CDockablePane& pane, PaneMove what) {
    EndMove(true);
    underWay.pane = pane.m_hWnd;
    underWay.what = what;
    if (const CPaneFrameWnd* frame = pane.GetParentMiniFrame()) {
        underWay.frame = frame->m_hWnd;
        underWay.from = placeOf(frame->m_hWnd);
    }
    tellWhat();
}

bool TakesKeyOfMove(const MSG& message) {
    if (underWay.pane == nullptr) return false;
    const bool isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (!isKey && !isPress(message.message)) return false;
    const HWND focus = ::GetFocus();
    const bool isThere =
        ::IsWindow(underWay.pane) && (focus == underWay.pane || ::IsChild(underWay.pane, focus));
    if (!isKey || !isThere) {
        EndMove(true);
        return false;
    }
    const CSize direction = directionOf(message.wParam);
    if (direction != CSize(0, 0)) {
        step(direction);
        return true;
    }
    if (isModifier(message.wParam)) return false;
    EndMove(message.wParam != VK_ESCAPE);
    return message.wParam == VK_RETURN || message.wParam == VK_ESCAPE;
}

void EndMove(bool keep) {
    if (underWay.pane == nullptr) return;
    const Move ended = std::exchange(underWay, {});
    HidePaneLabel();
    if (!keep) goBack(ended);
}
