#include <ktui/nav/filter_string.h>

namespace {

constexpr const wchar_t* kAnyExtension = L"*.";
constexpr const wchar_t* kTemplates = L"*.dwt";

/// The patterns with `separator` between them.
CString joined(const CNavFilter& filter, const wchar_t* separator) {
    CString text;
    for (int i = 0; i < filter.GetCount(); ++i) {
        if (i > 0) text += separator;
        text += filter.GetAt(i);
    }
    return text;
}

CString entryOf(const CNavFilter& filter) {
    CString shown;
    filter.GetFullDescription(shown);
    CString entry;
    if (filter.GetCount() == 0) {
        entry.Format(L"%s|*.*|", shown.GetString());
    } else if (!shown.IsEmpty()) {
        entry.Format(L"%s|%s|", shown.GetString(), joined(filter, L";").GetString());
    } else {
        // A full description that is empty: the description, empty as well, gets the patterns after all.
        entry.Format(L"%s (%s)|%s|", filter.GetDescription(), joined(filter, L", ").GetString(),
                     joined(filter, L";").GetString());
    }
    return entry;
}

}  // namespace

CString BuildFilterString(const CNavFilterArray& filters) {
    CString text;
    for (int i = 0; i < filters.GetCount(); ++i) text += entryOf(*filters.GetData(i));
    if (!text.IsEmpty()) text += L"|";
    return text;
}

CString NormalizeDefaultExtension(const CString& extension) {
    return extension.Left(2) == kAnyExtension ? extension.Mid(2) : extension;
}

bool IsTemplateFilter(const CNavFilter* filter) { return filter != nullptr && filter->Find(kTemplates) >= 0; }
