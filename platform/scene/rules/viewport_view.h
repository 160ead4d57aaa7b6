// What a viewport sees of model space. Internal to the module.
#pragma once

#include <vector>

#include <od_db_viewport.h>

struct ViewportView {
    OdGePoint3d target;              ///< the origin of the plane of the view
    OdGePoint3d direction{0, 0, 1};  ///< from there to the eye
    double twist = 0;                ///< radians
    OdGePoint2d center;              ///< of what is seen, in the plane of the view
    double height = 0;  ///< of what is seen, in units of model space; 0 if nothing is known of it
    std::vector<OdDbHandle> frozen;  ///< layers that are frozen in this window alone
};

/// The view by the viewport's groups, or by its extended data, where files before 2000 have it.
ViewportView ViewOf(const OdDbViewport& viewport);
