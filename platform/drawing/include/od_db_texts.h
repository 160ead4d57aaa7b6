// Texts: single lines, block attributes and paragraphs.
#pragma once

#include "od_db_entity.h"

/// A text on one line.
class ODRT_API OdDbText : public OdDbEntity {
public:
    const char* dxfName() const override { return "TEXT"; }
    OdString textString() const { return m_groups.text(1); }
    void setTextString(const wchar_t* text) { editGroups().setText(1, text); }
    /// Left end of the base line.
    OdGePoint3d position() const { return m_groups.point(10); }
    void setPosition(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
    /// The point that the text is aligned to; position() for a left-aligned text on its base line.
    OdGePoint3d alignmentPoint() const;
    void setAlignmentPoint(const OdGePoint3d& point) { editGroups().setPoint(11, point); }
    /// 0 left, 1 centre, 2 right, 3 aligned, 4 middle, 5 fit.
    int horizontalMode() const { return static_cast<int>(m_groups.integer(72)); }
    void setHorizontalMode(int mode) { editGroups().setInteger(72, mode); }
    /// 0 base line, 1 bottom, 2 middle, 3 top.
    virtual int verticalMode() const { return static_cast<int>(m_groups.integer(73)); }
    /// Height of capitals in drawing units.
    double height() const { return m_groups.real(40); }
    void setHeight(double height) { editGroups().setReal(40, height); }
    /// Rotation in radians.
    double rotation() const;
    void setRotation(double radians);
    double widthFactor() const { return m_groups.real(41, 1); }
    /// Slant in radians.
    double oblique() const;
    /// The text style's record; that of Standard if the style isn't there.
    OdDbObjectId textStyle() const;
    OdResult setTextStyle(const OdDbObjectId& id);
};

/// A text that belongs to a block reference.
class ODRT_API OdDbAttribute : public OdDbText {
public:
    const char* dxfName() const override { return "ATTRIB"; }
    /// The name of the field that the attribute fills.
    OdString tag() const { return m_groups.text(2); }
    void setTag(const wchar_t* tag) { editGroups().setText(2, tag); }
    int verticalMode() const override { return static_cast<int>(m_groups.integer(74)); }
    bool isInvisible() const { return (m_groups.integer(70) & 1) != 0; }
};

/// A paragraph of text with inline formatting.
class ODRT_API OdDbMText : public OdDbEntity {
public:
    const char* dxfName() const override { return "MTEXT"; }
    /// The contents with their formatting codes.
    OdString contents() const;
    void setContents(const wchar_t* text);
    /// The plain words, with formatting codes resolved and L'\n' between the lines.
    OdString plainText() const;
    OdGePoint3d location() const { return m_groups.point(10); }
    void setLocation(const OdGePoint3d& point) { editGroups().setPoint(10, point); }
    double textHeight() const { return m_groups.real(40); }
    void setTextHeight(double height) { editGroups().setReal(40, height); }
    /// Width at which lines break, in drawing units; 0 for none.
    double width() const { return m_groups.real(41); }
    void setWidth(double width) { editGroups().setReal(41, width); }
    /// 1 to 9: top left, top centre, top right, middle left, and so on.
    int attachment() const { return static_cast<int>(m_groups.integer(71, 1)); }
    void setAttachment(int attachment) { editGroups().setInteger(71, attachment); }
    /// Rotation in radians, however the file gives it.
    double rotation() const;
    void setRotation(double radians);
    OdDbObjectId textStyle() const;
    OdResult setTextStyle(const OdDbObjectId& id);
};

/// Resolves the formatting codes of paragraph contents; lines are parted by L'\n'.
ODRT_API OdString odPlainMText(std::wstring_view contents);
