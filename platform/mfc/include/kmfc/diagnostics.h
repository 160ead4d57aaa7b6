// Calling conventions, assertions and argument checks that the class headers share.
//
// ASSERT and its kin are live in builds with _DEBUG and cost nothing otherwise; ENSURE is live in every build
// and throws CInvalidArgException, so a broken contract never runs on.
#pragma once

#include "kmfc/platform.h"

#ifdef _WIN32
#define AFXAPI __stdcall
#define AFX_CDECL __cdecl
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
#define AFX_EXT_API AFX_EXT_CLASS
#define AFX_EXT_DATA AFX_EXT_CLASS
#define AFX_EXT_DATADEF
#define AFX_CLASS_EXPORT __declspec(dllexport)
#define AFX_CLASS_IMPORT __declspec(dllimport)
#define AFX_API_EXPORT __declspec(dllexport)
#define AFX_API_IMPORT __declspec(dllimport)
#define AFX_DATA_EXPORT __declspec(dllexport)
#define AFX_DATA_IMPORT __declspec(dllimport)
#else
#define AFXAPI
#define AFX_CDECL
#define AFX_EXT_CLASS
#define PASCAL
#endif
#define AFX_DATA
#define AFX_DATADEF
#define AFX_INLINE inline

/// Writes the place of a failed assertion to the debugger (to stderr natively) and ends the process.
[[noreturn]] KMFC_API void AFXAPI AfxAssertFailedLine(const char* file, int line);

/// Throws CInvalidArgException. Never returns.
[[noreturn]] KMFC_API void AFXAPI AfxThrowInvalidArgException();

#ifdef _DEBUG
#define ASSERT(condition) ((condition) ? (void)0 : AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(condition) ASSERT(condition)
#define ASSERT_VALID(object) (::AfxAssertValidObject(object, __FILE__, __LINE__))
#else
#define ASSERT(condition) ((void)0)
#define VERIFY(condition) ((void)(condition))
#define ASSERT_VALID(object) ((void)0)
#endif
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define ASSERT_POINTER(pointer, type) ASSERT((pointer) != nullptr)
#define ASSERT_NULL_OR_POINTER(pointer, type) ((void)0)

/// Throws CInvalidArgException unless the condition holds.
#define ENSURE(condition)                                \
    do {                                                 \
        if (!(condition)) AfxThrowInvalidArgException(); \
    } while (false)
#define ENSURE_ARG(condition) ENSURE(condition)
#define ENSURE_VALID(object) ENSURE((object) != nullptr)
#define UNUSED_ALWAYS(variable) ((void)(variable))
#ifdef _DEBUG
#define UNUSED(variable)
#define DEBUG_ONLY(expression) (expression)
#else
#define UNUSED(variable) ((void)(variable))
#define DEBUG_ONLY(expression) ((void)0)
#endif
#define AFXASSUME(condition) ASSERT(condition)
