// Entities that draw themselves through a block: insertions and dimensions.
#pragma once

#include "od_array.h"
#include "od_db_texts.h"

/// An insertion of a block, with its attributes.
class ODRT_API OdDbBlockReference : public OdDbEntity {
public:
    const char* dxfName() const override { return "INSERT"; }
    /// The block; null if the drawing has none of that name.
    OdDbObjectId blockTableRecord() const;
    OdResult setBlockTableRecord(const OdDbObjectId& id);
    OdGePoint3d position() const { return m_groups.point(10); }
    void setPosition(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
    /// Scale factors along the axes.
    OdGePoint3d scaleFactors() const;
    void setScaleFactors(const OdGePoint3d& factors);
    /// Rotation in radians.
    double rotation() const;
    void setRotation(double radians);
    /// Rows and columns of a repeated insertion, and their spacing in drawing units.
    int rows() const { return static_cast<int>(m_groups.integer(71, 1)); }
    int columns() const { return static_cast<int>(m_groups.integer(70, 1)); }
    double rowSpacing() const { return m_groups.real(45); }
    double columnSpacing() const { return m_groups.real(44); }
    /// The attributes in order.
    OdArray<OdDbAttribute*> attributes() const;
    /// Adds an attribute that belongs to no drawing yet.
    OdResult appendAttribute(const OdSmartPtr<OdDbAttribute>& attribute);
    const std::vector<OdSmartPtr<OdDbEntity>>* parts() const override { return &m_parts; }

private:
    std::vector<OdSmartPtr<OdDbEntity>>* editParts() override { return &m_parts; }
    std::vector<OdSmartPtr<OdDbEntity>> m_parts;
};

/// A dimension. Its lines, arrows and text are the entities of an anonymous block, already in place.
class ODRT_API OdDbDimension : public OdDbEntity {
public:
    const char* dxfName() const override { return "DIMENSION"; }
    /// The block that draws the dimension; null if there is none.
    OdDbObjectId dimBlockId() const;
    /// 0 rotated, 1 aligned, 2 angular, 3 diameter, 4 radius, 5 three-point angular, 6 ordinate.
    int dimensionType() const { return static_cast<int>(m_groups.integer(70)) & 7; }
    /// The text that replaces the measured value; empty for the value itself.
    OdString dimensionText() const { return m_groups.text(1); }
    /// The measured value, where the file keeps it; drawing units or radians.
    double measurement() const { return m_groups.real(42); }
    OdGePoint3d definitionPoint() const { return m_groups.point(10); }
    OdGePoint3d textPosition() const { return m_groups.point(11); }
};
