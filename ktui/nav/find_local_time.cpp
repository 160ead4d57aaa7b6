#include <ktui/nav/find_local_time.h>

#include <ctime>

FindTime SecondsOfLocal(const CalendarTime& local) {
    tm parts = {};
    parts.tm_year = local.year - 1900;
    parts.tm_mon = local.month - 1;
    parts.tm_mday = local.day;
    parts.tm_hour = local.hour;
    parts.tm_min = local.minute;
    parts.tm_sec = local.second;
    parts.tm_isdst = -1;
    return ::_mktime64(&parts);
}
