// The classes without windows: CObject, exceptions, strings, geometry, files and archives.
#pragma once

#include "kmfc/platform.h"

#include "kmfc/diagnostics.h"
#include "kmfc/runtime_class.h"
#include "kmfc/object.h"
#include "kmfc/exceptions.h"
#include "kmfc/exception_macros.h"
#include "kmfc/string.h"
#include "kmfc/position.h"
#include "kmfc/geometry.h"
#include "kmfc/file.h"
#include "kmfc/archive.h"
