// BarRecord: where toolbars stand, as it is stored.
#pragma once

#include "bar_rows.h"

namespace kmfc::docking {

struct BarRecord {
    PaneKey id = 0;  ///< its control id
    Side side = Side::top;
    BarPlace place;  ///< in the rows of that side; of a floating bar, where it was docked last
    bool shown = true;
    bool floats = false;
    CRect rect{0, 0, 0, 0};  ///< of its floating frame, screen coordinates
};

/// As numbers: version first, a sum of all last.
KMFC_API std::vector<std::int32_t> encode_bars(const std::vector<BarRecord>& bars);
/// False, with `bars` untouched, for anything that `encode_bars` doesn't write: cut off, longer, another
/// version, an id that is no control's or met twice, a place or rectangle out of range, a wrong sum.
KMFC_API bool decode_bars(const std::vector<std::int32_t>& numbers, std::vector<BarRecord>& bars);

}  // namespace kmfc::docking
