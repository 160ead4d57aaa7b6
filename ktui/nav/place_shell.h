// What the shell tells about a folder of the Places list: names and icon. Private to the library.
//
// Nothing is reported: what the shell can't tell is empty.
#pragma once

#include <afxwin.h>

struct _ITEMIDLIST;

/// Path and caption of a system folder (CSIDL_...). The path of a virtual one is "::" and its class id. Where
/// a limit is set (never_blocked.h), no drive is asked for the caption.
void SystemFolderNames(int folder, CString& path, CString& display);

/// The name of an absolute identifier list that the shell can find it by again: a path, or "::" and a class
/// id.
CString ParsingName(const _ITEMIDLIST* list);

/// The caption of the folder at `path`.
CString PlaceDisplayName(const CString& path);

/// The large icon of the folder at `path`, for the caller to destroy; null if there is none. A virtual folder
/// that the shell has none for takes the one that the user's registry names.
HICON PlaceIcon(const CString& path);
