// CMFCToolBar: the buttons that have no room, and what assistive programs learn.
#include <kmfc/frame.h>
#include <kmfc/global_data.h>
#include <kmfc/tool_bar_ex.h>

#include "../res/kmfc_ids.h"
#include "bar_accessible.h"

using namespace kmfc::docking;

namespace {

/// What a button is called: its own text, or the tip of its command, or else what the frame says of it.
CString name_of(const CMFCToolBarButton& button) {
    if (!button.m_strText.IsEmpty()) return button.m_strText;
    CString all, line;
    if (!all.LoadString(button.m_nID)) return CString();
    if (!AfxExtractSubString(line, all, 1) || line.IsEmpty()) AfxExtractSubString(line, all, 0);
    // It is no text of a menu: a mark in it is shown.
    line.Replace(L"&", L"&&");
    return line;
}

CString text_of(UINT id, int line) {
    CString all, text;
    all.LoadString(id);
    AfxExtractSubString(text, all, line);
    return text;
}

}  // namespace

bool CMFCToolBar::has_room(const CMFCToolBarButton& button) const { return !button.Rect().IsRectEmpty(); }

int CMFCToolBar::part_at(CPoint point) const {
    return has_more() && m_more.PtInRect(point) ? GetCount() : HitTest(point);
}

CRect CMFCToolBar::part_rect(int index) const {
    const CMFCToolBarButton* const button = GetButton(index);
    if (button != nullptr) return button->Rect();
    return index == GetCount() ? m_more : CRect(0, 0, 0, 0);
}

void CMFCToolBar::fill_more(HMENU menu) const {
    bool isGapDue = false;
    for (int i = 0; i < GetCount(); ++i) {
        const CMFCToolBarButton& button = *GetButton(i);
        if (has_room(button) || !button.IsVisible() || (button.m_nStyle & TBBS_HIDDEN) != 0) continue;
        if (button.IsSeparator()) {
            isGapDue = ::GetMenuItemCount(menu) > 0;
            continue;
        }
        if (std::exchange(isGapDue, false)) ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        const UINT flags =
            (button.IsEnabled() ? 0u : MF_GRAYED) | (button.IsChecked() ? MF_CHECKED : 0u) | MF_STRING;
        ::AppendMenuW(menu, flags, button.m_nID, name_of(button));
    }
}

void CMFCToolBar::open_more() {
    CMenu menu;
    if (!has_more() || !menu.CreatePopupMenu()) return;
    fill_more(menu.m_hMenu);
    CRect around = m_more;
    ClientToScreen(&around);
    TPMPARAMS room = {sizeof(room), around};
    const HWND self = m_hWnd;
    const CPoint corner = IsUpright() ? CPoint(around.right, around.top) : CPoint(around.left, around.bottom);
    const UINT flags = TPM_RETURNCMD | (IsUpright() ? TPM_HORIZONTAL : TPM_VERTICAL);
    const auto command = static_cast<UINT>(menu.TrackPopupMenuEx(flags, corner.x, corner.y, this, &room));
    if (!::IsWindow(self)) return;
    const int chosen = command != 0 ? CommandToIndex(command) : -1;
    if (chosen != -1) SendCommand(GetButton(chosen));
}

bool CMFCToolBar::is_enabled(int index) const {
    const CMFCToolBarButton* const button = GetButton(index);
    if (button == nullptr) return index == GetCount() && has_more();
    return !button->IsSeparator() && button->IsVisible() && button->IsEnabled();
}

bool CMFCToolBar::is_pressable(int index) const {
    return is_enabled(index) && !part_rect(index).IsRectEmpty();
}

void CMFCToolBar::press(int index) {
    if (index == GetCount())
        open_more();
    else
        SendCommand(GetButton(index));
}

LRESULT CMFCToolBar::OnPressPart(WPARAM wParam, LPARAM) {
    const int index = static_cast<int>(wParam);
    if (is_enabled(index)) press(index);
    return 0;
}

// Assistive programs.

LRESULT CMFCToolBar::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = answer_get_object(*this, wParam, lParam);
    return answer != 0 ? answer : Default();
}

bool CMFCToolBar::press_part(int part) {
    // Whoever asks is not to wait for a menu or dialog.
    return is_enabled(part - 1) && PostMessage(press_part_message, static_cast<WPARAM>(part - 1)) != FALSE;
}

void CMFCToolBar::describe(int part, AccessiblePart& about) const {
    if (part == 0) {
        GetWindowText(about.name);
        about.role = ROLE_SYSTEM_TOOLBAR;
        return;
    }
    about.place = part_rect(part - 1);
    const CMFCToolBarButton* const button = GetButton(part - 1);
    if (part - 1 == m_iHighlighted)
        about.states = STATE_SYSTEM_HOTTRACKED | (::GetFocus() == m_hWnd ? STATE_SYSTEM_FOCUSED : 0);
    if (button == nullptr) {
        about.name = text_of(IDS_BAR_MORE, 1);
        about.action = text_of(IDS_BAR_OPEN, 0);
        about.role = ROLE_SYSTEM_BUTTONMENU;
        about.states |= STATE_SYSTEM_HASPOPUP;
        return;
    }
    if (!has_room(*button)) about.states |= STATE_SYSTEM_INVISIBLE;
    if (button->IsSeparator()) {
        about.role = ROLE_SYSTEM_SEPARATOR;
        return;
    }
    about.name = without_marks(name_of(*button));
    about.action = text_of(IDS_BAR_PRESS, 0);
    about.role = (button->m_nStyle & TBBS_CHECKBOX) != 0 ? ROLE_SYSTEM_CHECKBUTTON : ROLE_SYSTEM_PUSHBUTTON;
    if (!button->IsEnabled()) about.states |= STATE_SYSTEM_UNAVAILABLE;
    if (button->IsChecked()) about.states |= STATE_SYSTEM_CHECKED;
    if ((button->m_nStyle & TBBS_INDETERMINATE) != 0) about.states |= STATE_SYSTEM_MIXED;
    if (button->IsPressed()) about.states |= STATE_SYSTEM_PRESSED;
}
