#include "od_header_variables.h"

#include "od_angle.h"

#include <algorithm>

namespace {

/// A known variable: its name and code.
struct Known {
    const char* name;
    int code;
};

constexpr Known kKnown[] = {
#define ODDB_ROW(name, code, value, version) {#name, code},
    ODDB_INTEGER_VARIABLES(ODDB_ROW) ODDB_REAL_VARIABLES(ODDB_ROW) ODDB_NAME_VARIABLES(ODDB_ROW)
#undef ODDB_ROW
#define ODDB_ROW(name, code, x, y, z, count, version) {#name, code},
        ODDB_POINT_VARIABLES(ODDB_ROW)
#undef ODDB_ROW
};

const Known* knownVariable(std::string_view name) {
    for (const Known& known : kKnown)
        if (name == known.name) return &known;
    return nullptr;
}

constexpr int kTextCode = 1;

}  // namespace

OdDbHeader::OdDbHeader() {
    m_loading = true;
    OdGroupList groups;
#define ODDB_SET(name, code, value, version) \
    groups.clear();                          \
    groups.addInteger(code, value);          \
    set(#name, groups);
    ODDB_INTEGER_VARIABLES(ODDB_SET)
#undef ODDB_SET
#define ODDB_SET(name, code, value, version) \
    groups.clear();                          \
    groups.addReal(code, value);             \
    set(#name, groups);
    ODDB_REAL_VARIABLES(ODDB_SET)
#undef ODDB_SET
#define ODDB_SET(name, code, value, version) \
    groups.clear();                          \
    groups.addText(code, value);             \
    set(#name, groups);
    ODDB_NAME_VARIABLES(ODDB_SET)
#undef ODDB_SET
#define ODDB_SET(name, code, x, y, z, count, version) \
    groups.clear();                                   \
    groups.addPoint(code, {x, y, z}, count == 2);     \
    set(#name, groups);
    ODDB_POINT_VARIABLES(ODDB_SET)
#undef ODDB_SET
    endFileOrder();
    for (Variable& variable : m_variables) variable.fromFile = false;
}

int OdDbHeader::indexOf(std::string_view name) const {
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? -1 : found->second;
}

const OdGroupList* OdDbHeader::find(std::string_view name) const {
    const int index = indexOf(name);
    return index < 0 ? nullptr : &m_variables[static_cast<std::size_t>(index)].groups;
}

void OdDbHeader::set(std::string_view name, OdGroupList groups) {
    int index = indexOf(name);
    if (index < 0) {
        index = static_cast<int>(m_variables.size());
        m_variables.push_back({std::string(name), {}, false});
        m_byName.emplace(std::string(name), index);
    }
    OdDbHeader::Variable& variable = m_variables[static_cast<std::size_t>(index)];
    variable.groups = std::move(groups);
    variable.fromFile = variable.fromFile || m_loading;
    if (m_loading)
        m_fileOrder.push_back(index);
    else
        refreshUnits();
}

void OdDbHeader::beginFileOrder() { m_loading = true; }

void OdDbHeader::endFileOrder() {
    std::vector<bool> placed(m_variables.size());
    std::vector<Variable> ordered;
    const auto place = [&](int index) {
        const auto at = static_cast<std::size_t>(index);
        if (placed[at]) return;
        placed[at] = true;
        ordered.push_back(std::move(m_variables[at]));
    };
    for (const int index : m_fileOrder) place(index);
    for (std::size_t i = 0; i < placed.size(); ++i) place(static_cast<int>(i));
    m_variables = std::move(ordered);
    for (std::size_t i = 0; i < m_variables.size(); ++i) m_byName[m_variables[i].name] = static_cast<int>(i);
    m_fileOrder.clear();
    m_loading = false;
    refreshUnits();
}

std::int64_t OdDbHeader::integer(std::string_view name) const {
    const OdGroupList* groups = find(name);
    OdGroup group;
    return groups && groups->read(0, group) && group.kind == OdGroupKind::kInteger ? group.integer : 0;
}

double OdDbHeader::real(std::string_view name) const {
    const OdGroupList* groups = find(name);
    OdGroup group;
    if (!groups || !groups->read(0, group) || group.kind != OdGroupKind::kReal) return 0;
    return name == "ANGBASE" ? odRadians(group.real) : group.real;
}

OdString OdDbHeader::text(std::string_view name) const {
    const OdGroupList* groups = find(name);
    OdGroup group;
    return groups && groups->read(0, group) && group.kind == OdGroupKind::kText ? group.wide() : OdString();
}

OdGePoint3d OdDbHeader::point(std::string_view name) const {
    const OdGroupList* groups = find(name);
    return groups ? groups->point(10) : OdGePoint3d{};
}

int OdDbHeader::codeOf(std::string_view name) const {
    const Known* known = knownVariable(name);
    if (known) return known->code;
    const OdGroupList* groups = find(name);
    OdGroup group;
    return groups && groups->read(0, group) ? group.code : -1;
}

void OdDbHeader::setInteger(std::string_view name, std::int64_t value) {
    const int code = codeOf(name) < 0 ? 70 : codeOf(name);
    if (odGroupKind(code) != OdGroupKind::kInteger) return;
    OdGroupList groups;
    groups.addInteger(code, value);
    set(name, std::move(groups));
}

void OdDbHeader::setReal(std::string_view name, double value) {
    const int code = codeOf(name) < 0 ? 40 : codeOf(name);
    if (odGroupKind(code) != OdGroupKind::kReal) return;
    OdGroupList groups;
    groups.addReal(code, name == "ANGBASE" ? odDegrees(value) : value);
    set(name, std::move(groups));
}

void OdDbHeader::setText(std::string_view name, const wchar_t* value) {
    const int code = codeOf(name) < 0 ? kTextCode : codeOf(name);
    if (odGroupKind(code) != OdGroupKind::kText) return;
    OdGroupList groups;
    groups.addText(code, value ? value : L"");
    set(name, std::move(groups));
}

void OdDbHeader::setPoint(std::string_view name, const OdGePoint3d& value) {
    const OdGroupList* old = find(name);
    OdGroup z;
    const bool flat = old && !old->isEmpty() && !old->find(30, z);
    OdGroupList groups;
    groups.addPoint(10, value, flat);
    set(name, std::move(groups));
}

void OdDbHeader::refreshUnits() {
    const auto limited = [&](std::string_view name, int low, int high, int absent) {
        const int index = indexOf(name);
        return index < 0 ? absent : static_cast<int>(std::clamp<std::int64_t>(integer(name), low, high));
    };
    m_units.lunits = limited("LUNITS", 1, 5, 2);
    m_units.luprec = limited("LUPREC", 0, 8, 4);
    m_units.aunits = limited("AUNITS", 0, 4, 0);
    m_units.auprec = limited("AUPREC", 0, 8, 0);
    m_units.unitmode = limited("UNITMODE", 0, 1, 0);
    m_units.angdir = limited("ANGDIR", 0, 1, 0);
    m_units.angbase = real("ANGBASE");
}
