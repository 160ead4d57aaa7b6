// Puts linetypes of a file into a drawing.
#pragma once

#include <od_db.h>

#include "linetypes/linetype_file.h"
#include "standin_api.h"

/// Whether the linetype can be loaded: it is not complex, and none of ByLayer, ByBlock and Continuous.
STANDIN_API bool CanLoadLinetype(const LinetypeDefinition& definition);

/// Whether the drawing has a linetype of this definition's name.
STANDIN_API bool HasLinetype(OdDbDatabase& drawing, const LinetypeDefinition& definition);

/// What LoadLinetype did.
enum class LinetypeLoad {
    kAdded,
    kReplaced,
    kSkipped,  ///< the drawing has one of the name, and it was not to be replaced
    kRefused   ///< it can't be loaded
};

/// Adds the linetype to the drawing. One of the same name gets the new pattern and description if `replace`
/// holds, so that everything that has it changes with it. `id` becomes that of the linetype in the drawing
/// unless the answer is kRefused.
STANDIN_API LinetypeLoad LoadLinetype(OdDbDatabase& drawing, const LinetypeDefinition& definition,
                                      bool replace, OdDbObjectId& id);
