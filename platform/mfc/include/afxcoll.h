// Arrays, lists and maps of fixed element types.
#pragma once
#define __AFXCOLL_H__  ///< what programs test to see that this header was there

#include "afx.h"

#include "kmfc/arrays.h"
#include "kmfc/lists.h"
#include "kmfc/maps.h"
