#include "scene_painter.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <map>
#include <numbers>
#include <span>
#include <string>
#include <utility>

#include <ktui/host/contrast.h>

#include "dash_pattern.h"
#include "pictures/scene_picture.h"
#include "scene_order.h"
#include "text_face.h"
#include "visible_parts.h"

namespace {

constexpr double kMargin = 0.92;  // of the window that the drawing fills
constexpr double kPixelsPerMillimetre = 96 / 25.4;
constexpr int kSmallestText = 3;    // pixels
constexpr int kLargestText = 4000;  // pixels

/// Pen width in pixels of a lineweight in hundredths of a millimetre.
int penWidth(int lineWeight) {
    return std::max(1, static_cast<int>(std::lround(lineWeight / 100.0 * kPixelsPerMillimetre)));
}

/// How far the halves of wide pens reach around what is painted.
constexpr int kPenReach = 32;  // pixels
/// What is further from the window is cut off. What is nearer is drawn as it is, so that it gets the same
/// pixels when a part of the window is painted anew.
constexpr int kFarthest = 8000;  // pixels

/// A path smaller than this many pixels is drawn through so many of its points.
constexpr double kSmallPath = 8;
constexpr std::size_t kSmallPathPoints = 12;

/// Pens and brushes of one painting, each made once.
class PaintTools {
public:
    CPen& pen(int width, COLORREF color) {
        // Mostly it is the one before.
        if (m_lastPen == nullptr || m_lastPenOf != std::pair(width, color)) {
            m_lastPenOf = {width, color};
            m_lastPen = &m_pens[m_lastPenOf];
        }
        CPen& pen = *m_lastPen;
        if (pen.m_hObject != nullptr) return pen;
        // What systems draw fastest by far, as most lines are thin.
        if (width == 1) {
            pen.CreatePen(PS_SOLID, 1, color);
            return pen;
        }
        LOGBRUSH brush = {BS_SOLID, color, 0};
        pen.CreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_FLAT | PS_JOIN_ROUND, width, &brush);
        return pen;
    }
    CPen& edge(COLORREF color) {
        CPen& pen = m_edges[color];
        if (pen.m_hObject == nullptr) pen.CreatePen(PS_SOLID, 1, color);
        return pen;
    }
    CBrush& brush(COLORREF color) {
        CBrush& brush = m_brushes[color];
        if (brush.m_hObject == nullptr) brush.CreateSolidBrush(color);
        return brush;
    }
    /// The screen font for a text's, `height` pixels high and turned by `rotation` radians.
    CFont& font(const SceneFont& font, int height, double rotation) {
        const bool isLast = m_isFaceKnown && font.family == m_faceOf.family && font.file == m_faceOf.file &&
                            font.bold == m_faceOf.bold && font.italic == m_faceOf.italic;
        if (!isLast) {
            m_face = TextFace(font);
            m_faceOf = font;
            m_isFaceKnown = true;
        }
        LOGFONT look = m_face;
        look.lfHeight = -std::min(height, kLargestText);
        look.lfEscapement = look.lfOrientation =
            static_cast<LONG>(std::lround(rotation * 1800 / std::numbers::pi));
        // All but the name, and then the name, whatever stands behind its end.
        std::string key(reinterpret_cast<const char*>(&look), offsetof(LOGFONT, lfFaceName));
        const std::wstring name = look.lfFaceName;
        key.append(reinterpret_cast<const char*>(name.data()), name.size() * sizeof(wchar_t));
        CFont& made = m_fonts[key];
        if (made.m_hObject == nullptr) made.CreateFontIndirect(&look);
        return made;
    }

private:
    std::map<std::pair<int, COLORREF>, CPen> m_pens;
    std::pair<int, COLORREF> m_lastPenOf;
    CPen* m_lastPen = nullptr;
    std::map<COLORREF, CPen> m_edges;
    std::map<COLORREF, CBrush> m_brushes;
    std::map<std::string, CFont> m_fonts;
    SceneFont m_faceOf;
    LOGFONT m_face = {};
    bool m_isFaceKnown = false;
};

/// Paints the pieces of one scene.
class ScenePainter {
public:
    ScenePainter(CDC& dc, const Scene& scene, const SceneBounds& bounds, const ScenePlace& place,
                 const std::set<OdDbObjectId>& selection, const SceneColors& colors)
        : m_dc(dc),
          m_scene(scene),
          m_bounds(bounds),
          m_place(place),
          m_selection(selection),
          m_colors(colors) {
        const CRect window(CPoint(0, 0), m_place.size);
        CRect painted;
        dc.GetClipBox(&painted);
        painted.IntersectRect(painted, window);
        if (!painted.IsRectEmpty()) m_painted = around(painted, kPenReach);
        m_near = around(window, kFarthest);
    }

