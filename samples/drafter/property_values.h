// The properties that the dialog edits: read from the selected objects or from the current settings, and
// written back. A property that differs between the objects has no value. Knows no window.
#pragma once

#include <optional>
#include <vector>

#include <od_db.h>

struct PropertyValues {
    std::optional<OdCmColor> color;
    std::optional<OdDbObjectId> linetype;
    std::optional<double> linetypeScale;
    std::optional<OdDb::LineWeight> lineWeight;
    std::optional<OdString> plotStyle;  ///< ByLayer, ByBlock or a name; none in a colour-dependent drawing
    std::optional<OdString> layer;
    std::optional<OdString> hyperlink;
    std::optional<double> elevation;
    std::optional<double> thickness;
    std::optional<double> rotation;  ///< radians; without a value also where no object has a rotation
    bool hasRotation = false;        ///< some object has one
    bool hasHyperlink = true;        ///< current settings have none
};

/// The values that `objects` share; those of the current settings without objects.
PropertyValues ReadProperties(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& objects);

/// Writes the values that are there to `objects`, or to the current settings without objects. A layer or
/// plot style that the drawing lacks is made.
void WriteProperties(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& objects,
                     const PropertyValues& values);
