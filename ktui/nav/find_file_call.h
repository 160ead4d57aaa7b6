// The find dialog as the navigation file dialog calls it. Private to the library.
#pragma once

#include <ktui/nav/find_file_dialog.h>

/// ktuiFindFileDialog, or what was put in its place.
bool CallFindFileDialog(const wchar_t* filter, int filterIndex, const wchar_t* folder, OdString& outFolder,
                        OdString& outFile);

/// Puts `dialog` in the place of ktuiFindFileDialog and answers the one before, so that what follows an
/// answer can be looked at without a search.
decltype(&ktuiFindFileDialog) ExchangeFindFileDialog(decltype(&ktuiFindFileDialog) dialog);
