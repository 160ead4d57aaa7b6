// Arrays, lists and maps of fixed element types.
#pragma once

#include "afx.h"

#include "kmfc/arrays.h"
#include "kmfc/lists.h"
#include "kmfc/maps.h"
