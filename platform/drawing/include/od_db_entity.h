// OdDbEntity, what all drawn objects have in common: layer, colour, linetype, lineweight, plot style,
// visibility and hyperlink. The kinds of entity are in od_db_curves.h, od_db_polylines.h, od_db_texts.h and
// od_db_block_reference.h.
#pragma once

#include <vector>
#include "od_cm_color.h"
#include "od_db_object.h"

/// Base of the entities. Setters work before and after the entity is added to a drawing, unless they say
/// otherwise.
class ODRT_API OdDbEntity : public OdDbObject {
public:
    /// The layer; before the entity is in a drawing the one set, or null.
    OdDbObjectId layerId() const;
    OdResult setLayer(const OdDbObjectId& layerId);
    /// The layer's name; empty before the entity is in a drawing.
    OdString layer() const;

    OdCmColor color() const;
    void setColor(const OdCmColor& color);
    /// The colour's palette index, 0 to 256.
    int colorIndex() const { return color().colorIndex(); }
    /// Answers false for an index outside 0 to 256.
    bool setColorIndex(int index);

    /// The linetype; that which stands for ByLayer if none was set.
    OdDbObjectId linetypeId() const;
    OdResult setLinetype(const OdDbObjectId& linetypeId);
    /// The linetype's name.
    OdString linetype() const;
    /// Factor on the dash lengths, above 0.
    double linetypeScale() const;
    OdResult setLinetypeScale(double scale);

    OdDb::LineWeight lineWeight() const;
    OdResult setLineWeight(OdDb::LineWeight weight);

    /// What the plot style follows.
    OdDb::PlotStyleNameType plotStyleNameType() const;
    /// "ByLayer", "ByBlock", "Normal" or the name of an entry of the plot style name dictionary.
    OdString plotStyleName() const;
    /// Sets it by such a name; kOdKeyNotFound for a name that the dictionary lacks, kOdNoDatabase before the
    /// entity is in a drawing.
    OdResult setPlotStyleName(const wchar_t* name);

    OdDb::Visibility visibility() const;
    void setVisibility(OdDb::Visibility visibility);

    /// Extrusion along the entity's normal, in drawing units.
    double thickness() const { return m_groups.real(39); }
    void setThickness(double thickness) { editGroups().setReal(39, thickness); }
    /// Direction of the extrusion.
    OdGeVector3d normal() const;
    /// Height above the base plane: that of the entity's first point.
    virtual double elevation() const;
    virtual void setElevation(double elevation);

    /// The address attached to the entity; empty if there is none.
    OdString hyperlink() const;
    /// The words that go with it; may be empty.
    OdString hyperlinkDescription() const;
    /// Attaches an address; an empty one takes it off.
    void setHyperlink(const wchar_t* url, const wchar_t* description = nullptr);

    /// Whether the entity lies in a paper space.
    bool isInPaperSpace() const;

    /// Takes the drawing's current layer, colour, linetype, linetype scale and lineweight; once it is in the
    /// drawing, also its current plot style.
    void setDatabaseDefaults(OdDbDatabase* database);

    /// The entities that are part of this one (attributes, vertices, the closing SEQEND), in order; null if
    /// the kind has none.
    virtual const std::vector<OdSmartPtr<OdDbEntity>>* parts() const { return nullptr; }

protected:
    OdDbEntity() = default;

private:
    friend struct OdDbStore;
    void setCommon(int code, const OdGroupList& value);
    bool findCommon(int code, OdGroup& group) const;
    virtual std::vector<OdSmartPtr<OdDbEntity>>* editParts() { return nullptr; }

    OdDbHandle m_layer = 0;
    OdDbHandle m_linetype = 0;  // 0 stands for ByLayer
};
using OdDbEntityPtr = OdSmartPtr<OdDbEntity>;

/// An entity of a kind that the runtime has no class for (hatches and solids of other programs among them):
/// its common properties can be edited, everything else is kept and written back.
class ODRT_API OdDbUnknownEntity : public OdDbEntity {
public:
    /// `type` is the name as in a file; it is kept once for all entities of the kind.
    explicit OdDbUnknownEntity(std::string_view type);
    const char* dxfName() const override { return m_type; }

private:
    const char* m_type;
};

/// The end of a list of attributes or vertices.
class ODRT_API OdDbSequenceEnd : public OdDbEntity {
public:
    const char* dxfName() const override { return "SEQEND"; }
};
