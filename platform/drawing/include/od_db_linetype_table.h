// Linetypes: dash patterns, among them the two that stand for another's, ByLayer and ByBlock.
#pragma once

#include "od_array.h"
#include "od_db_symbol_table.h"

/// One linetype.
class ODRT_API OdDbLinetypeTableRecord : public OdDbSymbolTableRecord {
public:
    const char* dxfName() const override { return "LTYPE"; }

    /// The description, for instance "Dashed __ __ __".
    OdString comments() const;
    void setComments(const wchar_t* text);
    /// Length of one repetition in drawing units; 0 for a continuous line.
    double patternLength() const;
    /// Count of the dashes, gaps and dots of one repetition.
    int numDashes() const;
    /// Length of one of them: above 0 a dash, below 0 a gap, 0 a dot. An index out of range gives 0.
    double dashLengthAt(int index) const;
    /// All of them in order.
    OdArray<double> dashes() const;
    /// Replaces the pattern by a simple one, without shapes or texts; the pattern length follows.
    void setDashes(const OdArray<double>& dashes);
    /// Whether the pattern holds shapes or texts, which are kept but not decoded.
    bool isComplex() const;
};
using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;

/// The linetypes of a drawing.
class ODRT_API OdDbLinetypeTable : public OdDbSymbolTable {
public:
    OdDbLinetypeTable() : OdDbSymbolTable("LTYPE") {}
    OdDbSymbolTableRecordPtr newRecord() const override { return new OdDbLinetypeTableRecord; }
    /// The records that stand for the layer's and the block's linetype; never null in a drawing.
    OdDbObjectId getLinetypeByLayerId() const { return getAt(L"ByLayer"); }
    OdDbObjectId getLinetypeByBlockId() const { return getAt(L"ByBlock"); }
};
using OdDbLinetypeTablePtr = OdSmartPtr<OdDbLinetypeTable>;
