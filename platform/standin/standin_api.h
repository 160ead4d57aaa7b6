// Import/export marker of ktstandin.dll.
#pragma once

#ifdef STANDIN_EXPORTS
#define STANDIN_API __declspec(dllexport)
#else
#define STANDIN_API __declspec(dllimport)
#endif
