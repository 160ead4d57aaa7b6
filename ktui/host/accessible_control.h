// What a window that draws itself tells assistive programs: the system's object for the window, with a name,
// a role and the like of our own. Private to the library.
#pragma once

#include <afxwin.h>

#include <oleacc.h>

/// What differs from the system's answers.
struct AccessibleFacts {
    CString name;
    CString description;
    LONG role = ROLE_SYSTEM_CLIENT;
};

/// The answer to WM_GETOBJECT of `control`: for the client object (OBJID_CLIENT) one that tells `facts`,
/// whose default action is a click; otherwise what the window answers by default.
LRESULT AnswerGetObject(CWnd& control, const AccessibleFacts& facts, WPARAM wParam, LPARAM lParam);
