#include "dash_pattern.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFinestPattern = 3;  // pixels; a shorter pattern looks like a continuous line

/// In pixels.
double patternLength(const std::vector<double>& dashes, double scale) {
    double length = 0;
    for (const double dash : dashes) length += std::abs(dash) * scale;
    return length;
}

/// Walks a path and alternates between pen down and pen up as the pattern says, across corners.
class DashWalker {
public:
    DashWalker(CDC& dc, const std::vector<double>& dashes, double scale)
        : m_dc(dc), m_dashes(dashes), m_scale(scale) {
        m_left = std::abs(m_dashes[0]) * m_scale;
    }

    /// Begins this many pixels later, less than the pattern is long.
    void skip(double pixels) {
        while (pixels >= m_left) {
            pixels -= m_left;
            next();
        }
        m_left -= pixels;
    }

    void line(CPoint from, CPoint to) {
        const double dx = to.x - from.x, dy = to.y - from.y;
        const double length = std::hypot(dx, dy);
        double done = 0;
        while (done < length) {
            const double step = std::min(m_left, length - done);
            if (m_dashes[m_index] >= 0) stroke(from, dx, dy, length, done, done + std::max(step, 1.0));
            done += step;
            m_left -= step;
            if (m_left <= 0) next();
        }
    }

private:
    void stroke(CPoint from, double dx, double dy, double length, double begin, double end) {
        const auto at = [&](double along) {
            return CPoint(from.x + static_cast<int>(std::lround(dx * along / length)),
                          from.y + static_cast<int>(std::lround(dy * along / length)));
        };
        m_dc.MoveTo(at(begin));
        m_dc.LineTo(at(std::min(end, length)));
    }

    void next() {
        m_index = (m_index + 1) % m_dashes.size();
        m_left = std::max(std::abs(m_dashes[m_index]) * m_scale, 1e-6);
    }

    CDC& m_dc;
    const std::vector<double>& m_dashes;
    double m_scale;
    std::size_t m_index = 0;
    double m_left;  ///< pixels left of the present dash or gap
};

}  // namespace

bool IsDashedAt(const std::vector<double>& dashes, double scale) {
    return dashes.size() >= 2 && patternLength(dashes, scale) >= kFinestPattern;
}

void DrawDashedPath(CDC& dc, const std::vector<CPoint>& points, const std::vector<double>& dashes,
                    double scale, double skipped) {
    if (points.empty()) return;
    if (!IsDashedAt(dashes, scale)) {
        if (points.size() == 2 && points[0] == points[1]) {
            dc.MoveTo(points[0]);
            dc.LineTo(points[0].x + 1, points[0].y);
            return;
        }
        dc.Polyline(points.data(), static_cast<int>(points.size()));
        return;
    }
    DashWalker walker(dc, dashes, scale);
    walker.skip(std::fmod(skipped * scale, patternLength(dashes, scale)));
    for (std::size_t i = 1; i < points.size(); ++i) walker.line(points[i - 1], points[i]);
}

void DrawLinetypeSample(CDC& dc, const CRect& area, const std::vector<double>& dashes, COLORREF foreground,
                        COLORREF background) {
    constexpr double kRepeats = 2.5;
    dc.FillSolidRect(&area, background);
    double total = 0;
    for (const double dash : dashes) total += std::abs(dash);
    const int saved = dc.SaveDC();
    constexpr int kStandardDpi = 96;
    const int width = std::max(1, dc.GetDeviceCaps(LOGPIXELSY) / kStandardDpi);
    CPen pen(PS_SOLID, width, foreground);
    dc.SelectObject(&pen);
    dc.IntersectClipRect(&area);
    const int middle = (area.top + area.bottom) / 2;
    DrawDashedPath(dc, {CPoint(area.left, middle), CPoint(area.right, middle)}, dashes,
                   total > 0 ? area.Width() / (kRepeats * total) : 1);
    dc.RestoreDC(saved);
}
