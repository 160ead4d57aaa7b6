#include "od_color_groups.h"

OdCmColor odColorFromGroups(const OdGroupList& groups, std::uint32_t from, std::uint32_t to) {
    OdCmColor color;
    OdGroup group;
    const auto find = [&](int code) { return groups.find(code, group, from) && group.begin < to; };
    if (find(420)) {
        const auto packed = static_cast<std::uint32_t>(group.integer);
        color.setRGB(static_cast<std::uint8_t>(packed >> 16), static_cast<std::uint8_t>(packed >> 8),
                     static_cast<std::uint8_t>(packed));
        if (find(430)) {
            const std::size_t mark = group.text.find('$');
            if (mark == std::string_view::npos)
                color.setNames(group.wide());
            else
                color.setNames(odWide(group.text.substr(mark + 1)), odWide(group.text.substr(0, mark)));
        }
        return color;
    }
    if (find(62) && group.integer >= -255 && group.integer <= 256)
        color.setColorIndex(static_cast<int>(group.integer < 0 ? -group.integer : group.integer));
    return color;
}

std::int64_t odTrueColorGroup(const OdCmColor& color) {
    return (color.red() << 16) | (color.green() << 8) | color.blue();
}

OdString odColorNameGroup(const OdCmColor& color) {
    return color.bookName().isEmpty() ? color.colorName() : color.bookName() + L"$" + color.colorName();
}

void odColorToGroups(const OdCmColor& color, OdGroupList& groups) {
    groups.remove(420);
    groups.remove(430);
    groups.setInteger(62, color.colorIndex());
    if (color.isByColor()) groups.setInteger(420, odTrueColorGroup(color));
    if (color.hasName()) groups.setText(430, odColorNameGroup(color));
}
