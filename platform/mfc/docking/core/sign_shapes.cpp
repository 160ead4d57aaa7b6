#include "sign_shapes.h"

#include <algorithm>
#include <cmath>

namespace kmfc {

namespace {

constexpr int kSamples = 8;      // a side, in each pixel
constexpr double kDesign = 9.0;  // the signs are drawn for 9 by 9 pixels

struct Spot {
    double x, y;
};

/// Collects shapes in design units, in which a sign is 9 by 9, and tells what covers a point.
class Canvas {
public:
    Canvas(int width, int height) : m_width(width), m_height(height), m_hit(samples(), false) {}

    /// A rectangle whose edges fall on pixels; at least a pixel wide and high.
    void box(double left, double top, double right, double bottom) {
        const double scaleX = m_width / kDesign, scaleY = m_height / kDesign;
        const double x0 = std::floor(left * scaleX + 0.5), y0 = std::floor(top * scaleY + 0.5);
        const double x1 = x0 + std::max(1.0, std::floor((right - left) * scaleX + 0.5));
        const double y1 = y0 + std::max(1.0, std::floor((bottom - top) * scaleY + 0.5));
        cover([&](Spot p) { return p.x >= x0 && p.x < x1 && p.y >= y0 && p.y < y1; });
    }
    void frame(double left, double top, double right, double bottom, double thick = 1) {
        box(left, top, right, top + thick);
        box(left, bottom - thick, right, bottom);
        box(left, top, left + thick, bottom);
        box(right - thick, top, right, bottom);
    }
    void triangle(Spot a, Spot b, Spot c) {
        a = pixels(a), b = pixels(b), c = pixels(c);
        const auto side = [](Spot p, Spot from, Spot to) {
            return (to.x - from.x) * (p.y - from.y) - (to.y - from.y) * (p.x - from.x);
        };
        cover([&](Spot p) {
            const double u = side(p, a, b), v = side(p, b, c), w = side(p, c, a);
            return (u >= 0 && v >= 0 && w >= 0) || (u <= 0 && v <= 0 && w <= 0);
        });
    }
    void line(Spot from, Spot to, double thick) {
        from = pixels(from), to = pixels(to);
        const double half = thick * std::min(m_width, m_height) / kDesign / 2;
        const double dx = to.x - from.x, dy = to.y - from.y, squared = dx * dx + dy * dy;
        cover([&](Spot p) {
            const double along = std::clamp(((p.x - from.x) * dx + (p.y - from.y) * dy) / squared, 0.0, 1.0);
            return std::hypot(p.x - from.x - along * dx, p.y - from.y - along * dy) <= half;
        });
    }
    void disc(Spot middle, double radius) {
        middle = pixels(middle);
        const double reach = radius * std::min(m_width, m_height) / kDesign;
        cover([&](Spot p) { return std::hypot(p.x - middle.x, p.y - middle.y) <= reach; });
    }
    /// What was drawn, turned over its diagonal.
    void transpose_from(const Canvas& other) {
        for (size_t row = 0; row < rows(); ++row)
            for (size_t column = 0; column < columns(); ++column)
                m_hit[row * columns() + column] = other.m_hit[column * other.columns() + row];
    }

    std::vector<BYTE> coverage() const {
        std::vector<BYTE> result(static_cast<size_t>(m_width) * static_cast<size_t>(m_height));
        std::vector<int> counts(result.size(), 0);
        for (size_t row = 0; row < rows(); ++row)
            for (size_t column = 0; column < columns(); ++column)
                counts[row / kSamples * static_cast<size_t>(m_width) + column / kSamples] +=
                    m_hit[row * columns() + column];
        for (size_t i = 0; i < counts.size(); ++i)
            result[i] = static_cast<BYTE>(counts[i] * 255 / (kSamples * kSamples));
        return result;
    }

private:
    Spot pixels(Spot p) const { return {p.x * m_width / kDesign, p.y * m_height / kDesign}; }
    size_t columns() const { return static_cast<size_t>(m_width) * kSamples; }
    size_t rows() const { return static_cast<size_t>(m_height) * kSamples; }
    size_t samples() const { return columns() * rows(); }
    template <class Inside>
    void cover(Inside inside) {
        for (size_t row = 0; row < rows(); ++row)
            for (size_t column = 0; column < columns(); ++column)
                if (inside({(static_cast<double>(column) + 0.5) / kSamples,
                            (static_cast<double>(row) + 0.5) / kSamples}))
                    m_hit[row * columns() + column] = true;
    }