    /// Paths, texts and images in the order in which they lie.
    void draw();

private:
    SceneExtents around(CRect pixels, int reach) const {
        pixels.InflateRect(reach, reach);
        return {m_place.FromPixel(CPoint(pixels.left, pixels.bottom)),
                m_place.FromPixel(CPoint(pixels.right, pixels.top))};
    }
    void drawPath(std::size_t number);
    void drawText(std::size_t number);
    void drawImage(std::size_t number);
    void seeThrough(int clip);
    /// Stays until the next call.
    const std::vector<CPoint>& pixelsOf(std::span<const OdGePoint2d> points);
    std::span<const OdGePoint2d> fewerPoints(std::span<const OdGePoint2d> points);
    bool isSelected(const OdDbObjectId& entity) const { return m_selection.contains(entity); }
    COLORREF colorOf(const DisplayStyle& style, const OdDbObjectId& entity) const {
        return isSelected(entity) ? m_colors.selection : onPaper(style.color.color());
    }
    COLORREF onPaper(COLORREF color) const {
        constexpr COLORREF kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0);
        return color == kWhite ? ReadableColor(kWhite, m_colors.paper, kMarkContrast, kBlack) : color;
    }
    void fill(const ScenePath& path, const SceneExtents& bounds, COLORREF color);
    void stroke(const ScenePath& path, const SceneExtents& bounds, COLORREF color);
    /// Draws a line with a pen, or keeps it until one comes that needs another pen.
    void line(CPen& pen, const std::vector<CPoint>& pixels);
    /// Draws the lines that were kept.
    void drawLines();
    void write(const SceneText& text, int height, CPoint at);
    double widthFactorOf(const SceneText& text, int height);

    CDC& m_dc;
    const Scene& m_scene;
    const SceneBounds& m_bounds;
    const ScenePlace& m_place;
    const std::set<OdDbObjectId>& m_selection;
    const SceneColors& m_colors;
    // In drawing units.
    SceneExtents m_painted;  // with what reaches into it; empty for nothing
    SceneExtents m_near;     // all that can be drawn as it is
    PaintTools m_tools;
    std::vector<CPoint> m_pixels;
    std::vector<OdGePoint2d> m_fewPoints;
    CPen* m_linesPen = nullptr;  // of the lines that are kept
    std::vector<CPoint> m_linePixels;
    std::vector<DWORD> m_lineCounts;
    int m_clip = kNoClip;  // through which of the scene's clips is drawn at present
    int m_saved = 0;       // the state of the device context around it
};

/// Calls `part` with each line of a path, or each boundary of an area.
template <class Part>
void eachPart(const ScenePath& path, Part part) {
    std::size_t first = 0;
    for (std::size_t i = 0; i <= path.breaks.size(); ++i) {
        const std::size_t end = i < path.breaks.size() ? path.breaks[i] : path.points.size();
        part(std::span(path.points).subspan(first, end - first));
        first = end;
    }
}

/// What a curve of many points keeps where it is only some pixels large, its ends among them.
std::span<const OdGePoint2d> ScenePainter::fewerPoints(std::span<const OdGePoint2d> points) {
    m_fewPoints.clear();
    for (std::size_t i = 0; i < kSmallPathPoints; ++i)
        m_fewPoints.push_back(points[i * points.size() / kSmallPathPoints]);
    m_fewPoints.push_back(points.back());
    return m_fewPoints;
}

/// A point for each pixel that differs from the one before; at least two of a line, which may be the same.
const std::vector<CPoint>& ScenePainter::pixelsOf(std::span<const OdGePoint2d> points) {
    m_pixels.clear();
    for (const OdGePoint2d& point : points) {
        const CPoint pixel = m_place.ToPixel(point);
        if (m_pixels.empty() || m_pixels.back() != pixel) m_pixels.push_back(pixel);
    }
    if (m_pixels.size() == 1 && points.size() > 1) m_pixels.push_back(m_pixels.front());
    return m_pixels;
}

/// What follows is seen through a clip of the scene, and those around it.
void ScenePainter::seeThrough(int clip) {
    if (clip == m_clip) return;
    drawLines();
    if (m_clip != kNoClip) m_dc.RestoreDC(m_saved);
    m_clip = clip;
    if (clip == kNoClip) return;
    m_saved = m_dc.SaveDC();
    for (int at = clip; at >= 0;) {
        const SceneClip& each = m_scene.clips[static_cast<std::size_t>(at)];
        const std::vector<CPoint>& outline = pixelsOf(each.outline);
        CRgn region;
        if (region.CreatePolygonRgn(outline.data(), static_cast<int>(outline.size()), ALTERNATE))
            ::ExtSelectClipRgn(m_dc.m_hDC, region, RGN_AND);
        at = each.within < at ? each.within : kNoClip;
    }
}

