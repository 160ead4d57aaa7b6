// The code pages of drawings and of the fonts that go by them.
#pragma once

#include <string>
#include <string_view>

#include "odrt_api.h"

class OdDbDatabase;

/// The code page that a drawing's author wrote in (936, 1252 and so on), as its file says; 1252 where it says
/// none that is known.
ODRT_API int oddbCodePage(OdDbDatabase& drawing);

/// The bytes of one character (a wide unit, or a pair of surrogates) in a code page. False, with any bytes,
/// if it isn't in there or the system lacks the page.
ODRT_API bool odBytesOfCharacter(int codePage, std::wstring_view character, std::string& bytes);
