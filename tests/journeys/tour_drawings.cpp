// The part of the tour that works on several drawings. It knows no titles of dialogs, so that it runs in any
// language.
#include "tour_steps.h"

#include <windows.h>

#include "drafter_driver.h"
#include "dropped_on.h"

using namespace journey;

namespace {

std::wstring listed(const std::vector<std::wstring>& titles) {
    std::wstring all;
    for (const std::wstring& each : titles) all += (all.empty() ? L"" : L", ") + each;
    return all;
}

bool isOpen(Drafter& drafter, std::size_t count) {
    return waitUntil([&] { return drafter.drawings().size() == count; });
}

}  // namespace

const char* ShowDrawings(Drafter& drafter) {
    drafter.activate(drafter.frame());
    const std::wstring first = textOf(drafter.drawing());
    if (!DropOn(drafter.frame(), {scratchCopy(L"floor_plan.dxf"), scratchCopy(L"bracket.dxf")}) ||
        !isOpen(drafter, 3))
        return "two more drawings";
    drafter.hover(drafter.view(), {200, 200});
    tell("three-drawings", L"Dropped two more drawings on the window: " + listed(drafter.drawings()));
    drafter.key(VK_TAB, true, false, true);
    drafter.key('A', true);
    tell("second-drawing",
         L"Ctrl+Shift+Tab: " + textOf(drafter.drawing()) + L" with its own selection, view and settings");
    drafter.key(VK_F4, true);
    if (!isOpen(drafter, 2)) return "a drawing less";
    for (int i = 0; i < 2 && textOf(drafter.drawing()) == first; ++i) drafter.key(VK_TAB, true);
    drafter.key(VK_F4, true);
    return isOpen(drafter, 1) && textOf(drafter.drawing()) == first ? nullptr : "the first drawing";
}
