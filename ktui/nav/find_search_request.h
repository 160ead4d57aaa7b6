// What one search for files is asked to do: the whole input of the thread that makes it. Without any window.
// Private to the library; its tests link it by itself.
#pragma once

#include <afxcoll.h>

class CFindFileDlg;

/// Seconds since 1970-01-01 00:00 UTC.
using FindTime = long long;

struct FindSearchRequest {
    /// Both dates are now, which is no filter by date.
    FindSearchRequest();
    FindSearchRequest(const FindSearchRequest& other);
    FindSearchRequest& operator=(const FindSearchRequest&) = delete;

    /// Whether there is a filter by date. Kept: none for one and the same moment.
    bool HasDates() const { return m_dateFrom != m_dateTo; }
    /// Whether a file of this time lies between the dates, both included.
    bool Includes(FindTime lastWrite) const { return lastWrite >= m_dateFrom && lastWrite <= m_dateTo; }

    CFindFileDlg* m_dialog = nullptr;  ///< not owned; outlives the search
    CStringArray m_folders;            ///< each with a separator at its end
    CStringArray m_patterns;
    int m_includeSubfolders = 0;
    FindTime m_dateFrom;
    FindTime m_dateTo;
};
