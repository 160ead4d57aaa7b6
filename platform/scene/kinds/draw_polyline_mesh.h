// Edges of meshes, gathered into one path; and the meshes that polylines can be. Internal to the module.
#pragma once

#include "entity_pen.h"

/// Lines that don't hang together.
class EdgeList {
public:
    void add(const OdGePoint3d& from, const OdGePoint3d& to) {
        if (!m_points.empty()) m_breaks.push_back(m_points.size());
        m_points.push_back(from);
        m_points.push_back(to);
    }
    void draw(const EntityPen& pen) const {
        if (!m_points.empty()) pen.strokes(m_points, m_breaks);
    }

private:
    std::vector<OdGePoint3d> m_points;
    std::vector<std::size_t> m_breaks;
};

/// Draws a polyline that is a polygon or polyface mesh.
void DrawPolylineMesh(const OdDb2dPolyline& polyline, const EntityPen& pen);
