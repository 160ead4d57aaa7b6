#include "od_db_raster.h"

#include "od_group_cursor.h"

OdGePoint2d OdDbRasterImage::size() const {
    const OdGePoint3d pixels = m_groups.point(13);
    return {pixels.x, pixels.y};
}

std::vector<OdGePoint3d> OdDbRasterImage::outline() const {
    constexpr int kRectangle = 1;
    std::vector<OdGePoint2d> pixels;
    if (m_groups.integer(280) != 0) {
        OdGroupCursor cursor(m_groups);
        OdGroup group;
        while (cursor.next(group)) {
            if (group.code == 14) pixels.push_back({group.real, 0});
            if (group.code == 24 && !pixels.empty()) pixels.back().y = group.real;
        }
    }
    const OdGePoint2d whole = size();
    if (pixels.size() < 2) pixels = {{-0.5, -0.5}, {whole.x - 0.5, whole.y - 0.5}};
    if (pixels.size() == 2 || (m_groups.integer(71) == kRectangle && pixels.size() < 3))
        pixels = {pixels[0], {pixels[1].x, pixels[0].y}, pixels[1], {pixels[0].x, pixels[1].y}};
    // The middle of the upper left pixel is 0, 0, and rows count downwards.
    const OdGePoint3d corner = origin(), across = pixelAcross(), up = pixelUp();
    std::vector<OdGePoint3d> points;
    for (const OdGePoint2d& pixel : pixels) {
        const double u = pixel.x + 0.5, v = whole.y - (pixel.y + 0.5);
        points.push_back({corner.x + across.x * u + up.x * v, corner.y + across.y * u + up.y * v,
                          corner.z + across.z * u + up.z * v});
    }
    return points;
}

OdString OdDbRasterImage::fileName() const {
    const auto definition = OdDbObjectId(database(), m_groups.handle(340)).open<OdDbRasterImageDef>();
    return definition ? definition->sourceFileName() : OdString();
}
