#include "od_dxf_reader.h"

#include <utility>

#include "od_db_store.h"
#include "od_dxf_binary.h"
#include "od_dxf_entities.h"
#include "od_dxf_markers.h"
#include "od_dxf_record.h"
#include "od_r12_names.h"
#include "od_dxf_writer.h"

namespace {

/// Reads the sections of one file into a store.
class Reader {
public:
    Reader(std::string_view text, OdDbStore& store, OdDxfReading& reading)
        : m_store(store),
          m_records(text, store.codePage, store.version >= OdDb::kDHL_1021, reading),
          m_entities(store, m_records) {}

    bool run() {
        std::string place;
        while (goOn(place) && !scanner().isRecord("EOF")) {
            if (!scanner().isRecord("SECTION") &&
                !passOver(L"A section was expected; what stands before the next was passed over."))
                return false;
            // The beginning of a section ends one that has no end mark.
            while (scanner().isRecord("SECTION"))
                if (!section(place)) return false;
            if (scanner().isRecord("EOF")) break;
        }
        useNames();
        m_store.heldCodes = m_records.heldCodes();
        if (m_store.version <= OdDb::kDHL_1009) noteNamesOfR12();
        // Also from a file that another program has brought into a newer version.
        odTakeWholeNames(m_store);
        return !scanner().failed();
    }
    OdDxfScanner& scanner() { return m_records.scanner(); }

private:
    /// Goes on to the next pair and keeps the comments before it under `place`.
    bool goOn(const std::string& place) {
        const bool goesOn = scanner().next();
        OdGroupList comments;
        m_records.appendComments(comments);
        if (!comments.isEmpty()) m_store.comments[place].add(comments);
        return goesOn;
    }

    /// A section; `place` becomes that behind it.
    bool section(std::string& place) {
        if (!scanner().next()) return false;
        if (scanner().code() != 2) return passOver(L"A section has no name; it was passed over.");
        const std::string name(scanner().word());
        place = "/" + name;
        if (!goOn(name)) return false;
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
               passOver(
                   L"The section doesn't end where it must; what stands before the next was passed over.");
    }

    /// Goes on to where a section ends or begins, and notes why.
    bool passOver(const wchar_t* why) { return passOverTo("ENDSEC", why); }

    /// Goes on to the next record of this type or the section's edge, and notes why.
    bool passOverTo(std::string_view type, const wchar_t* why) {
        if (!scanner().mend(OdDxfErrorCode::kBadStructure, why)) return false;
        while (scanner().code() != 0 || (!scanner().isRecord(type) && !atSectionEdge()))
            if (!scanner().next()) return false;
        return true;
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
        m_records.appendComments(groups);
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
            m_records.appendComments(groups);
            if (scanner().failed()) return false;
            // These three tell about the file and not about the drawing.
            if (name != "ACADVER" && name != "DWGCODEPAGE" && name != "HANDSEED")
                m_store.header.set(name, groups);
        }
        m_store.header.endFileOrder();
        return sectionEnd();
    }

    bool tables() {
        while (!atSectionEdge())
            if (!(scanner().isRecord("TABLE")
                      ? table()
                      : passOverTo("TABLE",
                                   L"A table was expected; what stands before the next was passed over.")))
                return false;
        return sectionEnd();
    }

    bool table() {
        if (!m_records.read(OdDxfRecordKind::kTableRecord, m_record)) return false;
        m_tableName = m_record.name;
        for (int kind = 0; kind < kTableCount; ++kind)
            if (m_record.name == odWide(m_store.tables[kind]->recordName()).c_str())
                return knownTable(static_cast<OdTableKind>(kind));
        OdRawSection unknown{odUtf8(m_record.name.view()), {}, {}};
        if (m_record.handle) unknown.lead.addText(5, odHandleText(m_record.handle));
        if (m_record.owner) unknown.lead.addHandle(330, m_record.owner);
        unknown.lead.add(m_record.groups);
        while (!scanner().isRecord("ENDTAB") && !scanner().isRecord("TABLE") && !atSectionEdge()) {
            OdRawRecord record{std::string(scanner().word()), {}};
            if (!scanner().next() || !lead(record.groups)) return false;
            unknown.records.push_back(std::move(record));
        }
        m_store.otherTables.push_back(std::move(unknown));
        return tableEnd();
    }

