#include "preview_layout.h"

#include <algorithm>
#include <cmath>

namespace kmfc {

namespace {

constexpr int kMargin = 10;  // pixels around and between sheets

int rounded(double value) { return static_cast<int>(std::lround(value)); }

/// The place along one axis of something `size` long: centred, or scrolled back.
int begin_of(int size, int room, int scrolled) {
    return size <= room ? (room - size) / 2 : -std::clamp(scrolled, 0, size - room);
}

}  // namespace

PreviewLayout arrange_preview(CSize client, const PreviewSheet& sheet, int count, PreviewZoom zoom,
                              CPoint scrolled, CSize screenDotsPerInch) {
    const double wide = static_cast<double>(sheet.paper.cx) / std::max<int>(sheet.dotsPerInch.cx, 1);
    const double high = static_cast<double>(sheet.paper.cy) / std::max<int>(sheet.dotsPerInch.cy, 1);
    count = std::max(count, 1);
    if (wide <= 0 || high <= 0) return {};
    const int acrossMargins = kMargin * (count + 1), downMargins = kMargin * 2;
    const double fits =
        std::min((client.cx - acrossMargins) / (wide * count), (client.cy - downMargins) / high);
    const double whole = std::max(fits, 1.0);  // pixels an inch
    const auto scale_for = [&](int screen) {
        const double actual = std::max<double>(screen, 2 * whole);
        if (zoom == PreviewZoom::whole) return whole;
        return zoom == PreviewZoom::actual ? actual : (whole + actual) / 2;
    };
    const CSize size(std::max(rounded(wide * scale_for(screenDotsPerInch.cx)), 1),
                     std::max(rounded(high * scale_for(screenDotsPerInch.cy)), 1));
    const CSize all(size.cx * count + acrossMargins, size.cy + downMargins);
    const CPoint corner(begin_of(all.cx, client.cx, scrolled.x), begin_of(all.cy, client.cy, scrolled.y));
    PreviewLayout layout;
    for (int i = 0; i < count; ++i)
        layout.sheets.emplace_back(CPoint(corner.x + kMargin + i * (size.cx + kMargin), corner.y + kMargin),
                                   size);
    layout.beyond = CSize(std::max<int>(all.cx - client.cx, 0), std::max<int>(all.cy - client.cy, 0));
    return layout;
}

CRect printable_part(const CRect& onScreen, const PreviewSheet& sheet) {
    const auto along = [](int begin, int length, int at, int all) {
        return begin + rounded(static_cast<double>(length) * at / std::max(all, 1));
    };
    const CRect& part = sheet.printable;
    return CRect(along(onScreen.left, onScreen.Width(), part.left, sheet.paper.cx),
                 along(onScreen.top, onScreen.Height(), part.top, sheet.paper.cy),
                 along(onScreen.left, onScreen.Width(), part.right, sheet.paper.cx),
                 along(onScreen.top, onScreen.Height(), part.bottom, sheet.paper.cy));
}

}  // namespace kmfc
