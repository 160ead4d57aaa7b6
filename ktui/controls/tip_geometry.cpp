#include <ktui/controls/tip_geometry.h>

namespace {

constexpr int kLabelInset = 4;        // pixels between the edge of an item and its text
constexpr int kLabelTail = 8;         // pixels behind the text
constexpr int kHeaderTipOffset = 20;  // pixels, so that the tip doesn't cover the pointer

int Width(const RECT& rect) { return static_cast<int>(rect.right - rect.left); }
int Height(const RECT& rect) { return static_cast<int>(rect.bottom - rect.top); }

}  // namespace

TipPlace PlaceRowTip(const RECT& row, int textWidth, int textHeight) {
    if (textWidth <= Width(row)) return {RECT{0, 0, 0, 0}, false};
    RECT tip = row;
    tip.right = tip.left + textWidth;
    if (textHeight > Height(tip)) tip.bottom = tip.top + textHeight;
    return {tip, true};
}

TipPlace PlaceCellTip(const RECT& cell, int textWidth, int textHeight) {
    if (Width(cell) >= textWidth && Height(cell) >= textHeight) return {cell, false};
    return {RECT{cell.left, cell.top, cell.left + textWidth, cell.top + textHeight}, true};
}

RECT HeaderTipArea(const RECT& item) {
    const int height = Height(item);
    return {item.left + kLabelInset + kHeaderTipOffset, item.top + height,
            item.right - kLabelTail + kHeaderTipOffset, item.bottom + height};
}

RECT TrimSubItemLabel(const RECT& label, int column) {
    RECT trimmed = label;
    if (column == 0) {
        trimmed.right -= kLabelInset;
    } else {
        trimmed.left += kLabelInset;
        trimmed.right -= kLabelTail;
    }
    return trimmed;
}
