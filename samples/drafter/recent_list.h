// The drawings that were opened or saved last, newest first. Knows no window and no store.
#pragma once

#include <vector>

#include <od_string.h>

constexpr std::size_t kMostRecentFiles = 9;

/// `files` with `path` as the newest: it is there once, whatever its case, and the oldest beyond nine are
/// gone.
std::vector<OdString> WithRecent(const std::vector<OdString>& files, const OdString& path);
/// `files` without `path`, whatever its case.
std::vector<OdString> WithoutRecent(const std::vector<OdString>& files, const OdString& path);

/// The menu's text for the file number `index` from 0: its number as the key, and the path, of which a long
/// one keeps its beginning and its end.
OdString RecentEntry(std::size_t index, const OdString& path);
