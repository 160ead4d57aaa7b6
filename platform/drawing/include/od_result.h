// The status code of every call of the drawing runtime that can fail.
//
// One value means success. Any other value means failure; the named ones say why, and callers that only ask
// "did it work" compare with kOdOk.
#pragma once

/// Status of a call: kOdOk or the reason of the failure.
using OdResult = int;

constexpr OdResult kOdOk = 5100;            ///< The call did what it says.
constexpr OdResult kOdInvalidInput = 5101;  ///< An argument is outside its range, or null.
constexpr OdResult kOdKeyNotFound = 5102;   ///< There is no entry of that name or id.
constexpr OdResult kOdDuplicateKey = 5103;  ///< There is an entry of that name already.
constexpr OdResult kOdWasErased = 5104;     ///< The object has been erased.
constexpr OdResult kOdNoDatabase = 5105;    ///< The object does not live in a drawing.
constexpr OdResult kOdFileError = 5106;     ///< The file can't be read or written; see the error record.
