// What the fields of the find dialog ask for: folders, patterns, dates. Without any window. Private to the
// library; its tests link it by itself.
#pragma once

#include <optional>
#include <vector>

#include <ktui/nav/find_search_request.h>

/// The folders that `text` names, each with a separator at its end: one, or the pieces in double quotes and
/// what stands beside them. A quote without its second one ends the list. None for an empty text.
std::vector<CString> FoldersNamedBy(const CString& text);

/// The first piece of `text` that stands in double quotes; nothing without one.
std::optional<CString> FirstQuotedPiece(const CString& text);

/// The patterns for the typed `name` and the patterns of a file type, joined by ";". A name that ends in a
/// pattern's extension stands for itself; a `*` goes before a name that has none there. None for no name and
/// no type.
std::vector<CString> PatternsFor(const CString& name, const CString& type);

/// The text and the patterns of one file type.
struct FindFileType {
    const wchar_t* description;
    const wchar_t* patterns;
};

/// The types of a filter text: zero-terminated strings in pairs, ending in an empty one; null is none. They
/// point into `filter`. A description without patterns at the end is none.
std::vector<FindFileType> FileTypesOf(const wchar_t* filter);

/// A time by its calendar fields, local.
struct CalendarTime {
    int year;
    int month;  ///< from 1
    int day;    ///< from 1
    int hour;
    int minute;
    int second;
};

/// `now` with its fields set back by `months`. Kept: nothing is borrowed of the year, so the month may be 0
/// or less, and the day may lie beyond the month's end.
CalendarTime MonthsBefore(const CalendarTime& now, int months);

/// Whether each field lies in its range, whatever the month's length; years from 1900.
bool IsInRange(const CalendarTime& time);

FindTime DaysBefore(FindTime now, int days);
