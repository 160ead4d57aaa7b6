// Shortcuts to files that were chosen, in a folder of their own. Private to the library.
#pragma once

/// Writes a shortcut to the file `path` into `folder`, over one of the same name; a shortcut is followed to
/// the file that it stands for. 1, or 0 with nothing written. The thread has COM.
int AddToRecentFolder(const wchar_t* path, const wchar_t* folder);
