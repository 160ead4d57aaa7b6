// What a version of the file format can't hold of a drawing: told before a program saves, never dropped in
// silence.
#pragma once

#include <string>

/// What is lost, or replaced by something else.
enum class OdDxfLossKind {
    kEntity,        ///< entities of one type
    kObject,        ///< objects without a shape of one type (dictionaries, groups, styles of multiline, ...)
    kLayout,        ///< layouts beside model space and one sheet, and page setups
    kName,          ///< names that are written in another form and come back when they are read here
    kTrueColor,     ///< true colours and names of colour books; the nearest palette colour stays
    kTransparency,  ///< transparencies
    kLineWeight,    ///< lineweights
    kPlotStyle,     ///< plot styles and layers that aren't plotted
    kSetting,       ///< other settings in records of one type
    kVariable,      ///< variables of the header with a value that isn't that of a new drawing
    kSection        ///< sections and tables that no program here knows, and the preview
};

/// One kind of loss with its count.
struct OdDxfLoss {
    OdDxfLossKind kind = OdDxfLossKind::kEntity;
    /// The type as files name it ("HATCH", "LAYER"); empty where the kind says all.
    std::string type;
    /// The type of what is written instead ("POLYLINE"); empty for what is left out.
    std::string becomes;
    /// How many entities, objects, names, or records with such a property there are; 1 or more.
    int count = 0;
};
