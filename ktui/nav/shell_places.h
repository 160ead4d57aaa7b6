// What the shell tells of places: the computer, its drives, icons. Private to the library.
#pragma once

#include <afxwin.h>

#include <optional>
#include <vector>

/// A place by its text, and by its path or the shell's own name for it.
struct ShellPlace {
    CString name;
    CString value;
};

/// The folder of all drives; nothing if the shell has none.
std::optional<ShellPlace> ComputerPlace();
/// What lies in it and belongs to the file system.
std::vector<ShellPlace> PlacesInComputer();
/// The small icon of a place in the shell's list of icons; nothing if the shell doesn't know it.
std::optional<int> ShellIcon(const CString& value);
/// The shell's list of small icons, which stays its own.
HIMAGELIST ShellSmallIcons();
