#include "kinds/draw_single_line.h"

#include <cmath>
#include <numbers>

#include <od_db_symbols.h>

#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"
#include "rules/text_codes.h"

namespace {

enum HorizontalMode { kLeft, kCentre, kRight, kAligned, kMiddle, kFit };
constexpr int kMiddleRow = 2;
constexpr int kBackward = 2, kUpsideDown = 4;  // of group 71

/// Where a text stands and how its letters run, before the letters are looked at.
PlacedText placeOf(const OdDbText& text) {
    PlacedText placed;
    const int mode = text.horizontalMode();
    const bool isBetweenPoints = mode == kAligned || mode == kFit;
    const bool isAligned = mode != kLeft || text.verticalMode() != 0;
    placed.position = isAligned && !isBetweenPoints ? text.alignmentPoint() : text.position();
    placed.height = text.height();
    placed.widthFactor = text.widthFactor();
    double angle = text.rotation();
    if (isBetweenPoints) {
        const SpaceVector way = text.alignmentPoint() - text.position();
        placed.fitWidth = std::hypot(way.x, way.y);
        if (placed.fitWidth > 0) angle = std::atan2(way.y, way.x);
    } else {
        placed.horizontal = mode == kCentre || mode == kMiddle ? 1 : mode == kRight ? 2 : 0;
        placed.vertical = mode == kMiddle ? kMiddleRow : text.verticalMode();
    }
    placed.along = {std::cos(angle), std::sin(angle), 0};
    placed.up = {-std::sin(angle), std::cos(angle), 0};
    return placed;
}

/// A line over, under or through letters `from` to `to` of a text.
void drawMark(const PlacedText& text, const TextMark& mark, const EntityPen& pen) {
    const auto widthUpTo = [&](std::size_t count) {
        return pen.work().textWidth(text.font, text.text.view().substr(0, count));
    };
    const double whole = widthUpTo(static_cast<std::size_t>(text.text.length()));
    if (!(whole > 0)) return;
    const double scale = text.fitWidth > 0 ? std::copysign(text.fitWidth / whole, text.widthFactor)
                                           : text.height * text.widthFactor;
    constexpr double kRows[] = {0, -kDescenderShare, 0.5, 1};
    const double start = -whole * text.horizontal / 2;
    const double up = (MarkHeight(mark.kind) - kRows[std::clamp(text.vertical, 0, 3)]) * text.height;
    const double slant = up * std::tan(text.font.oblique);
    const auto at = [&](std::size_t letter) {
        return text.position + text.along * ((start + widthUpTo(letter)) * scale + slant) + text.up * up;
    };
    EntityPen line = pen;
    line.look().style.dashes.clear();
    line.look().pattern = nullptr;
    line.stroke(at(mark.from), at(mark.to));
}

}  // namespace

SceneFont FontOfStyle(const OdDbObjectId& style) {
    SceneFont font;
    const auto record = style.open<OdDbTextStyleTableRecord>();
    if (!record) return font;
    font.family = record->typeFace();
    font.file = record->fileName();
    font.bigFile = record->bigFontFileName();
    font.bold = record->isBold();
    font.italic = record->isItalic();
    return font;
}

void DrawSingleLine(const OdDbText& text, const OdString& words, const EntityPen& pen) {
    const DecodedText decoded = DecodeText(words.view());
    PlacedText placed = placeOf(text);
    placed.text = OdString(decoded.letters);
    placed.font = FontOfStyle(text.textStyle());
    placed.font.oblique = text.oblique();
    const auto generation = static_cast<int>(text.groups().integer(71));
    if ((generation & kBackward) != 0) placed.along = placed.along * -1;
    if ((generation & kUpsideDown) != 0) placed.up = placed.up * -1;
    const EntityPen inPlane = pen.inPlaneOf(text);
    inPlane.text(placed);
    for (const TextMark& mark : decoded.marks)
        if (pen.work().spend(decoded.letters.size())) drawMark(placed, mark, inPlane);
}

void DrawTextLine(const OdDbEntity& entity, EntityPen& pen) {
    if (const auto* text = As<OdDbText>(entity)) DrawSingleLine(*text, text->textString(), pen);
}
