#include "od_db_curves.h"

#include "od_angle.h"

double OdDbArc::startAngle() const { return odRadians(m_groups.real(50)); }
void OdDbArc::setStartAngle(double radians) { editGroups().setReal(50, odDegrees(radians)); }
double OdDbArc::endAngle() const { return odRadians(m_groups.real(51)); }
void OdDbArc::setEndAngle(double radians) { editGroups().setReal(51, odDegrees(radians)); }

double OdDbEllipse::endParam() const { return m_groups.real(42, 2 * kOdPi); }

OdGePoint3d OdDbSolid::pointAt(int corner) const {
    if (corner < 0 || corner > 3) return {};
    OdGroup group;
    if (corner == 3 && !m_groups.find(13, group)) corner = 2;
    return m_groups.point(10 + corner);
}

void OdDbSolid::setPointAt(int corner, const OdGePoint3d& point) {
    if (corner >= 0 && corner <= 3) editGroups().setPoint(10 + corner, point);
}
