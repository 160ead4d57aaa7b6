// One look for fonts, on a thread of its own.
#pragma once

#include <windows.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

#include "font_scan.h"

/// What a look for fonts starts from.
struct FontScanPlan {
    bool usesSystem = true;   ///< the system's folders and registered files come first
    FontSources own;          ///< the host's folders and files
    std::wstring cacheFile;   ///< where the cache is kept; empty for nowhere
    bool loadsCache = false;  ///< the cache in memory is empty: the stored one is loaded first
};

/// What tells cheaply whether to look again: the times of folders and of the registry's lists.
struct STANDIN_API FontScanStamps {
    std::vector<std::wstring> folders;
    bool usesSystem = false;
    std::vector<std::int64_t> times;

    /// The stamps of these folders as they are now.
    static FontScanStamps take(std::vector<std::wstring> folders, bool usesSystem);
    bool isCurrent() const { return take(folders, usesSystem).times == times; }
};

/// Looks from its construction on. The results may be used once the thread has ended.
class FontScanJob {
public:
    FontScanJob(FontScanPlan plan, FontCache cache);
    /// Stops the look at its next file, and waits for that.
    ~FontScanJob();
    FontScanJob(const FontScanJob&) = delete;
    FontScanJob& operator=(const FontScanJob&) = delete;

    /// Signalled when the look is over; null if there was no thread to be had, and it is over already.
    HANDLE thread() const { return m_thread; }
    /// Tells the look to stop, and waits for it.
    void stop();

    bool isFinished() const { return m_isFinished; }  ///< false if it was stopped or ran out of memory
    std::vector<CatalogueFont> catalogue;
    FontCache cache;        ///< with what was read, also by a look that was stopped
    FontScanStamps stamps;  ///< as they were before the look
    ULONGLONG endedAt = 0;  ///< as GetTickCount64 counts

private:
    static unsigned __stdcall threadMain(void* job);
    void run();
    void scan();

    const FontScanPlan m_plan;
    std::atomic<bool> m_stop = false;
    bool m_isFinished = false;
    HANDLE m_thread;
};
