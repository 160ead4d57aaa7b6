#include "shapes/stroke_fonts.h"

#include <algorithm>

#include <od_code_pages.h>

#include "geometry/space_transform.h"
#include "shapes/big_font_pages.h"

namespace {

/// The file of a shape font with its extension, which styles may leave out; empty for another font.
OdString shapeFontFile(const OdString& file) {
    if (file.isEmpty()) return {};
    std::wstring name(file.view());
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

const ShapeFile* StrokeFonts::fontIn(const OdString& name, bool isBig) {
    const ShapeFile* const file = m_files.file(name);
    return file != nullptr && file->isFont() && file->isBig() == isBig ? file : nullptr;
}

const ShapeFile* StrokeFonts::named(const OdString& file, bool isBig) {
    const OdString name = shapeFontFile(file);
    if (name.isEmpty()) return nullptr;
    if (const ShapeFile* const found = fontIn(name, isBig)) return found;
    if (m_files.haveSource()) m_missing.emplace(name.view());
    return isBig ? nullptr : fontIn(m_inPlace, false);
}

const ShapeFile* StrokeFonts::fileOf(const SceneFont& font) {
    return font.family.isEmpty() ? named(font.file, false) : nullptr;
}

/// A letter in a font, whose file is `file`, or else in its big font.
StrokeFonts::Place StrokeFonts::find(const ShapeFile& file, const SceneFont& font, wchar_t letter) {
    if (const int number = numberOf(file, letter); number != 0) return {&file, number};
    const int number = letter < 0x80 || font.bigFile.isEmpty() ? 0 : numberInBigFont(font.bigFile, letter);
    if (number == 0) return {};
    const ShapeFile* const big = named(font.bigFile, true);
    return big != nullptr && big->has(number) ? Place{big, number} : Place{};
}

/// The two bytes of a character, the first the higher one; 0 if it hasn't two.
int StrokeFonts::numberInBigFont(const OdString& file, wchar_t letter) const {
    const int page = IsEastAsian(m_codePage) ? m_codePage : CodePageOfBigFont(file.view());
    std::string bytes;
    if (page == 0 || !odBytesOfCharacter(page, {&letter, 1}, bytes) || bytes.size() != 2) return 0;
    return static_cast<unsigned char>(bytes[0]) << 8 | static_cast<unsigned char>(bytes[1]);
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
    std::vector<Place> places;
    places.reserve(text.size());
    for (const wchar_t each : text) {
        places.push_back(find(*file, font, each));
        if (places.back().file == nullptr) return false;
    }
    for (const Place& place : places) use(letter(*place.file, place.number));
    return true;
}

std::vector<StrokeFonts::Run> StrokeFonts::runs(const SceneFont& font, std::wstring_view text) {
    const ShapeFile* const file = fileOf(font);
    if (file == nullptr) return {{text, false}};
    const auto isWritten = [&](wchar_t each) { return find(*file, font, each).file != nullptr; };
    std::vector<Run> found;
    for (std::size_t begin = 0, end = 0; begin < text.size(); begin = end) {
        const bool first = isWritten(text[begin]);
        while (end < text.size() && isWritten(text[end]) == first) ++end;
        found.push_back({text.substr(begin, end - begin), first});
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
