// The blocks of a drawing as the user inserts them. Knows no window.
#pragma once

#include <vector>

#include <od_db.h>

/// One block, as a list shows it.
struct BlockRow {
    OdDbObjectId id;
    OdString name;
    bool operator==(const BlockRow&) const = default;
};

/// The blocks that a user can insert, by name: those of his own, without arrowheads and callouts.
std::vector<BlockRow> ListBlocks(OdDbDatabase& drawing);

/// Inserts a block into the current space with its origin at `place`, with the current settings; attributes
/// get no values. The reference, or null for a block that isn't there.
OdDbObjectId InsertBlock(OdDbDatabase& drawing, const OdDbObjectId& block, const OdGePoint2d& place);
