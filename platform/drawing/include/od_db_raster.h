// Pictures that lie in a drawing, and areas that hide what is below them.
#pragma once

#include <vector>
#include "od_db_entity.h"

/// A picture from a file of its own.
class ODRT_API OdDbRasterImage : public OdDbEntity {
public:
    const char* dxfName() const override { return "IMAGE"; }
    /// The lower left corner.
    OdGePoint3d origin() const { return m_groups.point(10); }
    /// One pixel to the right, and one upwards, in drawing units.
    OdGePoint3d pixelAcross() const { return m_groups.point(11); }
    OdGePoint3d pixelUp() const { return m_groups.point(12); }
    /// Width and height in pixels.
    OdGePoint2d size() const;
    /// The outline of what is shown, in drawing units, as in the file; not closed.
    std::vector<OdGePoint3d> outline() const;
    /// Whether the picture itself is shown.
    bool isShown() const { return (m_groups.integer(70, 1) & 1) != 0; }
    /// The picture's file as the drawing names it; empty if it names none.
    OdString fileName() const;
};

/// An area that hides what is below it.
class ODRT_API OdDbWipeout : public OdDbRasterImage {
public:
    const char* dxfName() const override { return "WIPEOUT"; }
};

/// What pictures of one file refer to.
class ODRT_API OdDbRasterImageDef : public OdDbObject {
public:
    const char* dxfName() const override { return "IMAGEDEF"; }
    OdString sourceFileName() const { return m_groups.text(1); }
};
