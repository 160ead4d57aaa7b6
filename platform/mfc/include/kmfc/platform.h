// What every header of the class layer starts from: the Windows types, and the import/export marker.
//
// On Windows this is <windows.h> itself. In the native build, where only the units without windows are
// compiled, it supplies the handful of Windows names that their signatures mention, with the same meaning
// and, where a size matters to callers, the same size. wchar_t keeps the compiler's own width there.
#pragma once

#ifdef _WIN32
#include <windows.h>
#include <tchar.h>
#include <commctrl.h>
// A macro of two arguments that would swallow CWnd::GetNextWindow.
#undef GetNextWindow
#ifdef KMFC_EXPORTS
#define KMFC_API __declspec(dllexport)
#else
#define KMFC_API __declspec(dllimport)
#endif
#else
#include <cstdint>
#include <cwchar>

#define KMFC_API

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using INT = int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using PUINT = unsigned int*;
using UINT_PTR = std::uintptr_t;
using INT_PTR = std::intptr_t;
using DWORD_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using COLORREF = DWORD;
using TCHAR = wchar_t;
using WCHAR = wchar_t;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCTSTR = const wchar_t*;
using LPSTR = char*;
using LPCSTR = const char*;
using LPVOID = void*;
using LPCVOID = const void*;
using HRESULT = std::int32_t;

struct POINT {
    LONG x, y;
};
struct SIZE {
    LONG cx, cy;
};
struct RECT {
    LONG left, top, right, bottom;
};
using LPPOINT = POINT*;
using LPSIZE = SIZE*;
using LPRECT = RECT*;
using LPCRECT = const RECT*;

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif
#define _T(text) L##text
#define CALLBACK
#define WINAPI
#define __int64 long long
constexpr COLORREF RGB(int red, int green, int blue) {
    return static_cast<COLORREF>(red | (green << 8) | (blue << 16));
}
#endif
