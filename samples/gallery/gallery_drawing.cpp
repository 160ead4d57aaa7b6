#include "gallery_drawing.h"

CGalleryDocument::CGalleryDocument() : m_drawing(new OdDbDatabase) {
    OdDbLinetypeTablePtr linetypes;
    m_drawing->getLinetypeTable(linetypes, OdDb::kForWrite);
    const struct {
        const wchar_t *name, *words;
        std::initializer_list<double> dashes;
    } patterns[] = {{L"CENTER", L"Center ____ _ ____ _", {1.25, -0.25, 0.25, -0.25}},
                    {L"DASHED", L"Dashed __ __ __", {0.5, -0.25}},
                    {L"DOT", L"Dot . . . .", {0, -0.25}},
                    {L"HIDDEN", L"Hidden _ _ _", {0.25, -0.125}}};
    for (const auto& each : patterns) {
        OdSmartPtr<OdDbLinetypeTableRecord> record(new OdDbLinetypeTableRecord);
        record->setName(each.name);
        record->setComments(each.words);
        record->setDashes(each.dashes);
        linetypes->add(OdDbSymbolTableRecordPtr(record.get()));
    }
}
