// Curves through or along many points: polylines of both kinds and splines.
#pragma once

#include "od_array.h"
#include "od_db_entity.h"

/// One corner of a flat polyline.
struct OdDbPolylineVertex {
    OdGePoint2d point;
    double bulge = 0;       ///< tangent of a quarter of the arc to the next corner; 0 for a straight piece
    double startWidth = 0;  ///< width of the piece at this corner, in drawing units
    double endWidth = 0;    ///< width of the piece at the next corner
};

/// A flat polyline in one object.
class ODRT_API OdDbPolyline : public OdDbEntity {
public:
    const char* dxfName() const override { return "LWPOLYLINE"; }
    /// The corners in order.
    OdArray<OdDbPolylineVertex> vertices() const;
    void setVertices(const OdArray<OdDbPolylineVertex>& vertices);
    bool isClosed() const { return (m_groups.integer(70) & 1) != 0; }
    void setClosed(bool closed);
    /// The width of all pieces; 0 when each has its own.
    double constantWidth() const { return m_groups.real(43); }
    double elevation() const override { return m_groups.real(38); }
    void setElevation(double elevation) override { editGroups().setReal(38, elevation); }
};

/// A corner of an OdDb2dPolyline, an entity of its own.
class ODRT_API OdDbVertex : public OdDbEntity {
public:
    const char* dxfName() const override { return "VERTEX"; }
    OdGePoint3d position() const { return m_groups.point(10); }
    void setPosition(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
    double bulge() const { return m_groups.real(42); }
    void setBulge(double bulge) { editGroups().setReal(42, bulge); }
    double startWidth() const { return m_groups.real(40); }
    double endWidth() const { return m_groups.real(41); }
    /// Whether the corner is a control point of a fitted curve and not on the line itself.
    bool isControlPoint() const { return (m_groups.integer(70) & 16) != 0; }
};

/// A polyline of vertex entities: flat, or in space, or a mesh.
class ODRT_API OdDb2dPolyline : public OdDbEntity {
public:
    const char* dxfName() const override { return "POLYLINE"; }
    bool isClosed() const { return (m_groups.integer(70) & 1) != 0; }
    void setClosed(bool closed);
    /// Whether the corners lie in space.
    bool is3d() const { return (m_groups.integer(70) & 8) != 0; }
    /// Whether it is a polygon or polyface mesh.
    bool isMesh() const { return (m_groups.integer(70) & 80) != 0; }
    /// The corners on the line, in order; control points are left out.
    OdArray<OdDbVertex*> vertices() const;
    /// Adds a corner that belongs to no drawing yet.
    OdResult appendVertex(const OdSmartPtr<OdDbVertex>& vertex);
    const std::vector<OdSmartPtr<OdDbEntity>>* parts() const override { return &m_parts; }

private:
    std::vector<OdSmartPtr<OdDbEntity>>* editParts() override { return &m_parts; }
    std::vector<OdSmartPtr<OdDbEntity>> m_parts;
};

/// A non-uniform rational B-spline curve.
class ODRT_API OdDbSpline : public OdDbEntity {
public:
    const char* dxfName() const override { return "SPLINE"; }
    int degree() const { return static_cast<int>(m_groups.integer(71, 3)); }
    bool isClosed() const { return (m_groups.integer(70) & 1) != 0; }
    OdArray<double> knots() const;
    /// One weight for each control point, or none when all are 1.
    OdArray<double> weights() const;
    OdArray<OdGePoint3d> controlPoints() const;
    OdArray<OdGePoint3d> fitPoints() const;
    /// Makes it a curve of `degree` over `points` with clamped, evenly spaced knots. kOdInvalidInput for a
    /// degree outside 1 to 10 or fewer than degree + 1 points.
    OdResult setControlPoints(int degree, const OdArray<OdGePoint3d>& points);
    /// The curve as `count` points, 2 or more, evenly spaced in its parameter; the fit points if it has no
    /// usable control points.
    OdArray<OdGePoint3d> samplePoints(int count) const;
};
