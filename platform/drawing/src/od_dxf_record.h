// One record of a DXF file (an object, entity or table record) as it is read: its groups, and what is taken
// out of them because the drawing holds it in another form.
#pragma once

#include <string>
#include "od_code_page.h"
#include "od_dxf_scanner.h"
#include "od_held_codes.h"

/// A name where a handle belongs, as some programs write dimension styles.
struct OdDxfNameForHandle {
    int code;
    OdString name;
};

/// A record's type, groups and what was taken out of the groups.
struct OdDxfRecord {
    std::string type;
    OdGroupList groups;
    OdDbHandle handle = 0;                            ///< group 5, or 105 of a dimension style
    OdDbHandle owner = 0;                             ///< group 330 before the first subclass marker
    std::string layer;                                ///< group 8 of an entity
    std::string linetype;                             ///< group 6 of an entity
    bool paperSpace = false;                          ///< group 67 of an entity
    bool partsFollow = false;                         ///< group 66 of an insertion or polyline
    OdString name;                                    ///< group 2 of a table record or block
    std::vector<OdDxfNameForHandle> namesForHandles;  ///< of a dimension style; the groups hold 0 for them
    int line = 0;                                     ///< where the record begins
};

/// Reads records one after the other. The scanner always stands on the group 0 that comes next.
class OdDxfRecordReader {
public:
    OdDxfRecordReader(std::string_view text, int codePage, bool utf8, OdDxfReading& reading)
        : m_scanner(text, &reading, true), m_decoder(codePage, utf8) {}

    OdDxfScanner& scanner() { return m_scanner; }
    /// Reads the record that the scanner stands on, up to the next group 0.
    bool read(OdDxfRecordKind kind, OdDxfRecord& record);
    /// Appends the scanner's pair to `groups`, in the form that its code asks for.
    bool append(OdGroupList& groups);
    /// Appends the comments that the scanner has passed over.
    void appendComments(OdGroupList& groups);
    /// Which codes own groups of records had so far, beside those that every file has.
    const OdHeldCodes& heldCodes() const { return m_held; }
    /// The value of a text group, decoded.
    std::string_view text() { return m_decoder.decode(m_scanner.value()); }
    /// The same of a name, which ends at a zero character.
    std::string_view name() {
        const std::string_view whole = text();
        return whole.substr(0, whole.find('\0'));
    }

private:
    bool takeOut(OdDxfRecordKind kind, OdDxfRecord& record);
    bool takeOutOfEntity(OdDxfRecord& record);
    bool takeNameForHandle(OdDxfRecord& record);
    bool close(OdDxfRecord& record);
    OdDxfScanner m_scanner;
    OdDxfTextDecoder m_decoder;
    int m_markers = 0;  // subclass markers met so far
    bool m_ownerTaken = false;
    bool m_inside = false;   // within a block of application data
    bool m_foreign = false;  // within embedded objects or extended data
    OdHeldCodes m_held;
};
