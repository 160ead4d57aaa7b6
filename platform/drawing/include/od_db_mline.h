// Multilines: bundles of parallel lines, and their styles.
#pragma once

#include <vector>
#include "od_cm_color.h"
#include "od_db_entity.h"

/// One vertex of a multiline.
struct OdDbMlineVertex {
    OdGePoint3d point;
    OdGePoint3d direction;  ///< of the piece that begins here
    OdGePoint3d miter;      ///< along which the lines' places are measured
    /// For each line: its place along the miter, then where along the piece it begins, ends, begins again.
    std::vector<std::vector<double>> lines;
    /// The same for the edges of the fill along each line; empty lists where the file has none.
    std::vector<std::vector<double>> fills;
};

/// One line of a style.
struct OdDbMlineElement {
    double offset = 0;  ///< from the middle, at scale 1
    OdCmColor color;
    OdString linetype;
};

/// A style of multilines.
class ODRT_API OdDbMlineStyle : public OdDbObject {
public:
    enum Flag {
        kFilled = 1,
        kMiters = 2,
        kStartLine = 16,
        kStartInnerArcs = 32,
        kStartArc = 64,
        kEndLine = 256,
        kEndInnerArcs = 512,
        kEndArc = 1024
    };
    const char* dxfName() const override { return "MLINESTYLE"; }
    OdString name() const { return m_groups.text(2); }
    /// Of the enumerators of Flag.
    int flags() const { return static_cast<int>(m_groups.integer(70)); }
    OdCmColor fillColor() const;
    std::vector<OdDbMlineElement> elements() const;
};
using OdDbMlineStylePtr = OdSmartPtr<OdDbMlineStyle>;

/// A multiline.
class ODRT_API OdDbMline : public OdDbEntity {
public:
    const char* dxfName() const override { return "MLINE"; }
    bool isClosed() const { return (m_groups.integer(71) & 2) != 0; }
    bool hasStartCap() const { return (m_groups.integer(71) & 4) == 0; }
    bool hasEndCap() const { return (m_groups.integer(71) & 8) == 0; }
    std::vector<OdDbMlineVertex> vertices() const;
    /// The style; null if the drawing lacks it.
    OdDbMlineStylePtr style() const;
};
