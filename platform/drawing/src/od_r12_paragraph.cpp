#include "od_r12_paragraph.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "od_angle.h"
#include "od_db_text_style_table.h"

namespace {

constexpr double kLineSpacing = 5.0 / 3.0;  // heights from base line to base line
constexpr std::size_t kLongestLine = 255;   // characters of a text in R12

bool isIdeograph(wchar_t c) { return static_cast<char32_t>(c) >= 0x2E80; }

/// About how wide a character is, in heights of capitals, as in the usual fonts without serifs.
double widthOf(wchar_t c) {
    constexpr std::wstring_view kNarrow = L" iljtfrI.,;:'!|()[]/-";
    constexpr std::wstring_view kBroad = L"mw@%&MW";
    if (isIdeograph(c)) return 1.4;
    if (kNarrow.find(c) != std::wstring_view::npos) return 0.4;
    if (kBroad.find(c) != std::wstring_view::npos) return 1.1;
    return c >= L'A' && c <= L'Z' ? 0.95 : 0.75;
}

double widthOf(std::wstring_view text) {
    double width = 0;
    for (const wchar_t c : text) width += widthOf(c);
    return width;
}

/// Characters that a text takes in a file whose code page lacks all but ASCII.
std::size_t sizeInFile(std::wstring_view text) {
    constexpr std::size_t kEscape = 7;
    std::size_t size = 0;
    for (const wchar_t c : text) size += static_cast<char32_t>(c) < 0x80 ? 1 : kEscape;
    return size;
}

/// How many characters of `text` go on one line that is `limit` heights wide (0 for any width): up to a blank
/// or an ideograph, or a whole word where that is too wide already. 0 for an empty text.
std::size_t fitting(std::wstring_view text, double limit) {
    std::size_t fits = 0;
    for (std::size_t end = 1; end <= text.size(); ++end) {
        const bool breaks =
            end == text.size() || text[end] == L' ' || isIdeograph(text[end]) || isIdeograph(text[end - 1]);
        const std::wstring_view line = text.substr(0, end);
        if (sizeInFile(line) > kLongestLine) return fits > 0 ? fits : end - 1;
        if (!breaks) continue;
        if (limit > 0 && widthOf(line) > limit) return fits > 0 ? fits : end;
        fits = end;
    }
    return fits;
}

std::vector<std::wstring> brokenLines(std::wstring_view text, double limit) {
    std::vector<std::wstring> lines;
    while (true) {
        const std::size_t end = text.find(L'\n');
        std::wstring_view paragraph = text.substr(0, end);
        do {
            const std::size_t count = fitting(paragraph, limit);
            lines.emplace_back(paragraph.substr(0, count));
            paragraph.remove_prefix(count);
            while (count > 0 && !paragraph.empty() && paragraph[0] == L' ') paragraph.remove_prefix(1);
        } while (!paragraph.empty());
        if (end == std::wstring_view::npos) return lines;
        text.remove_prefix(end + 1);
    }
}

}  // namespace

std::vector<OdDbEntityPtr> odLinesOfParagraph(const OdDbMText& paragraph) {
    std::vector<OdDbEntityPtr> texts;
    const double height = paragraph.textHeight();
    const auto style = paragraph.textStyle().open<OdDbTextStyleTableRecord>();
    const double factor = style ? style->groups().real(41, 1) : 1;
    const double unit = height * (factor > 0 ? factor : 1);
    const double limit = unit > 0 && paragraph.width() > 0 ? paragraph.width() / unit : 0;
    const OdString plain = paragraph.plainText();
    const std::vector<std::wstring> lines = brokenLines(plain.view(), limit);

    const int attachment = std::clamp(paragraph.attachment(), 1, 9) - 1;
    const int column = attachment % 3;  // left, centre, right
    const int row = attachment / 3;     // top, middle, bottom
    const double spacing = height * kLineSpacing * paragraph.groups().real(44, 1);
    const double whole = height + spacing * static_cast<double>(lines.size() - 1);
    const double angle = paragraph.rotation();
    const OdGePoint3d at = paragraph.location();
    for (std::size_t number = 0; number < lines.size(); ++number) {
        if (lines[number].empty()) continue;
        const double down = height + spacing * static_cast<double>(number) - whole * row / 2;
        const double back = widthOf(lines[number]) * unit * column / 2;
        const OdGePoint3d anchor{at.x + std::sin(angle) * down, at.y - std::cos(angle) * down, at.z};
        OdSmartPtr<OdDbText> text(new OdDbText);
        text->setPosition({anchor.x - std::cos(angle) * back, anchor.y - std::sin(angle) * back, anchor.z});
        text->setHeight(height);
        text->setTextString(OdString(lines[number]));
        if (angle != 0) text->setRotation(angle);
        if (factor > 0 && factor != 1) text->editGroups().setReal(41, factor);
        if (const OdString name = paragraph.groups().text(7); !name.isEmpty())
            text->editGroups().setText(7, name);
        if (column != 0) {
            text->setHorizontalMode(column);
            text->setAlignmentPoint(anchor);
        }
        texts.push_back(OdDbEntityPtr(text.get()));
    }
    return texts;
}
