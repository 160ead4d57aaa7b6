#include "od_db_linetype_table.h"

#include <cmath>

namespace {

constexpr int kDash = 49;
constexpr int kElementKind = 74;

}  // namespace

OdString OdDbLinetypeTableRecord::comments() const { return m_groups.text(3); }

void OdDbLinetypeTableRecord::setComments(const wchar_t* text) { editGroups().setText(3, text); }

double OdDbLinetypeTableRecord::patternLength() const { return m_groups.real(40); }

int OdDbLinetypeTableRecord::numDashes() const { return dashes().length(); }

double OdDbLinetypeTableRecord::dashLengthAt(int index) const {
    const OdArray<double> all = dashes();
    return index >= 0 && index < all.length() ? all[index] : 0;
}

OdArray<double> OdDbLinetypeTableRecord::dashes() const {
    OdArray<double> lengths;
    OdGroup group;
    for (std::uint32_t at = 0; m_groups.find(kDash, group, at); at = group.end) lengths.append(group.real);
    return lengths;
}

void OdDbLinetypeTableRecord::setDashes(const OdArray<double>& dashes) {
    OdGroupList& groups = editGroups();
    for (const int code : {kDash, kElementKind, 75, 340, 46, 50, 44, 45, 9, 72, 73, 40}) groups.remove(code);
    double length = 0;
    for (const double dash : dashes) length += std::fabs(dash);
    OdGroupList pattern;
    pattern.addInteger(72, 65);
    pattern.addInteger(73, dashes.length());
    pattern.addReal(40, length);
    for (const double dash : dashes) {
        pattern.addReal(kDash, dash);
        pattern.addInteger(kElementKind, 0);
    }
    const std::uint32_t end = groups.ownEnd();
    groups.replace(end, end, pattern);
}

bool OdDbLinetypeTableRecord::isComplex() const {
    constexpr int kShapeOrText = 6;
    OdGroup group;
    for (std::uint32_t at = 0; m_groups.find(kElementKind, group, at); at = group.end)
        if (group.integer & kShapeOrText) return true;
    return false;
}
