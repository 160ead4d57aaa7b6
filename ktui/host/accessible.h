// What assistive programs learn of a control that paints itself. Private to the library.
//
// The control sends WM_GETOBJECT on to AnswerGetObject, and answers a registered message that asks what it
// is:
//
//     ON_MESSAGE(WM_GETOBJECT, &CMyControl::OnGetObject)          // return AnswerGetObject(*this, wParam,
//     lParam); ON_REGISTERED_MESSAGE(accessibleMessage, &CMyControl::OnAccessible)
//
// An assistive program may keep its object for longer than the control lives; it then learns that it is gone.
#pragma once

#include <afxwin.h>
#include <oleacc.h>

/// The name of the registered message. wParam is a KbUiAccessibleRequest, lParam a KbUiAccessibleItem*; an
/// answer of 0 is no answer.
constexpr const wchar_t* kAccessibleMessageName = L"KtUiAccessibleMessage";

/// What a control is asked for.
enum class KbUiAccessibleRequest : WPARAM {
    kFacts = 1,  ///< fill the item; answer 1
    kAct = 2,    ///< do the item's default action; answer 1 if there is one. Must not wait for the user.
    kLater = 3,  ///< posted by a control to itself, to act when nobody waits; lParam is its own
};

/// A control (child 0) or one of its parts that is no window (child 1 and up).
struct KbUiAccessibleItem {
    int child = 0;     ///< which one is asked for
    int children = 0;  ///< how many parts the control has; answered for child 0
    CString name;
    CString description;    ///< empty for none
    CString value;          ///< empty for none
    CString defaultAction;  ///< what the action is called; empty for none
    LONG role = ROLE_SYSTEM_CLIENT;
    LONG states = 0;                  ///< STATE_SYSTEM_... besides those that the window has
    LONG statesWithout = 0;           ///< those of the window that don't hold
    CRect place = CRect(0, 0, 0, 0);  ///< of a part, in client coordinates
};

/// The answer of `window` to WM_GETOBJECT for its client area; 0 for any other object, which is left to the
/// default processing.
LRESULT AnswerGetObject(const CWnd& window, WPARAM wParam, LPARAM lParam);

/// `caption` without the marks of its access key.
CString WithoutAccessKey(const CString& caption);
