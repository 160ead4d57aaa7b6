// The classes without windows: CObject, exceptions, strings, geometry, files and archives.
#pragma once
#define __AFX_H__  ///< what programs test to see that this header was there
#define _MFC_VER 0x0E00

#include "kmfc/platform.h"

#include "kmfc/diagnostics.h"
#include "kmfc/runtime_class.h"
#include "kmfc/object.h"
#include "kmfc/dump_context.h"
#include "kmfc/exceptions.h"
#include "kmfc/exception_macros.h"
#include "kmfc/string.h"
#include "kmfc/position.h"
#include "kmfc/geometry.h"
#include "kmfc/file.h"
#include "kmfc/stdio_file.h"
#include "kmfc/archive.h"
#ifdef _WIN32
#include "kmfc/file_find.h"
#endif
