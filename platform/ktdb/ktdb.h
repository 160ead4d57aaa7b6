// ktdb, the database library beside the toolkit: numbers and angles as text in the drawing's units, symbol
// names, reserved names, and the preview image of a drawing file.
//
// Every call answers kKtdbOk (5100) on success and another value on failure, unless it says otherwise. The
// parsers and formatters use no heap memory and no locale: the decimal point is a point everywhere.
//
// A unit mode or precision of -1 means that of the working drawing (LUNITS, LUPREC, AUNITS, AUPREC,
// UNITMODE); without one: decimal with 4 places, degrees with 0 places. DIMZIN plays no part: trailing zeros
// are always shown, feet and inches as 1'-0", lengths below a foot as 6".
//
// What a formatter writes, the parser reads in the same mode, and formatting the value read gives the same
// text again.
#pragma once

#include <cstdint>
#include <vector>
#include <od_string.h>

#ifdef _WIN32
#ifdef KTDB_EXPORTS
#define KTDB_API __declspec(dllexport)
#else
#define KTDB_API __declspec(dllimport)
#endif
struct HBITMAP__;
struct HPALETTE__;
#else
#define KTDB_API
#endif

constexpr int kKtdbOk = 5100;       ///< success
constexpr int kKtdbInvalid = 5101;  ///< the text is no such value, or an argument is out of range
constexpr int kKtdbRange = 5102;    ///< the value is no finite number, or its text doesn't fit

constexpr int kKtdbBufferSize = 1024;  ///< characters that the formatters' buffer must have room for

/// Reads a distance. `unitMode` is 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional, or
/// -1. Every mode takes numbers ("12", "-.5", "5.", "1.5e3"), fractions ("3/8") and mixed numbers ("15 1/2",
/// "15-1/2"). Modes 3 and 4 also take feet and inches (1'-2 1/2", 1'2-1/2", 1' 2.5, 6", 3'); without marks
/// the number is inches, and the value is in inches. The other modes refuse the marks, since their unit is no
/// inch. Blanks around are ignored; empty text, anything behind the value, names like "inf", hexadecimal and
/// overflow are refused. `*value` is untouched on failure.
KTDB_API int ktdbDisToF(const wchar_t* text, int unitMode, double* value);

/// Reads an angle into radians. `unitMode` is 0 decimal degrees, 1 degrees/minutes/seconds, 2 grads, 3
/// radians, 4 surveyor's, or -1; it decides only what a bare number means (degrees in 0, 1 and 4, grads in 2,
/// radians in 3). Every mode takes 45d, 12d30'45", 50g, 0.7854r, N 45d0'0" E, and N, E, S, W alone. With
/// `flag` 1 the value is the direction or angle as written; with 0 it counts from the drawing's ANGBASE and
/// ANGDIR and the result is turned to count counter-clockwise from the x axis. Bearings are always
/// geographic: E is 0 and N is a quarter turn.
/// `*value` is untouched on failure.
KTDB_API int ktdbAngToF2(int flag, const wchar_t* text, int unitMode, double* value);

/// Writes a distance in `unitMode` (1 to 5, or -1) with `precision` 0 to 8 (or -1): decimal places, or for
/// modes 4 and 5 the denominator 2 to the power of the precision. `buffer` has room for kKtdbBufferSize
/// characters and is never overrun; on failure it holds the empty string. Negative zero, and what rounds to
/// zero, is written without a sign.
KTDB_API int ktdbRToS(double value, int unitMode, int precision, wchar_t* buffer);

/// Writes an angle given in radians in `unitMode` (0 to 4, or -1) with `precision` 0 to 8 (or -1). Angles are
/// written as they are, not brought into one turn, except in mode 4, where only the direction counts. In mode
/// 1 a precision of 0 shows degrees, 1 and 2 minutes, 3 and 4 seconds, more give decimal places of the
/// seconds. As ktdbRToS otherwise.
KTDB_API int ktdbAngToS(double value, int unitMode, int precision, wchar_t* buffer);

/// Tests a symbol name: 1 to 255 characters, no control character, none of < > / \ " : ; ? * , = and
/// backquote, no blank at either end; a vertical bar only if `allowVerticalBar` is not 0.
KTDB_API int ktdbSNValid(const wchar_t* name, int allowVerticalBar);

/// Kinds of reserved names.
enum KtdbReserved {
    kKtdbByLayer = 1,
    kKtdbByBlock = 2,
    kKtdbContinuous = 3,
    kKtdbStandard = 4,
    kKtdbNormal = 5,
    kKtdbModel = 6,
    kKtdbNone = 7
};

/// Whether `name` is the reserved name of `kind` in any language, without regard to case.
KTDB_API bool ktdbIsReservedString(const wchar_t* name, int kind);
/// The reserved name of `kind`: in the language of ktutSetLanguage if `localized`, otherwise as files have
/// it. Empty for an unknown kind.
KTDB_API OdString ktdbGetReservedString(int kind, bool localized);

/// The kinds of preview image, with the numbers that DWG files give them.
enum KtdbPreviewKind {
    kKtdbPreviewDib = 2,  ///< a device-independent bitmap: BITMAPINFOHEADER, colour table, pixels
    kKtdbPreviewWmf = 3,  ///< a metafile of 16 bits, with or without a placeable header
    kKtdbPreviewPng = 6,  ///< a PNG file
};

struct KtdbPreview {
    int kind = 0;  ///< KtdbPreviewKind
    std::vector<std::uint8_t> bytes;
};

/// Reads the preview image of a drawing file (DXF, text or binary, or DWG from R13 on). Of several images the
/// first bitmap is taken, or else the first PNG, or else the first metafile. Fails without a complete and
/// plausible image. Of a file only the parts that tell of the image are read.
KTDB_API int ktdbReadPreview(const wchar_t* path, KtdbPreview& preview);
/// The same from the bytes of the file.
KTDB_API int ktdbFindPreview(const std::uint8_t* bytes, std::size_t size, KtdbPreview& preview);

#ifdef _WIN32
/// The preview image as a bitmap for the caller to delete, and a palette to delete too, which is null for an
/// image without a colour table. Clear parts of a PNG and the ground of a metafile are white. Answers true,
/// or false with both null.
KTDB_API bool ktdbGetPreviewBitmapFromDwg(const wchar_t* path, HBITMAP__** bitmap, HPALETTE__** palette);
#endif
