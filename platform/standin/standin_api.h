// Import/export marker of ktstandin.dll; nothing in a native build.
#pragma once

#ifndef _WIN32
#define STANDIN_API
#elif defined(STANDIN_EXPORTS)
#define STANDIN_API __declspec(dllexport)
#else
#define STANDIN_API __declspec(dllimport)
#endif
