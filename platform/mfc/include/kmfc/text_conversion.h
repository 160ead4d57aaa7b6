// Narrow text to wide and back: by the system's ANSI code page on Windows, by UTF-8 natively.
#pragma once

#include <string>
#include <string_view>

#include "kmfc/diagnostics.h"

namespace kmfc {

/// What cannot be represented becomes a replacement character; nothing fails but for memory.
KMFC_API std::wstring widen(std::string_view text);
KMFC_API std::string narrow(std::wstring_view text);

}  // namespace kmfc
