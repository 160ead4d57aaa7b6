#include "od_db_store.h"

#include "od_angle.h"

#include <cmath>

namespace {

OdDbObjectId styleOf(const OdDbStore* store, const OdGroupList& groups) {
    if (!store) return {};
    OdDbSymbolTableRecord* record = store->record(kTextStyleTable, groups.text(7));
    if (!record) record = store->record(kTextStyleTable, L"Standard");
    return record ? record->objectId() : OdDbObjectId();
}

OdResult setStyle(OdGroupList& groups, const OdDbObjectId& id) {
    const auto record = id.open<OdDbTextStyleTableRecord>();
    if (!record) return kOdInvalidInput;
    groups.setText(7, record->getName());
    return kOdOk;
}

}  // namespace

OdGePoint3d OdDbText::alignmentPoint() const { return m_groups.point(11, position()); }

double OdDbText::rotation() const { return odRadians(m_groups.real(50)); }

void OdDbText::setRotation(double radians) { editGroups().setReal(50, odDegrees(radians)); }

double OdDbText::oblique() const { return odRadians(m_groups.real(51)); }

OdDbObjectId OdDbText::textStyle() const { return styleOf(store(), m_groups); }

OdResult OdDbText::setTextStyle(const OdDbObjectId& id) { return setStyle(editGroups(), id); }

OdString OdDbMText::contents() const {
    std::string whole;
    OdGroup group;
    for (std::uint32_t at = 0; m_groups.find(3, group, at); at = group.end) whole += group.text;
    if (m_groups.find(1, group)) whole += group.text;
    return odWide(whole);
}

void OdDbMText::setContents(const wchar_t* text) {
    constexpr std::size_t kPieceLength = 250;
    OdGroupList& groups = editGroups();
    groups.remove(3);
    groups.remove(1);
    std::string rest = odUtf8(text ? text : L"");
    OdGroupList pieces;
    while (rest.size() > kPieceLength) {
        std::size_t cut = kPieceLength;
        while (cut > 0 && (rest[cut] & 0xC0) == 0x80) --cut;
        pieces.addText(3, std::string_view(rest).substr(0, cut));
        rest.erase(0, cut);
    }
    pieces.addText(1, rest);
    const std::uint32_t end = groups.ownEnd();
    groups.replace(end, end, pieces);
}

OdString OdDbMText::plainText() const { return odPlainMText(contents().view()); }

double OdDbMText::rotation() const {
    OdGroup group;
    if (m_groups.find(50, group)) return odRadians(group.real);
    if (!m_groups.find(11, group)) return 0;
    const OdGePoint3d direction = m_groups.point(11);
    return direction.x == 0 && direction.y == 0 ? 0 : std::atan2(direction.y, direction.x);
}

void OdDbMText::setRotation(double radians) {
    OdGroupList& groups = editGroups();
    for (const int code : {11, 21, 31}) groups.remove(code);
    groups.setReal(50, odDegrees(radians));
}

OdDbObjectId OdDbMText::textStyle() const { return styleOf(store(), m_groups); }

OdResult OdDbMText::setTextStyle(const OdDbObjectId& id) { return setStyle(editGroups(), id); }
