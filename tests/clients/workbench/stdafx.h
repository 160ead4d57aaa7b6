// stdafx.h : include file for standard system include files, or project specific include files that are used
// frequently, but are changed infrequently
//
#pragma once

#define VC_EXTRALEAN  // Exclude rarely-used stuff from Windows headers

#include <afxwin.h>          // core and standard components
#include <afxext.h>          // extensions
#include <afxcmn.h>          // support for Windows Common Controls
#include <afxcontrolbars.h>  // panes that dock
