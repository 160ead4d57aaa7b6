#include <kmfc/menu_images.h>

#include <array>
#include <map>
#include <tuple>

#include <kmfc/global_data.h>

#include "core/look_colors.h"
#include "core/sign_shapes.h"
#include "picture_drawing.h"

namespace {

using kmfc::Sign;

Sign sign_of(CMenuImages::IMAGES_IDS id) {
    switch (id) {
        case CMenuImages::IdArrowDown: return Sign::arrow_down;
        case CMenuImages::IdArrowRight: return Sign::arrow_right;
        case CMenuImages::IdCheck: return Sign::check;
        case CMenuImages::IdMinimize: return Sign::minimize;
        case CMenuImages::IdRestore: return Sign::restore;
        case CMenuImages::IdClose: return Sign::close;
        case CMenuImages::IdArrowUp: return Sign::arrow_up;
        case CMenuImages::IdArrowLeft: return Sign::arrow_left;
        case CMenuImages::IdCloseSmall: return Sign::small_close;
        case CMenuImages::IdMoreButtons: return Sign::more;
        case CMenuImages::IdMaximize: return Sign::maximize;
        case CMenuImages::IdPinHorz: return Sign::pin_lying;
        case CMenuImages::IdPinVert: return Sign::pin_standing;
        case CMenuImages::IdArrowLeftLarge: return Sign::large_arrow_left;
        case CMenuImages::IdArrowRightLarge: return Sign::large_arrow_right;
        case CMenuImages::IdArrowFirst: return Sign::first;
        case CMenuImages::IdArrowLast: return Sign::last;
        case CMenuImages::IdRadio: return Sign::radio;
        case CMenuImages::IdArrowDownLarge: return Sign::large_arrow_down;
        case CMenuImages::IdArrowUpLarge: return Sign::large_arrow_up;
    }
    return Sign::count;
}

/// Coverage of the signs that were drawn, by sign and size. Not the pictures: they would hold GDI objects.
auto& coverages() {
    static std::map<std::tuple<Sign, int, int>, std::vector<BYTE>> made;
    return made;
}

const std::vector<BYTE>& coverage(Sign sign, const CSize& size) {
    const auto key = std::make_tuple(sign, static_cast<int>(size.cx), static_cast<int>(size.cy));
    const auto found = coverages().find(key);
    if (found != coverages().end()) return found->second;
    return coverages()[key] = kmfc::sign_coverage(sign, size.cx, size.cy);
}

auto& state_colors() {
    static std::array<COLORREF, CMenuImages::LastImageState> colors = {RGB(0, 0, 0),       RGB(128, 128, 128),
                                                                       RGB(72, 72, 72),    RGB(192, 192, 192),
                                                                       RGB(255, 255, 255), RGB(0, 0, 0)};
    return colors;
}

/// A picture in the colour, each pixel as opaque as the sign covers it.
kmfc::PicturePixels in_color(const CSize& size, const std::vector<BYTE>& covered, COLORREF color) {
    kmfc::PicturePixels picture;
    picture.size = size;
    picture.pixels.reserve(covered.size());
    for (const DWORD part : covered) {
        const DWORD red = GetRValue(color) * part / 255, green = GetGValue(color) * part / 255,
                    blue = GetBValue(color) * part / 255;
        picture.pixels.push_back(part << 24 | red << 16 | green << 8 | blue);
    }
    return picture;
}

void draw_sign(CDC& dc, Sign sign, CPoint at, const CSize& size, COLORREF color) {
    if (size.cx < 1 || size.cy < 1) return;
    kmfc::draw_picture(dc, at, in_color(size, coverage(sign, size), color));
}

}  // namespace

CSize CMenuImages::Size() {
    const int side = afxGlobalData.scaled(9);
    return CSize(side, side);
}

void CMenuImages::Draw(CDC* pDC, IMAGES_IDS id, const CPoint& ptImage, IMAGE_STATE state,
                       const CSize& sizeImage) {
    draw_sign(*pDC, sign_of(id), ptImage, sizeImage == CSize(0, 0) ? Size() : sizeImage,
              state_colors().at(state));
}

void CMenuImages::Draw(CDC* pDC, IMAGES_IDS id, const CRect& rectImage, IMAGE_STATE state,
                       const CSize& sizeImage) {
    draw_in_color(pDC, id, rectImage, state_colors().at(state), sizeImage);
}

void CMenuImages::draw_in_color(CDC* pDC, IMAGES_IDS id, const CRect& rectImage, COLORREF color,
                                const CSize& sizeImage) {
    const CSize size = sizeImage == CSize(0, 0) ? Size() : sizeImage;
    const CPoint at(rectImage.left + (rectImage.Width() - size.cx) / 2,
                    rectImage.top + (rectImage.Height() - size.cy) / 2);
    draw_sign(*pDC, sign_of(id), at, size, color);
}

CMenuImages::IMAGE_STATE CMenuImages::GetStateByColor(COLORREF clrImage, BOOL bIsBackgroundColor) {
    if (bIsBackgroundColor) return kmfc::is_dark(clrImage) ? ImageWhite : ImageBlack;
    IMAGE_STATE nearest = ImageBlack;
    for (const IMAGE_STATE state : {ImageGray, ImageDkGray, ImageLtGray, ImageWhite})
        if (kmfc::contrast(clrImage, state_colors().at(state)) <
            kmfc::contrast(clrImage, state_colors().at(nearest)))
            nearest = state;
    return nearest;
}

void CMenuImages::SetColor(IMAGE_STATE state, COLORREF color) { state_colors().at(state) = color; }
void CMenuImages::CleanUp() { coverages().clear(); }
