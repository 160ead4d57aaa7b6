#include "od_db_shared_reading.h"

#include "od_db_store.h"

OdDbSharedReading::OdDbSharedReading(OdDbDatabase& drawing, std::function<void()> end)
    : m_drawing(drawing), m_end(std::make_unique<std::function<void()>>(std::move(end))) {
    OdDbStore::of(m_drawing).sharedReadings.push_back(m_end.get());
}

OdDbSharedReading::~OdDbSharedReading() { std::erase(OdDbStore::of(m_drawing).sharedReadings, m_end.get()); }