    bool tableEnd() {
        if (scanner().isRecord("ENDTAB")) return goOn("/TABLE " + odUtf8(m_tableName.view()));
        return scanner().mend(OdDxfErrorCode::kBadStructure,
                              L"The table doesn't end where it must; it ends here.");
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
            for (const OdDxfNameForHandle& name : m_record.namesForHandles)
                m_names.push_back({record.get(), name});
        }
        return tableEnd();
    }

    bool blocks() {
        while (!atSectionEdge())
            if (!(scanner().isRecord("BLOCK")
                      ? block()
                      : passOverTo("BLOCK",
                                   L"A block was expected; what stands before the next was passed over.")))
                return false;
        return sectionEnd();
    }

    /// The record of the block that begins here: its owner, if that bears the name, or the record with this
    /// name. A second block of one name gets a record of its own; the spaces are there once only.
    OdDbBlockTableRecord& recordOfBlock(const OdString& name) {
        auto* owner = m_store.object<OdDbBlockTableRecord>(m_record.owner);
        if (owner && owner->getName().iCompare(name) == 0) return *owner;
        auto& named = static_cast<OdDbBlockTableRecord&>(*m_store.needRecord(kBlockTable, name));
        const bool isSpace = odIsModelSpaceName(name) || odIsPaperSpaceName(name);
        if (isSpace || m_store.blockBegin(named).isEmpty()) return named;
        return static_cast<OdDbBlockTableRecord&>(*m_store.makeRecord(kBlockTable, name));
    }

    bool block() {
        if (!m_records.read(OdDxfRecordKind::kBlock, m_record)) return false;
        OdString name = m_record.name;
        if (odIsModelSpaceName(name)) {
            name = L"*Model_Space";
            m_store.hasSpaceBlocks = true;
        }
        if (odIsPaperSpaceName(name)) name = L"*Paper_Space";
        OdDbBlockTableRecord& record = recordOfBlock(name);
        if (m_store.blockBegin(record).isEmpty()) {
            m_store.blockBegin(record) = m_record.groups;
            m_store.blockBeginHandle(record) = m_record.handle;
        }
        if (!m_entities.readUntil("ENDBLK", record.handle())) return false;
        if (!scanner().isRecord("ENDBLK"))
            return scanner().mend(OdDxfErrorCode::kBadStructure,
                                  L"The block doesn't end where it must; it ends here.");
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

    /// Puts the handles of the records whose names stood for them, now that all are known.
    void useNames() {
        if (!m_names.empty()) m_store.completeRecords();
        for (const auto& [style, name] : m_names) {
            const OdTableKind kind = name.code == 340  ? kTextStyleTable
                                     : name.code < 345 ? kBlockTable
                                                       : kLinetypeTable;
            if (const OdDbSymbolTableRecord* meant = m_store.record(kind, name.name))
                m_store.groupsOf(*style).setHandle(name.code, meant->handle());
        }
    }

    /// Notes which names a file of R12 brought.
    void noteNamesOfR12() {
        for (int kind = 0; kind < kTableCount; ++kind)
            for (const OdDbSymbolTableRecord* record : m_store.records(static_cast<OdTableKind>(kind)))
                m_store.namesOfR12File[kind].insert(odFoldedName(record->getName()));
    }

    struct StyleName {
        OdDbSymbolTableRecord* style;
        OdDxfNameForHandle name;
    };

    OdDbStore& m_store;
    OdDxfRecordReader m_records;
    std::vector<StyleName> m_names;
    OdString m_tableName;
    OdDxfEntityReader m_entities;
    OdDxfRecord m_record;
};

bool read_text(std::string_view text, OdDbStore& store, OdDxfReading& reading, OdDbDxfError& error) {
    OdDxfOverview overview;
    if (!odOverviewDxf(text, reading.strict, overview, error)) return false;
    store.version = overview.version;
    store.versionIsKnown = overview.hasVersion;
    if (!overview.codePageName.empty()) {
        store.codePageName = overview.codePageName;
        store.codePage = odCodePageFromName(overview.codePageName);
    }
    store.nextHandle = overview.firstFreeHandle;
    store.objects.reserve(overview.records);
    Reader reader(text, store, reading);
    const bool done = reader.run();
    // The first look found an end mark, but the sections don't lead to it.
    if (!done) reader.scanner().fail(OdDxfErrorCode::kBadStructure, L"The file ends within a section.");
    error = reader.scanner().error();
    return done;
}

/// Tells the places in a binary file, where there are no lines.
void tell_bytes(std::string_view bytes, OdDxfReading& reading, OdDbDxfError& error) {
    OdDxfLinePlaces places(bytes);
    for (OdDxfMend& mend : reading.mends) mend.byte = places.byteOf(std::exchange(mend.line, 0));
    if (error.line != 0) error.byte = places.byteOf(std::exchange(error.line, 0));
}

}  // namespace

bool odReadDxf(std::string_view bytes, OdDbStore& store, OdDxfReading& reading, OdDbDxfError& error) {
    reading.mends.clear();
    reading.mendCount = 0;
    store.binary = odIsBinaryDxf(bytes);
    if (!store.binary) return read_text(bytes, store, reading, error);
    std::string text;
    OdDbDxfError cut;
    const bool whole = odTextOfBinaryDxf(bytes, text, cut);
    const bool done = read_text(text, store, reading, error);
    tell_bytes(bytes, reading, error);
    const bool cutOff = error.code == OdDxfErrorCode::kTruncated || error.code == OdDxfErrorCode::kEmpty;
    if (!done && !whole && cutOff) error = cut;
    return done;
}
