// Who needs a layer, which a program asks before it erases one, and the renaming of layers.
//
//     const OdDbLayerUses uses(*drawing);
//     if (uses.of(id).isErasable()) table->erase(name);
#pragma once

#include <unordered_map>
#include "od_db_database.h"

/// Who uses one layer. Erased objects, and those that an erased block or entity holds, don't count.
struct OdDbLayerUse {
    bool isStandard = false;   ///< the layer 0, which every drawing has
    bool isDependent = false;  ///< it came with an external reference and goes with it
    bool isCurrent = false;    ///< new entities get it (CLAYER)
    int entities = 0;          ///< in model and paper space, with their attributes and vertices
    int blockEntities = 0;     ///< in other blocks
    OdString block;            ///< one of these blocks
    int others = 0;            ///< viewports and whatever else names it

    /// Whether it may be erased.
    bool isErasable() const {
        return !isStandard && !isDependent && !isCurrent && entities == 0 && blockEntities == 0 &&
               others == 0;
    }
};

/// The uses of all layers of a drawing, counted in one walk over its objects. What changes in the drawing
/// afterwards is not seen.
class ODRT_API OdDbLayerUses {
public:
    explicit OdDbLayerUses(OdDbDatabase& drawing);
    /// The use of one layer; of no one for an id that is no layer of the drawing.
    OdDbLayerUse of(const OdDbObjectId& id) const;

private:
    void countEntity(const OdDbEntity& entity);
    void countHandles(const OdDbObject& object);

    std::unordered_map<OdDbHandle, OdDbLayerUse> m_uses;
};

/// Gives a layer another name, everywhere in its drawing: in the header, and where the extended data of
/// objects names it. kOdInvalidInput for no layer, an empty name, the layer 0 or one of an external
/// reference; kOdDuplicateKey if another layer has the name. Another spelling of its own name is another
/// name.
ODRT_API OdResult oddbRenameLayer(const OdDbObjectId& layer, const wchar_t* name);
