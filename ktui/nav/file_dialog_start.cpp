#include <ktui/nav/file_dialog_start.h>

#include <algorithm>

#include <ktui/nav/filter_string.h>

namespace {

constexpr int kNameRoom = 256;  // characters of a name or an extension, with the zero at its end

/// Where the last part of the path begins.
int nameStart(const CString& path) {
    return std::max({path.ReverseFind(L'\\'), path.ReverseFind(L'/'), path.Left(2).ReverseFind(L':')}) + 1;
}

/// Where the extension begins: at its point, or at the end.
int extensionStart(const CString& path) {
    const int point = path.ReverseFind(L'.');
    return point < nameStart(path) ? path.GetLength() : point;
}

CString cut(const CString& path) { return path.Left(kPathRoom - 1); }

bool gives(const TextSource& source, CString& text) { return source(text) && !text.IsEmpty(); }

}  // namespace

unsigned long PlatformFlags(const FileDialogSettings& settings) {
    unsigned long flags = kFileNoChangeDir;
    if (settings.acceptsAnyExtension) flags |= kFileExtensionDifferent;
    // Kept: what an Open dialog asks of the file hangs on the prompt of a Save dialog.
    if (settings.confirmsReplace)
        flags |= settings.createsFile ? kFileOverwritePrompt : kFilePathMustExist | kFileMustExist;
    if (settings.allowsMultiSelect) flags |= kFileAllowMultiSelect;
    if (settings.opensWithoutTemplate) flags |= kFileDontAddToRecent;
    return flags;
}

CString StartName(const CString& name) { return name.FindOneOf(L"\r\n\t") < 0 ? name : CString(); }

unsigned long StartFilterIndex(const FilterChoice& choice) {
    const auto exists = [&](int index) { return index >= 0 && index < choice.count; };
    DWORD index = choice.present;
    if (exists(choice.forced))
        index = static_cast<DWORD>(choice.forced) + 1;
    else if (choice.stored)
        index = static_cast<DWORD>(*choice.stored) + 1;  // Kept: whatever number is stored.
    else if (exists(choice.given))
        index = static_cast<DWORD>(choice.given) + 1;
    return index > static_cast<DWORD>(choice.count) ? 1 : index;
}

StartFolder FirstFolder(const FolderSources& sources) {
    // Kept: these two leave the kept folder empty.
    if (!sources.forced.IsEmpty()) return {sources.forced, L""};
    if (!sources.given.IsEmpty()) return {sources.given, L""};
    CString folder;
    if (gives(sources.stored, folder) || gives(sources.personal, folder) || gives(sources.working, folder))
        return {cut(folder), cut(folder)};
    return {};
}

StartFolder TemplateFolder(const CString& path) { return {cut(path), cut(path)}; }

std::optional<CString> NameInFolder(const StartFolder& start, const CString& fileName) {
    if (start.shown.IsEmpty() || NamePart(fileName).IsEmpty()) return std::nullopt;
    return NamePart(fileName) + ExtensionPart(fileName);
}

std::optional<CString> ExtensionOfFirstFilter(const CNavFilterArray& filters) {
    if (filters.GetCount() == 0) return std::nullopt;
    return NormalizeDefaultExtension(filters.GetAt(0)->GetAt(0));
}

CString NameByModule(const CString& modulePath, unsigned templateId) {
    CString module = modulePath.Mid(modulePath.ReverseFind(L'\\') + 1);
    module.MakeUpper();
    CString name;
    name.Format(L"%s-%d", module.GetString(), static_cast<int>(templateId));
    return name;
}

CString NamePart(const CString& path) {
    const int start = nameStart(path);
    const CString name = path.Mid(start, extensionStart(path) - start);
    return name.GetLength() < kNameRoom ? name : CString();
}

CString ExtensionPart(const CString& path) { return path.Mid(extensionStart(path)); }
