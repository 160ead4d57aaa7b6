// Shapes from shape files.
#include <cmath>

#include <od_db_symbols.h>

#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"
#include "kinds/shape_lines.h"

namespace {

/// The file that has a shape of this name, among those that styles make known.
const ShapeFile* fileWith(const std::string& name, EntityPen& pen) {
    OdDbTextStyleTablePtr styles;
    if (pen.work().drawing().getTextStyleTable(styles) != kOdOk) return nullptr;
    for (auto each = styles->newIterator(); !each->done(); each->step()) {
        OdDbSymbolTableRecordPtr record;
        each->getRecord(record);
        const auto* style = dynamic_cast<const OdDbTextStyleTableRecord*>(record.get());
        if (style == nullptr || !style->isShapeFile()) continue;
        const ShapeFile* file = pen.work().shapes().file(style->fileName());
        if (file != nullptr && file->numberOf(name) != 0) return file;
    }
    return nullptr;
}

}  // namespace

void DrawShape(const OdDbEntity& entity, EntityPen& pen) {
    const auto* shape = As<OdDbShape>(entity);
    if (shape == nullptr) return;
    const std::string name = odUtf8(shape->shapeName().view());
    const ShapeFile* const file = fileWith(name, pen);
    if (file == nullptr) {
        pen.work().noteNotDrawn(entity.dxfName());
        return;
    }
    const double size = shape->size();
    const SpaceTransform slanted = {
        {size * shape->widthFactor(), 0, 0}, {size * std::tan(shape->oblique()), size, 0}, {0, 0, 1}, {}};
    DrawShapeLines(pen.inPlaneOf(entity)
                       .within(SpaceTransform::Moved(shape->position()))
                       .within(SpaceTransform::Turned(shape->rotation()))
                       .within(slanted),
                   *file, file->numberOf(name));
}
