// Layers: what entities take their colour, linetype, lineweight and plot style from.
#pragma once

#include "od_cm_color.h"
#include "od_db_symbol_table.h"

/// One layer.
class ODRT_API OdDbLayerTableRecord : public OdDbSymbolTableRecord {
public:
    const char* dxfName() const override { return "LAYER"; }

    /// The colour's palette index, 1 to 255; for a true colour the nearest.
    int colorIndex() const;
    /// The colour, also of a layer that is off.
    OdCmColor color() const;
    void setColor(const OdCmColor& color);

    /// The linetype's record; the Continuous one if the layer names one that isn't there.
    OdDbObjectId linetypeObjectId() const;
    OdResult setLinetypeObjectId(const OdDbObjectId& id);
    /// Hundredths of a millimetre, or OdDb::kLnWtByLwDefault.
    OdDb::LineWeight lineWeight() const;
    OdResult setLineWeight(OdDb::LineWeight weight);
    /// The plot style's name; empty in a colour-dependent drawing.
    OdString plotStyleName() const;
    /// The plot style's object in the plot style name dictionary; may be null.
    OdDbObjectId plotStyleNameId() const;
    OdResult setPlotStyleName(const wchar_t* name);

    bool isOff() const;
    void setIsOff(bool off);
    bool isFrozen() const { return (flags() & 1) != 0; }
    void setIsFrozen(bool frozen);
    bool isLocked() const { return (flags() & 4) != 0; }
    void setIsLocked(bool locked);
    bool isPlottable() const;
    void setIsPlottable(bool plottable);
};
using OdDbLayerTableRecordPtr = OdSmartPtr<OdDbLayerTableRecord>;

/// The layers of a drawing.
class ODRT_API OdDbLayerTable : public OdDbSymbolTable {
public:
    OdDbLayerTable() : OdDbSymbolTable("LAYER") {}
    OdDbSymbolTableRecordPtr newRecord() const override { return new OdDbLayerTableRecord; }
};
using OdDbLayerTablePtr = OdSmartPtr<OdDbLayerTable>;
