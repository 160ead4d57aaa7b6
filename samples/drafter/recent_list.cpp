#include "recent_list.h"

#include <string>

namespace {

constexpr std::size_t kLongestEntry = 60;  // characters of a path
constexpr std::size_t kBeginning = 3;      // the drive

}  // namespace

std::vector<OdString> WithoutRecent(const std::vector<OdString>& files, const OdString& path) {
    std::vector<OdString> others;
    for (const OdString& file : files)
        if (file.iCompare(path) != 0) others.push_back(file);
    return others;
}

std::vector<OdString> WithRecent(const std::vector<OdString>& files, const OdString& path) {
    std::vector<OdString> result = {path};
    for (const OdString& file : WithoutRecent(files, path))
        if (result.size() < kMostRecentFiles) result.push_back(file);
    return result;
}

OdString RecentEntry(std::size_t index, const OdString& path) {
    std::wstring shown(path.view());
    if (shown.size() > kLongestEntry) {
        const std::size_t kept = kLongestEntry - kBeginning - 3;
        std::size_t from = shown.find(L'\\', shown.size() - kept);
        if (from == std::wstring::npos) from = shown.size() - kept;
        shown = shown.substr(0, kBeginning) + L"..." + shown.substr(from);
    }
    std::wstring entry = L"&" + std::to_wstring(index + 1) + L" ";
    for (const wchar_t c : shown) entry += c == L'&' ? std::wstring(L"&&") : std::wstring(1, c);
    return OdString(entry.c_str());
}
