// Frames of geometric tolerances: fields in boxes, in rows.
#include <algorithm>
#include <map>
#include <string>

#include <od_db_symbols.h>

#include "kinds/draw_functions.h"
#include "kinds/draw_paragraph.h"
#include "kinds/draw_single_line.h"
#include "kinds/entity_cast.h"
#include "rules/dimension_style.h"
#include "rules/text_codes.h"

namespace {

using namespace dimension_codes;

/// The signs that letters of the font for tolerances stand for.
wchar_t signOf(wchar_t letter) {
    static const std::map<wchar_t, wchar_t> signs = {
        {L'a', 0x2220}, {L'b', 0x27C2}, {L'c', 0x23E5}, {L'd', 0x2313}, {L'e', 0x25CB},
        {L'f', 0x2225}, {L'g', 0x232D}, {L'h', 0x2197}, {L'i', 0x232F}, {L'j', 0x2316},
        {L'k', 0x2312}, {L'l', 0x24C1}, {L'm', 0x24C2}, {L'n', 0x2300}, {L'p', 0x24C5},
        {L'r', 0x25CE}, {L's', 0x24C8}, {L't', 0x2330}, {L'u', 0x23E4}};
    const auto found = signs.find(letter);
    return found != signs.end() ? found->second : letter;
}

/// One field's letters: "{\Fgdt;j}" is a sign.
OdString wordsOf(std::wstring_view field) {
    std::wstring words;
    bool isSign = false;
    while (!field.empty()) {
        if (field.substr(0, 2) == L"{\\" && field.find(L';') != std::wstring_view::npos) {
            isSign = odCompareFolded(field.substr(2, 4), L"Fgdt") == 0;
            field.remove_prefix(field.find(L';') + 1);
        } else if (field[0] == L'}' || field[0] == L'{') {
            isSign = false;
            field.remove_prefix(1);
        } else {
            words += isSign ? signOf(field[0]) : field[0];
            field.remove_prefix(1);
        }
    }
    return OdString(DecodeText(words).letters);
}

/// The parts of a text between separators.
std::vector<std::wstring_view> split(std::wstring_view text, std::wstring_view separator) {
    std::vector<std::wstring_view> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::wstring_view::npos) return parts;
        text.remove_prefix(end + separator.size());
    }
}

}  // namespace

void DrawTolerance(const OdDbEntity& entity, EntityPen& pen) {
    constexpr double kRowHeight = 2, kUsualHeight = 0.18;  // the first in heights of the text
    const auto* frame = As<OdDbFcf>(entity);
    if (frame == nullptr) return;
    const DimensionStyle style(pen.work().drawing(), frame->dimStyleName(), entity);
    const double height = style.length(kTextHeight, kUsualHeight);
    const OdGeVector3d normal = entity.normal();
    const SpaceVector z = Unit({normal.x, normal.y, normal.z}, {0, 0, 1});
    const SpaceVector along = Unit(frame->direction(), {1, 0, 0}), up = Unit(Cross(z, along), {0, 1, 0});
    const EntityPen there = pen.within({along, up, z, frame->location()});
    EntityPen lines = there, letters = there;
    pen.rules().setColor(lines.look(), style.color(kLineColor), pen.look());
    pen.rules().setColor(letters.look(), style.color(kTextColor), pen.look());
    const SceneFont font = FontOfStyle(style.object(kTextStyle));
    double middle = 0;
    const OdString fields = frame->text();
    for (const std::wstring_view row : split(fields.view(), L"\n")) {
        double x = 0;
        for (const std::wstring_view field : split(row, L"%%v")) {
            const OdString words = wordsOf(field);
            if (words.isEmpty()) continue;
            const double width = pen.work().textWidth(font, words.view()) * height + height;
            const double low = middle - height * kRowHeight / 2, high = middle + height * kRowHeight / 2;
            lines.stroke(
                std::vector<OdGePoint2d>{{x, low}, {x + width, low}, {x + width, high}, {x, high}, {x, low}});
            PlacedText text;
            text.text = words;
            text.position = {x + width / 2, middle, 0};
            text.height = height;
            text.horizontal = 1;
            text.vertical = 2;
            text.font = font;
            letters.text(text);
            x += width;
        }
        middle -= height * kRowHeight;
    }
}
