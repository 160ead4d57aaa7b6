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

    std::string run() {
        // The header names the next free handle, which is known only when all else is written.
        m_entities.prepare();
        m_comments = m_store.comments;
        if (m_store.version <= m_out.version()) m_out.keepHeld(m_store.heldCodes);
        tablesAndBlocks();
        entities();
        objects();
        preview();
        for (const OdRawSection& section : m_store.sections) rawSection(section);
        m_out.put(0, "EOF");
        std::string body = std::move(m_out.text());
        m_out.text().clear();
        header(m_out.greatestHandle() + 1);
        if (!m_out.isR12()) classes();
        return m_out.text() + body;
    }

    void keepMended() { m_out.keepMended(); }
    OdDxfLosses& losses() { return m_out.losses(); }

private:
    void beginSection(std::string_view name) {
        m_out.put(0, "SECTION");
        m_out.put(2, name);
        m_section = name;
        comments(m_section);
    }
    void endSection() {
        m_out.put(0, "ENDSEC");
        comments("/" + m_section);
    }

    /// The comments of a place, the first time that it is met.
    void comments(const std::string& place) {
        const auto found = m_comments.find(place);
        if (found == m_comments.end()) return;
        OdGroup group;
        for (std::uint32_t at = 0; found->second.read(at, group); at = group.end) m_out.putGroup(group);
        m_comments.erase(found);
    }

    void header(OdDbHandle nextHandle) {
        comments("");
        beginSection("HEADER");
        m_out.put(9, "$ACADVER");
        m_out.put(1, versionName(m_out.version()));
        m_out.put(9, "$DWGCODEPAGE");
        m_out.put(3, m_store.codePageName);
        for (const OdDbHeader::Variable& variable : m_store.header.variables()) {
            if (!hasVariable(variable)) {
                if (saysSomething(variable)) m_out.losses().add(OdDxfLossKind::kVariable, {});
                continue;
            }
            m_out.put(9, "$" + variable.name);
            putVariable(variable);
        }
        m_out.put(9, "$HANDSEED");
        m_out.putHandle(5, nextHandle);
        endSection();
    }

    /// Whether the version has the variable. What stood in a file of this version or an older one may stand
    /// there again, whatever it is; of unknown names only R12 is spared.
    bool hasVariable(const OdDbHeader::Variable& variable) const {
        if (variable.fromFile && m_store.version <= m_out.version()) return true;
        const OdDb::DwgVersion since = odFirstVersionOfVariable(variable.name);
        return since == OdDb::kDHL_Unknown ? !m_out.isR12() : since <= m_out.version();
    }

    /// Whether a new drawing has no such variable, or another value of it.
    static bool saysSomething(const OdDbHeader::Variable& variable) {
        static const OdDbHeader usual;
        const OdGroupList* groups = usual.find(variable.name);
        return !groups || !(*groups == variable.groups);
    }

    /// The groups of a variable; a true colour goes only where versions have one.
    void putVariable(const OdDbHeader::Variable& variable) {
        OdGroupList groups = variable.groups;
        m_entities.names().replaceInVariable(variable.name, groups);
        const bool known = odFirstVersionOfVariable(variable.name) != OdDb::kDHL_Unknown;
        const bool held = variable.fromFile && m_store.version <= m_out.version();
        const bool colors = !known || held || m_out.version() >= OdDb::kDHL_1018;
        OdGroup group;
        for (std::uint32_t at = 0; groups.read(at, group); at = group.end)
            if (colors || group.code < 420 || group.code > 430)
                m_out.putGroup(group);
            else
                m_out.losses().add(OdDxfLossKind::kTrueColor, {});
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
        const bool newer = section.name == "ACDSDATA" ? m_out.version() < OdDb::kDHL_1027 : m_out.isR12();
        if (newer && m_store.version > m_out.version()) {
            m_out.losses().add(OdDxfLossKind::kSection, section.name);
            return;
        }
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
        for (const OdRawSection& other : m_store.otherTables) otherTable(other);
        endSection();
        beginSection("BLOCKS");
        for (OdDbSymbolTableRecord* record : m_store.records(kBlockTable))
            if (!record->isErased()) m_entities.block(static_cast<OdDbBlockTableRecord&>(*record));
        endSection();
    }

    void table(OdTableKind kind) {
        OdDbSymbolTable& symbols = *m_store.tables[kind];
        m_out.put(0, "TABLE");
        m_out.beginRecord(OdDxfRecordKind::kTableRecord, "TABLE");
        m_out.put(2, symbols.recordName());
        const OdGroupList& groups = symbols.groups();
        OdGroup marker;
        const bool marked = groups.findMarker("AcDbSymbolTable", marker);
        if (!m_out.isR12()) {
            m_out.putOwnHandle(symbols.handle());
            m_entities.ownerAmong(groups, 0, marked ? marker.begin : 0);
            m_out.put(100, "AcDbSymbolTable");
        }
        const bool addsApplication = kind == kRegAppTable && !m_entities.names().isEmpty();
        std::vector<OdDbSymbolTableRecord*> records;
        for (OdDbSymbolTableRecord* record : m_store.records(kind)) {
            const bool isAdded =
                addsApplication && record->getName().iCompare(odWide(kOdWholeNames).c_str()) == 0;
            if (!isAdded && isWritten(kind, *record)) records.push_back(record);
        }
        m_out.putInteger(70, static_cast<std::int64_t>(records.size()) + (addsApplication ? 1 : 0));
        m_out.putGroups(groups, OdDxfPart::kOwn, marked ? marker.end : 0);
        for (OdDbSymbolTableRecord* record : records) tableRecord(kind, *record, symbols);
        if (addsApplication) wholeNamesApplication();
        endTable(symbols.recordName());
    }

    void endTable(const std::string& name) {
        m_out.put(0, "ENDTAB");
        comments("/TABLE " + name);
    }

    bool isWritten(OdTableKind kind, const OdDbSymbolTableRecord& record) {
        if (record.isErased()) return false;
        if (m_entities.names().find(kind, record.getName()))
            m_out.losses().add(OdDxfLossKind::kName, record.dxfName());
        return kind != kBlockTable || m_entities.hasBlock(static_cast<const OdDbBlockTableRecord&>(record));
    }

    /// The registered application under which whole names stand in R12.
    void wholeNamesApplication() {
        m_out.put(0, "APPID");
        m_out.put(2, kOdWholeNames);
        m_out.putInteger(70, 0);
    }

    void tableRecord(OdTableKind kind, OdDbSymbolTableRecord& record, const OdDbSymbolTable& symbols) {
        m_out.put(0, record.dxfName());
        m_out.beginRecord(OdDxfRecordKind::kTableRecord, record.dxfName());
        const OdGroupList groups = m_entities.recordForm(kind, record);
        const OdString name = m_entities.nameOf(kind, record);
        OdGroup first, second;
        std::uint32_t head = 0;
        std::uint32_t body = 0;
        if (groups.find(100, first)) {
            head = first.begin;
            body = groups.find(100, second, first.end) ? second.end : first.end;
        }
        // The first 2 of a record is its name; one that stands before the markers must not come before it.
        const bool nameFirst = groups.find(2, second) && second.begin < body;
        if (nameFirst) m_out.putText(2, name);
        if (!m_out.isR12()) {
            m_out.putOwnHandle(record.handle(), kind == kDimStyleTable ? 105 : 5);
            m_entities.ownerAmong(groups, symbols.handle(), head);
            m_out.putGroups(groups, OdDxfPart::kObject, head, body);
        }
        if (!nameFirst) m_out.putText(2, name);
        m_out.putGroups(groups, OdDxfPart::kOwn, body);
    }

    void otherTable(const OdRawSection& other) {
        if (m_out.isR12() && m_store.version > OdDb::kDHL_1009) {
            m_out.losses().add(OdDxfLossKind::kSection, other.name);
            return;
        }
        m_out.put(0, "TABLE");
        m_out.putText(2, other.name);
        OdGroup group;
        for (std::uint32_t at = 0; other.lead.read(at, group); at = group.end) m_out.putGroup(group);
        for (const OdRawRecord& record : other.records) rawRecord(record);
        endTable(other.name);
    }

    void entities() {
        beginSection("ENTITIES");
        for (const wchar_t* space : {L"*Model_Space", L"*Paper_Space"})
            if (auto* block = static_cast<OdDbBlockTableRecord*>(m_store.record(kBlockTable, space)))
                m_entities.entities(*block);
        endSection();
    }

    void objects() {
        if (m_out.isR12()) {
            for (const OdDbObject* object : m_store.fileObjects) m_entities.noteLeftOut(*object);
            return;
        }
        beginSection("OBJECTS");
        // Readers take the first object for the root of all dictionaries.
        if (OdDbDictionary* root = m_store.root()) m_entities.object(*root);
        for (OdDbObject* object : m_store.fileObjects)
            if (!object->isErased() && object->handle() != m_store.rootDictionary) m_entities.object(*object);
        endSection();
    }

    void preview() {
        if (m_store.thumbnail.isEmpty()) return;
        const bool fits = m_out.version() >= OdDb::kDHL_1015 || !m_store.hasOwnThumbnail;
        if (!fits || (m_out.isR12() && m_store.version > OdDb::kDHL_1009)) {
            // A picture that the program made itself is no loss.
            if (!m_store.hasOwnThumbnail) m_out.losses().add(OdDxfLossKind::kSection, "THUMBNAILIMAGE");
            return;
        }
        beginSection("THUMBNAILIMAGE");
        OdGroup group;
        for (std::uint32_t at = 0; m_store.thumbnail.read(at, group); at = group.end) m_out.putGroup(group);
        endSection();
    }

    OdDbStore& m_store;
    OdDxfOutput m_out;
    std::map<std::string, OdGroupList> m_comments;  // not written yet
    std::string m_section;
    OdDxfEntityWriter m_entities;
};

}  // namespace

