#include <ktui/host/runtime_module.h>

namespace {

constexpr int kNoEntryPoint = 3;
constexpr int kPathSize = 260;  // characters

ToolkitRuntimeModule* singleton = nullptr;

Arx2DrxModule::EntryPoint FindEntryPoint(HMODULE module) {
    for (const char* name : {"ktrxEntryPoint", "acrxEntryPoint"})
        if (const FARPROC found = ::GetProcAddress(module, name))
            return reinterpret_cast<Arx2DrxModule::EntryPoint>(reinterpret_cast<void*>(found));
    return nullptr;
}

}  // namespace

int Arx2DrxModule::dispatch(int message, void* packet) {
    const HMODULE module = static_cast<HMODULE>(sysHandle());
    if (!m_entryPoint && module) m_entryPoint = FindEntryPoint(module);
    return m_entryPoint ? m_entryPoint(message, packet) : kNoEntryPoint;
}

template <class Module, class Base>
void OdRxWin32Module<Module, Base>::deleteModule() {
    singleton = nullptr;
    delete this;
}

template <class Module, class Base>
OdString OdRxWin32Module<Module, Base>::moduleName() const {
    wchar_t path[kPathSize] = {};
    ::GetModuleFileNameW(m_handle, path, kPathSize);
    return path;
}

OdRxModule* odrxCreateModuleObject(HMODULE& module) {
    if (!singleton) {
        singleton = new ToolkitRuntimeModule(module);
        if (singleton) module = nullptr;
    }
    return singleton;
}

int odrxGetAPIVersion(int& major, int& minor, int& majorBuild, int& minorBuild) {
    major = 3;
    minor = 5;
    majorBuild = 0;
    minorBuild = 0;
    return 0;
}

int ktrxEntryPoint(int, void*) { return 0; }
