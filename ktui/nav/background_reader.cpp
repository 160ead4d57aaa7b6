#include <ktui/nav/background_reader.h>

#include <objbase.h>

#include <mutex>
#include <utility>

namespace {

constexpr UINT kEnded = WM_APP + 1;

}  // namespace

/// The way from the threads back to their reader.
class ReadingOffice {
public:
    void Open(HWND window) { m_window = window; }
    void Close() {
        const std::lock_guard lock(m_mutex);
        m_window = nullptr;
    }
    /// False if there are enough threads.
    bool Enter() {
        const std::lock_guard lock(m_mutex);
        if (m_threads >= CBackgroundReader::kMostThreads) return false;
        ++m_threads;
        return true;
    }
    /// A thread has read, or was not to be had; `turn` 0 tells nobody.
    void Leave(std::uint64_t turn) {
        const std::lock_guard lock(m_mutex);
        --m_threads;
        if (m_window != nullptr && turn != 0) ::PostMessageW(m_window, kEnded, turn, 0);
    }

private:
    std::mutex m_mutex;
    HWND m_window = nullptr;  ///< the reader's; null when it has gone
    int m_threads = 0;
};

namespace {

/// What a thread is given.
struct Turn {
    std::shared_ptr<ReadingOffice> office;
    std::shared_ptr<BackgroundReading> reading;
    std::uint64_t number;
    HMODULE module;  ///< of this code, held
};

void readIn(BackgroundReading& reading) {
    const HRESULT com = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    try {
        reading.Read();
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
        // As good as nothing read.
    }
    if (SUCCEEDED(com)) ::CoUninitialize();
}

DWORD WINAPI run(void* parameter) {
    // No box of the system's for a drive without a disk.
    ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, nullptr);
    std::unique_ptr<Turn> turn(static_cast<Turn*>(parameter));
    const HMODULE module = turn->module;
    readIn(*turn->reading);
    turn->office->Leave(turn->number);
    turn.reset();
    ::FreeLibraryAndExitThread(module, 0);
}

/// Starts a thread for `turn`, which holds the module of this code until it has ended.
bool start(std::unique_ptr<Turn> turn) {
    if (!::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&run),
                              &turn->module))
        return false;
    const HANDLE thread = ::CreateThread(nullptr, 0, &run, turn.get(), 0, nullptr);
    if (thread == nullptr) {
        ::FreeLibrary(turn->module);
        return false;
    }
    static_cast<void>(turn.release());
    ::CloseHandle(thread);
    return true;
}

}  // namespace

BEGIN_MESSAGE_MAP(CBackgroundReader, CWnd)
    ON_MESSAGE(kEnded, &CBackgroundReader::OnEnded)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CBackgroundReader::CBackgroundReader(Told told)
    : m_told(std::move(told)), m_office(std::make_shared<ReadingOffice>()) {}

CBackgroundReader::~CBackgroundReader() {
    m_office->Close();
    DestroyWindow();
}

/// Whether there is a window for the answers.
bool CBackgroundReader::isReady() {
    if (m_hWnd != nullptr) return true;
    if (!CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr)) return false;
    m_office->Open(m_hWnd);
    return true;
}

void CBackgroundReader::Ask(std::shared_ptr<BackgroundReading> reading, unsigned limit) {
    if (!isReady()) return;
    m_waiting.push_back({std::move(reading), limit});
    if (m_waiting.size() == 1) beginTurn();
}

void CBackgroundReader::Forget() {
    stopTimers();
    m_waiting.clear();
}

void CBackgroundReader::beginTurn() {
    ++m_turn;
    m_isBegun = false;
    const unsigned limit = m_waiting.front().limit;
    if (limit > kSlowAfter) SetTimer(slowTimer(), kSlowAfter, nullptr);
    SetTimer(limitTimer(), limit, nullptr);
    startThread();
}

void CBackgroundReader::startThread() {
    if (!m_office->Enter()) return;
    m_isBegun = start(std::make_unique<Turn>(Turn{m_office, m_waiting.front().reading, m_turn, nullptr}));
    if (!m_isBegun) m_office->Leave(0);
}

void CBackgroundReader::stopTimers() {
    if (m_hWnd == nullptr) return;
    KillTimer(slowTimer());
    KillTimer(limitTimer());
}

void CBackgroundReader::endTurn(ReadingEvent event) {
    stopTimers();
    const std::shared_ptr<BackgroundReading> reading = std::move(m_waiting.front().reading);
    m_waiting.pop_front();
    if (!m_waiting.empty()) beginTurn();
    const Told told = m_told;
    told(*reading, event);
}

LRESULT CBackgroundReader::OnEnded(WPARAM number, LPARAM) {
    if (m_waiting.empty()) return 0;
    if (!m_isBegun)
        startThread();
    else if (number == m_turn)
        endTurn(ReadingEvent::kAnswered);
    return 0;
}

void CBackgroundReader::OnTimer(UINT_PTR id) {
    if (m_waiting.empty()) return;
    if (id == limitTimer()) {
        endTurn(ReadingEvent::kGivenUp);
    } else if (id == slowTimer()) {
        KillTimer(id);
        const std::shared_ptr<BackgroundReading> reading = m_waiting.front().reading;
        const Told told = m_told;
        told(*reading, ReadingEvent::kIsSlow);
    }
}
