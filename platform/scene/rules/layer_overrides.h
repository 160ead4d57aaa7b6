// What a single viewport changes of a layer: colour, linetype and weight, kept in records beside the layer.
// Internal to the module.
#pragma once

#include "rules/style_rules.h"

/// Puts into `look` what `viewport` overrides of the layer `record`.
void OverrideLayer(LayerLook& look, const OdDbLayerTableRecord& record, const OdDbObjectId& viewport);
