// Puts a function of the test's own in the place of one that a module imports, in that module alone.
#pragma once

#include <cstring>

#include <windows.h>

namespace ui_test {

/// The entry of `module` for the imported function `name`; null if it imports none.
inline IMAGE_THUNK_DATA* import_entry(HMODULE module, const char* name) {
    if (!module) return nullptr;
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress); from->Name;
         ++from) {
        const auto* each = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->OriginalFirstThunk);
        auto* entry = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->FirstThunk);
        for (; each->u1.AddressOfData; ++each, ++entry) {
            if (IMAGE_SNAP_BY_ORDINAL(each->u1.Ordinal)) continue;
            const auto* import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + each->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) return entry;
        }
    }
    return nullptr;
}

/// Has `module` call `replacement` for `name`; answers what it called before, null if it imports no `name`.
template <class Function>
Function* replace_import(HMODULE module, const char* name, Function* replacement) {
    IMAGE_THUNK_DATA* entry = import_entry(module, name);
    if (!entry) return nullptr;
    auto* former = reinterpret_cast<Function*>(entry->u1.Function);
    DWORD protection = 0;
    ::VirtualProtect(entry, sizeof *entry, PAGE_READWRITE, &protection);
    entry->u1.Function = reinterpret_cast<ULONG_PTR>(replacement);
    ::VirtualProtect(entry, sizeof *entry, protection, &protection);
    return former;
}

/// The same for as long as the object lives.
class ReplacedImport {
public:
    template <class Function>
    ReplacedImport(HMODULE module, const char* name, Function* replacement)
        : m_module(module),
          m_name(name),
          m_former(reinterpret_cast<void*>(replace_import(module, name, replacement))) {}
    ~ReplacedImport() {
        if (m_former) replace_import(m_module, m_name, m_former);
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
