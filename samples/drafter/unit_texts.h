// Numbers as the fields of the dialogs show them: in the units of the current drawing.
#pragma once

#include <afxwin.h>

/// A distance in drawing units as a text; empty if it has none.
CString FormatDistance(double value);
/// An angle in radians as a text; empty if it has none.
CString FormatAngle(double radians);
