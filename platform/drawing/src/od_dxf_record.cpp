#include "od_dxf_record.h"

#include "od_comment_code.h"

namespace {

/// Whether a code stands in files for what the runtime keeps in another form, so that it says nothing about
/// them.
bool isMadeHere(int code) { return code == 100 || code == 102 || code == 330 || code == 360; }

}  // namespace

bool OdDxfRecordReader::append(OdGroupList& groups) {
    OdGroup group;
    group.code = m_scanner.code();
    group.kind = odGroupKind(group.code);
    const std::size_t mends = m_scanner.mendCount();
    switch (group.kind) {
        case OdGroupKind::kReal:
            if (!m_scanner.real(group.real)) return false;
            break;
        case OdGroupKind::kInteger:
            if (!m_scanner.integer(group.integer)) return false;
            break;
        case OdGroupKind::kHandle: {
            OdDbHandle handle = 0;
            if (!m_scanner.handle(handle)) return false;
            group.integer = static_cast<std::int64_t>(handle);
            break;
        }
        case OdGroupKind::kText: group.text = text(); break;
    }
    if (m_scanner.mendCount() != mends) group.mended = m_decoder.decode(m_scanner.word());
    groups.add(group);
    return true;
}

void OdDxfRecordReader::appendComments(OdGroupList& groups) {
    for (const std::string_view comment : m_scanner.takeComments())
        groups.addText(kOdComment, m_decoder.decode(comment));
}

bool OdDxfRecordReader::takeOutOfEntity(OdDxfRecord& record) {
    constexpr int kPartsFollow = 66;
    const int code = m_scanner.code();
    if (code == kPartsFollow && (record.type == "INSERT" || record.type == "POLYLINE")) {
        std::int64_t value = 0;
        record.partsFollow = m_scanner.integer(value) && value != 0;
        return true;
    }
    if (m_markers > 1) return false;
    if (code == 8) {
        record.layer = name();
    } else if (code == 6) {
        record.linetype = name();
    } else if (code == 67) {
        std::int64_t value = 0;
        record.paperSpace = m_scanner.integer(value) && value != 0;
    } else {
        return code == 410;
    }
    return true;
}

/// Whether the scanner's pair went into a field of the record.
bool OdDxfRecordReader::takeOut(OdDxfRecordKind kind, OdDxfRecord& record) {
    constexpr int kDimensionStyleHandle = 105;
    const int code = m_scanner.code();
    const bool dimensionStyle = kind == OdDxfRecordKind::kTableRecord && record.type == "DIMSTYLE";
    const int handleCode = dimensionStyle ? kDimensionStyleHandle : 5;
    const bool named = kind == OdDxfRecordKind::kTableRecord || kind == OdDxfRecordKind::kBlock;
    // R12 writes these records without handles, so that a second one must not be left to be taken for the
    // first.
    if (code == handleCode && (record.handle == 0 || named)) {
        if (record.handle == 0) record.handle = odHandleFromText(m_scanner.value());
        return true;
    }
    if (code == 330 && m_markers == 0 && !m_ownerTaken) {
        m_ownerTaken = true;
        record.owner = odHandleFromText(m_scanner.value());
        return true;
    }
    if (kind == OdDxfRecordKind::kEntity) return takeOutOfEntity(record);
    if (named && code == 2 && record.name.isEmpty()) {
        record.name = odWide(name());
        return true;
    }
    return kind == OdDxfRecordKind::kBlock && code == 3;
}

/// Whether the scanner's pair is a name that a dimension style has instead of a handle.
bool OdDxfRecordReader::takeNameForHandle(OdDxfRecord& record) {
    constexpr int kFirst = 340, kLast = 347;
    const int code = m_scanner.code();
    const std::string_view word = m_scanner.word();
    if (record.type != "DIMSTYLE" || code < kFirst || code > kLast) return false;
    if (odHandleFromText(word) != 0 || word == "0") return false;
    if (!m_scanner.mend(
            OdDxfErrorCode::kBadNumber,
            L"A name stood where a handle belongs; that of the record with this name stands for it."))
        return true;
    OdGroup group;
    group.code = code;
    group.kind = OdGroupKind::kHandle;
    group.mended = name();
    record.groups.add(group);
    record.namesForHandles.push_back({code, odWide(name())});
    return true;
}

/// Ends a block of application data that the file left open.
bool OdDxfRecordReader::close(OdDxfRecord& record) {
    if (!m_scanner.mend(OdDxfErrorCode::kBadStructure,
                        L"A block of application data didn't end where it must; it ends here."))
        return false;
    record.groups.addText(102, "}");
    m_inside = false;
    return true;
}

bool OdDxfRecordReader::read(OdDxfRecordKind kind, OdDxfRecord& record) {
    constexpr int kEmbeddedObject = 101;
    record.type = m_scanner.word();
    record.line = m_scanner.line();
    record.groups.restart();
    record.handle = record.owner = 0;
    record.layer.clear();
    record.linetype.clear();
    record.paperSpace = record.partsFollow = false;
    record.name.empty();
    record.namesForHandles.clear();
    OdCodeSet& held = m_held.of(kind, record.type);
    m_markers = 0;
    m_inside = m_foreign = m_ownerTaken = false;
    while (m_scanner.next() && m_scanner.code() != 0) {
        const int code = m_scanner.code();
        if (code == kEmbeddedObject || odIsExtendedDataCode(code)) m_foreign = true;
        if (m_foreign && m_inside && !close(record)) return false;
        if (code == 102 && !m_foreign) m_inside = !m_scanner.word().empty() && m_scanner.word()[0] == '{';
        if (code == 100 && !m_inside && !m_foreign) ++m_markers;
        if (!m_inside && !m_foreign && (takeOut(kind, record) || takeNameForHandle(record))) continue;
        if (!m_inside && !m_foreign && !isMadeHere(code)) held.add(code);
        if (!append(record.groups)) return false;
    }
    if (m_scanner.failed()) return false;
    if (m_inside && !close(record)) return false;
    appendComments(record.groups);
    if (m_scanner.code() == 0) return true;
    return m_scanner.fail(OdDxfErrorCode::kTruncated, L"The file ends before its end mark.");
}
