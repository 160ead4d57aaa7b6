#include "caption_layout.h"

#include <algorithm>
#include <cstdint>

namespace kmfc::docking {

namespace {
constexpr int kMargin = 3;   // pixels above and below what stands in a caption
constexpr int kSideGap = 2;  // pixels at its ends
constexpr int kBetween = 1;  // pixels between buttons
// The system's codes for parts of a border, from left to bottom right.
enum Part { left = 10, right, top, topLeft, topRight, bottom, bottomLeft, bottomRight };
}  // namespace

int caption_height(int textHeight, int buttonHeight) {
    return std::max(textHeight + 2 * kMargin, buttonHeight + kMargin);
}

std::vector<CRect> place_buttons(const CRect& caption, CSize button, const std::vector<bool>& shown) {
    std::vector<CRect> places;
    int right = caption.right - kSideGap;
    const int top = caption.top + (caption.Height() - button.cy) / 2;
    for (const bool show : shown) {
        CRect place(0, 0, 0, 0);
        if (show && right - button.cx >= caption.left) {
            place = CRect(right - button.cx, top, right, top + button.cy);
            right -= button.cx + kBetween;
        }
        places.push_back(place);
    }
    return places;
}

CRect caption_text(const CRect& caption, const std::vector<CRect>& buttons) {
    CRect text(caption);
    text.left = std::min<LONG>(caption.right, caption.left + 2 * kMargin);
    text.right -= kSideGap;
    for (const CRect& button : buttons)
        if (!button.IsRectEmpty()) text.right = std::min(text.right, button.left - kSideGap);
    text.right = std::max(text.left, text.right);
    return text;
}

int border_hit(const CRect& window, const CPoint& point, int border, int corner) {
    if (point.x < window.left || point.x >= window.right || point.y < window.top || point.y >= window.bottom)
        return 0;
    const bool atLeft = point.x < window.left + border, atRight = point.x >= window.right - border;
    const bool atTop = point.y < window.top + border, atBottom = point.y >= window.bottom - border;
    if (!atLeft && !atRight && !atTop && !atBottom) return 0;
    const bool nearLeft = point.x < window.left + corner, nearRight = point.x >= window.right - corner;
    const bool nearTop = point.y < window.top + corner, nearBottom = point.y >= window.bottom - corner;
    if (nearTop && nearLeft) return topLeft;
    if (nearTop && nearRight) return topRight;
    if (nearBottom && nearLeft) return bottomLeft;
    if (nearBottom && nearRight) return bottomRight;
    if (atLeft) return left;
    if (atRight) return right;
    return atTop ? top : bottom;
}

CRect torn_off(const CRect& from, CSize size, const CPoint& mouse, int grip) {
    const int width = std::max(1, from.Width());
    const int hold = std::clamp<int>(mouse.x - from.left, 0, width);
    const int x = mouse.x - static_cast<int>(std::int64_t{hold} * size.cx / width), y = mouse.y - grip;
    return CRect(x, y, x + size.cx, y + size.cy);
}

CRect keep_inside(const CRect& rect, const CRect& work) {
    CRect moved(rect);
    moved.OffsetRect(std::min<int>(0, work.right - moved.right),
                     std::min<int>(0, work.bottom - moved.bottom));
    moved.OffsetRect(std::max<int>(0, work.left - moved.left), std::max<int>(0, work.top - moved.top));
    return moved;
}

}  // namespace kmfc::docking
