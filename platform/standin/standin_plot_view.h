// What an application lends to the export of its drawing: the view that the user works in.
#pragma once

#include <od_ge.h>

/// A view of model space. The application keeps it for as long as the host has it.
class StandinPlotView {
public:
    /// The corners of what the user sees, in drawing units; false if nothing is shown.
    virtual bool displayedArea(OdGePoint2d& low, OdGePoint2d& high) = 0;
    /// Has the user pick two corners of a window, in any order, and returns then; false if the user gave up.
    virtual bool pickArea(OdGePoint2d& first, OdGePoint2d& second) = 0;

protected:
    ~StandinPlotView() = default;
};
