// Pictures within their frames, those that aren't to be had as the names of their files; and areas that hide
// what is below.
#include <algorithm>

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

/// Where the whole of a picture lies.
struct Sides {
    explicit Sides(const OdDbRasterImage& image)
        : origin(image.origin()),
          across(image.pixelAcross() * image.size().x),
          up(image.pixelUp() * image.size().y) {}
    OdGePoint3d origin;
    SpaceVector across, up;
};

/// A record of settings among the named objects of the drawing; null if there is none.
OdSmartPtr<OdDbObject> settingsOf(OdDbDatabase& drawing, const wchar_t* name) {
    OdDbDictionaryPtr named;
    if (drawing.getNamedObjectsDictionary(named) != kOdOk || !named) return {};
    return named->getAt(name).open<OdDbObject>();
}

/// Whether the drawing shows the frames of pictures.
bool showsFrames(const SceneWork& work) {
    enum { kNowhere = 0, kOnScreenAlone = 2 };
    const auto settings = settingsOf(work.drawing(), L"ACAD_IMAGE_VARS");
    const auto frame = settings ? settings->groups().integer(70, 1) : 1;
    return frame != kNowhere && !(frame == kOnScreenAlone && work.options().use == SceneUse::kPaper);
}

/// What a picture with a boundary is seen through. An inverted clip leaves what is beside the boundary: the
/// two lie in one outline, joined by a seam without width.
std::vector<OdGePoint2d> clipOf(const OdDbRasterImage& image, const Sides& sides, const EntityPen& pen) {
    std::vector<OdGePoint3d> outline = image.outline();
    if (image.groups().integer(290) != 0) {
        const std::vector<OdGePoint3d> boundary = closed(std::move(outline));
        outline = closed({sides.origin, sides.origin + sides.across, sides.origin + sides.across + sides.up,
                          sides.origin + sides.up});
        outline.insert(outline.end(), boundary.begin(), boundary.end());
    }
    std::vector<OdGePoint2d> flat;
    flat.reserve(outline.size());
    for (const OdGePoint3d& point : outline) flat.push_back(pen.onPlane(point));
    return flat;
}

/// The pixels, as far as the boundary lets them be seen.
void drawPixels(const OdDbRasterImage& entity, const std::shared_ptr<const ScenePicture>& picture,
                const EntityPen& pen) {
    constexpr int kTransparent = 8;
    const OdGroupList& groups = entity.groups();
    const auto setting = [&groups](int code, int absent) {
        return static_cast<int>(std::clamp<std::int64_t>(groups.integer(code, absent), 0, 100));
    };
    SceneImage image;
    image.picture = picture;
    image.brightness = setting(281, 50);
    image.contrast = setting(282, 50);
    image.fade = setting(283, 0);
    image.isTransparent = (groups.integer(70) & kTransparent) != 0;
    const Sides sides(entity);
    SceneWork& work = pen.work();
    const int before = work.clip();
    if (groups.integer(280) != 0) {
        std::vector<OdGePoint2d> outline = clipOf(entity, sides, pen);
        if (!work.spend(outline.size())) return;
        work.setClip(work.addClip(std::move(outline)));
    }
    pen.image(std::move(image), sides.origin, sides.across, sides.up);
    work.setClip(before);
}

/// The name of the file in the middle of the whole picture, along its rows, as large as it fits.
void drawName(const OdDbRasterImage& image, const EntityPen& pen) {
    constexpr double kShareOfHeight = 0.1, kShareOfWidth = 0.8;
    const Sides sides(image);
    PlacedText name;
    name.text = lastPart(image.fileName());
    name.along = Unit(sides.across, {1, 0, 0});
    name.up = Unit(sides.up, {0, 1, 0});
    name.position = sides.origin + sides.across * 0.5 + sides.up * 0.5;
    name.height = Length(sides.up) * kShareOfHeight;
    const double room = Length(sides.across) * kShareOfWidth;
    const double width = pen.work().textWidth({}, name.text.view()) * name.height;
    if (width > room) name.height *= room / width;
    name.horizontal = 1;
    name.vertical = 2;
    pen.text(name);
}

}  // namespace

void DrawImage(const OdDbEntity& entity, EntityPen& pen) {
    const auto* image = As<OdDbRasterImage>(entity);
    if (image == nullptr) return;
    FoundPicture found;
    if (image->isShown()) found = pen.work().pictures().file(image->fileName());
    if (found.isLater) pen.work().scene().awaitsPictures = true;
    if (found.picture) drawPixels(*image, found.picture, pen);
    if (!found.picture || showsFrames(pen.work())) pen.stroke(closed(image->outline()));
    if (!found.picture && image->isShown()) drawName(*image, pen);
}

void DrawWipeout(const OdDbEntity& entity, EntityPen& pen) {
    const auto* wipeout = As<OdDbWipeout>(entity);
    if (wipeout == nullptr) return;
    pen.wipe(wipeout->outline());
    const auto settings = settingsOf(pen.work().drawing(), L"ACAD_WIPEOUT_VARS");
    if (settings && settings->groups().integer(70) != 0) pen.stroke(closed(wipeout->outline()));
}
