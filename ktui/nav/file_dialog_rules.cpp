#include <ktui/nav/file_dialog_rules.h>

#include <ktdsres/nav_file_dialog_ids.h>

unsigned FileDialogTemplate(const TemplateSettings& settings) {
    const unsigned full = settings.previewVisible ? IDD_NAV_FILE_PREVIEW : IDD_NAV_FILE;
    if (settings.opens) return settings.foldersOnly ? 0 : full;
    if (settings.securityButton) return full;
    return settings.applicationMode ? IDD_NAV_FILE_PLACES : 0;
}

bool BeginsLikeUrl(const CString& text) {
    CString lower = text;
    lower.MakeLower();
    for (const wchar_t* start : {L"http://", L"ftp://", L"www.", L"ftp."})
        if (lower.Find(start) == 0) return true;
    return false;
}

bool CountsAsUrl(const CString& typed, const CString& path, const CString& file) {
    if (typed.IsEmpty()) return false;
    // Kept: a name that the platform completes differs too.
    return path != file || BeginsLikeUrl(typed);
}

CString FirstPath(const CString& paths) {
    const int first = paths.Find(L'"');
    if (first < 0) return paths;
    const CString names = paths.Mid(first + 1);
    const int end = names.Find(L'"');
    return paths.Left(first) + (end < 0 ? names : names.Left(end));
}

CString NameToShow(const CString& file, bool opens) {
    const int folderEnd = file.ReverseFind(L'\\');
    if (folderEnd >= 0) return file.Mid(folderEnd + 1);
    return opens ? CString() : file;
}

bool IsNameToLocate(const CString& name) { return !name.IsEmpty() && name != L"."; }

bool IsFolderShown(const CString& folder, const CString& wanted) {
    const CString ended = folder.Right(1) == L"\\" ? folder : folder + L"\\";
    return ended.CompareNoCase(wanted) == 0;
}
