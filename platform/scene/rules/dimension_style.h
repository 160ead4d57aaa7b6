// The settings of a dimension style, with what a single entity overrides of them. Internal to the module.
#pragma once

#include <map>

#include <od_db.h>

class DimensionStyle {
public:
    /// The style with a name, or Standard; with the overrides that `entity` carries.
    DimensionStyle(OdDbDatabase& drawing, const OdString& name, const OdDbEntity& entity);

    /// Overall scale, above 0.
    double scale() const;
    /// A length setting (by its code in a style), in drawing units, with the overall scale.
    double length(int code, double absent) const { return real(code, absent) * scale(); }
    double real(int code, double absent) const;
    int integer(int code, int absent) const;
    OdString text(int code) const;
    OdDbObjectId object(int code) const;
    OdCmColor color(int code) const;
    /// The block of an arrowhead, by the codes of its object and of its name in older files; null for the
    /// filled, closed one. `name` gets the name that the style gives, where it gives one.
    OdDbObjectId arrowBlock(int code, int nameCode, OdString& name) const;

private:
    bool find(int code, OdGroup& group) const;

    OdDbDatabase& m_drawing;
    OdSmartPtr<OdDbDimStyleTableRecord> m_record;
    OdGroupList m_overrides;
};

/// Codes of settings in a style.
namespace dimension_codes {
constexpr int kArrowSize = 41, kExtensionOffset = 42, kExtensionBeyond = 44, kRounding = 45,
              kTextHeight = 140, kTickSize = 142, kMeasureFactor = 144, kGap = 147, kFirstExtensionOff = 75,
              kSecondExtensionOff = 76, kTextAbove = 77, kZeros = 78, kInsideHorizontal = 73,
              kLineColor = 176, kExtensionColor = 177, kTextColor = 178, kDecimals = 271,
              kAngleDecimals = 179, kSeparator = 278, kPattern = 3, kTextStyle = 340, kLeaderArrow = 341,
              kArrow = 342, kFirstArrow = 343, kSecondArrow = 344, kHasTwoArrows = 173, kLineWeight = 371,
              kExtensionWeight = 372, kUnits = 277, kFormerUnits = 270, kFractions = 276, kTolerance = 71,
              kLimits = 72, kPlus = 47, kMinus = 48, kToleranceScale = 146, kToleranceDecimals = 272,
              kToleranceZeros = 284, kToleranceRow = 283, kAlternateToleranceDecimals = 274,
              kAlternateToleranceZeros = 286, kAlternate = 170, kAlternateFactor = 143,
              kAlternateDecimals = 171, kAlternateUnits = 273, kAlternatePattern = 4, kAlternateZeros = 285,
              kAlternateRounding = 148, kAngleUnits = 275, kAngleZeros = 79, kArcSymbol = 90;
}  // namespace dimension_codes
