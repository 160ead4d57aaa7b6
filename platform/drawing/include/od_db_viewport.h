// Viewports: windows of a sheet onto model space.
#pragma once

#include <vector>
#include "od_db_entity.h"

/// One window onto model space.
class ODRT_API OdDbViewport : public OdDbEntity {
public:
    const char* dxfName() const override { return "VIEWPORT"; }
    /// The middle on the sheet, and the size there.
    OdGePoint3d centerPoint() const { return m_groups.point(10); }
    double width() const { return m_groups.real(40); }
    double height() const { return m_groups.real(41); }
    /// Whether it is the sheet itself and no window.
    bool isSheet() const { return m_groups.integer(69) == 1; }
    bool isOn() const;
    /// The middle of what is seen, in the plane of the view; its height in units of model space.
    OdGePoint2d viewCenter() const;
    double viewHeight() const { return m_groups.real(45); }
    /// The origin of the plane of the view, and the direction from there to the eye.
    OdGePoint3d viewTarget() const { return m_groups.point(17); }
    OdGePoint3d viewDirection() const { return m_groups.point(16, {0, 0, 1}); }
    /// How far the view is turned, radians.
    double twistAngle() const;
    /// The layers that are frozen in this window alone.
    std::vector<OdDbHandle> frozenLayers() const;
    /// The entity of the sheet that is the window's outline; null for a rectangle.
    OdDbObjectId clipEntity() const;
};
