// The import/export marker of the drawing runtime. Natively the runtime is a static library and needs none.
#pragma once

#ifdef _WIN32
#ifdef ODRT_EXPORTS
#define ODRT_API __declspec(dllexport)
#else
#define ODRT_API __declspec(dllimport)
#endif
#else
#define ODRT_API
#endif
