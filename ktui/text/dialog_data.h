// Data of a dialog, stored outside the dialog's life.
#pragma once

#include <afx.h>

#include <ktui/ktui_api.h>

/// Stores one text: value `valueName` of key `dialogName` below `rootKey` of the user's hive, or below the
/// product's own dialog root if that is empty. Answers 1 if it was stored; 0 otherwise, or for an empty
/// `dialogName`.
KTUI_API int KtUiSetDialogData(const CString& rootKey, const CString& dialogName, const CString& valueName,
                               const CString& value);
