// ktut, the utility library beside the toolkit: colour names, collation, paths, profile names and the work
// area.
//
// It knows the drawing runtime's value types and nothing of windows, except for the one call that asks for
// the work area of a window's monitor.
#pragma once

#include <vector>
#include <od_cm_color.h>
#include <od_string.h>

#ifdef _WIN32
#ifdef KTUT_EXPORTS
#define KTUT_API __declspec(dllexport)
#else
#define KTUT_API __declspec(dllimport)
#endif
struct HWND__;
struct tagRECT;
#else
#define KTUT_API
#endif

/// The languages that names are given in.
enum class KtutLanguage { kEnglish, kChinese };

/// Sets the language of the names that this library and ktdb give. English until set.
KTUT_API void ktutSetLanguage(KtutLanguage language);
KTUT_API KtutLanguage ktutLanguage();

/// The display name of a palette index: "ByBlock" for 0, "ByLayer" for 256, the colour's word for 1 to 7,
/// "color 30" for the others up to 255. Empty outside 0 to 256.
KTUT_API OdString ktutColorToStr(short aci);
/// The display name of a colour: as above for an index, "BOOK$name" for a colour with a book's name (the name
/// alone without a book), "255,127,0" for another true colour.
KTUT_API OdString ktutColorToStr(const OdCmColor& color);

/// Collates two names: 1 if `a` sorts before `b`, 0 if they are equal, -1 if `a` sorts behind `b`. Null
/// counts as empty. Letters compare without regard to case; runs of ASCII digits compare as numbers ("A2"
/// before "A10"), of equal numbers the one with fewer leading zeros first; everything else compares by
/// character. Only when all of that is equal does case decide, capitals first, so that the order is total and
/// 0 means the same text.
KTUT_API int ktutCompareString(const wchar_t* a, const wchar_t* b);

/// First and second piece of the registry path below the user's root: the product ("Software\Velmora\ktui")
/// and the profile ("Default").
KTUT_API OdString ktutProfileFileName();
KTUT_API OdString ktutProfileRootName();
/// The host's names for the two pieces, without leading or trailing backslashes; null or empty restores the
/// default.
KTUT_API void ktutSetProfileFileName(const wchar_t* name);
KTUT_API void ktutSetProfileRootName(const wchar_t* name);

/// Whether the character is one of 0 to 9. Digits of other scripts are not.
KTUT_API bool ktutIsDigit(wchar_t character);

/// `name` below `folder`, with one separator between; an absolute `name` stands alone, an empty part gives
/// the other.
KTUT_API OdString ktutCombinePath(const wchar_t* folder, const wchar_t* name);
/// Whether the path is that of an existing folder, or of an existing file or folder. Null and empty are
/// neither.
KTUT_API bool ktutDirectoryExists(const wchar_t* path);
KTUT_API bool ktutPathExists(const wchar_t* path);
/// Whether two paths name the same file or folder: compared as full paths without regard to case on Windows,
/// trailing separators, "." and ".." aside. Neither needs to exist.
KTUT_API bool ktutPathIsSame(const wchar_t* a, const wchar_t* b);
/// Takes a path apart: the drive with its colon or the share (`\\server\share`), the folder with its trailing
/// separator, the name, the extension with its dot. Null results are not wanted. False for a null or empty
/// path.
KTUT_API bool ktutSplitPath(const wchar_t* path, OdString* drive, OdString* directory, OdString* name,
                            OdString* extension);
/// The pieces of `text` between any of the characters in `separators`; empty pieces are left out.
KTUT_API std::vector<OdString> ktutSplitString(const wchar_t* text, const wchar_t* separators);
/// The folder for the product's files of the user, which is made if it is missing; false if that fails.
KTUT_API bool ktutGetAppDataDir(OdString& folder);
/// The operating system's version as major * 100 + minor (1000 for Windows 10); 0 where there is no such
/// number.
KTUT_API int ktutOSVersion();

#ifdef _WIN32
/// Drive and folder of the running program's file, with a backslash at the end; empty if the system can't
/// tell or the path has 260 characters or more.
KTUT_API OdString ktutProgramFolder();
/// The work area, in screen pixels, of the monitor that shows the most of `window`; of the primary monitor
/// for null. False if the system gives none.
KTUT_API bool ktutGetWorkArea(tagRECT* area, HWND__* window = nullptr);
#endif
