#include "text_style_values.h"

namespace {

OdDbTextStyleTableRecordPtr styleNamed(OdDbDatabase& drawing, const OdString& name) {
    OdDbTextStyleTablePtr table;
    drawing.getTextStyleTable(table, OdDb::kForWrite);
    if (!table->has(name)) {
        const OdDbSymbolTableRecordPtr made = table->newRecord();
        made->setName(name);
        table->add(made);
    }
    return table->getAt(name).open<OdDbTextStyleTableRecord>(OdDb::kForWrite);
}

TextStyleValues valuesOf(const OdDbTextStyleTableRecord& style) {
    TextStyleValues values;
    values.name = style.getName();
    values.file = style.fileName();
    values.bigFile = style.bigFontFileName();
    values.family = style.typeFace();
    values.bold = style.isBold();
    values.italic = style.isItalic();
    values.height = style.textSize();
    values.width = style.xScale();
    values.slant = style.obliquingAngle();
    return values;
}

}  // namespace

std::vector<TextStyleValues> ReadTextStyles(OdDbDatabase& drawing) {
    std::vector<TextStyleValues> styles;
    OdDbTextStyleTablePtr table;
    drawing.getTextStyleTable(table);
    for (auto walk = table->newIterator(); !walk->done(); walk->step()) {
        OdDbSymbolTableRecordPtr record;
        walk->getRecord(record);
        const auto& style = static_cast<const OdDbTextStyleTableRecord&>(*record);
        if (!style.isShapeFile() && !style.isDependent()) styles.push_back(valuesOf(style));
    }
    return styles;
}

void WriteTextStyle(OdDbDatabase& drawing, const TextStyleValues& values) {
    const OdDbTextStyleTableRecordPtr style = styleNamed(drawing, values.name);
    if (!style) return;
    style->setFileName(values.file);
    style->setBigFontFileName(values.bigFile);
    style->setFont(values.family, values.bold, values.italic);
    style->setTextSize(values.height);
    style->setXScale(values.width);
    style->setObliquingAngle(values.slant);
}

void SetCurrentTextStyle(OdDbDatabase& drawing, const OdString& name) {
    if (const OdDbTextStyleTableRecordPtr style = styleNamed(drawing, name))
        drawing.setTextstyle(style->objectId());
}
