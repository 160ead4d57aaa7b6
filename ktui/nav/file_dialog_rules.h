// What the navigation file dialog decides by texts and numbers alone: its template, what counts as an
// address, paths out of what is typed, where the list of files begins. Without any window. Private to the
// library; its tests link it by itself.
#pragma once

#include <afx.h>

/// The settings that decide about the template.
struct TemplateSettings {
    bool opens = true;  ///< false is a Save dialog
    bool foldersOnly = false;
    bool previewVisible = false;
    bool securityButton = false;
    bool applicationMode = false;
};
/// Number of the template of own controls in the resource library; 0 for none.
unsigned FileDialogTemplate(const TemplateSettings& settings);

/// Whether a typed text begins like an address, in any case.
bool BeginsLikeUrl(const CString& text);
/// Whether the typed text counts as an address: `path` is what the dialog makes of it, `file` what the
/// platform gives as the result.
bool CountsAsUrl(const CString& typed, const CString& path, const CString& file);

/// The first path of what the dialog gives for several files selected: folder, then names in quotes. Any
/// other text is the path itself.
CString FirstPath(const CString& paths);

/// The name of the file to show in the list for the start path `file`; an Open dialog shows none without a
/// folder.
CString NameToShow(const CString& file, bool opens);

/// A name that could be looked for in folders.
bool IsNameToLocate(const CString& name);

/// `folder` is shown and `wanted` is where to go. Kept: a wanted folder without a backslash at its end never
/// counts as the one shown.
bool IsFolderShown(const CString& folder, const CString& wanted);
