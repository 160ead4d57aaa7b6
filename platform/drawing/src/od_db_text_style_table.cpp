#include "od_db_text_style_table.h"

#include "od_angle.h"

OdString OdDbTextStyleTableRecord::fileName() const { return m_groups.text(3); }

void OdDbTextStyleTableRecord::setFileName(const wchar_t* name) { editGroups().setText(3, name); }

OdString OdDbTextStyleTableRecord::bigFontFileName() const { return m_groups.text(4); }

void OdDbTextStyleTableRecord::setBigFontFileName(const wchar_t* name) { editGroups().setText(4, name); }

OdString OdDbTextStyleTableRecord::typeFace() const {
    const OdGroupList data = xData(L"ACAD");
    OdGroup group;
    for (std::uint32_t at = 0; data.read(at, group); at = group.end)
        if (group.code == 1000) return group.wide();
    return {};
}

double OdDbTextStyleTableRecord::textSize() const { return m_groups.real(40); }

void OdDbTextStyleTableRecord::setTextSize(double height) { editGroups().setReal(40, height); }

double OdDbTextStyleTableRecord::xScale() const { return m_groups.real(41, 1); }

void OdDbTextStyleTableRecord::setXScale(double factor) { editGroups().setReal(41, factor); }

double OdDbTextStyleTableRecord::obliquingAngle() const { return odRadians(m_groups.real(50)); }
