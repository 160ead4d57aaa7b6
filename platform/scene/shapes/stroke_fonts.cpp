#include "shapes/stroke_fonts.h"

#include <algorithm>

#include "geometry/space_transform.h"

namespace {

/// The file of a shape font with its extension, which styles may leave out; empty for another font.
OdString shapeFontFile(const SceneFont& font) {
    if (!font.family.isEmpty() || font.file.isEmpty()) return {};
    std::wstring name(font.file.view());
    const std::size_t dot = name.find_last_of(L"./\\");
    if (dot == std::wstring::npos || name[dot] != L'.') return OdString(name + L".shx");
    std::wstring extension = name.substr(dot);
    for (wchar_t& c : extension)
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    return extension == L".shx" ? OdString(name) : OdString();
}

/// The number of a letter's shape; 0 if the font lacks it.
int numberOf(const ShapeFile& file, wchar_t letter) {
    constexpr int kDegree = 127, kPlusMinus = 128, kDiameter = 129;  // in fonts of few letters
    constexpr int kEmptySet = 0x2205, kNoBreakSpace = 0xA0;
    const auto first = [&file](std::initializer_list<int> numbers) {
        const auto found =
            std::find_if(numbers.begin(), numbers.end(), [&](int number) { return file.has(number); });
        return found != numbers.end() ? *found : 0;
    };
    const int own = letter;
    if (own == kNoBreakSpace) return first({own, L' '});
    if (file.isUnicode()) return own == 0xD8 ? first({kEmptySet, own}) : first({own});
    switch (letter) {
        case L'\u00B0': return first({kDegree, own});
        case L'\u00B1': return first({kPlusMinus, own});
        case L'\u2205':
        case L'\u00D8': return first({kDiameter, own});
        default: return first({own});
    }
}

}  // namespace

const ShapeFile* StrokeFonts::fileOf(const SceneFont& font) {
    const OdString name = shapeFontFile(font);
    if (name.isEmpty()) return nullptr;
    const ShapeFile* const file = m_files.file(name);
    if (file != nullptr && file->isFont()) return file;
    if (m_files.haveSource()) m_missing.emplace(name.view());
    return nullptr;
}

const StrokeFonts::Letter& StrokeFonts::letter(const ShapeFile& file, int number) {
    const auto [place, isNew] = m_letters.try_emplace({&file, number});
    if (!isNew) return place->second;
    const double unit = 1 / file.capitalHeight();
    place->second.lines = file.lines(number);
    for (std::vector<OdGePoint2d>& line : place->second.lines)
        for (OdGePoint2d& point : line) {
            point = point * unit;
            ++place->second.points;
        }
    place->second.advance = file.end(number).x * unit;
    return place->second;
}

template <class Use>
bool StrokeFonts::eachLetter(const SceneFont& font, std::wstring_view text, Use use) {
    const ShapeFile* const file = fileOf(font);
    if (file == nullptr) return false;
    const bool isWhole =
        std::all_of(text.begin(), text.end(), [file](wchar_t each) { return numberOf(*file, each) != 0; });
    if (!isWhole) return false;
    for (const wchar_t each : text) use(letter(*file, numberOf(*file, each)));
    return true;
}

std::vector<StrokeFonts::Run> StrokeFonts::runs(const SceneFont& font, std::wstring_view text) {
    const ShapeFile* const file = fileOf(font);
    if (file == nullptr) return {{text, false}};
    std::vector<Run> found;
    for (std::size_t begin = 0, end = 0; begin < text.size(); begin = end) {
        const bool isWritten = numberOf(*file, text[begin]) != 0;
        while (end < text.size() && (numberOf(*file, text[end]) != 0) == isWritten) ++end;
        found.push_back({text.substr(begin, end - begin), isWritten});
    }
    return found;
}

bool StrokeFonts::write(const SceneFont& font, std::wstring_view text, StrokeText& written,
                        const std::function<bool(std::size_t)>& spend) {
    written = {};
    bool isOver = false;
    return eachLetter(font, text, [&](const Letter& each) {
        isOver = isOver || !spend(each.points + 1);
        if (isOver) return;
        for (std::vector<OdGePoint2d> line : each.lines) {
            for (OdGePoint2d& point : line) point.x += written.width;
            written.lines.push_back(std::move(line));
        }
        written.width += each.advance;
    });
}

bool StrokeFonts::measure(const SceneFont& font, std::wstring_view text, double& width) {
    double sum = 0;
    if (!eachLetter(font, text, [&sum](const Letter& each) { sum += each.advance; })) return false;
    width = sum;
    return true;
}
