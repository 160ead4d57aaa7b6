#include "scene_painter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <ktui/host/contrast.h>

#include "dash_pattern.h"
#include "text_face.h"

namespace {

constexpr double kMargin = 0.92;  // of the window that the drawing fills
constexpr double kPixelsPerMillimetre = 96 / 25.4;
constexpr int kSmallestText = 3;    // pixels
constexpr int kLargestText = 4000;  // pixels

/// Pen width in pixels of a lineweight in hundredths of a millimetre.
int penWidth(int lineWeight) {
    return std::max(1, static_cast<int>(std::lround(lineWeight / 100.0 * kPixelsPerMillimetre)));
}

/// Paints the pieces of one scene.
class ScenePainter {
public:
    ScenePainter(CDC& dc, const ScenePlace& place, const std::set<OdDbObjectId>& selection,
                 const SceneColors& colors)
        : m_dc(dc), m_place(place), m_selection(selection), m_colors(colors) {}

    void draw(const ScenePath& path);
    void draw(const SceneText& text);

private:
    bool isSelected(const OdDbObjectId& entity) const { return m_selection.contains(entity); }
    COLORREF colorOf(const DisplayStyle& style, const OdDbObjectId& entity) const {
        return isSelected(entity) ? m_colors.selection : onPaper(style.color.color());
    }
    COLORREF onPaper(COLORREF color) const {
        constexpr COLORREF kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0);
        return color == kWhite ? ReadableColor(kWhite, m_colors.paper, kMarkContrast, kBlack) : color;
    }
    void fill(const std::vector<CPoint>& pixels, COLORREF color);
    void write(const SceneText& text, int height, CPoint at);

    CDC& m_dc;
    const ScenePlace& m_place;
    const std::set<OdDbObjectId>& m_selection;
    const SceneColors& m_colors;
};

void ScenePainter::fill(const std::vector<CPoint>& pixels, COLORREF color) {
    CBrush brush(color);
    CPen pen(PS_SOLID, 1, color);
    CBrush* formerBrush = m_dc.SelectObject(&brush);
    CPen* formerPen = m_dc.SelectObject(&pen);
    m_dc.Polygon(pixels.data(), static_cast<int>(pixels.size()));
    m_dc.SelectObject(formerPen);
    m_dc.SelectObject(formerBrush);
}

void ScenePainter::draw(const ScenePath& path) {
    const COLORREF color = colorOf(path.style, path.entity);
    std::vector<CPoint> pixels;
    pixels.reserve(path.points.size());
    for (const OdGePoint2d& point : path.points) pixels.push_back(m_place.ToPixel(point));
    if (path.filled) {
        fill(pixels, color);
        return;
    }
    int width = penWidth(path.style.lineWeight);
    if (isSelected(path.entity)) ++width;
    LOGBRUSH brush = {BS_SOLID, color, 0};
    CPen pen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_FLAT | PS_JOIN_ROUND, width, &brush);
    CPen* former = m_dc.SelectObject(&pen);
    DrawDashedPath(m_dc, pixels, path.style.dashes, m_place.scale);
    m_dc.SelectObject(former);
}

void ScenePainter::draw(const SceneText& text) {
    const int height = static_cast<int>(std::lround(text.height * m_place.scale / kCapitalShare));
    if (height < kSmallestText) return;
    const bool isPlain = text.widthFactor == 1 && text.font.oblique == 0;
    const CPoint at = m_place.ToPixel(text.position);
    if (isPlain) {
        write(text, height, at);
        return;
    }
    // Width and slant are those of the upright text, which is turned afterwards.
    const int saved = m_dc.SaveDC();
    const double c = std::cos(text.rotation), s = std::sin(text.rotation);
    const double width = text.widthFactor, slant = std::tan(text.font.oblique);
    XFORM transform = {};
    transform.eM11 = static_cast<FLOAT>(c * width);
    transform.eM12 = static_cast<FLOAT>(-s * width);
    transform.eM21 = static_cast<FLOAT>(-c * slant + s);
    transform.eM22 = static_cast<FLOAT>(s * slant + c);
    transform.eDx = static_cast<FLOAT>(at.x);
    transform.eDy = static_cast<FLOAT>(at.y);
    m_dc.SetGraphicsMode(GM_ADVANCED);
    m_dc.SetWorldTransform(transform);
    SceneText upright = text;
    upright.rotation = 0;
    write(upright, height, CPoint(0, 0));
    m_dc.RestoreDC(saved);
}

void ScenePainter::write(const SceneText& text, int height, CPoint at) {
    LOGFONT look = TextFace(text.font);
    look.lfHeight = -std::min(height, kLargestText);
    look.lfEscapement = look.lfOrientation =
        static_cast<LONG>(std::lround(text.rotation * 1800 / std::numbers::pi));
    CFont font;
    font.CreateFontIndirect(&look);
    CFont* former = m_dc.SelectObject(&font);
    constexpr UINT kHorizontal[] = {TA_LEFT, TA_CENTER, TA_RIGHT};
    // The alignment of GDI is by base line; the other rows are found from the height of capitals.
    double down = 0;
    if (text.vertical == 2) down = text.height * m_place.scale / 2;
    if (text.vertical == 3) down = text.height * m_place.scale;
    const int x = at.x + static_cast<int>(std::lround(down * std::sin(text.rotation)));
    const int y = at.y + static_cast<int>(std::lround(down * std::cos(text.rotation)));
    m_dc.SetTextAlign(kHorizontal[std::clamp(text.horizontal, 0, 2)] | TA_BASELINE);
    m_dc.SetBkMode(TRANSPARENT);
    m_dc.SetTextColor(colorOf(text.style, text.entity));
    m_dc.TextOut(x, y, text.text, text.text.length());
    m_dc.SelectObject(former);
}

}  // namespace

CPoint ScenePlace::ToPixel(const OdGePoint2d& point) const {
    const auto pixel = [](double value) {
        return static_cast<int>(std::lround(std::clamp(value, -1e7, 1e7)));
    };
    return CPoint(pixel(size.cx / 2.0 + (point.x - center.x) * scale),
                  pixel(size.cy / 2.0 - (point.y - center.y) * scale));
}

OdGePoint2d ScenePlace::FromPixel(CPoint pixel) const {
    return {center.x + (pixel.x - size.cx / 2.0) / scale, center.y - (pixel.y - size.cy / 2.0) / scale};
}

void ScenePlace::Fit(const SceneExtents& extents) {
    if (size.cx <= 0 || size.cy <= 0 || extents.isEmpty()) return;
    center = {(extents.low.x + extents.high.x) / 2, (extents.low.y + extents.high.y) / 2};
    const double width = std::max(extents.high.x - extents.low.x, 1e-9);
    const double height = std::max(extents.high.y - extents.low.y, 1e-9);
    scale = std::min(size.cx / width, size.cy / height) * kMargin;
}

void PaintScene(CDC& dc, const Scene& scene, const ScenePlace& place, const std::set<OdDbObjectId>& selection,
                const SceneColors& colors) {
    ScenePainter painter(dc, place, selection, colors);
    for (const ScenePath& path : scene.paths) painter.draw(path);
    for (const SceneText& text : scene.texts) painter.draw(text);
}
