#include "od_dxf_losses.h"

std::size_t OdDxfLosses::indexOf(OdDxfLossKind kind, std::string_view type, std::string_view becomes) {
    for (std::size_t i = 0; i < m_all.size(); ++i)
        if (m_all[i].kind == kind && m_all[i].type == type && m_all[i].becomes == becomes) return i;
    m_all.push_back({kind, std::string(type), std::string(becomes), 0});
    m_lastRecord.push_back(0);
    return m_all.size() - 1;
}

void OdDxfLosses::add(OdDxfLossKind kind, std::string_view type, std::string_view becomes, int count) {
    if (count > 0) m_all[indexOf(kind, type, becomes)].count += count;
}

void OdDxfLosses::addOnce(OdDxfLossKind kind, std::string_view type) {
    const std::size_t index = indexOf(kind, type, {});
    if (m_lastRecord[index] == m_record && m_all[index].count > 0) return;
    m_lastRecord[index] = m_record;
    ++m_all[index].count;
}

int OdDxfLosses::entitiesLeftOut() const {
    int count = 0;
    for (const OdDxfLoss& loss : m_all)
        if (loss.kind == OdDxfLossKind::kEntity && loss.becomes.empty()) count += loss.count;
    return count;
}
