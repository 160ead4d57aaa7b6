#include "rules/viewport_view.h"

#include <od_db.h>

namespace {

constexpr int kText = 1000, kBracket = 1002, kLayer = 1003, kX = 1010, kY = 1020, kZ = 1030, kReal = 1040;

/// Reads the view out of the list that MVIEW opens: target, direction, then reals in a fixed order, and in a
/// list of its own the names of frozen layers.
class ViewData {
public:
    explicit ViewData(const OdDbViewport& viewport) : m_viewport(viewport) {}
    bool read(ViewportView& view);

private:
    void take(const OdGroup& group);
    void freeze(const OdGroup& group);

    const OdDbViewport& m_viewport;
    ViewportView m_view;
    int m_points = 0, m_reals = 0;
};

void ViewData::freeze(const OdGroup& group) {
    OdDbLayerTablePtr layers;
    if (m_viewport.database() == nullptr || m_viewport.database()->getLayerTable(layers) != kOdOk) return;
    const OdDbObjectId layer = layers->getAt(group.wide().c_str());
    if (!layer.isNull()) m_view.frozen.push_back(layer.handle());
}

void ViewData::take(const OdGroup& group) {
    enum { kTwist, kHeight, kCenterX, kCenterY };
    if (group.code == kX) ++m_points;
    OdGePoint3d& point = m_points == 1 ? m_view.target : m_view.direction;
    if (m_points > 2) {
        // Further points aren't of the view.
    } else if (group.code == kX) {
        point.x = group.real;
    } else if (group.code == kY) {
        point.y = group.real;
    } else if (group.code == kZ) {
        point.z = group.real;
    } else if (group.code == kReal) {
        // Extended data have angles as they are: in radians.
        if (m_reals == kTwist) m_view.twist = group.real;
        if (m_reals == kHeight) m_view.height = group.real;
        if (m_reals == kCenterX) m_view.center.x = group.real;
        if (m_reals == kCenterY) m_view.center.y = group.real;
        ++m_reals;
    } else if (group.code == kLayer) {
        freeze(group);
    }
}

bool ViewData::read(ViewportView& view) {
    constexpr int kWanted = 4;
    const OdGroupList data = m_viewport.xData(L"ACAD");
    OdGroup group;
    bool begun = false;
    int depth = 0;
    for (std::uint32_t at = 0; data.read(at, group); at = group.end) {
        if (!begun) {
            begun = group.code == kText && group.text == "MVIEW";
        } else if (group.code == kBracket) {
            depth += group.text == "{" ? 1 : -1;
            if (depth <= 0) break;
        } else {
            take(group);
        }
    }
    if (m_points < 2 || m_reals < kWanted) return false;
    view = std::move(m_view);
    return true;
}

}  // namespace

ViewportView ViewOf(const OdDbViewport& viewport) {
    ViewportView view;
    if (!(viewport.viewHeight() > 0) && ViewData(viewport).read(view)) return view;
    view.target = viewport.viewTarget();
    view.direction = viewport.viewDirection();
    view.twist = viewport.twistAngle();
    view.center = viewport.viewCenter();
    view.height = viewport.viewHeight();
    view.frozen = viewport.frozenLayers();
    return view;
}
