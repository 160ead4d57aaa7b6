// A row of the found files: what it keeps, how it is worded, how rows are sorted. Without any window.
// Private to the library; its tests link it by itself.
#pragma once

#include <ktui/nav/find_search_request.h>

/// Columns of the list of results, as they stand and as their texts are set.
enum FindColumn { kFindName, kFindFolder, kFindSize, kFindType, kFindTime, kFindColumns };

/// The item data of one row, which owns it.
struct FindRow {
    CString m_name;
    CString m_folder;
    int m_size = 0;  ///< in units of 1000 bytes, rounded up
    CString m_type;
    FindTime m_time = 0;  ///< of the last write; 0 is unknown
};

/// Units of 1000 bytes, rounded up.
int SizeOfFile(unsigned long long bytes);
/// As "11 KB" from 10000 bytes on, below as "9999 B".
CString SizeText(unsigned long long bytes);
/// The folder without the backslash at its end; the root of a drive keeps it.
CString ShownFolder(const CString& folder);

/// 1 if `a` comes behind `b`: descending for direction 0, ascending otherwise. Kept: 0 in all other cases,
/// never less, so that a sort can't tell smaller from equal. Texts go by case.
int CompareFindRows(const FindRow& a, const FindRow& b, int column, int direction);

/// Which column the rows are sorted by, and which way.
struct FindSort {
    int m_direction = -1;  ///< -1 before the first click; 0; 1
    int m_column = kFindName;

    /// A click on the head of a column: the same column turns round, another keeps the direction.
    void Click(int column);
};
