// Texts of the program's resources, in the user's language.
#pragma once

#include <afxwin.h>

/// The string with this number; empty when there is none.
inline CString textOf(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}
