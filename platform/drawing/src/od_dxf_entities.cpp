#include "od_dxf_entities.h"

#include "od_db_faces.h"
#include "od_db_further_blocks.h"
#include "od_db_hatch.h"
#include "od_db_leaders.h"
#include "od_db_mline.h"
#include "od_db_raster.h"
#include "od_db_rays.h"
#include "od_db_symbols.h"
#include "od_db_viewport.h"
#include "od_dxf_markers.h"

namespace {

template <class T>
OdDbEntityPtr make() {
    return OdDbEntityPtr(new T);
}

/// An older name of the same kind, which is kept.
OdDbEntityPtr makeMLeader() { return OdDbEntityPtr(new OdDbMLeader("MLEADER")); }

struct EntityMaker {
    const char* type;
    OdDbEntityPtr (*make)();
};

constexpr EntityMaker kMakers[] = {{"LINE", make<OdDbLine>},
                                   {"CIRCLE", make<OdDbCircle>},
                                   {"ARC", make<OdDbArc>},
                                   {"LWPOLYLINE", make<OdDbPolyline>},
                                   {"TEXT", make<OdDbText>},
                                   {"INSERT", make<OdDbBlockReference>},
                                   {"VERTEX", make<OdDbVertex>},
                                   {"SEQEND", make<OdDbSequenceEnd>},
                                   {"POLYLINE", make<OdDb2dPolyline>},
                                   {"ATTRIB", make<OdDbAttribute>},
                                   {"MTEXT", make<OdDbMText>},
                                   {"POINT", make<OdDbPoint>},
                                   {"ELLIPSE", make<OdDbEllipse>},
                                   {"SOLID", make<OdDbSolid>},
                                   {"SPLINE", make<OdDbSpline>},
                                   {"DIMENSION", make<OdDbDimension>},
                                   {"HATCH", make<OdDbHatch>},
                                   {"ATTDEF", make<OdDbAttributeDefinition>},
                                   {"LEADER", make<OdDbLeader>},
                                   {"MULTILEADER", make<OdDbMLeader>},
                                   {"MLEADER", makeMLeader},
                                   {"VIEWPORT", make<OdDbViewport>},
                                   {"3DFACE", make<OdDbFace>},
                                   {"TRACE", make<OdDbTrace>},
                                   {"SHAPE", make<OdDbShape>},
                                   {"MLINE", make<OdDbMline>},
                                   {"RAY", make<OdDbRay>},
                                   {"XLINE", make<OdDbXline>},
                                   {"TOLERANCE", make<OdDbFcf>},
                                   {"IMAGE", make<OdDbRasterImage>},
                                   {"WIPEOUT", make<OdDbWipeout>},
                                   {"MESH", make<OdDbSubDMesh>},
                                   {"HELIX", make<OdDbHelix>},
                                   {"ACAD_TABLE", make<OdDbTable>},
                                   {"ARC_DIMENSION", make<OdDbArcDimension>},
                                   {"LARGE_RADIAL_DIMENSION", make<OdDbRadialDimensionLarge>}};

bool endsSection(const OdDxfScanner& scanner) {
    return scanner.isRecord("ENDSEC") || scanner.isRecord("SECTION") || scanner.isRecord("EOF") ||
           scanner.isRecord("BLOCK") || scanner.isRecord("ENDBLK");
}

}  // namespace

OdDbEntityPtr odMakeEntity(std::string_view type) {
    for (const EntityMaker& maker : kMakers)
        if (type == maker.type) return maker.make();
    return new OdDbUnknownEntity(type);
}

OdDbObjectPtr odMakeObject(std::string_view type) {
    if (type == "DICTIONARY" || type == "ACDBDICTIONARYWDFLT") return new OdDbDictionary;
    if (type == "LAYOUT") return new OdDbLayout;
    if (type == "PLOTSETTINGS") return new OdDbPlotSettings;
    if (type == "ACDBPLACEHOLDER") return new OdDbPlaceHolder;
    if (type == "IMAGEDEF") return new OdDbRasterImageDef;
    if (type == "MLINESTYLE") return new OdDbMlineStyle;
    if (type == "SORTENTSTABLE") return new OdDbSortentsTable;
    return new OdDbUnknownObject(std::string(type));
}

