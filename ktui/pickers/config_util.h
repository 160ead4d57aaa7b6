// KhUtConfigUtil: what the file dialogs ask about drawing files. Which formats there are, which one is the
// default for saving, and which template a new drawing starts from.
#pragma once

#include <windows.h>

#include <kt_ap_document.h>
#include <od_array.h>
#include <od_db_types.h>
#include <od_string.h>

#include <ktui/ktui_api.h>

namespace KhUtConfigUtil {

/// One file format.
struct SKhSaveInfo {
    OdDb::SaveFileType saveFileType = OdDb::kDwg;  ///< templates and standards count as drawings
    OdDb::DwgVersion dwgVersion = OdDb::kDHL_Unknown;
    OdString description;  ///< for a list of file types
    OdString shortName;
    OdString longName;
    OdString extension;  ///< with the dot
};

/// The measurement system of new drawings: 0 imperial, 1 metric; 1 while the drawing runtime has no host
/// services.
KTUI_API short getMesurementInit();
/// Stores metric for any `value` but 0; nothing without host services.
KTUI_API void setMesurementInit(short value);
/// File name, without a folder, of the template for imperial (0) or metric drawings (any other value).
KTUI_API OdString getMesurementFileName(short value);
/// File name, without a folder, of the template that a new drawing starts from.
KTUI_API OdString getDefaultTemplateFileName();

/// Replaces `list` by the formats that a drawing can be saved in, those of the host first; answers their
/// count.
KTUI_API int getSaveFormatList(OdArray<KtApDocument::SaveFormat>& list);
/// The format that the user saves in by default; the 2013 drawing until one is set.
KTUI_API KtApDocument::SaveFormat getCurrentSaveFormat();
/// Stores the user's default; false, with nothing stored, for a code whose base lies outside 1 to 63.
KTUI_API bool setCurrentSaveFormat(KtApDocument::SaveFormat format);
/// Describes `format` in `info`; false, with `info` untouched, for a format that there is not. A format of
/// the host is described as its base, but for the description, which the host may give.
KTUI_API bool getSaveInfoByFormat(KtApDocument::SaveFormat format, SKhSaveInfo& info);
/// The format of `type`, `version` and, for drawings, `extension` (with the dot, case doesn't count);
/// KtApDocument::kUnknown if there is none.
KTUI_API KtApDocument::SaveFormat getSaveFormatByInfo(OdDb::SaveFileType type, OdDb::DwgVersion version,
                                                      const OdString& extension);

}  // namespace KhUtConfigUtil
