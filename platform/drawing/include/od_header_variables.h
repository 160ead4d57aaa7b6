// The header variables of a drawing that the runtime knows, in one table: name, group code, value of a new
// drawing, first file version that has it. OdDbDatabase has a getter and a setter for each, named after it
// (`getLUNITS()`, `setLUNITS(value)`). Variables that aren't in the table are kept by OdDbHeader all the
// same.
//
// Values are as in a file, except that ANGBASE is in radians at the getter and setter.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include <vector>
#include "od_group_list.h"

/// X(name, code, value of a new drawing, first version)
#define ODDB_INTEGER_VARIABLES(X)      \
    X(ATTMODE, 70, 1, kDHL_1009)       \
    X(AUNITS, 70, 0, kDHL_1009)        \
    X(AUPREC, 70, 0, kDHL_1009)        \
    X(ANGDIR, 70, 0, kDHL_1009)        \
    X(FILLMODE, 70, 1, kDHL_1009)      \
    X(LIMCHECK, 70, 0, kDHL_1009)      \
    X(LUNITS, 70, 2, kDHL_1009)        \
    X(LUPREC, 70, 4, kDHL_1009)        \
    X(MIRRTEXT, 70, 0, kDHL_1009)      \
    X(ORTHOMODE, 70, 0, kDHL_1009)     \
    X(PDMODE, 70, 0, kDHL_1009)        \
    X(PLINEGEN, 70, 0, kDHL_1009)      \
    X(PSLTSCALE, 70, 1, kDHL_1009)     \
    X(QTEXTMODE, 70, 0, kDHL_1009)     \
    X(REGENMODE, 70, 1, kDHL_1009)     \
    X(TILEMODE, 70, 1, kDHL_1009)      \
    X(UNITMODE, 70, 0, kDHL_1009)      \
    X(VISRETAIN, 70, 1, kDHL_1009)     \
    X(DIMZIN, 70, 8, kDHL_1009)        \
    X(CECOLOR, 62, 256, kDHL_1009)     \
    X(PROXYGRAPHICS, 70, 1, kDHL_1012) \
    X(DIMDEC, 70, 4, kDHL_1012)        \
    X(MEASUREMENT, 70, 1, kDHL_1014)   \
    X(CELWEIGHT, 370, -1, kDHL_1015)   \
    X(CEPSNTYPE, 380, 0, kDHL_1015)    \
    X(INSUNITS, 70, 4, kDHL_1015)      \
    X(LWDISPLAY, 290, 0, kDHL_1015)    \
    X(PSTYLEMODE, 290, 1, kDHL_1015)   \
    X(INDEXCTL, 280, 0, kDHL_1018)

/// X(name, code, value of a new drawing, first version)
#define ODDB_REAL_VARIABLES(X)       \
    X(ANGBASE, 50, 0.0, kDHL_1009)   \
    X(DIMASZ, 40, 2.5, kDHL_1009)    \
    X(DIMSCALE, 40, 1.0, kDHL_1009)  \
    X(DIMTXT, 40, 2.5, kDHL_1009)    \
    X(ELEVATION, 40, 0.0, kDHL_1009) \
    X(FILLETRAD, 40, 0.0, kDHL_1009) \
    X(LTSCALE, 40, 1.0, kDHL_1009)   \
    X(PDSIZE, 40, 0.0, kDHL_1009)    \
    X(TEXTSIZE, 40, 2.5, kDHL_1009)  \
    X(THICKNESS, 40, 0.0, kDHL_1009) \
    X(TRACEWID, 40, 1.0, kDHL_1009)  \
    X(CELTSCALE, 40, 1.0, kDHL_1012)

/// X(name, code, x, y, z, count of coordinates, first version)
#define ODDB_POINT_VARIABLES(X)                      \
    X(INSBASE, 10, 0.0, 0.0, 0.0, 3, kDHL_1009)      \
    X(EXTMIN, 10, 1e20, 1e20, 1e20, 3, kDHL_1009)    \
    X(EXTMAX, 10, -1e20, -1e20, -1e20, 3, kDHL_1009) \
    X(LIMMIN, 10, 0.0, 0.0, 0.0, 2, kDHL_1009)       \
    X(LIMMAX, 10, 420.0, 297.0, 0.0, 2, kDHL_1009)

/// X(name, code, value of a new drawing, first version): names of table records
#define ODDB_NAME_VARIABLES(X)             \
    X(CLAYER, 8, "0", kDHL_1009)           \
    X(CELTYPE, 6, "ByLayer", kDHL_1009)    \
    X(TEXTSTYLE, 7, "Standard", kDHL_1009) \
    X(DIMSTYLE, 2, "Standard", kDHL_1009)

/// The settings by which numbers become text, ready for use at every keystroke.
struct OdDbUnitSettings {
    int lunits = 2;      ///< LUNITS, 1 to 5
    int luprec = 4;      ///< LUPREC, 0 to 8
    int aunits = 0;      ///< AUNITS, 0 to 4
    int auprec = 0;      ///< AUPREC, 0 to 8
    int unitmode = 0;    ///< UNITMODE, 0 or 1
    int angdir = 0;      ///< ANGDIR, 1 for clockwise
    double angbase = 0;  ///< ANGBASE in radians
};

/// The header variables of one drawing in file order, known and unknown ones alike.
class ODRT_API OdDbHeader {
public:
    /// One variable: its name without the leading dollar sign, and its groups.
    struct Variable {
        std::string name;
        OdGroupList groups;
        bool fromFile;  ///< whether the file that was read had it
    };

    /// Only the known variables, with the values of a new drawing.
    OdDbHeader();
    /// Every variable, in file order.
    const std::vector<Variable>& variables() const { return m_variables; }
    /// The groups of one variable; null if there is none of that name.
    const OdGroupList* find(std::string_view name) const;
    /// Replaces the groups of a variable, or adds it at the end.
    void set(std::string_view name, OdGroupList groups);
    /// The order of the variables becomes that in which they are set from now on; what isn't set again
    /// follows.
    void beginFileOrder();
    void endFileOrder();

    std::int64_t integer(std::string_view name) const;
    double real(std::string_view name) const;
    OdString text(std::string_view name) const;
    OdGePoint3d point(std::string_view name) const;
    void setInteger(std::string_view name, std::int64_t value);
    void setReal(std::string_view name, double value);
    void setText(std::string_view name, const wchar_t* value);
    void setPoint(std::string_view name, const OdGePoint3d& value);

    /// The unit settings, with values out of range brought to the nearest legal one.
    const OdDbUnitSettings& units() const { return m_units; }

private:
    int indexOf(std::string_view name) const;
    int codeOf(std::string_view name) const;
    void refreshUnits();
    std::vector<Variable> m_variables;
    std::map<std::string, int, std::less<>> m_byName;
    std::vector<int> m_fileOrder;
    bool m_loading = false;
    OdDbUnitSettings m_units;
};
