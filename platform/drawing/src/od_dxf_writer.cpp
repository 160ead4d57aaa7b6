#include "od_dxf_writer.h"

#include "od_db_store.h"
#include "od_dxf_binary.h"
#include "od_dxf_entity_writer.h"
#include "od_dxf_output.h"
#include "od_dxf_r12.h"

namespace {

const char* versionName(OdDb::DwgVersion version) {
    switch (version) {
        case OdDb::kDHL_1009: return "AC1009";
        case OdDb::kDHL_1012: return "AC1012";
        case OdDb::kDHL_1014: return "AC1014";
        case OdDb::kDHL_1015: return "AC1015";
        case OdDb::kDHL_1018: return "AC1018";
        case OdDb::kDHL_1021: return "AC1021";
        case OdDb::kDHL_1024: return "AC1024";
        case OdDb::kDHL_1027: return "AC1027";
        default: return "AC1032";
    }
}

/// Writes one store in one version.
class Writer {
public:
    Writer(OdDbStore& store, OdDb::DwgVersion version, int precision)
        : m_store(store), m_out(version, store.codePage, precision), m_entities(store, m_out) {}

    std::string run(int& leftOut) {
        // The header names the next free handle, which is known only when all else is written.
        m_entities.prepare();
        tablesAndBlocks();
        entities();
        if (!m_out.isR12()) {
            objects();
            preview();
        }
        for (const OdRawSection& section : m_store.sections) rawSection(section);
        m_out.put(0, "EOF");
        std::string body = std::move(m_out.text());
        m_out.text().clear();
        header(m_out.greatestHandle() + 1);
        if (!m_out.isR12()) classes();
        leftOut = m_entities.leftOut();
        return m_out.text() + body;
    }

private:
    void beginSection(std::string_view name) {
        m_out.put(0, "SECTION");
        m_out.put(2, name);
    }
    void endSection() { m_out.put(0, "ENDSEC"); }

    void header(OdDbHandle nextHandle) {
        beginSection("HEADER");
        m_out.put(9, "$ACADVER");
        m_out.put(1, versionName(m_out.version()));
        m_out.put(9, "$DWGCODEPAGE");
        m_out.put(3, m_store.codePageName);
        for (const OdDbHeader::Variable& variable : m_store.header.variables()) {
            if (variable.firstVersion > m_out.version()) continue;
            const bool foreign = !variable.firstVersion && !odIsR12Variable(variable.name);
            if (m_out.isR12() && foreign && m_store.version > OdDb::kDHL_1009) continue;
            m_out.put(9, "$" + variable.name);
            putVariable(variable);
        }
        m_out.put(9, "$HANDSEED");
        m_out.putHandle(5, nextHandle);
        endSection();
    }

    /// The groups of a variable; a true colour goes only where versions have one.
    void putVariable(const OdDbHeader::Variable& variable) {
        if (!variable.firstVersion) {
            OdGroup group;
            for (std::uint32_t at = 0; variable.groups.read(at, group); at = group.end) m_out.putGroup(group);
        } else {
            const bool colors = m_out.version() >= OdDb::kDHL_1018;
            OdGroup group;
            for (std::uint32_t at = 0; variable.groups.read(at, group); at = group.end)
                if (colors || group.code < 420 || group.code > 430) m_out.putGroup(group);
        }
    }

    void classes() {
        if (m_store.classes.empty()) return;
        beginSection("CLASSES");
        for (const OdRawRecord& record : m_store.classes) rawRecord(record);
        endSection();
    }

    void rawRecord(const OdRawRecord& record) {
        m_out.put(0, record.type);
        OdGroup group;
        for (std::uint32_t at = 0; record.groups.read(at, group); at = group.end) m_out.putGroup(group);
    }

    void rawSection(const OdRawSection& section) {
        if (m_out.isR12() && m_store.version > OdDb::kDHL_1009) return;
        if (section.name == "ACDSDATA" && m_out.version() < OdDb::kDHL_1027) return;
        beginSection(section.name);
        OdGroup group;
        for (std::uint32_t at = 0; section.lead.read(at, group); at = group.end) m_out.putGroup(group);
        for (const OdRawRecord& record : section.records) rawRecord(record);
        endSection();
    }

