// Pictures as a frame with the name of their file, and areas that hide what is below.
#include <od_db_raster.h>

#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"

namespace {

OdString lastPart(const OdString& path) {
    const std::wstring_view view = path.view();
    const std::size_t cut = view.find_last_of(L"/\\");
    return OdString(std::wstring(cut == std::wstring_view::npos ? view : view.substr(cut + 1)));
}

std::vector<OdGePoint3d> closed(std::vector<OdGePoint3d> outline) {
    outline.push_back(outline.front());
    return outline;
}

}  // namespace

/// The name stands in the middle of the whole picture, along its rows, as large as it fits.
void DrawImage(const OdDbEntity& entity, EntityPen& pen) {
    constexpr double kShareOfHeight = 0.1, kShareOfWidth = 0.8;
    const auto* image = As<OdDbRasterImage>(entity);
    if (image == nullptr) return;
    pen.stroke(closed(image->outline()));
    const OdGePoint2d size = image->size();
    const SpaceVector across = image->pixelAcross() * size.x, up = image->pixelUp() * size.y;
    PlacedText name;
    name.text = lastPart(image->fileName());
    name.along = Unit(across, {1, 0, 0});
    name.up = Unit(up, {0, 1, 0});
    name.position = image->origin() + across * 0.5 + up * 0.5;
    name.height = Length(up) * kShareOfHeight;
    const double width = pen.work().textWidth({}, name.text.view()) * name.height;
    if (width > Length(across) * kShareOfWidth) name.height *= Length(across) * kShareOfWidth / width;
    name.horizontal = 1;
    name.vertical = 2;
    if (image->isShown()) pen.text(name);
}

void DrawWipeout(const OdDbEntity& entity, EntityPen& pen) {
    const auto* wipeout = As<OdDbWipeout>(entity);
    if (wipeout == nullptr) return;
    pen.wipe(wipeout->outline());
    OdDbDictionaryPtr named;
    if (pen.work().drawing().getNamedObjectsDictionary(named) != kOdOk || !named) return;
    const auto settings = named->getAt(L"ACAD_WIPEOUT_VARS").open<OdDbObject>();
    if (settings && settings->groups().integer(70) != 0) pen.stroke(closed(wipeout->outline()));
}
