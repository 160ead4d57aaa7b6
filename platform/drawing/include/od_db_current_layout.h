// The layout that a drawing shows: model space, or one of the sheets. A file keeps it by TILEMODE and by the
// name of the block of the sheet that was shown last, "*Paper_Space".
#pragma once

#include "od_db_object_id.h"

/// Makes `layout` the one that OdDbDatabase::currentLayoutId answers; kOdInvalidInput for what is no layout
/// with a block. It goes into files, but the drawing counts as unchanged, and nothing that is undone or done
/// again goes to another layout.
ODRT_API OdResult oddbSetCurrentLayout(const OdDbObjectId& layout);
