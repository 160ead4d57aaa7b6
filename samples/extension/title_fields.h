// The fields of a title block on a dialog of the extension: kept for the user, checked, and put into the
// drawing.
#pragma once

#include <ktui/ktui.h>

/// A string of this module, whichever is the current one.
CString TitleText(UINT id);

/// Shows what the user entered last.
void ShowTitleFields(CKbUiDialog& dialog);
/// The control of the first field that is too long, with the words for it in IDC_TITLE_MESSAGE; 0 and no
/// words if all are good.
int BadTitleField(CWnd& dialog);
/// Keeps what is entered for the user, beside the options of the drafter, and fills it into the working
/// drawing; how many texts were filled.
int FillFromTitleFields(CKbUiDialog& dialog);
