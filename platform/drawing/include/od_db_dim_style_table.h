// Dimension styles: arrowheads, sizes, and the look of the dimension line.
//
// An arrowhead is the name of a block of the drawing ("_Dot"); the empty name stands for the filled, closed
// arrowhead, which has no block. Files from 2000 on refer to the block, older ones name it.
#pragma once

#include "od_cm_color.h"
#include "od_db_symbol_table.h"

/// One dimension style. Settings without an accessor are kept.
class ODRT_API OdDbDimStyleTableRecord : public OdDbSymbolTableRecord {
public:
    const char* dxfName() const override { return "DIMSTYLE"; }

    /// The arrowhead of both ends, used while dimsah() is false.
    OdString dimblk() const { return arrowhead(342, 5); }
    /// The arrowheads of the first and the second end, used while dimsah() is true.
    OdString dimblk1() const { return arrowhead(343, 6); }
    OdString dimblk2() const { return arrowhead(344, 7); }
    /// The arrowhead of leaders.
    OdString dimldrblk() const { return arrowhead(341, kNoNameCode); }
    // kOdKeyNotFound for a name that is no block of the drawing, kOdNoDatabase before the record is in one.
    OdResult setDimblk(const wchar_t* name) { return setArrowhead(342, 5, name); }
    OdResult setDimblk1(const wchar_t* name) { return setArrowhead(343, 6, name); }
    OdResult setDimblk2(const wchar_t* name) { return setArrowhead(344, 7, name); }
    OdResult setDimldrblk(const wchar_t* name) { return setArrowhead(341, kNoNameCode, name); }
    /// Whether the two ends have arrowheads of their own.
    bool dimsah() const { return m_groups.integer(173) != 0; }
    void setDimsah(bool separate) { editGroups().setInteger(173, separate ? 1 : 0); }

    /// Size of the arrowheads and height of the text in drawing units, before the overall scale.
    double dimasz() const { return m_groups.real(41, 0.18); }
    void setDimasz(double size) { editGroups().setReal(41, size); }
    double dimtxt() const { return m_groups.real(140, 0.18); }
    void setDimtxt(double height) { editGroups().setReal(140, height); }
    /// Overall scale; 0 lets the layout decide.
    double dimscale() const { return m_groups.real(40, 1); }

    /// Colour of the dimension line and its arrowheads, an indexed one; ByBlock at first.
    OdCmColor dimclrd() const;
    void setDimclrd(const OdCmColor& color) { editGroups().setInteger(176, color.colorIndex()); }
    /// Lineweight of the dimension line; ByBlock at first.
    OdDb::LineWeight dimlwd() const;
    OdResult setDimlwd(OdDb::LineWeight weight);
    /// Linetype of the dimension line; that which stands for ByBlock at first.
    OdDbObjectId dimltype() const;
    /// What it is already is not written again.
    OdResult setDimltype(const OdDbObjectId& linetype);

private:
    static constexpr int kNoNameCode = -1;
    OdString arrowhead(int handleCode, int nameCode) const;
    OdResult setArrowhead(int handleCode, int nameCode, const wchar_t* name);
};
using OdDbDimStyleTableRecordPtr = OdSmartPtr<OdDbDimStyleTableRecord>;

/// The dimension styles of a drawing.
class ODRT_API OdDbDimStyleTable : public OdDbSymbolTable {
public:
    OdDbDimStyleTable() : OdDbSymbolTable("DIMSTYLE") {}
    OdDbSymbolTableRecordPtr newRecord() const override { return new OdDbDimStyleTableRecord; }
};
using OdDbDimStyleTablePtr = OdSmartPtr<OdDbDimStyleTable>;
