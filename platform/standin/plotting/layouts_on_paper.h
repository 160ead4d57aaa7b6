// The sheets of a drawing. Knows no window.
#pragma once

#include <vector>

#include <od_db.h>

#include "standin_api.h"

/// The layouts on paper in the order of their tabs.
STANDIN_API std::vector<OdDbLayoutPtr> LayoutsOnPaper(OdDbDatabase& drawing);
