// Import/export marker of ktscene.dll. Natively it is a static library and needs none.
#pragma once

#ifdef _WIN32
#ifdef KTSCENE_EXPORTS
#define KTSCENE_API __declspec(dllexport)
#else
#define KTSCENE_API __declspec(dllimport)
#endif
#else
#define KTSCENE_API
#endif
