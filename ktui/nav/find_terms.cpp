#include <ktui/nav/find_terms.h>

#include <cwchar>

namespace {

constexpr wchar_t kQuote = L'"';
constexpr int kMonthsInYear = 12;
constexpr FindTime kSecondsInDay = 86400;

CString withSeparator(const CString& folder) {
    const wchar_t last = folder.IsEmpty() ? L'\0' : folder[folder.GetLength() - 1];
    return last == L'\\' || last == L'/' ? folder : folder + L"\\";
}

/// Takes the first piece in quotes out of `text`; nothing, and `text` stays, without two quotes.
std::optional<CString> takeQuotedPiece(CString& text) {
    const int first = text.Find(kQuote);
    const int second = first >= 0 ? text.Find(kQuote, first + 1) : -1;
    if (second < 0) return std::nullopt;
    const CString piece = text.Mid(first + 1, second - first - 1);
    text = text.Left(first) + text.Mid(second + 1);
    return piece;
}

bool endsIn(const CString& text, const CString& end) {
    return text.Right(end.GetLength()).CompareNoCase(end) == 0;
}

/// The parts of a list of patterns; one empty part for a list without any.
std::vector<CString> partsOf(const CString& patterns) {
    std::vector<CString> parts;
    int at = 0;
    for (CString part = patterns.Tokenize(L";", at); at >= 0; part = patterns.Tokenize(L";", at))
        parts.push_back(part);
    if (parts.empty()) parts.emplace_back();
    return parts;
}

CString patternFor(const CString& name, const CString& part) {
    const int point = part.ReverseFind(L'.');
    const CString extension = point >= 0 ? part.Mid(point) : part;
    return endsIn(name, extension) ? name : name + part;
}

}  // namespace

std::optional<CString> FirstQuotedPiece(const CString& text) {
    CString rest = text;
    return takeQuotedPiece(rest);
}

std::vector<CString> FoldersNamedBy(const CString& text) {
    std::vector<CString> folders;
    CString rest = text;
    while (const auto piece = takeQuotedPiece(rest)) folders.push_back(withSeparator(*piece));
    rest.Trim();
    if (rest.Find(kQuote) < 0 && !rest.IsEmpty()) folders.push_back(withSeparator(rest));
    return folders;
}

std::vector<CString> PatternsFor(const CString& name, const CString& type) {
    const CString wanted = name.IsEmpty() || name[0] == L'*' ? name : L"*" + name;
    std::vector<CString> patterns;
    for (const CString& part : partsOf(type)) {
        const CString pattern = patternFor(wanted, part);
        if (!pattern.IsEmpty()) patterns.push_back(pattern);
    }
    return patterns;
}

std::vector<FindFileType> FileTypesOf(const wchar_t* filter) {
    std::vector<FindFileType> types;
    for (const wchar_t* at = filter; at != nullptr && *at != L'\0';) {
        const wchar_t* const patterns = at + std::wcslen(at) + 1;
        if (*patterns == L'\0') break;
        types.push_back({at, patterns});
        at = patterns + std::wcslen(patterns) + 1;
    }
    return types;
}

CalendarTime MonthsBefore(const CalendarTime& now, int months) {
    CalendarTime time = now;
    time.month -= months % kMonthsInYear;
    time.year -= months / kMonthsInYear;
    return time;
}

bool IsInRange(const CalendarTime& time) {
    const auto between = [](int value, int least, int most) { return value >= least && value <= most; };
    return time.year >= 1900 && between(time.month, 1, kMonthsInYear) && between(time.day, 1, 31) &&
           between(time.hour, 0, 23) && between(time.minute, 0, 59) && between(time.second, 0, 59);
}

FindTime DaysBefore(FindTime now, int days) { return now - days * kSecondsInDay; }
