#include "pictures/picture_places.h"

#include <algorithm>

namespace {

bool isSlash(wchar_t c) { return c == L'\\' || c == L'/'; }

/// A path from a drive's or a server's root.
bool isWhole(std::wstring_view path) {
    const bool hasDrive = path.size() > 2 && path[1] == L':' && isSlash(path[2]);
    return hasDrive || (path.size() > 2 && isSlash(path[0]) && isSlash(path[1]));
}

/// "\\.\…" and "\\?\…", and whatever has a colon that no drive ends with.
bool isDevice(std::wstring_view path) {
    if (path.size() > 3 && isSlash(path[0]) && isSlash(path[1]) && (path[2] == L'.' || path[2] == L'?') &&
        isSlash(path[3]))
        return true;
    const std::size_t colon = path.find_last_of(L':');
    return colon != std::wstring_view::npos && !(colon == 1 && isWhole(path));
}

}  // namespace

std::vector<std::wstring> PicturePlaces(std::wstring_view name, std::wstring_view folder) {
    std::vector<std::wstring> places;
    if (name.empty() || isDevice(name)) return places;
    const auto add = [&places](std::wstring place) {
        std::replace(place.begin(), place.end(), L'/', L'\\');
        if (std::find(places.begin(), places.end(), place) == places.end())
            places.push_back(std::move(place));
    };
    std::wstring beside(folder);
    if (!beside.empty() && !isSlash(beside.back())) beside += L'\\';
    if (isWhole(name))
        add(std::wstring(name));
    else if (!beside.empty() && !isSlash(name[0]))
        add(beside + std::wstring(name));
    const std::wstring_view bare = name.substr(name.find_last_of(L"\\/") + 1);
    if (!beside.empty() && !bare.empty()) add(beside + std::wstring(bare));
    return places;
}
