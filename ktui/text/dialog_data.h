// Data of a dialog, stored outside the dialog's life.
#pragma once

#include <ktui/ktui_api.h>

/// Stores one text: value `valueName` of key `dialogName` below
/// `rootKey` of the user's hive, or below the product's own dialog root if that is empty. Answers 1 if it was
/// stored; 0 otherwise, or for an empty `dialogName`.
KTUI_API int KtUiSetDialogData(const wchar_t* rootKey, const wchar_t* dialogName, const wchar_t* valueName,
                               const wchar_t* value);
