// Paragraph texts of entities: of MTEXT, of multileaders, and of dimensions that are laid out. Internal to
// the module.
#pragma once

#include "entity_pen.h"
#include "rules/paragraph_columns.h"

/// A text box in the coordinates of a pen.
struct PlacedParagraph {
    OdString contents;  ///< with formatting codes
    OdGePoint3d position;
    SpaceVector along{1, 0, 0}, up{0, 1, 0};  ///< of length 1
    int attachment = 1;  ///< which place of the box is at `position`: 1 top left to 9 bottom right
    double height = 0;
    double width = 0;  ///< at which lines break; 0 for none
    ParagraphColumns columns = {};
    double lineSpacing = 1;
    bool hasExactSpacing = false;
    double widthFactor = 1;
    SceneFont font;
};

/// How a text box is filled behind its letters.
struct ParagraphBackground {
    bool isThere = false;
    bool isPaper = false;  ///< in the colour of the paper and not the pen's
    double margin = 0;     ///< around the box, drawing units
    OdCmColor color;
};

/// Draws the MTEXT that an entity holds as its embedded object, an attribute of several lines; false for
/// none.
bool DrawEmbeddedParagraph(const OdDbText& holder, const EntityPen& pen);

/// Draws the text, with what lies behind it first.
void DrawPlacedParagraph(const PlacedParagraph& text, const EntityPen& pen,
                         const ParagraphBackground& behind = {});
