// What assistive programs learn of toolbars, menu bars and status bars, by their functions `describe`.
#pragma once

#include <afxwin.h>
#include <oleacc.h>

class CMFCStatusBar;
class CMFCToolBar;

namespace kmfc::docking {

/// A bar, or one of its buttons or panes.
struct AccessiblePart {
    CString name;
    CString keys;    ///< that press it; empty for none
    CString value;   ///< how far a progress bar has come; empty for none
    CString action;  ///< what pressing it is called; empty for what can't be pressed
    LONG role = ROLE_SYSTEM_CLIENT;
    LONG states = 0;          ///< STATE_SYSTEM_ bits; of the bar those besides its window's
    CRect place{0, 0, 0, 0};  ///< of a button, client coordinates
};

/// The bar's answer to WM_GETOBJECT for its client area; 0 for other objects, which are the system's. The
/// object may be kept for longer than the bar; it then says that it is gone.
LRESULT answer_get_object(CMFCToolBar& bar, WPARAM wParam, LPARAM lParam);
LRESULT answer_get_object(CMFCStatusBar& bar, WPARAM wParam, LPARAM lParam);

/// Tells assistive programs that a part of the bar has the keyboard's mark.
void tell_part_marked(const CMFCToolBar& bar, int part);

/// A text without the marks of access keys, and the letter that they mark; 0 for none.
CString without_marks(const CString& text);
wchar_t marked_letter(const CString& text);

/// Posted by a bar to itself: a part is to be pressed; WPARAM its place.
extern UINT press_part_message;

}  // namespace kmfc::docking
