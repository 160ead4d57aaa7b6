// KhUtLWeightUtil: what the lineweight picker and the rest of the application share about lineweights. All
// weights are hundredths of a millimetre, as OdDb::LineWeight has them.
#pragma once

#include <windows.h>

#include <od_db_types.h>
#include <od_string.h>

#include <ktui/ktui_api.h>

class OdDbDatabase;

namespace KhUtLWeightUtil {

/// The unit that the user sees lineweights in: 0 inches, 1 millimetres; 1 while the drawing runtime has no
/// host services.
KTUI_API int getLWeightUnits();

/// The weight that "default" stands for; 0 while the drawing runtime has no host services.
KTUI_API OdDb::LineWeight getDefaultLWeight();

/// Lineweight of the current layer of `db`, null for the working drawing; 0 if there is no drawing or layer.
KTUI_API OdDb::LineWeight getCurrentLayerLineWeight(const OdDbDatabase* db);

/// Name of `weight` in inches or in millimetres; "ByLayer", "ByBlock" and a translated "Default" for -1, -2
/// and -3; empty for any other value.
KTUI_API OdString getLintWeightName(bool inch, OdDb::LineWeight weight);

/// Draws the bar for `weight` in `color` into the full width of `rect` (logical units of `dc`). False, with
/// nothing drawn, for a rectangle whose bottom lies above its top.
KTUI_API bool drawLineWeight(HDC dc, RECT* rect, int weight, double scale, DWORD color);

}  // namespace KhUtLWeightUtil
