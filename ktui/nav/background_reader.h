// CBackgroundReader: reads what a drive may take its time for, one after the other, on threads of their own.
// Private to the library.
//
//     CBackgroundReader reader([](BackgroundReading& reading, ReadingEvent event) { ... });
//     reader.Ask(std::make_shared<IconReading>(path), 3000);
//
// Everything but BackgroundReading::Read happens on the thread that made the reader, which has to dispatch
// messages. The reader may go at any time and waits for nobody: a thread that is still reading shares its
// reading and the way back, frees what it read, and holds the library's module until it has ended.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>

/// Something to read, with what was read. The last of the reader and the thread to let go destroys it.
class BackgroundReading {
public:
    virtual ~BackgroundReading() = default;
    /// Reads; on a thread of its own, with COM in an apartment of its own. An exception is as good as nothing
    /// read.
    virtual void Read() = 0;
};

enum class ReadingEvent {
    kIsSlow,    ///< it has not answered for a moment
    kAnswered,  ///< it has been read
    kGivenUp    ///< the limit has passed; whatever it still reads is nobody's
};

class ReadingOffice;

class CBackgroundReader : public CWnd {
public:
    /// Hears of a reading: perhaps that it is slow, then that it has answered or was given up. May destroy
    /// the reader.
    using Told = std::function<void(BackgroundReading& reading, ReadingEvent event)>;

    explicit CBackgroundReader(Told told);
    /// Forgets all readings.
    ~CBackgroundReader() override;

    /// Reads `reading` when those asked for before are done. From when its turn comes it has `limit`
    /// milliseconds.
    void Ask(std::shared_ptr<BackgroundReading> reading, unsigned limit);
    /// Nothing more is told of the readings asked for until now.
    void Forget();

    /// After this many milliseconds a reading is slow.
    static constexpr unsigned kSlowAfter = 100;
    /// So many threads of a reader may be at work, those that read what was given up included. One more
    /// reading waits until one of them ends or its own limit passes.
    static constexpr int kMostThreads = 4;

protected:
    afx_msg LRESULT OnEnded(WPARAM number, LPARAM);
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    struct Waiting {
        std::shared_ptr<BackgroundReading> reading;
        unsigned limit;
    };
    bool isReady();
    void beginTurn();
    void startThread();
    void endTurn(ReadingEvent event);
    void stopTimers();
    // The timers' numbers follow the turn, so that a late message of an earlier turn says nothing.
    UINT_PTR slowTimer() const { return m_turn * 2; }
    UINT_PTR limitTimer() const { return m_turn * 2 + 1; }

    Told m_told;
    std::shared_ptr<ReadingOffice> m_office;
    std::deque<Waiting> m_waiting;  ///< the first one's turn it is
    std::uint64_t m_turn = 0;
    bool m_isBegun = false;  ///< the turn has its thread
};
