#include "kinds/draw_attribute.h"

#include <od_db_symbols.h>

#include "kinds/draw_functions.h"
#include "kinds/draw_paragraph.h"
#include "kinds/draw_single_line.h"
#include "kinds/entity_cast.h"

void DrawAttributeText(const OdDbText& attribute, const EntityPen& pen) {
    if (!DrawEmbeddedParagraph(attribute, pen)) DrawSingleLine(attribute, attribute.textString(), pen);
}

/// Outside of blocks a definition shows its tag; inside of them nothing, unless all references show its text.
void DrawAttributeDefinition(const OdDbEntity& entity, EntityPen& pen) {
    const auto* definition = As<OdDbAttributeDefinition>(entity);
    if (definition == nullptr) return;
    if (pen.level().surrounding.byBlock == nullptr)
        DrawSingleLine(*definition, definition->tag(), pen);
    else if (definition->isConstant() && !definition->isInvisible())
        DrawAttributeText(*definition, pen);
}
