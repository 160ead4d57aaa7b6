#include "kmfc/string_resource.h"

#ifdef _WIN32

#include <kmfc/module_state.h>

extern "C" IMAGE_DOS_HEADER __ImageBase;

bool kmfc::read_string_resource(HINSTANCE module, UINT id, WORD language, std::wstring& text) {
    // Strings are kept in blocks of 16, each a length in characters followed by the characters.
    HRSRC block = ::FindResourceExW(module, RT_STRING, MAKEINTRESOURCEW((id >> 4) + 1), language);
    HGLOBAL loaded = block ? ::LoadResource(module, block) : nullptr;
    const auto* at = static_cast<const WORD*>(loaded ? ::LockResource(loaded) : nullptr);
    if (!at) return false;
    const auto* end = at + ::SizeofResource(module, block) / sizeof(WORD);
    for (UINT i = 0; i < (id & 0xF) && at < end; ++i) at += 1 + *at;
    if (at >= end || *at == 0 || at + *at >= end) return false;
    text.assign(reinterpret_cast<const wchar_t*>(at + 1), *at);
    return true;
}

namespace {

constexpr WORD kNeutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);

bool read_from_libraries(bool system, UINT id, std::wstring& text) {
    for (auto* library = AfxGetModuleState()->m_libraryList.m_pHead; library; library = library->m_pNextDLL) {
        if ((library->m_bSystem != FALSE) != system || !library->m_hResource) continue;
        if (kmfc::read_string_resource(library->m_hResource, id, kNeutral, text)) return true;
    }
    return false;
}

}  // namespace

bool kmfc::load_string_resource(UINT id, std::wstring& text) {
    // A block of 16 strings may lie in several modules, so the string itself is looked for in each.
    const auto own = reinterpret_cast<HINSTANCE>(&__ImageBase);
    return read_string_resource(AfxGetResourceHandle(), id, kNeutral, text) ||
           read_from_libraries(false, id, text) ||
           read_string_resource(AfxGetInstanceHandle(), id, kNeutral, text) ||
           read_from_libraries(true, id, text) || read_string_resource(own, id, kNeutral, text);
}

#else

bool kmfc::load_string_resource(UINT, std::wstring&) { return false; }

#endif
