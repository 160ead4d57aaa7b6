// Hatches: areas filled with a colour, a gradient or a pattern of lines.
#pragma once

#include <vector>
#include "od_cm_color.h"
#include "od_db_polylines.h"

/// One edge of a hatch's boundary. Angles are radians; a sweep below 0 runs clockwise.
struct OdDbHatchEdge {
    enum class Kind { kLine, kArc, kEllipse, kSpline };
    Kind kind = Kind::kLine;
    OdGePoint2d start, end;  ///< of a line
    OdGePoint2d center;      ///< of an arc or ellipse
    OdGePoint2d majorAxis;   ///< from the centre; for an arc the radius along x
    double ratio = 1;        ///< minor over major axis
    double startAngle = 0;   ///< parameter of an ellipse, counted from its major axis
    double sweep = 0;
    int degree = 3;  ///< of a spline, as what follows
    std::vector<double> knots, weights;
    std::vector<OdGePoint2d> controlPoints, fitPoints;
};

/// One closed boundary of a hatch: a polyline, or edges.
struct OdDbHatchLoop {
    bool isPolyline = false;
    std::vector<OdDbPolylineVertex> corners;
    std::vector<OdDbHatchEdge> edges;
};

/// One family of parallel lines of a pattern, in the hatch's own plane.
struct OdDbHatchLine {
    double angle = 0;            ///< radians
    OdGePoint2d base;            ///< on the first line; where its dashes begin
    OdGePoint2d offset;          ///< from one line to the next
    std::vector<double> dashes;  ///< positive a dash, negative a gap, 0 a dot; none for continuous lines
};

/// Which of the areas between nested boundaries are filled.
enum class OdDbHatchStyle { kOddParity = 0, kOutermost = 1, kIgnoreIslands = 2 };

/// A hatch. Its boundaries lie in the plane of its normal at its elevation.
class ODRT_API OdDbHatch : public OdDbEntity {
public:
    const char* dxfName() const override { return "HATCH"; }
    OdString patternName() const { return m_groups.text(2); }
    bool isSolid() const { return m_groups.integer(70) != 0; }
    bool isGradient() const { return m_groups.integer(450) != 0; }
    /// The colours of the gradient, one or two; with one the other is its tint.
    std::vector<OdCmColor> gradientColors() const;
    /// Tint of a gradient of one colour: 0 black, 1 white.
    double gradientTint() const { return m_groups.real(462); }
    /// Odd parity for a value that means nothing.
    OdDbHatchStyle style() const;
    std::vector<OdDbHatchLoop> loops() const;
    std::vector<OdDbHatchLine> patternLines() const;
};