void ScenePainter::draw() {
    const auto path = [this](std::size_t number) {
        if (!m_bounds.path(number).meets(m_painted)) return;
        seeThrough(m_scene.paths[number].clip);
        drawPath(number);
    };
    const auto text = [this](std::size_t number) {
        if (!m_bounds.text(number).meets(m_painted)) return;
        seeThrough(m_scene.texts[number].clip);
        drawText(number);
    };
    const auto image = [this](std::size_t number) {
        if (!m_bounds.image(number).meets(m_painted)) return;
        seeThrough(m_scene.images[number].clip);
        drawImage(number);
    };
    InOrder(m_scene, path, text, image);
    seeThrough(kNoClip);
    drawLines();
}

void ScenePainter::fill(const ScenePath& path, const SceneExtents& bounds, COLORREF color) {
    std::vector<INT> counts;
    std::vector<CPoint> all;
    eachPart(path, [&](std::span<const OdGePoint2d> boundary) {
        const std::vector<CPoint>& pixels =
            m_near.holds(bounds) ? pixelsOf(boundary) : pixelsOf(VisibleBoundary(boundary, m_near));
        if (pixels.size() < 2) return;
        counts.push_back(static_cast<INT>(pixels.size()));
        all.insert(all.end(), pixels.begin(), pixels.end());
    });
    if (counts.empty()) return;
    drawLines();
    CBrush* formerBrush = m_dc.SelectObject(&m_tools.brush(color));
    CPen* formerPen = m_dc.SelectObject(&m_tools.edge(color));
    if (counts.size() == 1)
        m_dc.Polygon(all.data(), counts[0]);
    else
        ::PolyPolygon(m_dc.m_hDC, all.data(), counts.data(), static_cast<int>(counts.size()));
    m_dc.SelectObject(formerPen);
    m_dc.SelectObject(formerBrush);
}

void ScenePainter::stroke(const ScenePath& path, const SceneExtents& bounds, COLORREF color) {
    int width = m_scene.showsLineWeights ? penWidth(path.style.lineWeight) : 1;
    if (isSelected(path.entity)) ++width;
    const bool isDot = (bounds.high.x - bounds.low.x) * m_place.scale < 1 &&
                       (bounds.high.y - bounds.low.y) * m_place.scale < 1;
    if (isDot) {
        const CPoint at = m_place.ToPixel(path.points.front());
        return line(m_tools.pen(width, color), {at, at});
    }
    CPen& pen = m_tools.pen(width, color);
    const bool isDashed = IsDashedAt(path.style.dashes, m_place.scale);
    const auto draw = [&](std::span<const OdGePoint2d> points, double skipped) {
        if (!isDashed) return line(pen, pixelsOf(points));
        drawLines();
        CPen* former = m_dc.SelectObject(&pen);
        DrawDashedPath(m_dc, pixelsOf(points), path.style.dashes, m_place.scale, skipped);
        m_dc.SelectObject(former);
    };
    const double size = std::max(bounds.high.x - bounds.low.x, bounds.high.y - bounds.low.y) * m_place.scale;
    eachPart(path, [&](std::span<const OdGePoint2d> line) {
        if (size < kSmallPath && line.size() > kSmallPathPoints) return draw(fewerPoints(line), 0);
        if (m_near.holds(bounds)) return draw(line, 0);
        for (const VisibleLine& piece : VisibleLines(line, m_near)) draw(piece.points, piece.skipped);
    });
}

void ScenePainter::line(CPen& pen, const std::vector<CPoint>& pixels) {
    constexpr std::size_t kMost = 4096;  // points that are kept
    if (pixels.empty()) return;
    if (m_linesPen != &pen || m_linePixels.size() > kMost) drawLines();
    m_linesPen = &pen;
    m_linePixels.insert(m_linePixels.end(), pixels.begin(), pixels.end());
    // A line without length is seen as a dot.
    if (pixels.size() == 2 && pixels[0] == pixels[1]) ++m_linePixels.back().x;
    m_lineCounts.push_back(static_cast<DWORD>(pixels.size()));
}

