// Reading on threads of their own: one after the other, told in order, within a limit, and never waited for.
#include <ktui/nav/background_reader.h>

#include <objbase.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <vector>

#include "open_handles.h"
#include "replaced_import.h"
#include "ui_test.h"

namespace {

constexpr unsigned kLong = 60000;  // milliseconds, never reached
constexpr unsigned kShort = 250;

/// What readings wait for.
class Gate {
public:
    void Open() {
        const std::lock_guard lock(m_mutex);
        m_isOpen = true;
        m_changed.notify_all();
    }
    void Pass() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isOpen; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOpen = false;
};

std::atomic<int> alive = 0, reading = 0, mostReading = 0, timesRead = 0;

class Reading : public BackgroundReading {
public:
    explicit Reading(std::string name, std::shared_ptr<Gate> gate = nullptr)
        : m_name(std::move(name)), m_gate(std::move(gate)) {
        ++alive;
    }
    ~Reading() override { --alive; }
    void Read() override {
        const int now = ++reading;
        for (int most = mostReading; now > most && !mostReading.compare_exchange_weak(most, now);) {
        }
        m_thread = ::GetCurrentThreadId();
        APTTYPE type = APTTYPE_MTA;
        APTTYPEQUALIFIER qualifier;
        m_hasApartment = SUCCEEDED(::CoGetApartmentType(&type, &qualifier)) && type != APTTYPE_MTA;
        m_errorMode = ::GetThreadErrorMode();
        if (m_gate) m_gate->Pass();
        --reading;
        ++timesRead;
        if (m_throws == 1) AfxThrowInvalidArgException();
        if (m_throws == 2) throw 5;
    }
    std::string m_name;
    std::shared_ptr<Gate> m_gate;
    int m_throws = 0;
    DWORD m_thread = 0;
    bool m_hasApartment = false;
    DWORD m_errorMode = 0;
};

class BackgroundReader : public ::testing::Test {
protected:
    BackgroundReader() {
        alive = reading = mostReading = timesRead = 0;
        make();
    }
    ~BackgroundReader() override {
        gate->Open();
        reader.reset();
        EXPECT_TRUE(ui_test::pump_until([] { return alive == 0; }));
    }
    void make() {
        reader = std::make_unique<CBackgroundReader>([this](BackgroundReading& told, ReadingEvent event) {
            const char* const words[] = {" is slow", " answered", " given up"};
            events.push_back(static_cast<Reading&>(told).m_name + words[static_cast<int>(event)]);
            if (onTold) onTold(static_cast<Reading&>(told));
        });
    }
    void ask(const char* name, unsigned limit = kLong, std::shared_ptr<Gate> by = nullptr) {
        reader->Ask(std::make_shared<Reading>(name, std::move(by)), limit);
    }
    bool comes(const std::vector<std::string>& wanted) {
        const bool came = ui_test::pump_until([&] { return events.size() >= wanted.size(); }, 5000);
        EXPECT_EQ(events, wanted);
        return came;
    }

    std::shared_ptr<Gate> gate = std::make_shared<Gate>();
    std::vector<std::string> events;
    std::function<void(Reading&)> onTold;
    std::unique_ptr<CBackgroundReader> reader;
};

}  // namespace

TEST_F(BackgroundReader, ReadsOneAfterTheOtherOnThreadsOfTheirOwnAndTellsInOrderHere) {
    const DWORD here = ::GetCurrentThreadId();
    int seen = 0;
    onTold = [&](Reading& told) {
        ++seen;
        EXPECT_EQ(::GetCurrentThreadId(), here);
        EXPECT_NE(told.m_thread, here);
        EXPECT_NE(told.m_thread, 0u);
        EXPECT_TRUE(told.m_hasApartment);
        EXPECT_TRUE(told.m_errorMode & SEM_FAILCRITICALERRORS);
    };
    for (const char* name : {"a", "b", "c", "d", "e", "f"}) ask(name);
    EXPECT_TRUE(events.empty()) << "nothing is told before messages are dispatched";
    EXPECT_TRUE(comes({"a answered", "b answered", "c answered", "d answered", "e answered", "f answered"}));
    EXPECT_EQ(seen, 6);
    EXPECT_EQ(mostReading, 1);
    EXPECT_TRUE(ui_test::pump_until([] { return alive == 0; })) << "who was told lets go";
}

