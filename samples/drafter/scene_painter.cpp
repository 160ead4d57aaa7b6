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
    ScenePainter(CDC& dc, const Scene& scene, const ScenePlace& place,
                 const std::set<OdDbObjectId>& selection, const SceneColors& colors)
        : m_dc(dc), m_scene(scene), m_place(place), m_selection(selection), m_colors(colors) {}

    /// Paths and texts in the order in which they lie.
    void draw();

private:
    void draw(const ScenePath& path);
    void draw(const SceneText& text);
    void seeThrough(int clip);
    std::vector<CPoint> pixelsOf(const std::vector<OdGePoint2d>& points) const;
    bool isSelected(const OdDbObjectId& entity) const { return m_selection.contains(entity); }
    COLORREF colorOf(const DisplayStyle& style, const OdDbObjectId& entity) const {
        return isSelected(entity) ? m_colors.selection : onPaper(style.color.color());
    }
    COLORREF onPaper(COLORREF color) const {
        constexpr COLORREF kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0);
        return color == kWhite ? ReadableColor(kWhite, m_colors.paper, kMarkContrast, kBlack) : color;
    }
    void fill(const ScenePath& path, const std::vector<CPoint>& pixels, COLORREF color);
    void stroke(const ScenePath& path, const std::vector<CPoint>& pixels, COLORREF color);
    void write(const SceneText& text, int height, CPoint at);
    double widthFactorOf(const SceneText& text, int height);

    CDC& m_dc;
    const Scene& m_scene;
    const ScenePlace& m_place;
    const std::set<OdDbObjectId>& m_selection;
    const SceneColors& m_colors;
    int m_clip = kNoClip;  // through which of the scene's clips is drawn at present
    int m_saved = 0;       // the state of the device context around it
};

/// The ends of a path's lines, or of an area's boundaries.
std::vector<std::size_t> endsOf(const ScenePath& path) {
    std::vector<std::size_t> ends = path.breaks;
    ends.push_back(path.points.size());
    return ends;
}

std::vector<CPoint> ScenePainter::pixelsOf(const std::vector<OdGePoint2d>& points) const {
    std::vector<CPoint> pixels;
    pixels.reserve(points.size());
    for (const OdGePoint2d& point : points) pixels.push_back(m_place.ToPixel(point));
    return pixels;
}

/// What follows is seen through a clip of the scene, and those around it.
void ScenePainter::seeThrough(int clip) {
    if (clip == m_clip) return;
    if (m_clip != kNoClip) m_dc.RestoreDC(m_saved);
    m_clip = clip;
    if (clip == kNoClip) return;
    m_saved = m_dc.SaveDC();
    for (int at = clip; at >= 0;) {
        const SceneClip& each = m_scene.clips[static_cast<std::size_t>(at)];
        const std::vector<CPoint> outline = pixelsOf(each.outline);
        CRgn region;
        if (region.CreatePolygonRgn(outline.data(), static_cast<int>(outline.size()), ALTERNATE))
            ::ExtSelectClipRgn(m_dc.m_hDC, region, RGN_AND);
        at = each.within < at ? each.within : kNoClip;
    }
}

void ScenePainter::draw() {
    std::size_t path = 0;
    const auto drawPaths = [&](std::size_t end) {
        for (; path < std::min(end, m_scene.paths.size()); ++path) {
            seeThrough(m_scene.paths[path].clip);
            draw(m_scene.paths[path]);
        }
    };
    for (const SceneText& text : m_scene.texts) {
        drawPaths(text.pathsBelow);
        seeThrough(text.clip);
        draw(text);
    }
    drawPaths(m_scene.paths.size());
    seeThrough(kNoClip);
}

void ScenePainter::fill(const ScenePath& path, const std::vector<CPoint>& pixels, COLORREF color) {
    std::vector<INT> counts;
    std::size_t first = 0;
    for (const std::size_t end : endsOf(path)) {
        counts.push_back(static_cast<INT>(end - first));
        first = end;
    }
    CBrush brush(color);
    CPen pen(PS_SOLID, 1, color);
    CBrush* formerBrush = m_dc.SelectObject(&brush);
    CPen* formerPen = m_dc.SelectObject(&pen);
    if (counts.size() == 1)
        m_dc.Polygon(pixels.data(), counts[0]);
    else
        ::PolyPolygon(m_dc.m_hDC, pixels.data(), counts.data(), static_cast<int>(counts.size()));
    m_dc.SelectObject(formerPen);
    m_dc.SelectObject(formerBrush);
}

void ScenePainter::stroke(const ScenePath& path, const std::vector<CPoint>& pixels, COLORREF color) {
    int width = m_scene.showsLineWeights ? penWidth(path.style.lineWeight) : 1;
    if (isSelected(path.entity)) ++width;
    LOGBRUSH brush = {BS_SOLID, color, 0};
    CPen pen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_FLAT | PS_JOIN_ROUND, width, &brush);
    CPen* former = m_dc.SelectObject(&pen);
    auto first = pixels.begin();
    for (const std::size_t end : endsOf(path)) {
        const auto last = pixels.begin() + static_cast<std::ptrdiff_t>(end);
        DrawDashedPath(m_dc, {first, last}, path.style.dashes, m_place.scale);
        first = last;
    }
    m_dc.SelectObject(former);
}

void ScenePainter::draw(const ScenePath& path) {
    const std::vector<CPoint> pixels = pixelsOf(path.points);
    if (!path.filled)
        stroke(path, pixels, colorOf(path.style, path.entity));
    else
        fill(path, pixels, path.wipes ? m_colors.paper : colorOf(path.style, path.entity));
}

void ScenePainter::draw(const SceneText& text) {
    const int height = static_cast<int>(std::lround(text.height * m_place.scale / kCapitalShare));
    if (height < kSmallestText) return;
    const bool isPlain = text.widthFactor == 1 && text.font.oblique == 0 && text.fitWidth == 0;
    const CPoint at = m_place.ToPixel(text.position);
    if (isPlain) {
        write(text, height, at);
        return;
    }
    // Width and slant are those of the upright text, which is turned afterwards.
    const int saved = m_dc.SaveDC();
    const double c = std::cos(text.rotation), s = std::sin(text.rotation);
    const double width = widthFactorOf(text, height), slant = std::tan(text.font.oblique);
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

/// The text's own factor, or that by which it takes up the width it is to fit.
double ScenePainter::widthFactorOf(const SceneText& text, int height) {
    if (text.fitWidth <= 0) return text.widthFactor;
    LOGFONT look = TextFace(text.font);
    look.lfHeight = -std::min(height, kLargestText);
    CFont font;
    font.CreateFontIndirect(&look);
    CFont* former = m_dc.SelectObject(&font);
    SIZE size = {};
    ::GetTextExtentPoint32W(m_dc.m_hDC, text.text, text.text.length(), &size);
    m_dc.SelectObject(former);
    if (size.cx <= 0) return text.widthFactor;
    return std::copysign(text.fitWidth * m_place.scale / size.cx, text.widthFactor);
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
    const double down = BaseLineDrop(text) * m_place.scale;
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
    ScenePainter(dc, scene, place, selection, colors).draw();
}
