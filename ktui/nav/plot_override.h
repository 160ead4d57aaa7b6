// What the export of a drawing asks of the working drawing: the kind of its current layout, and the plot
// settings that override those of the layout. Private to the library.
#pragma once

#include <od_db.h>

/// Whether the current layout of the working drawing is model space's; false if it can't be opened.
bool IsModelLayoutCurrent();

/// The plot settings kept beside those of the current layout; made as a copy of the layout's own where there
/// are none. False if the drawing has no place for them.
bool FindPlotOverride(OdDbPlotSettingsPtr& settings);