std::string odWriteDxf(OdDbStore& store, const OdDxfForm& form, int& leftOut) {
    const OdDb::DwgVersion version = form.version == OdDb::kDHL_Unknown ? store.version : form.version;
    Writer writer(store, version, form.binary ? kOdFullPrecision : form.precision);
    // What a program wrote in its own way goes back to it; a binary file has room for values alone.
    if (!form.binary && version == store.version) writer.keepMended();
    const std::string text = writer.run();
    leftOut = writer.losses().entitiesLeftOut();
    return form.binary ? odBinaryOfDxfText(text, version > OdDb::kDHL_1009) : text;
}

std::vector<OdDxfLoss> odDxfLosses(OdDbStore& store, OdDb::DwgVersion version) {
    Writer writer(store, version == OdDb::kDHL_Unknown ? store.version : version, 0);
    writer.run();
    return writer.losses().all();
}

OdDb::DwgVersion odVersionThatHolds(OdDbStore& store) {
    constexpr OdDb::DwgVersion kVersions[] = {OdDb::kDHL_1009, OdDb::kDHL_1012, OdDb::kDHL_1014,
                                              OdDb::kDHL_1015, OdDb::kDHL_1018, OdDb::kDHL_1021,
                                              OdDb::kDHL_1024, OdDb::kDHL_1027};
    // Judged like a drawing of the newest version: what stands in the file must not count as held.
    store.version = OdDb::kDHL_1032;
    for (const OdDb::DwgVersion version : kVersions)
        if (odDxfLosses(store, version).empty()) return version;
    return OdDb::kDHL_1032;
}
