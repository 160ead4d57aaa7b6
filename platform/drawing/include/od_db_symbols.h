// Shapes of shape files, frames of geometric tolerances, and the definitions of attributes.
#pragma once

#include "od_db_texts.h"

/// A shape from a shape file.
class ODRT_API OdDbShape : public OdDbEntity {
public:
    const char* dxfName() const override { return "SHAPE"; }
    OdGePoint3d position() const { return m_groups.point(10); }
    OdString shapeName() const { return m_groups.text(2); }
    /// Height of the shape that a capital would have, in drawing units.
    double size() const { return m_groups.real(40); }
    double widthFactor() const { return m_groups.real(41, 1); }
    /// Radians.
    double rotation() const;
    double oblique() const;
};

/// A frame with a geometric tolerance.
class ODRT_API OdDbFcf : public OdDbEntity {
public:
    const char* dxfName() const override { return "TOLERANCE"; }
    /// The left end of the frame, half up its first row.
    OdGePoint3d location() const { return m_groups.point(10); }
    OdGePoint3d direction() const { return m_groups.point(11, {1, 0, 0}); }
    /// The fields, parted by "%%v", in rows, parted by L'\n'.
    OdString text() const { return m_groups.text(1); }
    OdString dimStyleName() const { return m_groups.text(3); }
};

/// What an attribute of a block's references is made from.
class ODRT_API OdDbAttributeDefinition : public OdDbText {
public:
    const char* dxfName() const override { return "ATTDEF"; }
    OdString tag() const { return m_groups.text(2); }
    int verticalMode() const override { return static_cast<int>(m_groups.integer(74)); }
    bool isInvisible() const { return (m_groups.integer(70) & 1) != 0; }
    /// Whether all references show its text, and have no attribute for it.
    bool isConstant() const { return (m_groups.integer(70) & 2) != 0; }
};
