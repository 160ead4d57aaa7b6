// The functions that a module imports, by name, so that a test can see what the module asks of the system, or
// answer in the system's place. Only the calls of that one module change.
#pragma once

#include <cstring>

#include <windows.h>

namespace ui_test {

/// Where `module` keeps the address of the function that it imports as `name`; null if it imports none.
inline void** find_import(HMODULE module, const char* name) {
    if (!module) return nullptr;
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress); from->Name;
         ++from) {
        const auto* wanted = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->OriginalFirstThunk);
        auto* entry = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->FirstThunk);
        for (; wanted->u1.AddressOfData; ++wanted, ++entry) {
            if (IMAGE_SNAP_BY_ORDINAL(wanted->u1.Ordinal)) continue;
            const auto* import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + wanted->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0)
                return reinterpret_cast<void**>(&entry->u1.Function);
        }
    }
    return nullptr;
}

/// Has `module` call `function` where it imports `name`, and answers what it called before; null if it
/// imports no such function.
inline void* exchange_import(HMODULE module, const char* name, void* function) {
    void** const entry = find_import(module, name);
    if (!entry) return nullptr;
    DWORD former = 0;
    ::VirtualProtect(entry, sizeof *entry, PAGE_READWRITE, &former);
    void* const called = *entry;
    *entry = function;
    ::VirtualProtect(entry, sizeof *entry, former, &former);
    return called;
}

/// The same for as long as the object lives.
class ReplacedImport {
public:
    template <class Function>
    ReplacedImport(HMODULE module, const char* name, Function* function)
        : m_module(module),
          m_name(name),
          m_former(exchange_import(module, name, reinterpret_cast<void*>(function))) {}
    ~ReplacedImport() {
        if (m_former) exchange_import(m_module, m_name, m_former);
    }
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

    /// Whether the module imports the function at all.
    bool isThere() const { return m_former != nullptr; }

private:
    HMODULE m_module;
    const char* m_name;
    void* m_former;
};

}  // namespace ui_test
