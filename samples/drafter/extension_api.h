// What an extension of the drafter exports: a DLL in the folder "extensions" beside the program.
#pragma once

class CKbUiPaletteSet;
class CKbUiTabExtensionManager;

/// The version of this interface. An extension of another version isn't used.
constexpr int kDrafterExtensionVersion = 2;

/// What the drafter does for the palettes of extensions. It outlives them. The working drawing is always the
/// one in front; while none is open the palettes are disabled, and the working drawing is null.
class CDrafterServices {
public:
    /// Makes one step of Undo of what was changed in the working drawing, under this name, and shows it.
    virtual void DrawingChanged(const wchar_t* name) = 0;

protected:
    ~CDrafterServices() = default;
};

/// Exported as "drafterExtensionVersion": the version that the extension was made for.
using DrafterExtensionVersion = int (*)();
/// Exported as "drafterExtensionAddTabs": adds pages to a tabbed dialog; GetDialogName() tells which it is.
using DrafterExtensionAddTabs = void (*)(CKbUiTabExtensionManager& manager);
/// Exported as "drafterExtensionAddPalettes": adds palettes, each made by new, to the set of extensions,
/// which destroys and deletes them. False if one can't be made; the others stay then.
using DrafterExtensionAddPalettes = bool (*)(CKbUiPaletteSet& set, CDrafterServices& services);
