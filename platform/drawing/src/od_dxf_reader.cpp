#include "od_dxf_reader.h"

#include "od_db_store.h"
#include "od_dxf_binary.h"
#include "od_dxf_entities.h"
#include "od_dxf_markers.h"
#include "od_dxf_record.h"
#include "od_dxf_writer.h"

namespace {

/// Reads the sections of one file into a store.
class Reader {
public:
    Reader(std::string_view text, OdDbStore& store)
        : m_store(store),
          m_records(text, store.codePage, store.version >= OdDb::kDHL_1021),
          m_entities(store, m_records) {}

    bool run() {
        while (scanner().next() && !scanner().isRecord("EOF")) {
            if (!scanner().isRecord("SECTION"))
                return scanner().fail(OdDxfErrorCode::kBadStructure, L"A section was expected.");
            if (!section()) return false;
        }
        return !scanner().failed();
    }
    OdDxfScanner& scanner() { return m_records.scanner(); }

private:
    bool section() {
        if (!scanner().next()) return false;
        if (scanner().code() != 2)
            return scanner().fail(OdDxfErrorCode::kBadStructure, L"A section's name was expected.");
        const std::string name(scanner().word());
        if (!scanner().next()) return false;
        if (name == "HEADER") return header();
        if (name == "CLASSES") return rawRecords(m_store.classes);
        if (name == "TABLES") return tables();
        if (name == "BLOCKS") return blocks();
        if (name == "ENTITIES") return m_entities.readUntil("ENDSEC", 0) && sectionEnd();
        if (name == "OBJECTS") return objects();
        if (name == "THUMBNAILIMAGE") return lead(m_store.thumbnail) && sectionEnd();
        m_store.sections.push_back({name, {}, {}});
        return lead(m_store.sections.back().lead) && rawRecords(m_store.sections.back().records);
    }

    bool sectionEnd() {
        return scanner().isRecord("ENDSEC") ||
               scanner().fail(OdDxfErrorCode::kBadStructure, L"The section doesn't end where it must.");
    }

    /// Whether no more records of the section can come.
    bool atSectionEdge() {
        return scanner().code() != 0 || scanner().isRecord("ENDSEC") || scanner().isRecord("SECTION") ||
               scanner().isRecord("EOF");
    }

    /// The groups before the first record.
    bool lead(OdGroupList& groups) {
        while (scanner().code() != 0)
            if (!m_records.append(groups) || !scanner().next()) return false;
        groups.shrink();
        return true;
    }

    bool rawRecords(std::vector<OdRawRecord>& records) {
        while (!atSectionEdge()) {
            OdRawRecord record{std::string(scanner().word()), {}};
            if (!scanner().next() || !lead(record.groups)) return false;
            records.push_back(std::move(record));
        }
        return sectionEnd();
    }

    bool header() {
        m_store.header.beginFileOrder();
        while (scanner().code() == 9) {
            std::string_view name = scanner().word();
            if (!name.empty() && name[0] == '$') name.remove_prefix(1);
            OdGroupList groups;
            while (scanner().next() && scanner().code() != 9 && scanner().code() != 0)
                if (!m_records.append(groups)) return false;
            if (scanner().failed()) return false;
            // These three tell about the file and not about the drawing.
            if (name != "ACADVER" && name != "DWGCODEPAGE" && name != "HANDSEED")
                m_store.header.set(name, groups);
        }
        m_store.header.endFileOrder();
        return sectionEnd();
    }

    bool tables() {
        while (scanner().isRecord("TABLE"))
            if (!table()) return false;
        return sectionEnd();
    }

    bool table() {
        if (!m_records.read(OdDxfRecordKind::kTableRecord, m_record)) return false;
        for (int kind = 0; kind < kTableCount; ++kind)
            if (m_record.name == odWide(m_store.tables[kind]->recordName()).c_str())
                return knownTable(static_cast<OdTableKind>(kind));
        OdRawSection unknown{odUtf8(m_record.name.view()), {}, {}};
        if (m_record.handle) unknown.lead.addText(5, odHandleText(m_record.handle));
        if (m_record.owner) unknown.lead.addHandle(330, m_record.owner);
        unknown.lead.add(m_record.groups);
        while (!scanner().isRecord("ENDTAB") && !atSectionEdge()) {
            OdRawRecord record{std::string(scanner().word()), {}};
            if (!scanner().next() || !lead(record.groups)) return false;
            unknown.records.push_back(std::move(record));
        }
        m_store.otherTables.push_back(std::move(unknown));
        return tableEnd();
    }

    bool tableEnd() {
        if (!scanner().isRecord("ENDTAB"))
            return scanner().fail(OdDxfErrorCode::kBadStructure, L"The table doesn't end where it must.");
        return scanner().next();
    }

