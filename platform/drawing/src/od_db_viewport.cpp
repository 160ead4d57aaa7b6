#include "od_db_viewport.h"

#include "od_angle.h"

bool OdDbViewport::isOn() const {
    constexpr std::int64_t kOff = 0x20000;
    return m_groups.integer(68, 1) != 0 && (m_groups.integer(90) & kOff) == 0;
}

OdGePoint2d OdDbViewport::viewCenter() const {
    const OdGePoint3d center = m_groups.point(12);
    return {center.x, center.y};
}

double OdDbViewport::twistAngle() const { return odRadians(m_groups.real(51)); }

std::vector<OdDbHandle> OdDbViewport::frozenLayers() const {
    std::vector<OdDbHandle> all;
    OdGroup group;
    for (const int code : {331, 341})
        for (std::uint32_t at = 0; m_groups.find(code, group, at); at = group.end)
            all.push_back(group.handle());
    return all;
}

OdDbObjectId OdDbViewport::clipEntity() const {
    constexpr std::int64_t kClipped = 0x10000;
    if ((m_groups.integer(90) & kClipped) == 0) return {};
    return OdDbObjectId(database(), m_groups.handle(340));
}
