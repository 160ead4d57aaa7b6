// A module that is freed while a thread reads in it: it holds a copy of the reader, and a provider.
#include <ktui/nav/background_reader.h>

namespace {

/// Waits for an event of the caller's.
class Waiting : public BackgroundReading {
public:
    explicit Waiting(HANDLE gate) : m_gate(gate) {}
    void Read() override { ::WaitForSingleObject(m_gate, INFINITE); }

private:
    HANDLE m_gate;
};

HANDLE s_gate = nullptr;

}  // namespace

/// Begins a reading that lasts until `gate` is open, and lets go of the reader.
extern "C" __declspec(dllexport) void ReadBehind(HANDLE gate) {
    CBackgroundReader reader([](BackgroundReading&, ReadingEvent) {});
    reader.Ask(std::make_shared<Waiting>(gate), 60000);
}

extern "C" __declspec(dllexport) void SetGate(HANDLE gate) { s_gate = gate; }

extern "C" __declspec(dllexport) HBITMAP ProvideBehind(const wchar_t*, int, int) {
    ::WaitForSingleObject(s_gate, INFINITE);
    return ::CreateBitmap(4, 4, 1, 32, nullptr);
}
