// Panes of one layout put into another, as near as can be to where they stand in theirs.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <ktui/docking/layout_record.h>

namespace layouts {

/// Puts panes that stand in `from` into `into`, where they don't stand: in a tab with those that share tabs
/// with them in `from`; beside the nearest neighbours that they have there; else in a row at the same side,
/// or in a floating frame, of their own. What is known of them comes along. Panes that `from` doesn't know
/// are left out.
void Bring(const Record& from, const std::set<unsigned>& panes, Record& into);

}  // namespace layouts
