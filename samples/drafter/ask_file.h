// The system's dialog that asks for a file, and what the system says of one.
#pragma once

#include <afxwin.h>

/// Asks in front of `owner` for a file to open, which is there; its whole path, or an empty text if the user
/// cancelled. `filter` is the string with the kinds of file, parted by |. The current folder of the program
/// stays.
CString AskFileToOpen(CWnd& owner, UINT filter);

/// Why the system refuses to write a file of this name, in its words; empty if it doesn't refuse. Leaves
/// nothing behind.
CString WhyNotWritable(const CString& path);
