// SortStateMap: by which column the files of each dialog were last sorted, for as long as the process lives.
// Without any window. Private to the library; its tests link it by itself.
#pragma once

#include <map>

#include <afx.h>

// Marks in the format of a header's column (HDF_...), which the native build has no names for.
constexpr int kSortedDown = 0x200;
constexpr int kSortedUp = 0x400;
constexpr int kSortBits = kSortedDown | kSortedUp;

/// A column and how it was sorted.
struct SortState {
    int column = 0;
    int bits = kSortedUp;
};

/// By the name of the dialog. On the thread of the dialogs only.
std::map<CString, SortState>& SortStateMap();

/// How often the header of a column with `format` has to be clicked until it is sorted by `bits`: the first
/// click sorts up, the second down.
int SortClicks(int format, int bits);
