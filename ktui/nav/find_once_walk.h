// The walk through folders that visits each of them once. Without any window. Private to the library; its
// tests link it by itself.
#pragma once

#include <ktui/nav/find_listing.h>

/// Tells `listener` of each folder once, where it is first met, and of each file in it that any pattern and
/// the dates name, once; a folder's files come before its subfolders. Links to folders come last, and one to
/// a folder that was there already is not followed. After a stop nothing more is told.
void WalkFoldersOnce(const FindSearchRequest& request, const FindFileSystem& files, FindListener& listener);
