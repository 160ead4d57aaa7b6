#include "linetypes/linetype_loader.h"

namespace {

OdArray<double> dashesOf(const LinetypeDefinition& definition) {
    OdArray<double> dashes;
    for (const double dash : definition.dashes) dashes.append(dash);
    return dashes;
}

bool isStandardName(const OdString& name) {
    for (const wchar_t* standard : {L"ByLayer", L"ByBlock", L"Continuous"})
        if (name.iCompare(standard) == 0) return true;
    return false;
}

}  // namespace

bool CanLoadLinetype(const LinetypeDefinition& definition) {
    return !definition.isComplex() && !isStandardName(definition.name);
}

bool HasLinetype(OdDbDatabase& drawing, const LinetypeDefinition& definition) {
    OdDbLinetypeTablePtr table;
    return drawing.getLinetypeTable(table) == kOdOk && table->has(definition.name);
}

LinetypeLoad LoadLinetype(OdDbDatabase& drawing, const LinetypeDefinition& definition, bool replace,
                          OdDbObjectId& id) {
    OdDbLinetypeTablePtr table;
    if (!CanLoadLinetype(definition) || drawing.getLinetypeTable(table) != kOdOk)
        return LinetypeLoad::kRefused;
    const OdDbObjectId known = table->getAt(definition.name);
    if (!known.isNull()) id = known;
    if (!known.isNull() && !replace) return LinetypeLoad::kSkipped;
    OdSmartPtr<OdDbLinetypeTableRecord> record = known.open<OdDbLinetypeTableRecord>(OdDb::kForWrite);
    if (!record) {
        record = OdSmartPtr<OdDbLinetypeTableRecord>(new OdDbLinetypeTableRecord);
        record->setName(definition.name);
    }
    record->setComments(definition.description);
    record->setDashes(dashesOf(definition));
    if (!known.isNull()) return LinetypeLoad::kReplaced;
    return table->add(OdDbSymbolTableRecordPtr(record.get()), &id) == kOdOk ? LinetypeLoad::kAdded
                                                                            : LinetypeLoad::kRefused;
}
