#include "font_service.h"

#include <algorithm>
#include <map>

#include "font_places.h"

namespace {

constexpr UINT kStartDelay = 200;            // milliseconds
constexpr ULONGLONG kLookAgainAfter = 1000;  // milliseconds
constexpr ULONGLONG kSameQuestion = 50;      // milliseconds: a dialog that opens asks several times
constexpr DWORD kCursorDelay = 100;          // milliseconds of waiting before the cursor says so
constexpr int kMostAtOnce = 100;             // messages

/// The services whose first look is still to come.
std::map<UINT_PTR, FontService*>& timers() {
    static std::map<UINT_PTR, FontService*> all;
    return all;
}

/// Paints what is to be painted and answers what was sent; input stays in the queue. A window that never
/// finishes its painting would keep this going for ever, so there is a limit.
void serveWindows() {
    MSG message;
    for (int left = kMostAtOnce; left > 0; --left) {
        if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE)) return;
        ::DispatchMessageW(&message);
    }
}

/// The wait cursor, from `show` on until the object goes.
class WaitCursor {
public:
    WaitCursor() = default;
    ~WaitCursor() {
        if (m_isShown) ::SetCursor(m_former);
    }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

    bool isShown() const { return m_isShown; }
    void show() {
        m_former = ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
        m_isShown = true;
    }

private:
    HCURSOR m_former = nullptr;
    bool m_isShown = false;
};

/// Waits until `thread` has ended, and keeps the windows of this thread alive.
void waitAndServe(HANDLE thread) {
    const ULONGLONG began = ::GetTickCount64();
    WaitCursor cursor;
    for (;;) {
        serveWindows();
        const ULONGLONG waited = ::GetTickCount64() - began;
        if (!cursor.isShown() && waited >= kCursorDelay) cursor.show();
        const DWORD patience = cursor.isShown() ? INFINITE : kCursorDelay - static_cast<DWORD>(waited);
        const DWORD answer =
            ::MsgWaitForMultipleObjectsEx(1, &thread, patience, QS_PAINT | QS_SENDMESSAGE, 0);
        if (answer == WAIT_FAILED) ::WaitForSingleObject(thread, INFINITE);
        if (answer == WAIT_OBJECT_0 || answer == WAIT_FAILED) return;
    }
}

}  // namespace

FontService::FontService() : m_cacheFile(userFontCacheFile()) { restart(); }

FontService::~FontService() { stopTimer(); }

void FontService::setFolders(std::vector<std::wstring> folders) {
    m_usesSystem = false;
    m_folders = std::move(folders);
    restart();
}

void FontService::setSupportFolders(std::vector<std::wstring> folders) {
    m_supportFolders = std::move(folders);
    restart();
}

void FontService::setCacheFile(std::wstring path) {
    m_cacheFile = std::move(path);
    restart();
    m_cache = {};
    m_isCacheLoaded = false;
}

void FontService::addFile(const std::wstring& path) {
    if (std::find(m_files.begin(), m_files.end(), path) != m_files.end()) return;
    m_files.push_back(path);
    restart();
}

CKhFontList* FontService::list() {
    if (m_isWaiting) return &m_list;
    if (m_job) take();
    if (!m_isListed || hasChanged()) {
        start();
        take();
    }
    return &m_list;
}

/// Drops what is under way and plans a first look.
void FontService::restart() {
    if (m_isWaiting) {
        m_isOutdated = true;
        return;
    }
    if (m_job) {
        m_job->stop();
        m_cache = std::move(m_job->cache);
        m_job.reset();
    }
    m_isListed = false;
    stopTimer();
    m_timer = ::SetTimer(nullptr, 0, kStartDelay, onTimer);
    if (m_timer != 0) timers()[m_timer] = this;
}

void FontService::stopTimer() {
    if (m_timer == 0) return;
    ::KillTimer(nullptr, m_timer);
    timers().erase(m_timer);
    m_timer = 0;
}

void CALLBACK FontService::onTimer(HWND, UINT, UINT_PTR id, DWORD) {
    const auto found = timers().find(id);
    if (found == timers().end()) {
        ::KillTimer(nullptr, id);
        return;
    }
    found->second->start();
}

void FontService::start() {
    stopTimer();
    if (m_job) return;
    FontScanPlan plan;
    plan.usesSystem = m_usesSystem;
    plan.own.folders = m_usesSystem ? m_supportFolders : m_folders;
    plan.own.files = m_files;
    plan.cacheFile = m_cacheFile;
    plan.loadsCache = !m_isCacheLoaded;
    m_isCacheLoaded = true;
    m_job = std::make_unique<FontScanJob>(std::move(plan), std::move(m_cache));
}

/// Waits for the look that is under way and makes its result the list.
void FontService::take() {
    if (m_job->thread()) {
        m_isWaiting = true;
        waitAndServe(m_job->thread());
        m_isWaiting = false;
    }
    m_cache = std::move(m_job->cache);
    m_stamps = std::move(m_job->stamps);
    m_listedAt = m_askedAt = m_job->endedAt;
    m_isListed = !m_isOutdated;
    m_isOutdated = false;
    if (m_job->isFinished()) m_list.assign(std::move(m_job->catalogue));
    m_job.reset();
}

bool FontService::hasChanged() {
    const ULONGLONG now = ::GetTickCount64();
    if (now - m_askedAt < kSameQuestion) return false;
    m_askedAt = now;
    return now - m_listedAt >= kLookAgainAfter || !m_stamps.isCurrent();
}
