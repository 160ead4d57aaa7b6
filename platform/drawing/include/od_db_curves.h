// Lines, points, circles, arcs, ellipses and filled quadrilaterals.
#pragma once

#include "od_array.h"
#include "od_db_entity.h"

/// A straight line between two points.
class ODRT_API OdDbLine : public OdDbEntity {
public:
    const char* dxfName() const override { return "LINE"; }
    OdGePoint3d startPoint() const { return m_groups.point(10); }
    void setStartPoint(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
    OdGePoint3d endPoint() const { return m_groups.point(11); }
    void setEndPoint(const OdGePoint3d& point) { editGroups().setPoint(11, point); }
};

/// A point mark.
class ODRT_API OdDbPoint : public OdDbEntity {
public:
    const char* dxfName() const override { return "POINT"; }
    OdGePoint3d position() const { return m_groups.point(10); }
    void setPosition(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
};

/// A full circle.
class ODRT_API OdDbCircle : public OdDbEntity {
public:
    const char* dxfName() const override { return "CIRCLE"; }
    OdGePoint3d center() const { return m_groups.point(10); }
    void setCenter(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
    /// Radius in drawing units.
    double radius() const { return m_groups.real(40); }
    void setRadius(double radius) { editGroups().setReal(40, radius); }
};

/// A part of a circle, counter-clockwise from the start angle to the end angle.
class ODRT_API OdDbArc : public OdDbEntity {
public:
    const char* dxfName() const override { return "ARC"; }
    OdGePoint3d center() const { return m_groups.point(10); }
    void setCenter(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
    double radius() const { return m_groups.real(40); }
    void setRadius(double radius) { editGroups().setReal(40, radius); }
    /// Angles in radians from the x axis.
    double startAngle() const;
    void setStartAngle(double radians);
    double endAngle() const;
    void setEndAngle(double radians);
};

/// An ellipse or a part of one.
class ODRT_API OdDbEllipse : public OdDbEntity {
public:
    const char* dxfName() const override { return "ELLIPSE"; }
    OdGePoint3d center() const { return m_groups.point(10); }
    void setCenter(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
    /// End of the major axis, relative to the centre.
    OdGePoint3d majorAxis() const { return m_groups.point(11); }
    void setMajorAxis(const OdGePoint3d& axis) { editGroups().setPoint(11, axis); }
    /// Minor axis over major axis, above 0 up to 1.
    double radiusRatio() const { return m_groups.real(40, 1); }
    void setRadiusRatio(double ratio) { editGroups().setReal(40, ratio); }
    /// Parameters in radians, 0 at the major axis; 0 and 2 pi for a whole ellipse.
    double startParam() const { return m_groups.real(41, 0); }
    void setStartParam(double radians) { editGroups().setReal(41, radians); }
    double endParam() const;
    void setEndParam(double radians) { editGroups().setReal(42, radians); }
};

/// A filled triangle or quadrilateral. The third and fourth corner lie crosswise, as on a bow tie.
class ODRT_API OdDbSolid : public OdDbEntity {
public:
    const char* dxfName() const override { return "SOLID"; }
    /// Corner 0 to 3; without a fourth corner it equals the third.
    OdGePoint3d pointAt(int corner) const;
    void setPointAt(int corner, const OdGePoint3d& point);
};