std::atomic<int> apartmentsLeft = 0;

void WINAPI leavesApartment() {
    ++apartmentsLeft;
    // By its name: this module's own calls come here.
    static const auto leaves = reinterpret_cast<decltype(&::CoUninitialize)>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"ole32.dll"), "CoUninitialize")));
    leaves();
}

TEST_F(BackgroundReader, EachThreadLeavesTheApartmentThatItEntered) {
    const ui_test::ReplacedImport leaving(::GetModuleHandleW(nullptr), "CoUninitialize", &leavesApartment);
    ASSERT_TRUE(leaving.isThere());
    apartmentsLeft = 0;
    ask("one");
    EXPECT_TRUE(comes({"one answered"}));
    EXPECT_EQ(apartmentsLeft, 1);
    ask("two");
    EXPECT_TRUE(comes({"one answered", "two answered"}));
    EXPECT_EQ(apartmentsLeft, 2);
}

TEST_F(BackgroundReader, KeepsNoHandleOfItsThreads) {
    const OpenHandles handles(::GetModuleHandleW(nullptr));
    ask("one");
    ask("two");
    EXPECT_TRUE(comes({"one answered", "two answered"}));
    EXPECT_EQ(OpenHandles::Opened(), 2);
    EXPECT_EQ(OpenHandles::Left(), 0u);
}

TEST_F(BackgroundReader, TellsOnceThatAReadingIsSlow) {
    ask("slow", kLong, gate);
    const auto start = ::GetTickCount64();
    EXPECT_TRUE(comes({"slow is slow"}));
    EXPECT_GE(::GetTickCount64() - start, CBackgroundReader::kSlowAfter - 20);
    ui_test::pump_until([] { return false; }, 3 * CBackgroundReader::kSlowAfter);
    EXPECT_EQ(events.size(), 1u);
    gate->Open();
    EXPECT_TRUE(comes({"slow is slow", "slow answered"}));
}

TEST_F(BackgroundReader, GivesUpAtTheLimitAndGoesOn) {
    ask("stuck", kShort, gate);
    ask("next");
    const auto start = ::GetTickCount64();
    EXPECT_TRUE(comes({"stuck is slow", "stuck given up", "next answered"}));
    EXPECT_GE(::GetTickCount64() - start, kShort - 20);
    EXPECT_EQ(reading, 1) << "the other one is still at it";
    gate->Open();
    EXPECT_TRUE(ui_test::pump_until([] { return alive == 0; }));
    ui_test::pump();
    EXPECT_EQ(events.size(), 3u) << "what comes late is not told";
}

TEST_F(BackgroundReader, TheLimitCountsFromAReadingsTurn) {
    ask("first", 2 * kShort, gate);
    ask("second", kShort, gate);
    const auto start = ::GetTickCount64();
    EXPECT_TRUE(comes({"first is slow", "first given up", "second is slow", "second given up"}));
    EXPECT_GE(::GetTickCount64() - start, 3 * kShort - 40);
}

TEST_F(BackgroundReader, ALimitShorterThanAMomentTellsNoSlowness) {
    ask("stuck", CBackgroundReader::kSlowAfter / 2, gate);
    EXPECT_TRUE(comes({"stuck given up"}));
}

TEST_F(BackgroundReader, TellsNothingOfWhatWasForgotten) {
    ask("stuck", kLong, gate);
    ask("behind");
    reader->Forget();
    ask("wanted");
    EXPECT_TRUE(comes({"wanted answered"}));
    gate->Open();
    EXPECT_TRUE(ui_test::pump_until([] { return alive == 0; }));
    ui_test::pump();
    EXPECT_EQ(events.size(), 1u);
    EXPECT_EQ(timesRead, 2) << "what had not begun is not read";
}

