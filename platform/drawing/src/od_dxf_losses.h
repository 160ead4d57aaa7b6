// What is left out or replaced while a drawing is written.
#pragma once

#include <string_view>
#include <vector>
#include "od_dxf_loss.h"

/// Counts losses by kind and type, in the order in which they are first met.
class OdDxfLosses {
public:
    void add(OdDxfLossKind kind, std::string_view type, std::string_view becomes = {}, int count = 1);
    /// Begins a record; addOnce() counts each kind of loss once for it.
    void beginRecord() { ++m_record; }
    void addOnce(OdDxfLossKind kind, std::string_view type);
    const std::vector<OdDxfLoss>& all() const { return m_all; }
    /// How many entities were left out and have nothing in their place.
    int entitiesLeftOut() const;

private:
    std::size_t indexOf(OdDxfLossKind kind, std::string_view type, std::string_view becomes);

    std::vector<OdDxfLoss> m_all;
    std::vector<std::size_t> m_lastRecord;  // of each entry of m_all
    std::size_t m_record = 0;
};
