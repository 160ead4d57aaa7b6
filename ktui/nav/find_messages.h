// The messages by which the thread of a search speaks to the window of the find dialog, all of them sent.
// Private to the library.
#pragma once

#include <windows.h>

constexpr UINT WM_FIND_DONE = WM_USER + 101;
constexpr UINT WM_FIND_STATUS = WM_USER + 102;  ///< wParam: the folder's text
constexpr UINT WM_FIND_FILE = WM_USER + 103;    ///< wParam: the folder's text; lParam: the file's name
constexpr UINT WM_FIND_BATCH = WM_USER + 104;   ///< lParam: a FindBatch, of a walk that visits folders once
