// A layout as the numbers in which the framework's docking manager serializes it: version first, a sum of all
// last. What the manager doesn't keep (what is known of single panes) isn't among them.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <cstdint>
#include <vector>

#include <ktui/docking/layout_record.h>

namespace layouts {

/// The numbers of a layout that keeps the rules of a file (see layout_xml.h).
std::vector<std::int32_t> ToNumbers(const Record& record);
/// False, with `record` untouched, for numbers of another version and such as no manager writes. `panes` is
/// left empty.
bool FromNumbers(const std::vector<std::int32_t>& numbers, Record& record);

}  // namespace layouts
