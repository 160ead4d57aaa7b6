#include "plotting/layouts_on_paper.h"

#include <algorithm>

std::vector<OdDbLayoutPtr> LayoutsOnPaper(OdDbDatabase& drawing) {
    std::vector<OdDbLayoutPtr> layouts;
    OdDbDictionaryPtr dictionary;
    if (drawing.getLayoutDictionary(dictionary) != kOdOk) return layouts;
    for (auto each = dictionary->newIterator(); !each->done(); each->next())
        if (auto layout = each->objectId().open<OdDbLayout>(); layout && !layout->modelType())
            layouts.push_back(layout);
    std::stable_sort(layouts.begin(), layouts.end(), [](const OdDbLayoutPtr& a, const OdDbLayoutPtr& b) {
        return a->getTabOrder() < b->getTabOrder();
    });
    return layouts;
}
