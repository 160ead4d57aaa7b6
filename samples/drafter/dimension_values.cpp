#include "dimension_values.h"

#include "arrowhead_blocks.h"

namespace {

// The runtime keeps extended data of applications; the callout is this sample's own idea.
constexpr const wchar_t* kApplication = L"DRAFTER";

OdDbDimStyleTableRecordPtr styleNamed(OdDbDatabase& drawing, const OdString& name) {
    OdDbDimStyleTablePtr table;
    drawing.getDimStyleTable(table, OdDb::kForWrite);
    if (!table->has(name)) {
        const OdDbSymbolTableRecordPtr made = table->newRecord();
        made->setName(name);
        table->add(made);
    }
    return table->getAt(name).open<OdDbDimStyleTableRecord>(OdDb::kForWrite);
}

DimensionValues valuesOf(const OdDbDimStyleTableRecord& style) {
    DimensionValues values;
    values.name = style.getName();
    values.first = style.dimsah() ? style.dimblk1() : style.dimblk();
    values.second = style.dimsah() ? style.dimblk2() : style.dimblk();
    values.leader = style.dimldrblk();
    values.arrowSize = style.dimasz();
    values.textHeight = style.dimtxt();
    values.lineColor = style.dimclrd();
    values.lineWeight = style.dimlwd();
    values.linetype = style.dimltype();
    values.callout = style.xData(kApplication).xDataText(0);
    return values;
}

}  // namespace

std::vector<DimensionValues> ReadDimensionStyles(OdDbDatabase& drawing) {
    std::vector<DimensionValues> styles;
    OdDbDimStyleTablePtr table;
    drawing.getDimStyleTable(table);
    for (auto walk = table->newIterator(); !walk->done(); walk->step()) {
        OdDbSymbolTableRecordPtr record;
        walk->getRecord(record);
        if (!record->isDependent())
            styles.push_back(valuesOf(static_cast<const OdDbDimStyleTableRecord&>(*record)));
    }
    return styles;
}

void WriteDimensionStyle(OdDbDatabase& drawing, const DimensionValues& values) {
    const OdDbDimStyleTableRecordPtr style = styleNamed(drawing, values.name);
    if (!style) return;
    for (const OdString* block : {&values.first, &values.second, &values.leader, &values.callout})
        NeedStandardBlock(drawing, *block);
    style->setDimblk(values.first);
    style->setDimblk1(values.first);
    style->setDimblk2(values.second);
    style->setDimldrblk(values.leader);
    style->setDimsah(values.first.iCompare(values.second) != 0);
    style->setDimasz(values.arrowSize);
    style->setDimtxt(values.textHeight);
    style->setDimclrd(values.lineColor);
    style->setDimlwd(values.lineWeight);
    if (!values.linetype.isNull()) style->setDimltype(values.linetype);
    OdGroupList callout;
    if (!values.callout.isEmpty()) callout.addText(1000, values.callout);
    style->setXData(kApplication, callout);
}

void SetCurrentDimensionStyle(OdDbDatabase& drawing, const OdString& name) {
    const OdDbDimStyleTableRecordPtr style = styleNamed(drawing, name);
    if (!style) return;
    drawing.setDimstyle(style->objectId());
    drawing.setDIMASZ(style->dimasz());
    drawing.setDIMTXT(style->dimtxt());
    OdDbHeader& header = drawing.editHeader();
    header.setText("DIMBLK", style->dimblk());
    header.setText("DIMBLK1", style->dimblk1());
    header.setText("DIMBLK2", style->dimblk2());
    header.setText("DIMLDRBLK", style->dimldrblk());
    header.setInteger("DIMSAH", style->dimsah() ? 1 : 0);
    header.setInteger("DIMCLRD", style->dimclrd().colorIndex());
    header.setInteger("DIMLWD", style->dimlwd());
}
