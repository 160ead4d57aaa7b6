// The part of the tour that works with the palettes. It knows no titles, so that it runs in any language.
#include "tour_steps.h"

#include <windows.h>
#include <commctrl.h>

#include "drafter_driver.h"

using namespace journey;

namespace {

HWND panelByKey(Drafter& drafter, WORD digit, int control) {
    drafter.activate(drafter.frame());
    drafter.key(digit, true);
    HWND panel = nullptr;
    waitUntil([&] { return (panel = drafter.panelWith(control)) != nullptr; });
    return panel;
}

bool showLiveProperties(Drafter& drafter) {
    drafter.activate(drafter.frame());
    drafter.click(drafter.view(), {4, 4});
    drafter.key('A', true);
    const HWND panel = panelByKey(drafter, '2', kPropertiesPanel);
    if (panel == nullptr) return false;
    tell("palette-properties", L"The properties palette shows " + textOf(item(panel, IDC_PANEL_TITLE)));
    const HWND scale = item(panel, IDC_LINETYPE_SCALE);
    drafter.replaceText(scale, L"0");
    drafter.key(VK_RETURN);
    tell("palette-refused", L"Typed \"0\" for the scale of the dashes - " + textOf(item(panel, IDC_MESSAGE)));
    drafter.replaceText(scale, L"2.5");
    drafter.key(VK_RETURN);
    tell("palette-live", L"Typed \"2.5\" and Enter: the drawing has it at once");
    drafter.key(VK_ESCAPE);
    drafter.key('Z', true);
    drafter.key(VK_ESCAPE);
    return true;
}

bool showLayers(Drafter& drafter) {
    const HWND panel = panelByKey(drafter, 'L', kLayersPanel);
    if (panel == nullptr) return false;
    const LRESULT rows = ::SendMessageW(item(panel, IDC_LAYER_LIST), LVM_GETITEMCOUNT, 0, 0);
    tell("palette-layers", L"The layers palette lists " + std::to_wstring(rows) + L" layers");
    return true;
}

bool showBlocks(Drafter& drafter) {
    const HWND panel = panelByKey(drafter, '3', IDC_BLOCK_LIST);
    if (panel == nullptr) return false;
    const HWND list = item(panel, IDC_BLOCK_LIST);
    const LRESULT count = ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0);
    tell("palette-blocks", L"The blocks palette shows " + std::to_wstring(count) + L" blocks");
    // The second one's picture, at any resolution.
    const LRESULT spacing = ::SendMessageW(list, LVM_GETITEMSPACING, FALSE, 0);
    const LONG wide = LOWORD(spacing), high = HIWORD(spacing);
    drafter.press(list, {wide * 3 / 2, high / 3});
    drafter.hover(list, {wide * 3 / 2 + 20, high / 3 + 20});
    RECT room = {};
    ::GetClientRect(drafter.view(), &room);
    drafter.hover(drafter.view(), {room.right / 3, room.bottom / 5});
    drafter.release();
    tell("palette-block-dropped", L"Dragged one into the drawing");
    drafter.key('Z', true);
    drafter.key('2', true);
    drafter.key(VK_ESCAPE);
    return true;
}

}  // namespace

const char* ShowPalettes(Drafter& drafter) {
    if (!showLiveProperties(drafter)) return "the properties palette";
    if (!showLayers(drafter)) return "the layers palette";
    return showBlocks(drafter) ? nullptr : "the blocks palette";
}
