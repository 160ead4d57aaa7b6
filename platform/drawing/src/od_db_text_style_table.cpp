#include "od_db_text_style_table.h"

#include "od_angle.h"

namespace {

constexpr const wchar_t* kFontApplication = L"ACAD";
constexpr int kFontFlags = 1071;
constexpr std::int64_t kItalic = 0x1000000;
constexpr std::int64_t kBold = 0x2000000;

/// The flags of the family in extended data; 0 without one.
std::int64_t fontFlags(const OdGroupList& data) {
    OdGroup group;
    for (std::uint32_t at = 0; data.read(at, group); at = group.end)
        if (group.code == kFontFlags) return group.integer;
    return 0;
}

}  // namespace

OdString OdDbTextStyleTableRecord::fileName() const { return m_groups.text(3); }

void OdDbTextStyleTableRecord::setFileName(const wchar_t* name) { editGroups().setText(3, name); }

OdString OdDbTextStyleTableRecord::bigFontFileName() const { return m_groups.text(4); }

void OdDbTextStyleTableRecord::setBigFontFileName(const wchar_t* name) { editGroups().setText(4, name); }

OdString OdDbTextStyleTableRecord::typeFace() const {
    const OdGroupList data = xData(kFontApplication);
    OdGroup group;
    for (std::uint32_t at = 0; data.read(at, group); at = group.end)
        if (group.code == 1000) return group.wide();
    return {};
}

bool OdDbTextStyleTableRecord::isBold() const { return (fontFlags(xData(kFontApplication)) & kBold) != 0; }

bool OdDbTextStyleTableRecord::isItalic() const {
    return (fontFlags(xData(kFontApplication)) & kItalic) != 0;
}

void OdDbTextStyleTableRecord::setFont(const wchar_t* typeFace, bool bold, bool italic) {
    OdGroupList data;
    if (typeFace && *typeFace) {
        // What the flags say besides the cut (character set, pitch) belongs to the former family.
        const bool same = this->typeFace().iCompare(typeFace) == 0;
        const std::int64_t others = same ? fontFlags(xData(kFontApplication)) & ~(kBold | kItalic) : 0;
        data.addText(1000, typeFace);
        data.addInteger(kFontFlags, others | (bold ? kBold : 0) | (italic ? kItalic : 0));
    }
    setXData(kFontApplication, data);
}

double OdDbTextStyleTableRecord::textSize() const { return m_groups.real(40); }

void OdDbTextStyleTableRecord::setTextSize(double height) { editGroups().setReal(40, height); }

double OdDbTextStyleTableRecord::xScale() const { return m_groups.real(41, 1); }

void OdDbTextStyleTableRecord::setXScale(double factor) { editGroups().setReal(41, factor); }

double OdDbTextStyleTableRecord::obliquingAngle() const { return odRadians(m_groups.real(50)); }

void OdDbTextStyleTableRecord::setObliquingAngle(double radians) {
    editGroups().setReal(50, odDegrees(radians));
}
