// An extension of the drafter as a later version of it would have one.
#include "../../../samples/drafter/extension_api.h"

extern "C" __declspec(dllexport) int drafterExtensionVersion() { return kDrafterExtensionVersion + 1; }
extern "C" __declspec(dllexport) void drafterExtensionAddTabs(CKbUiTabExtensionManager&) { __builtin_trap(); }
extern "C" __declspec(dllexport) bool drafterExtensionAddPalettes(CKbUiPaletteSet&, CDrafterServices&) {
    __builtin_trap();
}