void odTakeDictionaryEntries(OdDbStore& store, OdDbDictionary& dictionary, OdGroupList& groups) {
    OdGroup name, handle, marker;
    std::uint32_t at = groups.findMarker("AcDbDictionary", marker) ? marker.end : 0;
    // A handle behind this marker is the default's, whatever stands before it.
    std::uint32_t end =
        groups.findMarker("AcDbDictionaryWithDefault", marker, at) ? marker.begin : groups.size();
    at = 0;
    while (groups.find(3, name, at) && name.begin < end) {
        at = name.end;
        if (!groups.read(name.end, handle) || handle.kind != OdGroupKind::kHandle) continue;
        // A name of nothing is none.
        if (handle.handle() != 0)
            store.entriesOf(dictionary).push_back({name.wide(), handle.handle(), handle.code});
        at = name.begin;
        end -= handle.end - name.begin;
        groups.replace(name.begin, handle.end, OdGroupList());
    }
}

OdDbBlockTableRecord& OdDxfEntityReader::blockFor(OdDbHandle block) const {
    if (!block) {
        auto* owner = m_store.object<OdDbBlockTableRecord>(m_record.owner);
        if (owner) return *owner;
    }
    if (auto* given = m_store.object<OdDbBlockTableRecord>(block)) return *given;
    const wchar_t* space = m_record.paperSpace ? L"*Paper_Space" : L"*Model_Space";
    return static_cast<OdDbBlockTableRecord&>(*m_store.needRecord(kBlockTable, space));
}

OdDbEntityPtr OdDxfEntityReader::take(OdDbHandle owner) {
    const OdDbEntityPtr entity = odMakeEntity(m_record.type);
    odCompleteEntityMarkers(m_record.type, m_record.groups);
    m_store.groupsOf(*entity) = m_record.groups;
    m_store.layerOf(*entity) = m_store.layerHandle(m_record.layer);
    if (!m_record.linetype.empty()) m_store.linetypeOf(*entity) = m_store.linetypeHandle(m_record.linetype);
    m_store.adopt(OdDbObjectPtr(entity.get()), m_record.handle, owner);
    return entity;
}

bool OdDxfEntityReader::readParts(OdDbEntity& whole) {
    const bool polyline = std::string_view(whole.dxfName()) == "POLYLINE";
    OdDxfScanner& scanner = m_records.scanner();
    std::vector<OdDbEntityPtr>& parts = *m_store.partsOf(whole);
    while (scanner.isRecord(polyline ? "VERTEX" : "ATTRIB")) {
        if (!m_records.read(OdDxfRecordKind::kEntity, m_record)) return false;
        parts.push_back(take(whole.handle()));
    }
    if (!scanner.isRecord("SEQEND")) return true;
    if (!m_records.read(OdDxfRecordKind::kEntity, m_record)) return false;
    parts.push_back(take(whole.handle()));
    parts.shrink_to_fit();
    return true;
}

bool OdDxfEntityReader::readUntil(std::string_view end, OdDbHandle block) {
    OdDxfScanner& scanner = m_records.scanner();
    while (scanner.code() == 0 && !scanner.isRecord(end) && !endsSection(scanner)) {
        if (!m_records.read(OdDxfRecordKind::kEntity, m_record)) return false;
        // The end of a list that never began says nothing.
        if (m_record.type == "SEQEND") continue;
        const bool partsFollow = m_record.partsFollow || m_record.type == "POLYLINE";
        OdDbBlockTableRecord& target = blockFor(block);
        const OdDbEntityPtr entity = take(target.handle());
        m_store.entitiesOf(target).push_back(entity.get());
        if (partsFollow && m_store.partsOf(*entity) && !readParts(*entity)) return false;
    }
    return true;
}
