#include "font_scan_job.h"

#include <process.h>

#include <new>

#include "font_places.h"
#include "font_storage.h"

FontScanStamps FontScanStamps::take(std::vector<std::wstring> folders, bool usesSystem) {
    FontScanStamps stamps{std::move(folders), usesSystem, {}};
    for (const std::wstring& folder : stamps.folders) stamps.times.push_back(timeOfFolder(folder));
    if (!usesSystem) return stamps;
    const std::vector<std::int64_t> registered = registeredFontTimes();
    stamps.times.insert(stamps.times.end(), registered.begin(), registered.end());
    return stamps;
}

FontScanJob::FontScanJob(FontScanPlan plan, FontCache known)
    : cache(std::move(known)), m_plan(std::move(plan)) {
    m_thread = reinterpret_cast<HANDLE>(::_beginthreadex(nullptr, 0, threadMain, this, 0, nullptr));
    if (!m_thread) run();
}

FontScanJob::~FontScanJob() {
    stop();
    if (m_thread) ::CloseHandle(m_thread);
}

void FontScanJob::stop() {
    m_stop = true;
    if (m_thread) ::WaitForSingleObject(m_thread, INFINITE);
}

unsigned __stdcall FontScanJob::threadMain(void* job) {
    static_cast<FontScanJob*>(job)->run();
    return 0;
}

void FontScanJob::run() {
    try {
        scan();
    } catch (const std::bad_alloc&) {
        // The list stays as it was, and the next question for it tries again.
        m_isFinished = false;
    }
    endedAt = ::GetTickCount64();
}

void FontScanJob::scan() {
    if (m_plan.loadsCache && !m_plan.cacheFile.empty()) cache.load(m_plan.cacheFile);
    FontSources sources = m_plan.own;
    if (m_plan.usesSystem) {
        const std::vector<std::wstring> folders = systemFontFolders();
        sources.folders.insert(sources.folders.begin(), folders.begin(), folders.end());
    }
    // Taken first: what changes during the look is then found by the next one.
    stamps = FontScanStamps::take(sources.folders, m_plan.usesSystem);
    if (m_plan.usesSystem) {
        const std::vector<std::wstring> files = registeredFontFiles();
        sources.files.insert(sources.files.begin(), files.begin(), files.end());
    }
    std::vector<FoundFont> found;
    if (!scanFonts(sources, cache, m_stop, found)) return;
    catalogue = makeFontCatalogue(found);
    m_isFinished = true;
    if (!m_plan.cacheFile.empty() && cache.hasChanged()) cache.save(m_plan.cacheFile);
}
