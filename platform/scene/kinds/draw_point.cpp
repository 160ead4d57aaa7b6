// Points as the marks that the drawing's settings ask for.
#include <cmath>
#include <numbers>

#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"

namespace {

constexpr int kDot = 0, kPlus = 2, kCross = 3, kTick = 4;
constexpr int kFigure = 7, kCircle = 32, kSquare = 64;

void drawFigure(const EntityPen& pen, int figure, double size) {
    const auto line = [&pen](double x1, double y1, double x2, double y2) {
        pen.stroke({x1, y1, 0}, {x2, y2, 0});
    };
    switch (figure) {
        case kDot: line(0, 0, 0, 0); break;
        case kPlus:
            line(-size, 0, size, 0);
            line(0, -size, 0, size);
            break;
        case kCross:
            line(-size, -size, size, size);
            line(-size, size, size, -size);
            break;
        case kTick: line(0, 0, 0, size / 2); break;
        default: break;
    }
}

}  // namespace

/// The figure reaches its whole size to each side; circle and square around it are that wide.
void DrawPoint(const OdDbEntity& entity, EntityPen& pen) {
    const auto* point = As<OdDbPoint>(entity);
    if (point == nullptr) return;
    OdDbDatabase& drawing = pen.work().drawing();
    const int mode = pen.level().marksAreDots ? kDot : drawing.getPDMODE();
    const double size = pen.work().markSize(drawing.getPDSIZE());
    const SpaceTransform place =
        SpaceTransform::Moved(point->position())
            .after(SpaceTransform::OfNormal(entity.normal()))
            .after(SpaceTransform::Turned(-entity.groups().real(50) * std::numbers::pi / 180));
    EntityPen mark = pen.within(place);
    mark.look().style.dashes.clear();
    mark.look().pattern = nullptr;
    drawFigure(mark, mode & kFigure, size);
    const double half = size / 2;
    if ((mode & kCircle) != 0) mark.arc({}, {half, 0, 0}, {0, half, 0}, 0, 2 * std::numbers::pi);
    if ((mode & kSquare) != 0)
        mark.stroke(std::vector<OdGePoint2d>{
            {-half, -half}, {half, -half}, {half, half}, {-half, half}, {-half, -half}});
}
