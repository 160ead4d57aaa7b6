#include <algorithm>
#include <string>
#include <string_view>

#include "ktut.h"

namespace {

#ifdef _WIN32
constexpr wchar_t kSeparator = L'\\';
#else
constexpr wchar_t kSeparator = L'/';
#endif

// Both separators are understood everywhere, since drawings bring Windows paths with them.
bool isSeparator(wchar_t c) { return c == L'\\' || c == L'/'; }

bool isDrive(std::wstring_view path) {
    return path.size() >= 2 && path[1] == L':' && odFoldCase(path[0]) >= L'A' && odFoldCase(path[0]) <= L'Z';
}

/// Count of the characters that name the drive ("C:") or the share ("\\server\share").
std::size_t driveLength(std::wstring_view path) {
    if (isDrive(path)) return 2;
    if (path.size() < 3 || !isSeparator(path[0]) || !isSeparator(path[1]) || isSeparator(path[2])) return 0;
    std::size_t at = 2;
    for (int part = 0; part < 2; ++part) {
        while (at < path.size() && !isSeparator(path[at])) ++at;
        if (part == 0 && at < path.size()) ++at;
    }
    return at;
}

bool isAbsolute(std::wstring_view path) { return !path.empty() && (isSeparator(path[0]) || isDrive(path)); }

void assign(OdString* target, std::wstring_view text) {
    if (target) *target = OdString(std::wstring(text));
}

}  // namespace

OdString ktutCombinePath(const wchar_t* folder, const wchar_t* name) {
    std::wstring whole(folder ? folder : L"");
    std::wstring_view tail(name ? name : L"");
    if (tail.empty()) return OdString(whole);
    if (whole.empty() || isAbsolute(tail)) return OdString(std::wstring(tail));
    if (!isSeparator(whole.back())) whole += kSeparator;
    return OdString(whole += tail);
}

bool ktutSplitPath(const wchar_t* path, OdString* drive, OdString* directory, OdString* name,
                   OdString* extension) {
    if (!path || !*path) return false;
    std::wstring_view rest(path);
    const std::size_t head = driveLength(rest);
    assign(drive, rest.substr(0, head));
    rest.remove_prefix(head);
    std::size_t behind = rest.size();
    while (behind > 0 && !isSeparator(rest[behind - 1])) --behind;
    assign(directory, rest.substr(0, behind));
    rest.remove_prefix(behind);
    const std::size_t dot = rest.rfind(L'.');
    const bool hasExtension = dot != std::wstring_view::npos && rest != L"." && rest != L"..";
    assign(name, hasExtension ? rest.substr(0, dot) : rest);
    assign(extension, hasExtension ? rest.substr(dot) : std::wstring_view());
    return true;
}

std::vector<OdString> ktutSplitString(const wchar_t* text, const wchar_t* separators) {
    std::vector<OdString> pieces;
    std::wstring_view rest(text ? text : L"");
    const std::wstring_view cuts(separators ? separators : L"");
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of(cuts), rest.size());
        if (end > 0) pieces.push_back(OdString(std::wstring(rest.substr(0, end))));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return pieces;
}
