#include "od_db_symbols.h"

#include "od_angle.h"

double OdDbShape::rotation() const { return odRadians(m_groups.real(50)); }
double OdDbShape::oblique() const { return odRadians(m_groups.real(51)); }
