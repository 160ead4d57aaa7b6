#include <ktui/dialogs/elastic_arithmetic.h>

namespace {

constexpr int kHundredths = 100;

/// Takes `percent` of `change` into `remainder` and answers the whole pixels that come out.
int advance(int percent, int change, int& remainder) {
    const int total = percent * change + remainder;
    const int whole = total / kHundredths;
    remainder = total - whole * kHundredths;
    return whole;
}

}  // namespace

CSize AdvanceElasticTag(_SControlTag& tag, int dx, int dy) {
    const int x = advance(tag.m_percentX, dx, tag.m_remainderX);
    const int y = advance(tag.m_percentY, dy, tag.m_remainderY);
    return CSize(x, y);
}

bool ApplyElasticStep(unsigned kind, CSize step, CRect& rect) {
    if (step.cx == 0 && step.cy == 0) return false;
    switch (kind) {
        case kKbUiMoveX: rect.OffsetRect(step.cx, 0); return step.cx != 0;
        case kKbUiMoveY: rect.OffsetRect(0, step.cy); return step.cy != 0;
        case kKbUiMoveXY: rect.OffsetRect(step.cx, step.cy); return true;
        case kKbUiStretchX: rect.right += step.cx; return step.cx != 0;
        case kKbUiStretchY: rect.bottom += step.cy; return step.cy != 0;
        case kKbUiStretchXY:
            rect.right += step.cx;
            rect.bottom += step.cy;
            return true;
        default: return false;
    }
}
