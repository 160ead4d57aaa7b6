// An extension of the drafter whose palette can't be made.
#include "../../../samples/drafter/extension_api.h"

extern "C" __declspec(dllexport) int drafterExtensionVersion() { return kDrafterExtensionVersion; }
extern "C" __declspec(dllexport) void drafterExtensionAddTabs(CKbUiTabExtensionManager&) {}

extern "C" __declspec(dllexport) bool drafterExtensionAddPalettes(CKbUiPaletteSet&, CDrafterServices&) {
    return false;
}
