// The enumerations of the drawing database that several of its classes share.
#pragma once

#include <cstdint>

/// A drawing-wide unique number of an object, above 0; 0 means none.
using OdDbHandle = std::uint64_t;

namespace OdDb {

/// What an object is opened for.
enum OpenMode { kForRead = 0, kForWrite = 1 };

/// Lineweights in hundredths of a millimetre; the 24 legal ones, and three that stand for another's.
enum LineWeight {
    kLnWtByLwDefault = -3,
    kLnWtByBlock = -2,
    kLnWtByLayer = -1,
    kLnWt000 = 0,
    kLnWt005 = 5,
    kLnWt009 = 9,
    kLnWt013 = 13,
    kLnWt015 = 15,
    kLnWt018 = 18,
    kLnWt020 = 20,
    kLnWt025 = 25,
    kLnWt030 = 30,
    kLnWt035 = 35,
    kLnWt040 = 40,
    kLnWt050 = 50,
    kLnWt053 = 53,
    kLnWt060 = 60,
    kLnWt070 = 70,
    kLnWt080 = 80,
    kLnWt090 = 90,
    kLnWt100 = 100,
    kLnWt106 = 106,
    kLnWt120 = 120,
    kLnWt140 = 140,
    kLnWt158 = 158,
    kLnWt200 = 200,
    kLnWt211 = 211
};

/// Whether `value` is one of the enumerators of LineWeight.
constexpr bool isLegalLineWeight(int value) {
    constexpr int kLegal[] = {-3, -2, -1, 0,  5,  9,  13,  15,  18,  20,  25,  30,  35, 40,
                              50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    for (int legal : kLegal)
        if (legal == value) return true;
    return false;
}

/// The family of a drawing file.
enum SaveFileType { kDwg = 0, kDxf = 1 };

/// The version of a drawing file's format.
enum DwgVersion {
    kDHL_Unknown = 0,
    kDHL_1009 = 16,  ///< R12
    kDHL_1012 = 19,  ///< R13
    kDHL_1014 = 21,  ///< R14
    kDHL_1015 = 23,  ///< 2000
    kDHL_1018 = 25,  ///< 2004
    kDHL_1021 = 27,  ///< 2007
    kDHL_1024 = 29,  ///< 2010
    kDHL_1027 = 31,  ///< 2013
    kDHL_1032 = 33   ///< 2018
};

/// Whether an entity is drawn.
enum Visibility { kInvisible = 1, kVisible = 0 };

/// Values of LUNITS.
enum LinearUnits { kScientific = 1, kDecimal = 2, kEngineering = 3, kArchitectural = 4, kFractional = 5 };

/// Values of AUNITS.
enum AngularUnits { kDegrees = 0, kDegMinSec = 1, kGrads = 2, kRadians = 3, kSurveyor = 4 };

/// What an entity's plot style follows.
enum PlotStyleNameType {
    kPlotStyleNameByLayer = 0,
    kPlotStyleNameByBlock = 1,
    kPlotStyleNameIsDictDefault = 2,
    kPlotStyleNameById = 3
};

}  // namespace OdDb
