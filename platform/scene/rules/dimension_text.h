// What a dimension says: its measure by the rules of its style. Internal to the module.
#pragma once

#include "rules/dimension_style.h"

/// The parts of what a dimension says of its measure, with the codes of a paragraph.
struct DimensionMeasure {
    std::wstring main;       ///< with what the style puts around it and its tolerance, or its limits
    std::wstring alternate;  ///< in the style's other units; empty for none
};

/// A length in drawing units. `sign` stands in front of the number.
DimensionMeasure LengthMeasure(double length, std::wstring_view sign, const DimensionStyle& style);

/// An angle in radians.
DimensionMeasure AngleMeasure(double angle, const DimensionStyle& style);

/// The whole text of a dimension: its measure in place of "<>" in the entity's own words, and its alternate
/// one in place of "[]"; empty for words that are a blank.
OdString DimensionWords(const OdString& own, const DimensionMeasure& measure);
