// The library as the drawing runtime sees it: a module object that takes messages, and the exports by which
// the runtime finds it.
#pragma once

#include <od_rx.h>
#include <windows.h>

#include <ktui/ktui_api.h>

/// A module that passes messages on to the entry point that its file exports.
class Arx2DrxModule : public OdRxExtendModule {
public:
    using EntryPoint = int (*)(int message, void* packet);

    /// Finds the entry point at the first message: "ktrxEntryPoint", or else "acrxEntryPoint", for the life
    /// of the object. Answers what it answers, or 3 if the file exports neither.
    int dispatch(int message, void* packet) override;

protected:
    EntryPoint m_entryPoint = nullptr;
};

/// `Base` with what the system adds to a module: its handle, its file's name, a count of references.
template <class Module, class Base>
class OdRxWin32Module : public Base {
public:
    /// `handle` may be null, and then no entry point is found.
    explicit OdRxWin32Module(HMODULE handle) : m_handle(handle) {}

    // Kept: the count is only a counter; the object outlives a count of zero, until deleteModule.
    void addRef() override { ++m_count; }
    void release() override { --m_count; }
    long numRefs() const override { return m_count; }

    bool isModule() const override { return true; }
    void* sysHandle() const override { return m_handle; }
    /// Destroys the object; a later odrxCreateModuleObject makes a new one.
    void deleteModule() override;
    void initApp() override { this->dispatch(kInitMessage, this); }
    void uninitApp() override { this->dispatch(kUninitMessage, this); }
    OdString moduleName() const override;

    /// Null without memory, and then nothing is constructed.
    static void* operator new(std::size_t size) noexcept { return odrxAlloc(size); }
    static void operator delete(void* memory) { odrxFree(memory); }

private:
    static constexpr int kInitMessage = 1;
    static constexpr int kUninitMessage = 2;

    int m_count = 0;
    HMODULE m_handle;
};

using ToolkitRuntimeModule = OdRxWin32Module<Arx2DrxModule, Arx2DrxModule>;

extern "C" {
/// The library's module object. The first call makes it of `module`, which becomes null; later calls answer
/// the same object and leave `module` alone. Null, with `module` left alone, without memory. The runtime ends
/// its life by deleteModule.
KTUI_API OdRxModule* odrxCreateModuleObject(HMODULE& module);
/// Puts the version of the drawing runtime that the library was built against, 3.5, into the first two;
/// answers 0.
KTUI_API int odrxGetAPIVersion(int& major, int& minor, int& majorBuild, int& minorBuild);
/// The library's own entry point; answers 0 to everything.
KTUI_API int ktrxEntryPoint(int message, void* packet);
}
