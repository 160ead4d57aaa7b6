#include "text_sample.h"

#include <od_db.h>
#include <screen_scene.h>

Scene TextSample(const TextStyleValues& style, const wchar_t* words) {
    // A scratch drawing: looking at a style leaves nothing behind in the user's.
    const OdDbDatabasePtr scratch(new OdDbDatabase);
    OdDbTextStyleTablePtr styles;
    scratch->getTextStyleTable(styles, OdDb::kForWrite);
    const OdSmartPtr<OdDbTextStyleTableRecord> record(new OdDbTextStyleTableRecord);
    record->setName(L"SAMPLE");
    styles->add(OdDbSymbolTableRecordPtr(record.get()));
    record->setFont(style.family.c_str(), style.bold, style.italic);
    record->setFileName(style.file.c_str());
    record->setBigFontFileName(style.bigFile.c_str());
    record->setXScale(style.width);
    record->setObliquingAngle(style.slant);
    const OdSmartPtr<OdDbMText> text(new OdDbMText);
    text->setDatabaseDefaults(scratch.get());
    text->setContents(words);
    text->setTextHeight(1);
    text->setTextStyle(record->objectId());
    text->setColorIndex(OdCmColor::kForeground);
    scratch->modelSpaceId()
        .open<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(OdDbEntityPtr(text.get()));
    return BuildScene(*scratch, scratch->modelSpaceId(), ScreenSceneOptions());
}
