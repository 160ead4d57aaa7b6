// Arrays, lists and maps of any element type.
#pragma once

#include "afx.h"

#include "kmfc/array.h"
#include "kmfc/list.h"
#include "kmfc/map.h"
#include "kmfc/typed_pointers.h"
