// Import/export marker of ktrx.dll, the library through which extension modules reach the application.
#pragma once

#ifdef KTRX_EXPORTS
#define KTRX_API __declspec(dllexport)
#else
#define KTRX_API __declspec(dllimport)
#endif
