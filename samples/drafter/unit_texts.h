// Numbers as the fields of the dialogs show them: in the units of the current drawing.
#pragma once

#include <afxwin.h>

/// A distance in drawing units as a text; empty if it has none.
CString FormatDistance(double value);
/// A number without a unit, such as a factor, as a text.
CString FormatNumber(double value);
/// An angle in radians as a text; empty if it has none.
CString FormatAngle(double radians);
/// The same for an angle that is no direction: never as a bearing, but in degrees then.
CString FormatTilt(double radians);
