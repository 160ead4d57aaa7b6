#include "title_values.h"

int FillTitleBlock(OdDbDatabase& drawing, const TitleValues& values) {
    const struct {
        const wchar_t* mark;
        const OdString& value;
    } fields[] = {
        {L"[PROJECT]", values.project}, {L"[DRAWN BY]", values.drawnBy}, {L"[CHECKED BY]", values.checkedBy}};
    int filled = 0;
    const auto space = drawing.currentSpaceId().open<OdDbBlockTableRecord>();
    for (const OdDbEntity* entity : space->entities()) {
        const auto text = entity->objectId().open<OdDbText>(OdDb::kForWrite);
        if (entity->isErased() || !text) continue;
        for (const auto& field : fields) {
            if (field.value.isEmpty() || text->textString().iCompare(field.mark) != 0) continue;
            text->setTextString(field.value);
            ++filled;
        }
    }
    return filled;
}