void ScenePainter::drawLines() {
    if (m_lineCounts.empty()) return;
    CPen* former = m_dc.SelectObject(m_linesPen);
    ::PolyPolyline(m_dc.m_hDC, m_linePixels.data(), m_lineCounts.data(),
                   static_cast<DWORD>(m_lineCounts.size()));
    m_dc.SelectObject(former);
    m_linePixels.clear();
    m_lineCounts.clear();
}

void ScenePainter::drawPath(std::size_t number) {
    const ScenePath& path = m_scene.paths[number];
    const SceneExtents& bounds = m_bounds.path(number);
    if (!path.filled)
        stroke(path, bounds, colorOf(path.style, path.entity));
    else
        fill(path, bounds, path.wipes ? m_colors.paper : colorOf(path.style, path.entity));
}

void ScenePainter::drawText(std::size_t number) {
    const SceneText& text = m_scene.texts[number];
    const int height = static_cast<int>(std::lround(text.height * m_place.scale / kCapitalShare));
    if (height < kSmallestText) return;
    drawLines();
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

/// The part of it that is painted, pixel by pixel.
void ScenePainter::drawImage(std::size_t number) {
    const SceneImage& image = m_scene.images[number];
    drawLines();
    CRect painted;
    m_dc.GetClipBox(&painted);
    SceneExtents seen = m_bounds.image(number);
    seen.cut(m_near);
    if (seen.isEmpty()) return;
    CRect covered(m_place.ToPixel({seen.low.x, seen.high.y}), m_place.ToPixel({seen.high.x, seen.low.y}));
    covered.InflateRect(1, 1);
    if (!painted.IntersectRect(painted, CRect(CPoint(0, 0), m_place.size)) ||
        !painted.IntersectRect(painted, covered))
        return;
    const auto inWindow = [this](const OdGePoint2d& p) {
        return OdGePoint2d{m_place.size.cx / 2.0 + (p.x - m_place.center.x) * m_place.scale,
                           m_place.size.cy / 2.0 - (p.y - m_place.center.y) * m_place.scale};
    };
    const auto step = [this](const OdGePoint2d& v) {
        return OdGePoint2d{v.x * m_place.scale, -v.y * m_place.scale};
    };
    const PictureArea area = {painted.left,           painted.top,        painted.Width(), painted.Height(),
                              inWindow(image.origin), step(image.across), step(image.up)};
    const auto pixelOf = [](COLORREF color) {
        return 0xFF000000u |
               static_cast<PicturePixel>(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
    };
    const std::vector<PicturePixel> pixels =
        PicturePixels(image, area, {pixelOf(m_colors.paper), pixelOf(colorOf(image.style, image.entity))});
    CDC memory;
    CBitmap bitmap;
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), area.width, -area.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    if (!memory.CreateCompatibleDC(&m_dc) ||
        !bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)))
        return;
    std::memcpy(bits, pixels.data(), pixels.size() * sizeof(PicturePixel));
    CBitmap* const former = memory.SelectObject(&bitmap);
    const BLENDFUNCTION blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    m_dc.AlphaBlend(painted.left, painted.top, area.width, area.height, &memory, 0, 0, area.width,
                    area.height, blend);
    memory.SelectObject(former);
}

/// The text's own factor, or that by which it takes up the width it is to fit.
double ScenePainter::widthFactorOf(const SceneText& text, int height) {
    if (text.fitWidth <= 0) return text.widthFactor;
    CFont* former = m_dc.SelectObject(&m_tools.font(text.font, height, 0));
    SIZE size = {};
    ::GetTextExtentPoint32W(m_dc.m_hDC, text.text, text.text.length(), &size);
    m_dc.SelectObject(former);
    if (size.cx <= 0) return text.widthFactor;
    return std::copysign(text.fitWidth * m_place.scale / size.cx, text.widthFactor);
}

void ScenePainter::write(const SceneText& text, int height, CPoint at) {
    CFont* former = m_dc.SelectObject(&m_tools.font(text.font, height, text.rotation));
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
    // To the nearest, as lround does, which here takes longer than all the rest.
    const auto pixel = [](double value) {
        const double within = std::clamp(value, -1e7, 1e7);
        return static_cast<int>(within < 0 ? within - 0.5 : within + 0.5);
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

void PaintScene(CDC& dc, const Scene& scene, const SceneBounds& bounds, const ScenePlace& place,
                const std::set<OdDbObjectId>& selection, const SceneColors& colors) {
    ScenePainter(dc, scene, bounds, place, selection, colors).draw();
}

void PaintScene(CDC& dc, const Scene& scene, const ScenePlace& place) {
    PaintScene(dc, scene, SceneBounds(scene), place);
}
