// What the dialog of text styles edits, read from the styles of a drawing and written back. Knows no window.
#pragma once

#include <vector>

#include <od_db.h>

/// One style.
struct TextStyleValues {
    OdString name;
    OdString file;     ///< of the font
    OdString bigFile;  ///< of the font for Asian characters; empty for none
    OdString family;   ///< of a TrueType font, where the style names it
    bool bold = false;
    bool italic = false;
    double height = 0;  ///< drawing units; 0 leaves it to each text
    double width = 1;   ///< factor
    double slant = 0;   ///< radians, to the right above 0

    bool operator==(const TextStyleValues&) const = default;
};

/// The styles in the order of the drawing's table; those that only make a shape file known are left out.
std::vector<TextStyleValues> ReadTextStyles(OdDbDatabase& drawing);
/// Writes one style, which is made if the drawing lacks it.
void WriteTextStyle(OdDbDatabase& drawing, const TextStyleValues& values);
/// Makes a style of the drawing the current one.
void SetCurrentTextStyle(OdDbDatabase& drawing, const OdString& name);
