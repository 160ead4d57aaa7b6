// DockedBars: what is kept of bars, and bringing it back.
#include <algorithm>

#include <kmfc/bar_frame_wnd.h>
#include <kmfc/docking_manager.h>
#include <kmfc/menu_bar.h>

#include "docked_bars.h"
#include "frame_state.h"

namespace kmfc::docking {

namespace {

constexpr int kLastId = 0xFFFE;  // of those that can be found again

BarRecord about(const CMFCToolBar& bar) {
    BarRecord record;
    record.id = static_cast<PaneKey>(bar.GetDlgCtrlID());
    record.shown = bar.IsVisible() != FALSE;
    return record;
}

}  // namespace

std::vector<BarRecord> DockedBars::stored() const {
    std::vector<BarRecord> records;
    for (const CMFCToolBar* const bar : bars()) {
        BarRecord record = about(*bar);
        const auto has_id = [&](const BarRecord& one) { return one.id == record.id; };
        if (record.id < 1 || record.id > kLastId || std::any_of(records.begin(), records.end(), has_id))
            continue;
        if (const std::optional<Side> side = side_of_bar(*bar)) {
            record.side = *side;
            record.place = *site(*side)->rows().place_of(key_of(bar));
        } else if (const CPaneFrameWnd* const frame = bar->GetParentMiniFrame()) {
            record.floats = true;
            frame->GetWindowRect(&record.rect);
            record.side = side_of(bar->GetCurrentAlignment());
            if (const auto recent = m_recent.find(bar); recent != m_recent.end()) {
                record.side = recent->second.side;
                record.place = recent->second.place;
            }
        } else {
            continue;
        }
        records.push_back(record);
    }
    // In a row they stand in the order of its bars.
    const auto order = [this](const BarRecord& record) {
        const auto* const bar =
            static_cast<CMFCToolBar*>(m_manager.FindPaneByID(static_cast<UINT>(record.id), TRUE));
        if (record.floats) return 0;
        int at = 0;
        for (const BarRows::Bar& one :
             site(record.side)->rows().rows()[static_cast<size_t>(record.place.row)]) {
            if (one.bar == key_of(bar)) return at;
            ++at;
        }
        return at;
    };
    std::stable_sort(records.begin(), records.end(), [&](const BarRecord& one, const BarRecord& other) {
        return std::make_tuple(one.floats, one.side, one.place.row, order(one)) <
               std::make_tuple(other.floats, other.side, other.place.row, order(other));
    });
    return records;
}

void DockedBars::restore(const std::vector<BarRecord>& records) {
    if (!make_sites()) return;
    std::array<BarRows, kSides> next;
    std::array<int, kSides> lastRow{-1, -1, -1, -1};
    std::vector<std::pair<CMFCToolBar*, const BarRecord*>> found;
    for (const BarRecord& record : records) {
        auto* const bar =
            DYNAMIC_DOWNCAST(CMFCToolBar, m_manager.FindPaneByID(static_cast<UINT>(record.id), TRUE));
        if (bar == nullptr || (!record.floats && !may_dock(*bar, record.side))) continue;
        found.emplace_back(bar, &record);
        if (record.floats) continue;
        int& last = lastRow[static_cast<size_t>(record.side)];
        next[static_cast<size_t>(record.side)].append({key_of(bar), record.place.offset, record.shown},
                                                      record.place.row != last);
        last = record.place.row;
    }
    // Bars that the record doesn't know keep their side, further inside.
    const auto is_found = [&](PaneKey key) {
        return std::any_of(found.begin(), found.end(),
                           [&](const auto& one) { return key_of(one.first) == key; });
    };
    for (CDockSite* const one : sites())
        for (const BarRows::Row& row : one->rows().rows()) {
            bool begins = true;
            for (const BarRows::Bar& bar : row) {
                if (is_found(bar.bar)) continue;
                if (bar.bar == key_of(m_manager.menu_bar())) {
                    // The menu stands where one looks for it.
                    next[static_cast<size_t>(one->side())].dock(bar.bar, {0, true, bar.offset}, one->length(),
                                                                extents_at(one->side()));
                    continue;
                }
                next[static_cast<size_t>(one->side())].append(bar, begins);
                begins = false;
            }
        }
    for (const auto& [bar, record] : found) {
        if (record->floats) {
            float_bar(*bar, record->rect.TopLeft(), record->rect.Width(), false);
            m_recent[bar] = {record->side, record->place};
        } else {
            move_home(*bar, record->side);
            m_recent.erase(bar);
        }
    }
    for (CDockSite* const one : sites()) one->rows() = next[static_cast<size_t>(one->side())];
    for (const auto& [bar, record] : found) bar->ShowPane(record->shown, TRUE, FALSE);
    m_manager.AdjustDockingLayout();
}

}  // namespace kmfc::docking
