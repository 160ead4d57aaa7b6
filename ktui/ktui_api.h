// Import/export marker of ktui.dll. Empty in the native build, where the units are linked statically.
#pragma once

#ifdef _WIN32
#ifdef KTUI_EXPORTS
#define KTUI_API __declspec(dllexport)
#else
#define KTUI_API __declspec(dllimport)
#endif
#else
#define KTUI_API
#endif
