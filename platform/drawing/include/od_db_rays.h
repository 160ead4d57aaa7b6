// Lines without an end.
#pragma once

#include "od_db_entity.h"

/// A line from a point without end in one direction.
class ODRT_API OdDbRay : public OdDbEntity {
public:
    const char* dxfName() const override { return "RAY"; }
    OdGePoint3d basePoint() const { return m_groups.point(10); }
    OdGePoint3d unitDir() const { return m_groups.point(11, {1, 0, 0}); }
};

/// A line through a point without end in both directions.
class ODRT_API OdDbXline : public OdDbRay {
public:
    const char* dxfName() const override { return "XLINE"; }
};
