// How the ByLayer item says that the layer is overridden in the viewport. Private to the library.
#pragma once

constexpr const wchar_t* kViewportOverrideSuffix = L" (VP)";