    bool knownTable(OdTableKind kind) {
        OdDbSymbolTable& symbols = *m_store.tables[kind];
        if (!symbols.database()) {
            // The count of records (70) is that of the records themselves.
            m_record.groups.remove(70);
            m_store.groupsOf(symbols) = m_record.groups;
            m_store.adopt(OdDbObjectPtr(&symbols), m_record.handle, 0);
        }
        while (scanner().isRecord(symbols.recordName())) {
            if (!m_records.read(OdDxfRecordKind::kTableRecord, m_record)) return false;
            const OdDbSymbolTableRecordPtr record = symbols.newRecord();
            odCompleteRecordMarkers(m_record.type, m_record.groups);
            m_store.groupsOf(*record) = m_record.groups;
            m_store.addRecord(kind, record, m_record.name, m_record.handle);
        }
        return tableEnd();
    }

    bool blocks() {
        while (scanner().isRecord("BLOCK"))
            if (!block()) return false;
        return sectionEnd();
    }

    bool block() {
        if (!m_records.read(OdDxfRecordKind::kBlock, m_record)) return false;
        OdString name = m_record.name;
        if (odIsModelSpaceName(name)) name = L"*Model_Space";
        if (odIsPaperSpaceName(name)) name = L"*Paper_Space";
        auto& record = static_cast<OdDbBlockTableRecord&>(*m_store.needRecord(kBlockTable, name));
        if (m_store.blockBegin(record).isEmpty()) {
            m_store.blockBegin(record) = m_record.groups;
            m_store.blockBeginHandle(record) = m_record.handle;
        }
        if (!m_entities.readUntil("ENDBLK", record.handle())) return false;
        if (!scanner().isRecord("ENDBLK"))
            return scanner().fail(OdDxfErrorCode::kBadStructure, L"The block doesn't end where it must.");
        if (!m_records.read(OdDxfRecordKind::kBlock, m_record)) return false;
        m_store.blockEnd(record) = m_record.groups;
        m_store.blockEndHandle(record) = m_record.handle;
        return true;
    }

    bool objects() {
        while (!atSectionEdge())
            if (!object()) return false;
        return sectionEnd();
    }

    bool object() {
        if (!m_records.read(OdDxfRecordKind::kObject, m_record)) return false;
        const OdDbObjectPtr made = odMakeObject(m_record.type);
        if (auto* dictionary = dynamic_cast<OdDbDictionary*>(made.get())) {
            odTakeDictionaryEntries(m_store, *dictionary, m_record.groups);
            m_store.hasDefault(*dictionary) = m_record.type == "ACDBDICTIONARYWDFLT";
        }
        m_store.groupsOf(*made) = m_record.groups;
        m_store.adopt(made, m_record.handle, m_record.owner);
        m_store.fileObjects.push_back(made.get());
        const bool couldBeRoot = m_record.type == "DICTIONARY" && m_record.owner == 0;
        if (couldBeRoot && !m_store.rootDictionary) m_store.rootDictionary = made->handle();
        return true;
    }

    OdDbStore& m_store;
    OdDxfRecordReader m_records;
    OdDxfEntityReader m_entities;
    OdDxfRecord m_record;
};

bool read_text(std::string_view text, OdDbStore& store, OdDbDxfError& error) {
    OdDxfOverview overview;
    if (!odOverviewDxf(text, overview, error)) return false;
    store.version = overview.version;
    if (!overview.codePageName.empty()) {
        store.codePageName = overview.codePageName;
        store.codePage = odCodePageFromName(overview.codePageName);
    }
    store.nextHandle = overview.firstFreeHandle;
    store.objects.reserve(overview.records);
    Reader reader(text, store);
    const bool done = reader.run();
    // The first look found an end mark, but the sections don't lead to it.
    if (!done) reader.scanner().fail(OdDxfErrorCode::kBadStructure, L"The file ends within a section.");
    error = reader.scanner().error();
    return done;
}

}  // namespace

bool odReadDxf(std::string_view bytes, OdDbStore& store, OdDbDxfError& error) {
    store.binary = odIsBinaryDxf(bytes);
    if (!store.binary) return read_text(bytes, store, error);
    std::string text;
    OdDbDxfError cut;
    const bool whole = odTextOfBinaryDxf(bytes, text, cut);
    if (read_text(text, store, error)) return true;
    if (!whole && (error.code == OdDxfErrorCode::kTruncated || error.code == OdDxfErrorCode::kEmpty)) {
        error = cut;
    } else {
        error.byte = odByteOfDxfLine(bytes, error.line);
        error.line = 0;
    }
    return false;
}
