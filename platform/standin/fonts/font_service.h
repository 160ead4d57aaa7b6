// The font list of a host: looks for fonts in the background, and again when something has changed.
//
// The first look begins shortly after the service was made, once the thread has nothing else to do, so that
// starting a program doesn't wait for it; or when the list is asked for, if that comes first. All calls are
// made on the thread that made the service.
#pragma once

#include <memory>

#include "font_list.h"
#include "font_scan_job.h"

class FontService {
public:
    FontService();
    /// Ends a look that is under way, and the list with all its fonts.
    ~FontService();
    FontService(const FontService&) = delete;
    FontService& operator=(const FontService&) = delete;

    /// Folders that are looked through in the place of the system's and the support folders.
    void setFolders(std::vector<std::wstring> folders);
    /// Folders that are looked through behind the system's.
    void setSupportFolders(std::vector<std::wstring> folders);
    /// Where the cache is kept; empty for nowhere.
    void setCacheFile(std::wstring path);
    /// Adds the file at `path`, wherever it is, to the fonts from now on.
    void addFile(const std::wstring& path);

    /// The fonts as they are now: folders and registry are asked at each call, the single files once a second
    /// at most; calls that follow each other within some hundredths of a second count as one. While a look is
    /// under way the call waits; windows of this thread are painted meanwhile and messages sent to them are
    /// answered, but nothing is taken from the keyboard and the mouse. What asks for the list during that
    /// gets the list as it was, empty at first.
    CKhFontList* list();

private:
    static void CALLBACK onTimer(HWND window, UINT message, UINT_PTR id, DWORD time);

    void restart();
    void stopTimer();
    void start();
    void take();
    bool hasChanged();

    bool m_usesSystem = true;
    std::vector<std::wstring> m_folders;         // set by setFolders
    std::vector<std::wstring> m_supportFolders;  // set by setSupportFolders
    std::vector<std::wstring> m_files;           // added one by one
    std::wstring m_cacheFile;
    FontCache m_cache;
    bool m_isCacheLoaded = false;

    FontList m_list;
    FontScanStamps m_stamps;
    ULONGLONG m_listedAt = 0;
    ULONGLONG m_askedAt = 0;
    bool m_isListed = false;
    bool m_isWaiting = false;
    bool m_isOutdated = false;  // the settings changed while a call waited
    UINT_PTR m_timer = 0;
    std::unique_ptr<FontScanJob> m_job;
};
