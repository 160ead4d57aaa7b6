// What an extension of the drafter exports: a DLL in the folder "extensions" beside the program.
#pragma once

class CKbUiTabExtensionManager;

/// The version of this interface. An extension of another version isn't used.
constexpr int kDrafterExtensionVersion = 1;

/// Exported as "drafterExtensionVersion": the version that the extension was made for.
using DrafterExtensionVersion = int (*)();
/// Exported as "drafterExtensionAddTabs": adds pages to a tabbed dialog; GetDialogName() tells which it is.
using DrafterExtensionAddTabs = void (*)(CKbUiTabExtensionManager& manager);
