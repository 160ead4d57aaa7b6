// Text styles: the font and proportions that texts are written in.
#pragma once

#include "od_db_symbol_table.h"

/// One text style.
class ODRT_API OdDbTextStyleTableRecord : public OdDbSymbolTableRecord {
public:
    const char* dxfName() const override { return "STYLE"; }

    /// The font's file name, SHX or TrueType; may be empty.
    OdString fileName() const;
    void setFileName(const wchar_t* name);
    /// The file name of the font for Asian characters; may be empty.
    OdString bigFontFileName() const;
    void setBigFontFileName(const wchar_t* name);
    /// The TrueType family, where the style names one; may be empty.
    OdString typeFace() const;
    /// Whether the style asks for the bold or the italic cut of its TrueType family.
    bool isBold() const;
    bool isItalic() const;
    /// Names the TrueType family and its cut; an empty name makes it a style of the font file alone.
    void setFont(const wchar_t* typeFace, bool bold, bool italic);
    /// Fixed text height in drawing units; 0 when each text has its own.
    double textSize() const;
    void setTextSize(double height);
    /// Width factor, 1 for the font's own width.
    double xScale() const;
    void setXScale(double factor);
    /// Slant in radians, to the right above 0.
    double obliquingAngle() const;
    void setObliquingAngle(double radians);
    /// Whether the record only makes a shape file known.
    bool isShapeFile() const { return (flags() & 1) != 0; }
};
using OdDbTextStyleTableRecordPtr = OdSmartPtr<OdDbTextStyleTableRecord>;

/// The text styles of a drawing.
class ODRT_API OdDbTextStyleTable : public OdDbSymbolTable {
public:
    OdDbTextStyleTable() : OdDbSymbolTable("STYLE") {}
    OdDbSymbolTableRecordPtr newRecord() const override { return new OdDbTextStyleTableRecord; }
};
using OdDbTextStyleTablePtr = OdSmartPtr<OdDbTextStyleTable>;
