// The layers of a drawing as the user edits them: listed, made, renamed, changed and deleted. Knows no
// window.
#pragma once

#include <optional>
#include <vector>

#include <od_db.h>

/// One layer, as a list shows it.
struct LayerRow {
    OdDbObjectId id;
    OdString name;
    OdCmColor color;
    OdDbObjectId linetype;
    OdDb::LineWeight lineWeight = OdDb::kLnWtByLwDefault;
    bool isOn = true;
    bool isCurrent = false;
};

/// The layers whose name holds `filter`, without regard to case, by name; all of them for an empty one.
std::vector<LayerRow> ListLayers(OdDbDatabase& drawing, const OdString& filter = OdString());

/// What is wrong with a name for a layer.
enum class LayerNameProblem { kNone, kBad, kTaken, kFixed };

/// Whether `layer` may get this name, or a new layer if it is null. kFixed for the layer 0 and those of
/// external references, which keep their names.
LayerNameProblem CheckLayerName(OdDbDatabase& drawing, const OdString& name,
                                const OdDbObjectId& layer = OdDbObjectId());
/// The name without blanks at its ends.
OdString TrimmedLayerName(const OdString& name);
/// `base` with the first number behind it that makes a name that isn't taken.
OdString FreeLayerName(OdDbDatabase& drawing, const OdString& base);

/// The layer of this name, which is made if the drawing lacks it.
OdDbObjectId NeedLayer(OdDbDatabase& drawing, const OdString& name);

/// What to change of layers; what has no value stays.
struct LayerChange {
    std::optional<bool> isOn;
    std::optional<OdCmColor> color;
    std::optional<OdDbObjectId> linetype;
    std::optional<OdDb::LineWeight> lineWeight;
};
void ChangeLayers(const std::vector<OdDbObjectId>& layers, const LayerChange& change);

/// Gives the layers of `drawing` the settings that layers of the same names have in `from`, and makes those
/// that it lacks, with linetypes that it lacks. Answers how many layers `from` has.
int TakeLayers(OdDbDatabase& drawing, OdDbDatabase& from);

/// Why a layer can't be deleted.
enum class LayerNeed { kNone, kIsStandard, kIsDependent, kIsCurrent, kHasObjects, kIsInBlock, kIsNamed };
struct LayerRefusal {
    LayerNeed need = LayerNeed::kNone;
    OdString layer;  ///< its name
    int count = 0;   ///< of the objects that use it
    OdString block;  ///< that holds some of them
};
/// Deletes the layers, or none of them if one is needed: the answer is about the first of these.
LayerRefusal DeleteLayers(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& layers);
