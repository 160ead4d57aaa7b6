// The walk through folders that a search for files makes. Without any window. Private to the library; its
// tests link it by itself.
#pragma once

#include <ktui/nav/find_listing.h>

/// Tells `listener` of each folder of the request and of each file in it that a pattern and the dates name;
/// with subfolders, goes into them for each pattern anew, with all patterns and all folders.
///
/// Kept: with P patterns a folder at depth d is gone through P to the power d times, and with several folders
/// each descent goes through the others again. Nothing is told once only.
void WalkFolders(const FindSearchRequest& request, const FindFileSystem& files, FindListener& listener);
