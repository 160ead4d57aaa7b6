// What a dimension says: its measure by the rules of its style. Internal to the module.
#pragma once

#include "rules/dimension_style.h"

/// A measure with the style's decimals, separator and suppressed zeros.
OdString MeasureText(double value, int decimals, const DimensionStyle& style);

/// The whole text of a dimension: `measure` with what the style puts around it, in place of "<>" in the
/// entity's own words; empty for words that are a blank.
OdString DimensionWords(const OdString& own, const OdString& measure, const DimensionStyle& style);
