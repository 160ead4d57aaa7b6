// Is a typed text a legal value, and how is it spelled?
//
// The one logic behind every typed text box of the toolkit. It knows no window: given a style mask, a range
// and a text it answers an error code, and rewrites a legal number or angle into the drawing's own spelling.
// It runs at every keystroke, so it makes no call into a window and uses the heap for the one assignment
// only.
#pragma once

#include <afx.h>

#include <ktui/ktui_api.h>

/// What is wrong with a text.
enum KTUI_ERROR_CODE : int {
    kKtUiErrorNone = 0,          ///< nothing
    kKtUiErrorBlank = 1,         ///< empty
    kKtUiErrorSymbolSyntax = 2,  ///< no legal symbol name
    kKtUiErrorNotNumeric = 3,    ///< no distance or number
    kKtUiErrorNotAngle = 4,      ///< no angle
    kKtUiErrorZero = 5,          ///< zero
    kKtUiErrorNegative = 6,      ///< below zero
    kKtUiErrorOutOfRange = 7     ///< outside the range
};

/// Bits of a style mask. Others have no meaning and are kept as given.
enum KTUI_EDIT_STYLE : DWORD {
    kKtUiEditString = 0x0001,               ///< text; takes part in the contradiction test only
    kKtUiEditSymbol = 0x0002,               ///< a symbol name
    kKtUiEditNumeric = 0x0004,              ///< a distance or plain number
    kKtUiEditAngle = 0x0008,                ///< an angle
    kKtUiEditValidateOnKillFocus = 0x0010,  ///< on focus loss: canonical spelling, then validate
    kKtUiEditConvertOnKillFocus = 0x0020,   ///< on focus loss: canonical spelling only; ignored beside 0x0010
    kKtUiEditNoZero = 0x0100,               ///< zero is an error; numbers and angles only
    kKtUiEditNoBlank = 0x0200,              ///< empty is an error; not for numbers and angles
    kKtUiEditNoNegative = 0x0400,           ///< below zero is an error; numbers and angles only
    kKtUiEditRange = 0x0800                 ///< the range counts; numbers and angles only
};

/// The bits of the text family and of the number family. A mask with bits of both contradicts itself.
constexpr DWORD kKtUiTextFamily = kKtUiEditString | kKtUiEditSymbol;
constexpr DWORD kKtUiNumberFamily = kKtUiEditNumeric | kKtUiEditAngle;

/// True if the text of this mask is a number or an angle, which has a canonical spelling.
constexpr bool IsNumberMask(DWORD mask) { return (mask & kKtUiNumberFamily) != 0; }

/// True if `mask` holds a bit of both families. Two bits of one family don't contradict each other.
constexpr bool IsContradictoryMask(DWORD mask) {
    return (mask & kKtUiTextFamily) != 0 && (mask & kKtUiNumberFamily) != 0;
}

/// What a contradicted mask tells its programmer.
constexpr const wchar_t* kContradictoryMaskText = L"Contradictory style masks set";

/// Validates `text` under `mask`. `minimum` and `maximum` (both included, in the unit of the parser: drawing
/// units, or an angle as parsed) count with kKtUiEditRange only. On kKtUiErrorNone a number or an angle is
/// rewritten into its canonical spelling; on an error `text` stays as it came in.
KTUI_API KTUI_ERROR_CODE ValidateValue(DWORD mask, double minimum, double maximum, CString& text);

/// ValidateValue for the numbers and angles only: false for any other mask, with `text` untouched, and
/// otherwise true exactly when it is legal.
KTUI_API bool ConvertValue(DWORD mask, double minimum, double maximum, CString& text);

/// The text that describes error `code`, or null for a code above kKtUiErrorOutOfRange.
KTUI_API const wchar_t* ValueErrorText(unsigned code);
