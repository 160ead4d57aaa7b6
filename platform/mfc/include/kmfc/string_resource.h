// String resources, as CString reads them.
#pragma once

#include <cstdint>
#include <string>

#include "kmfc/diagnostics.h"

namespace kmfc {

/// Whether a text pointer is really a resource id made with MAKEINTRESOURCE; id 0 (null) is not.
inline bool is_resource_id(const void* text) {
    const auto bits = reinterpret_cast<std::uintptr_t>(text);
    return bits != 0 && (bits >> 16) == 0;
}
inline UINT resource_id(const void* text) {
    return static_cast<UINT>(reinterpret_cast<std::uintptr_t>(text));
}

/// Reads string `id` as the current module's resource chain finds it; false when there is none. Natively
/// there are no resources.
KMFC_API bool load_string_resource(UINT id, std::wstring& text);

#ifdef _WIN32
/// Reads string `id` of a module in the given language (neutral: the user's); false when there is none.
KMFC_API bool read_string_resource(HINSTANCE module, UINT id, WORD language, std::wstring& text);
#endif

}  // namespace kmfc
