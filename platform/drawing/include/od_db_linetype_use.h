// Where the linetypes of a drawing are used: what a program asks before it erases one.
//
//     const OdDbLinetypeUses uses(*drawing);
//     if (uses.of(id).isErasable()) table->erase(name);
#pragma once

#include <unordered_map>
#include "od_db_database.h"

/// Who uses one linetype. Erased objects, and those that an erased block or entity holds, don't count.
struct OdDbLinetypeUse {
    bool isStandard = false;   ///< ByLayer, ByBlock or Continuous, which every drawing has
    bool isDependent = false;  ///< it came with an external reference and goes with it
    bool isCurrent = false;    ///< new entities get it (CELTYPE)
    int entities = 0;          ///< in spaces and blocks, attributes and vertices included
    int layers = 0;
    int others = 0;  ///< dimension styles, multiline styles, header variables and whatever else names it

    /// Whether anything needs it.
    bool isUsed() const { return isCurrent || entities || layers || others; }
    /// Whether it may be erased.
    bool isErasable() const { return !isStandard && !isDependent && !isUsed(); }
};

/// The uses of all linetypes of a drawing, counted in one walk over its objects. What changes in the drawing
/// afterwards is not seen.
class ODRT_API OdDbLinetypeUses {
public:
    explicit OdDbLinetypeUses(OdDbDatabase& drawing);
    /// The use of one linetype; of no one for an id that is no linetype of the drawing.
    OdDbLinetypeUse of(const OdDbObjectId& id) const;

private:
    void countHeader(const OdDbHeader& header);
    void countObject(const OdDbObject& object);
    OdDbLinetypeUse* named(const OdString& name);
    OdDbLinetypeUse* withHandle(OdDbHandle handle);

    std::unordered_map<OdDbHandle, OdDbLinetypeUse> m_uses;
    std::unordered_map<std::wstring, OdDbHandle> m_byName;
};
