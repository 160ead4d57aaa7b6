// Arrays, lists and maps of any element type.
#pragma once
#define __AFXTEMPL_H__  ///< what programs test to see that this header was there

#include "afx.h"

#include "kmfc/array.h"
#include "kmfc/list.h"
#include "kmfc/map.h"
#include "kmfc/typed_pointers.h"
