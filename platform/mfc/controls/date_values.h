// Between the date classes and the structures of the date controls. Internal to the class layer.
#pragma once

#include <afxdtctl.h>

namespace kmfc {

/// The system registers the classes of date controls on request only.
inline void init_date_classes() {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&classes);
}

/// Local time as CTime; 0 for what it cannot hold.
inline CTime time_of(const SYSTEMTIME& time) {
    // CTime refuses the years before 1970.
    return time.wYear >= 1970 ? CTime(time) : CTime();
}

/// `place`, filled with the date; null for a null pointer and an object without a date.
inline SYSTEMTIME* system_time(const CTime* time, SYSTEMTIME& place) {
    return time != nullptr && time->GetTime() != 0 && time->GetAsSystemTime(place) ? &place : nullptr;
}
inline SYSTEMTIME* system_time(const COleDateTime* date, SYSTEMTIME& place) {
    const bool isDate = date != nullptr && date->GetStatus() == COleDateTime::valid;
    return isDate && date->GetAsSystemTime(place) ? &place : nullptr;
}

/// Hands one end of a range out; a missing one makes the object null.
inline void give(bool isThere, const SYSTEMTIME& time, COleDateTime* place) {
    if (place == nullptr) return;
    *place = isThere ? COleDateTime(time) : COleDateTime();
    if (!isThere) place->SetStatus(COleDateTime::null);
}
inline void give(bool isThere, const SYSTEMTIME& time, CTime* place) {
    if (place != nullptr) *place = isThere ? time_of(time) : CTime();
}
inline void give(bool isThere, const SYSTEMTIME& time, SYSTEMTIME* place) {
    if (place != nullptr) *place = isThere ? time : SYSTEMTIME{};
}

/// Both ends of a range as the controls want them.
struct DateRange {
    DateRange(const SYSTEMTIME* first, const SYSTEMTIME* last) {
        if (first != nullptr) flags |= GDTR_MIN, ends[0] = *first;
        if (last != nullptr) flags |= GDTR_MAX, ends[1] = *last;
    }
    DWORD flags = 0;
    SYSTEMTIME ends[2] = {};
};

}  // namespace kmfc
