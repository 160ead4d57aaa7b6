// Draws lines in the dashes of a linetype.
#pragma once

#include <vector>

#include <afxwin.h>

#include "standin_api.h"

/// Whether a pattern of `dashes` at `scale` pixels for a drawing unit can be told from a continuous line.
STANDIN_API bool IsDashedAt(const std::vector<double>& dashes, double scale);

/// Draws the line through `points` (pixels of `dc`) with the pen that is selected into `dc`. `dashes` are
/// lengths in drawing units, positive for a dash, negative for a gap, 0 for a dot; `scale` is pixels for a
/// drawing unit; `skipped` is how far from its start, in drawing units, the line begins in the pattern. Empty
/// dashes, and a pattern too fine to see, give a continuous line.
STANDIN_API void DrawDashedPath(CDC& dc, const std::vector<CPoint>& points, const std::vector<double>& dashes,
                                double scale, double skipped = 0);

/// Fills `area` (pixels of `dc`) with `background` and draws the pattern `dashes` along its middle in
/// `foreground`, about two and a half repeats of it whatever the drawing's unit.
STANDIN_API void DrawLinetypeSample(CDC& dc, const CRect& area, const std::vector<double>& dashes,
                                    COLORREF foreground, COLORREF background);