TEST_F(BackgroundReader, AnAnswerThatWasUnderwayWhenForgottenIsNotTakenForTheNext) {
    ask("first");
    while (timesRead == 0) ::SwitchToThread();  // its message lies in the queue, or will
    reader->Forget();
    ask("second", kLong, gate);
    ui_test::pump_until([] { return false; }, 60);
    EXPECT_TRUE(events.empty());
    gate->Open();
    EXPECT_TRUE(comes({"second answered"}));
}

TEST_F(BackgroundReader, NoMoreThanFourThreadsAreAtWorkAndTheNextWaitsForOneOfThem) {
    auto other = std::make_shared<Gate>();
    ask("1", kLong, other);
    for (const char* name : {"2", "3", "4"}) {
        reader->Forget();
        ask(name, kLong, gate);
    }
    ASSERT_TRUE(ui_test::pump_until([] { return reading == 4; }));
    reader->Forget();
    ask("5");
    EXPECT_TRUE(comes({"5 is slow"}));
    EXPECT_EQ(reading, 4);
    other->Open();
    EXPECT_TRUE(comes({"5 is slow", "5 answered"}));
    EXPECT_EQ(mostReading, 4);
}

TEST_F(BackgroundReader, AReadingThatFindsNoThreadIsGivenUpAtItsLimit) {
    for (const char* name : {"1", "2", "3", "4"}) {
        reader->Forget();
        ask(name, kLong, gate);
    }
    ASSERT_TRUE(ui_test::pump_until([] { return reading == 4; }));
    reader->Forget();
    ask("5", kShort);
    EXPECT_TRUE(comes({"5 is slow", "5 given up"}));
    EXPECT_EQ(timesRead, 0);
}

TEST_F(BackgroundReader, GoesAtOnceAndLeavesNothingBehind) {
    ask("stuck", kLong, gate);
    ask("behind");
    ASSERT_TRUE(ui_test::pump_until([] { return reading == 1; }));
    const auto start = ::GetTickCount64();
    reader.reset();
    EXPECT_LT(::GetTickCount64() - start, 1000u);
    EXPECT_EQ(reading, 1);
    EXPECT_EQ(alive, 1) << "only what the thread holds";
    gate->Open();
    EXPECT_TRUE(ui_test::pump_until([] { return alive == 0; }));
    EXPECT_TRUE(events.empty());
}

TEST_F(BackgroundReader, MayGoWhileItTells) {
    onTold = [this](Reading&) { reader.reset(); };
    ask("a");
    ask("b");
    EXPECT_TRUE(comes({"a answered"}));
    EXPECT_TRUE(ui_test::pump_until([] { return alive == 0; }));
    EXPECT_EQ(events.size(), 1u);
    onTold = nullptr;
    make();
    onTold = [this](Reading&) { reader.reset(); };
    ask("c", kShort, gate);
    EXPECT_TRUE(comes({"a answered", "c is slow"}));
}

TEST_F(BackgroundReader, AnExceptionIsAsGoodAsNothingRead) {
    for (const int kind : {1, 2}) {
        const auto throwing = std::make_shared<Reading>("throws");
        throwing->m_throws = kind;
        reader->Ask(throwing, kLong);
    }
    ask("next");
    EXPECT_TRUE(comes({"throws answered", "throws answered", "next answered"}));
}

TEST_F(BackgroundReader, TwoReadersDoNotWaitForEachOther) {
    ask("stuck", kLong, gate);
    std::vector<std::string> others;
    CBackgroundReader other(
        [&](BackgroundReading& told, ReadingEvent) { others.push_back(static_cast<Reading&>(told).m_name); });
    other.Ask(std::make_shared<Reading>("other"), kLong);
    EXPECT_TRUE(ui_test::pump_until([&] { return !others.empty(); }));
    EXPECT_EQ(others, std::vector<std::string>{"other"});
}
