// Import/export marker of ktstandin.dll. Natively its readers are a static library and need none.
#pragma once

#ifdef _WIN32
#ifdef STANDIN_EXPORTS
#define STANDIN_API __declspec(dllexport)
#else
#define STANDIN_API __declspec(dllimport)
#endif
#else
#define STANDIN_API
#endif
