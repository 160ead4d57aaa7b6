#include "rules/embedded_object.h"

OdGroupList EmbeddedObject(const OdGroupList& groups) {
    constexpr int kEmbeddedObject = 101;
    OdGroupList embedded;
    OdGroup group;
    bool isWithin = false;
    for (std::uint32_t at = groups.ownEnd(); groups.read(at, group) && !odIsExtendedDataCode(group.code);
         at = group.end) {
        if (isWithin) embedded.add(group);
        isWithin = isWithin || group.code == kEmbeddedObject;
    }
    return embedded;
}
