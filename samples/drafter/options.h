// What the user sets in Tools > Options: kept per user, and given to the host, the view and the drawing.
#pragma once

#include <ktui/ktui.h>

#include "scene_painter.h"

class OdDbDatabase;

/// Units of a drawing as LUNITS, LUPREC, AUNITS and AUPREC have them.
struct UnitOptions {
    int linear = 2;            ///< 1 to 5
    int linearPrecision = 4;   ///< 0 to 8
    int angular = 0;           ///< 0 to 4
    int angularPrecision = 0;  ///< 0 to 8
    bool operator==(const UnitOptions&) const = default;
};

struct DrafterOptions {
    CString supportFolders;  ///< parted by semicolons; empty for those beside the program
    CString styleSheets;     ///< folder; empty for the one beside the program
    CString templateFile;    ///< drawing that File > New starts from; empty for a bare one
    COLORREF background = kDrawingPaper;
    COLORREF selection = kSelectionColor;
    int crosshair = 5;  ///< per cent of the view, 1 to 100
    UnitOptions units;
};

/// Reads the user's options from the data of dialog `keeper`; what isn't there has its default.
DrafterOptions LoadOptions(CKbUiDialog& keeper);
/// Writes them there; false if something could not be stored.
bool SaveOptions(CKbUiDialog& keeper, const DrafterOptions& options);

/// The folders of a list that is parted by semicolons, trimmed; empty ones are left out.
std::vector<CString> FoldersOf(const CString& list);

UnitOptions UnitsOf(const OdDbDatabase& drawing);
/// Changes what differs; the drawing stays unchanged if nothing does.
void SetUnits(OdDbDatabase& drawing, const UnitOptions& units);
