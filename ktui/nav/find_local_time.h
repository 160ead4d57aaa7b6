// A local calendar time as seconds. Private to the library.
#pragma once

#include <ktui/nav/find_terms.h>

/// Seconds since 1970 of a local time; -1 for one that can't be told. Kept: a day beyond the month's end
/// becomes one of the next month.
FindTime SecondsOfLocal(const CalendarTime& local);
