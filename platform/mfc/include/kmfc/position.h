// POSITION: a place in a list or map. Good until its element is removed; null means the end.
#pragma once

struct __POSITION;
using POSITION = __POSITION*;
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))
