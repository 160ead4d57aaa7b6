// The system's dialogs that ask for a file.
#pragma once

#include <afxwin.h>

/// What the user is asked for.
struct FileQuestion {
    UINT filter;               ///< string with the kinds of file, parted by |
    const wchar_t* extension;  ///< put behind a name without one; null for none
    bool isForSaving = false;
    CString name = CString();    ///< proposed at first
    CString folder = CString();  ///< shown at first; empty for the system's choice
};

/// Asks in front of `owner` for a file to open, which is there, or to save to; its whole path, or an empty
/// text if the user cancelled. The current folder of the program stays.
CString AskFileName(CWnd& owner, const FileQuestion& question);

/// Why the system refuses to write a file of this name, in its words; empty if it doesn't refuse. Leaves
/// nothing behind.
CString WhyNotWritable(const CString& path);
