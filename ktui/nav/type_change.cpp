#include <ktui/nav/type_change.h>

#include <ktui/nav/file_dialog_start.h>

std::optional<CString> FolderToEnter(const CString& templatePath) {
    if (templatePath.IsEmpty()) return std::nullopt;
    return templatePath.Right(1) == L"\\" ? templatePath : templatePath + L"\\";
}

std::optional<CString> PatternForSaving(const CNavFilter* filter) {
    if (filter == nullptr || filter->GetCount() == 0) return std::nullopt;
    const CString pattern = filter->GetAt(0);
    if (pattern.IsEmpty() || pattern.CompareNoCase(L"*.*") == 0) return std::nullopt;
    return pattern;
}

std::optional<CString> NameForPattern(const CString& typed, const CString& pattern) {
    if (typed.IsEmpty()) return std::nullopt;
    return NamePart(typed) + pattern.Mid(1);
}