    void tablesAndBlocks() {
        beginSection("TABLES");
        for (int kind = 0; kind < kTableCount; ++kind)
            if (kind != kBlockTable || !m_out.isR12()) table(static_cast<OdTableKind>(kind));
        for (const OdRawSection& other : m_store.otherTables)
            if (!m_out.isR12() || m_store.version <= OdDb::kDHL_1009) otherTable(other);
        endSection();
        beginSection("BLOCKS");
        for (OdDbSymbolTableRecord* record : m_store.records(kBlockTable))
            if (!record->isErased()) m_entities.block(static_cast<OdDbBlockTableRecord&>(*record));
        endSection();
    }

    void table(OdTableKind kind) {
        OdDbSymbolTable& symbols = *m_store.tables[kind];
        m_out.put(0, "TABLE");
        m_out.put(2, symbols.recordName());
        const OdGroupList& groups = symbols.groups();
        OdGroup marker;
        const bool marked = groups.findMarker("AcDbSymbolTable", marker);
        if (!m_out.isR12()) {
            m_out.putOwnHandle(symbols.handle());
            m_entities.ownerAmong(groups, 0, marked ? marker.begin : 0);
            m_out.put(100, "AcDbSymbolTable");
        }
        m_out.putInteger(70, symbols.count());
        m_out.putGroups(groups, OdDxfPart::kRecord, marked ? marker.end : 0);
        for (OdDbSymbolTableRecord* record : m_store.records(kind))
            if (!record->isErased()) tableRecord(kind, *record, symbols);
        m_out.put(0, "ENDTAB");
    }

    void tableRecord(OdTableKind kind, OdDbSymbolTableRecord& record, const OdDbSymbolTable& symbols) {
        m_out.put(0, record.dxfName());
        const OdGroupList groups = m_entities.recordForm(kind, record.groups());
        OdGroup first, second;
        std::uint32_t head = 0;
        std::uint32_t body = 0;
        if (groups.find(100, first)) {
            head = first.begin;
            body = groups.find(100, second, first.end) ? second.end : first.end;
        }
        // The first 2 of a record is its name; one that stands before the markers must not come before it.
        const bool nameFirst = groups.find(2, second) && second.begin < body;
        if (nameFirst) m_out.putText(2, record.getName());
        if (!m_out.isR12()) {
            m_out.putOwnHandle(record.handle(), kind == kDimStyleTable ? 105 : 5);
            m_entities.ownerAmong(groups, symbols.handle(), head);
            m_out.putGroups(groups, OdDxfPart::kObject, head, body);
        }
        if (!nameFirst) m_out.putText(2, record.getName());
        m_out.putGroups(groups, OdDxfPart::kRecord, body);
    }

    void otherTable(const OdRawSection& other) {
        m_out.put(0, "TABLE");
        m_out.putText(2, other.name);
        OdGroup group;
        for (std::uint32_t at = 0; other.lead.read(at, group); at = group.end) m_out.putGroup(group);
        for (const OdRawRecord& record : other.records) rawRecord(record);
        m_out.put(0, "ENDTAB");
    }

    void entities() {
        beginSection("ENTITIES");
        for (const wchar_t* space : {L"*Model_Space", L"*Paper_Space"})
            if (auto* block = static_cast<OdDbBlockTableRecord*>(m_store.record(kBlockTable, space)))
                m_entities.entities(*block);
        endSection();
    }

    void objects() {
        beginSection("OBJECTS");
        // Readers take the first object for the root of all dictionaries.
        if (OdDbDictionary* root = m_store.root()) m_entities.object(*root);
        for (OdDbObject* object : m_store.fileObjects)
            if (!object->isErased() && object->handle() != m_store.rootDictionary) m_entities.object(*object);
        endSection();
    }

    void preview() {
        const bool fits = m_out.version() >= OdDb::kDHL_1015 || !m_store.hasOwnThumbnail;
        if (m_store.thumbnail.isEmpty() || !fits) return;
        beginSection("THUMBNAILIMAGE");
        OdGroup group;
        for (std::uint32_t at = 0; m_store.thumbnail.read(at, group); at = group.end) m_out.putGroup(group);
        endSection();
    }

    OdDbStore& m_store;
    OdDxfOutput m_out;
    OdDxfEntityWriter m_entities;
};

}  // namespace

std::string odWriteDxf(OdDbStore& store, const OdDxfForm& form, int& leftOut) {
    const OdDb::DwgVersion version = form.version == OdDb::kDHL_Unknown ? store.version : form.version;
    const std::string text =
        Writer(store, version, form.binary ? kOdFullPrecision : form.precision).run(leftOut);
    return form.binary ? odBinaryOfDxfText(text, version > OdDb::kDHL_1009) : text;
}
