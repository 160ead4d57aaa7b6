// KbUiAlertDialog: a question with a warning sign and up to two named answers besides Cancel.
//
//     if (KbUiAlertDialog(L"Export", L"The file is open elsewhere.", L"Try again", L"Another file", 0) == 0)
//         tryAgain();
#pragma once

#include <ktui/ktui_api.h>

/// Asks, modally: 0 for the first answer, 1 for the second, -1 for Cancel. A null `first` keeps the
/// template's word; a null `second` leaves two buttons. `defaultIndex` is the answer of Enter: 0, 1, or any
/// other for Cancel; 1 without a `second` makes Enter do nothing.
KTUI_API int KbUiAlertDialog(const wchar_t* caption, const wchar_t* text, const wchar_t* first,
                             const wchar_t* second, unsigned defaultIndex);
