#include "font_catalogue.h"

#include <ktut.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <tuple>

#include "folded_name.h"

namespace {

/// A style with what decides its place in its family.
struct Entry {
    CatalogueStyle style;
    int widthDistance;
    int weightDistance;
    int weight;
    bool isItalic;
};

/// What is known of a family while files are still being added.
struct Family {
    std::wstring name;
    FontKind kind;
    std::vector<Entry> entries;
};

using Families = std::map<std::pair<std::wstring, FontKind>, Family>;

void add(Families& families, const std::wstring& name, FontKind kind, Entry entry) {
    Family& family = families[{FoldedName(name), kind}];
    if (family.entries.empty()) {
        family.name = name;
        family.kind = kind;
    }
    family.entries.push_back(std::move(entry));
}

void addFile(Families& families, const FoundFont& found) {
    const std::wstring fileName(fileNameOf(found.path));
    if (found.file.kind != FontKind::kTrueType) {
        const std::wstring stem = fileName.substr(0, fileName.rfind(L'.'));
        add(families, fileName, found.file.kind, {{stem, fileName, found.path, false}, 0, 0, 0, false});
        return;
    }
    constexpr int kNormalWidth = 5;
    constexpr int kRegularWeight = 400;
    for (const FontFace& face : found.file.faces)
        add(families, face.family, FontKind::kTrueType,
            {{face.style, fileName, found.path, false},
             std::abs(face.width - kNormalWidth),
             std::abs(face.weight - kRegularWeight),
             face.weight,
             face.isItalic});
}

/// Sorts the styles, and flags those that repeat one before.
std::vector<CatalogueStyle> stylesOf(Family& family) {
    // Which file wins is settled by the order of the files, before the styles are sorted.
    std::set<std::wstring> names;
    for (Entry& entry : family.entries)
        entry.style.isFlagged = !names.insert(FoldedName(entry.style.name)).second;
    const auto key = [](const Entry& e) {
        return std::tuple(e.style.isFlagged, e.widthDistance, e.weightDistance, e.weight, e.isItalic);
    };
    std::stable_sort(family.entries.begin(), family.entries.end(), [&key](const Entry& a, const Entry& b) {
        const auto x = key(a);
        const auto y = key(b);
        return x != y ? x < y : ktutCompareString(a.style.name.c_str(), b.style.name.c_str()) > 0;
    });
    std::vector<CatalogueStyle> styles;
    styles.reserve(family.entries.size());
    for (Entry& entry : family.entries) styles.push_back(std::move(entry.style));
    return styles;
}

bool isSame(std::wstring_view a, std::wstring_view b) { return odCompareFolded(a, b) == 0; }

/// The first style for which `wanted` holds, one that isn't flagged before all others.
template <class Wanted>
std::optional<CataloguePlace> findStyle(const std::vector<CatalogueFont>& fonts, Wanted wanted) {
    std::optional<CataloguePlace> flagged;
    for (std::size_t font = 0; font < fonts.size(); ++font) {
        const auto& styles = fonts[font].styles;
        for (std::size_t style = 0; style < styles.size(); ++style) {
            if (!wanted(styles[style])) continue;
            if (!styles[style].isFlagged) return CataloguePlace{font, style};
            if (!flagged) flagged = CataloguePlace{font, style};
        }
    }
    return flagged;
}

}  // namespace

std::vector<CatalogueFont> makeFontCatalogue(const std::vector<FoundFont>& found) {
    Families families;
    std::set<std::wstring> paths;
    for (const FoundFont& font : found)
        if (font.file.kind != FontKind::kNone && paths.insert(FoldedName(font.path)).second)
            addFile(families, font);
    std::vector<CatalogueFont> fonts;
    fonts.reserve(families.size());
    for (auto& [key, family] : families)
        fonts.push_back({std::move(family.name), family.kind, stylesOf(family)});
    std::stable_sort(fonts.begin(), fonts.end(), [](const CatalogueFont& a, const CatalogueFont& b) {
        return ktutCompareString(a.name.c_str(), b.name.c_str()) > 0;
    });
    return fonts;
}

std::optional<CataloguePlace> findFontFile(const std::vector<CatalogueFont>& fonts, std::wstring_view name) {
    if (name.empty()) return std::nullopt;
    const std::wstring_view fileName = fileNameOf(name);
    if (fileName.size() < name.size()) {
        const auto place = findStyle(fonts, [name](const CatalogueStyle& s) { return isSame(s.path, name); });
        if (place) return place;
    }
    if (fileName.empty()) return std::nullopt;
    const auto place =
        findStyle(fonts, [fileName](const CatalogueStyle& s) { return isSame(s.fileName, fileName); });
    if (place || isFontFileName(fileName)) return place;
    const std::wstring whole = std::wstring(fileName) + L".shx";
    return findStyle(fonts, [&whole](const CatalogueStyle& s) { return isSame(s.fileName, whole); });
}
