#include "rules/dimension_style.h"

namespace {

/// What extended data overrides of the style: pairs of a code and a value, as groups with these codes.
OdGroupList overridesOf(const OdDbEntity& entity) {
    constexpr int kText = 1000, kBracket = 1002, kHandle = 1005, kReal = 1040, kInteger = 1070;
    OdGroupList found;
    const OdGroupList data = entity.xData(L"ACAD");
    OdGroup group;
    bool begun = false, hasCode = false;
    int code = 0;
    for (std::uint32_t at = 0; data.read(at, group); at = group.end) {
        if (group.code == kText && !begun) begun = group.text == "DSTYLE";
        if (!begun || group.code == kBracket) {
            if (begun && group.text == "}") break;
            continue;
        }
        if (!hasCode) {
            hasCode = group.code == kInteger;
            code = static_cast<int>(group.integer);
            continue;
        }
        hasCode = false;
        const OdGroupKind kind = odGroupKind(code);
        if (group.code == kReal && kind == OdGroupKind::kReal) found.addReal(code, group.real);
        if (group.code == kInteger && kind == OdGroupKind::kInteger) found.addInteger(code, group.integer);
        if (group.code == kHandle && kind == OdGroupKind::kHandle) found.addHandle(code, group.handle());
        if (group.code == kText && kind == OdGroupKind::kText) found.addText(code, group.text);
    }
    return found;
}

}  // namespace

DimensionStyle::DimensionStyle(OdDbDatabase& drawing, const OdString& name, const OdDbEntity& entity)
    : m_drawing(drawing), m_overrides(overridesOf(entity)) {
    OdDbDimStyleTablePtr styles;
    if (drawing.getDimStyleTable(styles) != kOdOk) return;
    m_record = styles->getAt(name).open<OdDbDimStyleTableRecord>();
    if (!m_record) m_record = styles->getAt(L"Standard").open<OdDbDimStyleTableRecord>();
}

bool DimensionStyle::find(int code, OdGroup& group) const {
    if (m_overrides.find(code, group)) return true;
    return m_record && m_record->groups().find(code, group);
}

double DimensionStyle::real(int code, double absent) const {
    OdGroup group;
    return find(code, group) ? group.real : absent;
}

int DimensionStyle::integer(int code, int absent) const {
    OdGroup group;
    return find(code, group) ? static_cast<int>(group.integer) : absent;
}

OdString DimensionStyle::text(int code) const {
    OdGroup group;
    return find(code, group) ? group.wide() : OdString();
}

OdDbObjectId DimensionStyle::object(int code) const {
    OdGroup group;
    return find(code, group) ? OdDbObjectId(&m_drawing, group.handle()) : OdDbObjectId();
}

OdCmColor DimensionStyle::color(int code) const {
    OdCmColor color;
    if (!color.setColorIndex(integer(code, OdCmColor::kByBlockIndex)))
        color.setColorIndex(OdCmColor::kByBlockIndex);
    return color;
}

double DimensionStyle::scale() const {
    constexpr int kScale = 40;
    const double scale = real(kScale, 1);
    return scale > 0 ? scale : 1;
}

OdDbObjectId DimensionStyle::arrowBlock(int code, int nameCode, OdString& name) const {
    if (const auto block = object(code).open<OdDbBlockTableRecord>()) {
        name = block->getName();
        return block->objectId();
    }
    OdDbBlockTablePtr blocks;
    name = text(nameCode);
    if (name.isEmpty() || m_drawing.getBlockTable(blocks) != kOdOk) return {};
    return blocks->getAt(name);
}