    int m_width, m_height;
    std::vector<bool> m_hit;
};

/// A triangle `reach` wide on both sides of the middle, that points down (or up for a negative `turn`).
void draw_arrow(Canvas& canvas, double reach, int turn) {
    const double base = 4.5 - turn * reach / 2, tip = 4.5 + turn * reach / 2;
    canvas.triangle({4.5 - reach, base}, {4.5 + reach, base}, {4.5, tip});
}

void draw_cross(Canvas& canvas, double inset) {
    canvas.line({inset, inset}, {kDesign - inset, kDesign - inset}, 1.5);
    canvas.line({kDesign - inset, inset}, {inset, kDesign - inset}, 1.5);
}

void draw_standing_pin(Canvas& canvas) {
    canvas.frame(2, 0, 7, 5);
    canvas.box(5, 0, 6, 5);  // its shadow side
    canvas.box(1, 5, 8, 6);
    canvas.box(4, 6, 5, 9);
}

void draw_ends(Canvas& canvas, bool first) {
    if (first) {
        canvas.box(1, 1, 2, 8);
        canvas.triangle({7.5, 1}, {7.5, 8}, {3, 4.5});
    } else {
        canvas.box(7, 1, 8, 8);
        canvas.triangle({1.5, 1}, {1.5, 8}, {6, 4.5});
    }
}

void draw(Canvas& canvas, Sign sign, int width, int height);

/// Draws the sign that `sign` is when it is turned over its diagonal.
void draw_turned(Canvas& canvas, Sign sign, int width, int height) {
    Canvas other(height, width);
    draw(other, sign, height, width);
    canvas.transpose_from(other);
}

void draw_restore(Canvas& canvas) {
    canvas.frame(0, 3, 6, 9);
    canvas.box(3, 0, 9, 1);
    canvas.box(8, 0, 9, 6);
    canvas.box(3, 0, 4, 3);
    canvas.box(6, 5, 9, 6);
}

void draw(Canvas& canvas, Sign sign, int width, int height) {
    switch (sign) {
        case Sign::arrow_down: return draw_arrow(canvas, 3, 1);
        case Sign::arrow_up: return draw_arrow(canvas, 3, -1);
        case Sign::large_arrow_down: return draw_arrow(canvas, 4.5, 1);
        case Sign::large_arrow_up: return draw_arrow(canvas, 4.5, -1);
        case Sign::arrow_right: return draw_turned(canvas, Sign::arrow_down, width, height);
        case Sign::arrow_left: return draw_turned(canvas, Sign::arrow_up, width, height);
        case Sign::large_arrow_right: return draw_turned(canvas, Sign::large_arrow_down, width, height);
        case Sign::large_arrow_left: return draw_turned(canvas, Sign::large_arrow_up, width, height);
        case Sign::first: return draw_ends(canvas, true);
        case Sign::last: return draw_ends(canvas, false);
        case Sign::check: canvas.line({1, 4.5}, {3.5, 7}, 1.5); return canvas.line({3.5, 7}, {8, 2}, 1.5);
        case Sign::radio: return canvas.disc({4.5, 4.5}, 2.5);
        case Sign::minimize: return canvas.box(0, 7, 9, 9);
        case Sign::maximize: canvas.frame(0, 0, 9, 9); return canvas.box(0, 0, 9, 2);
        case Sign::restore: return draw_restore(canvas);
        case Sign::close: return draw_cross(canvas, 1);
        case Sign::small_close: return draw_cross(canvas, 2);
        case Sign::pin_standing: return draw_standing_pin(canvas);
        case Sign::pin_lying: return draw_turned(canvas, Sign::pin_standing, width, height);
        case Sign::more:
            for (const double x : {1.0, 4.0, 7.0}) canvas.box(x, 4, x + 1, 5);
            return;
        case Sign::count: return;
    }
}

}  // namespace

std::vector<BYTE> sign_coverage(Sign sign, int width, int height) {
    if (width < 1 || height < 1) return {};
    Canvas canvas(width, height);
    draw(canvas, sign, width, height);
    return canvas.coverage();
}

}  // namespace kmfc
