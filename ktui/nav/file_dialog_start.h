// How the platform's file dialog starts: flags, filter index, folder, name and extension, from the settings
// of a navigation dialog and what is stored. Without any window. Private to the library; its tests link it by
// itself.
#pragma once

#include <functional>
#include <optional>

#include <ktui/nav/nav_filter.h>

// Flags of the platform's file dialog (OFN_...), which the native build has no names for.
constexpr unsigned long kFileOverwritePrompt = 0x00000002;
constexpr unsigned long kFileNoChangeDir = 0x00000008;
constexpr unsigned long kFileAllowMultiSelect = 0x00000200;
constexpr unsigned long kFileExtensionDifferent = 0x00000400;
constexpr unsigned long kFilePathMustExist = 0x00000800;
constexpr unsigned long kFileMustExist = 0x00001000;
constexpr unsigned long kFileDontAddToRecent = 0x02000000;

/// The settings that decide about the flags.
struct FileDialogSettings {
    bool acceptsAnyExtension = false;
    bool confirmsReplace = false;
    bool createsFile = false;  ///< a Save dialog
    bool allowsMultiSelect = false;
    bool opensWithoutTemplate = false;
};
unsigned long PlatformFlags(const FileDialogSettings& settings);

/// The name that the dialog starts with: `name`, or none if it holds a line end or a tab.
CString StartName(const CString& name);

/// What decides about the type that is shown first. Indices count from 0 but for `present`.
struct FilterChoice {
    int forced = -1;                      ///< wins if there is such a filter
    std::optional<unsigned long> stored;  ///< of the last run; any number
    int given = 0;                        ///< the default, if there is such a filter
    unsigned long present = 0;            ///< what the dialog has already, counted from 1
    int count = 0;                        ///< of the filters
};
/// The index for the dialog, counted from 1.
unsigned long StartFilterIndex(const FilterChoice& choice);

/// Room for a path in characters, with the zero at its end.
constexpr int kPathRoom = 260;

/// The folder that the dialog starts in.
struct StartFolder {
    CString shown;  ///< what the dialog is told
    CString kept;   ///< the same cut to kPathRoom, or empty for a forced or a default folder
};

/// Asks for a text; false or an empty text is none.
using TextSource = std::function<bool(CString&)>;

/// Where a folder may come from, the first that there is.
struct FolderSources {
    CString forced;
    CString given;  ///< the default
    TextSource stored;
    TextSource personal;  ///< the user's documents
    TextSource working;   ///< the process's current folder
};
StartFolder FirstFolder(const FolderSources& sources);

/// The start in the folder of templates, whatever it was before.
StartFolder TemplateFolder(const CString& path);

/// Name and extension to put behind `start.kept` in the place of `fileName`; nothing if `fileName` stays.
std::optional<CString> NameInFolder(const StartFolder& start, const CString& fileName);

/// The default extension if the caller has set none: that of the first pattern of the first filter; nothing
/// without filters. Throws CInvalidArgException for a first filter without patterns.
std::optional<CString> ExtensionOfFirstFilter(const CNavFilterArray& filters);

/// The name under which the data of a dialog is kept that has none: the module's file name in capitals and
/// the number of the template.
CString NameByModule(const CString& modulePath, unsigned templateId);

/// The last part of a path without its extension, and the extension with its point. No name for one of more
/// than 255 characters.
CString NamePart(const CString& path);
CString ExtensionPart(const CString& path);
