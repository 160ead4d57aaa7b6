#include "plotting/scene_plotter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "pictures/scene_picture.h"
#include "scene_order.h"

namespace {

constexpr double kHundredthsOfMillimetre = 100;
constexpr double kThinnestDot = 0.35;  // points

PdfPoint pointOf(const OdGePoint2d& p) { return {p.x, p.y}; }

/// Whether one of a path's lines is a dot.
bool hasDot(const ScenePath& path) {
    std::size_t first = 0;
    for (std::size_t i = 0; i <= path.breaks.size(); ++i) {
        const std::size_t end = i < path.breaks.size() ? path.breaks[i] : path.points.size();
        if (end == first + 2 && path.points[first] == path.points[first + 1]) return true;
        first = end;
    }
    return false;
}

/// Letters without an outline: they show nothing, and are found and copied where strokes are drawn.
PlotFace UnseenFace() {
    constexpr double kAdvance = 600;
    return {"strokes", [](char32_t) { return Glyph{kAdvance, {}}; }};
}

/// Draws the pieces of one scene.
class Plotter {
public:
    Plotter(PdfWriter& file, PdfPage& page, const PaperPlace& place, const PlotFaces& faces,
            const PlotLook& look)
        : m_file(file), m_page(page), m_place(place), m_faces(faces), m_look(look) {}

    void draw(const Scene& scene);

private:
    void draw(const ScenePath& path);
    void draw(const SceneText& text) { write(text, m_faces(text.font)); }
    void write(const SceneText& text, const PlotFace& face);
    void draw(const SceneImage& image);
    void seeThrough(const Scene& scene, int clip);
    PdfPoint at(const OdGePoint2d& p) const { return pointOf(m_place.apply(p)); }
    bool beginLayer(const DisplayStyle& style);
    void trace(const ScenePath& path);
    void traceLine(const ScenePath& path, std::size_t first, std::size_t end);
    void curve(const SceneArc& arc);
    void fill(const ScenePath& path);
    void stroke(const ScenePath& path);

    PdfWriter& m_file;
    PdfPage& m_page;
    const PaperPlace& m_place;
    const PlotFaces& m_faces;
    const PlotLook& m_look;
    int m_clip = kNoClip;  // through which of the scene's clips the page is seen at present
};

/// What follows is seen through a clip of the scene, and those around it.
void Plotter::seeThrough(const Scene& scene, int clip) {
    if (clip == m_clip) return;
    if (m_clip != kNoClip) m_page.restoreState();
    m_clip = clip;
    if (clip == kNoClip) return;
    m_page.saveState();
    for (int at = clip; at >= 0;) {
        const SceneClip& each = scene.clips[static_cast<std::size_t>(at)];
        std::vector<PdfPoint> outline;
        for (const OdGePoint2d& point : each.outline) outline.push_back(this->at(point));
        m_page.clip(outline);
        at = each.within < at ? each.within : kNoClip;
    }
}

/// All pieces in the order in which they lie.
void Plotter::draw(const Scene& scene) {
    const auto drawEach = [&](const auto& pieces) {
        return [&](std::size_t number) {
            seeThrough(scene, pieces[number].clip);
            draw(pieces[number]);
        };
    };
    InOrder(scene, drawEach(scene.paths), drawEach(scene.texts), drawEach(scene.images));
    for (const SceneText& text : scene.strokeTexts) {
        seeThrough(scene, text.clip);
        write(text, UnseenFace());
    }
    seeThrough(scene, kNoClip);
}

bool Plotter::beginLayer(const DisplayStyle& style) {
    if (!m_look.layers) return false;
    const auto layer = style.layer.open<OdDbLayerTableRecord>();
    if (!layer) return false;
    m_page.beginLayer(m_file.layer(layer->getName().c_str()));
    return true;
}

/// Parts of a quarter turn at most, each a curve that departs from the arc by less than 0.03 % of its radius.
void Plotter::curve(const SceneArc& arc) {
    const auto place = [&](double t) {
        const double c = std::cos(t), s = std::sin(t);
        return at({arc.center.x + arc.axisX.x * c + arc.axisY.x * s,
                   arc.center.y + arc.axisX.y * c + arc.axisY.y * s});
    };
    const auto slope = [&](double t) {
        const double c = std::cos(t), s = std::sin(t);
        return OdGePoint2d{(arc.axisY.x * c - arc.axisX.x * s) * m_place.scale,
                           (arc.axisY.y * c - arc.axisX.y * s) * m_place.scale};
    };
    const int parts =
        std::max(1, static_cast<int>(std::ceil(std::abs(arc.sweep) / (std::numbers::pi / 2) - 1e-9)));
    const double step = arc.sweep / parts, reach = 4 * std::tan(step / 4) / 3;
    for (int i = 0; i < parts; ++i) {
        const double from = arc.start + step * i, to = from + step;
        const PdfPoint a = place(from), b = place(to);
        const OdGePoint2d u = slope(from), v = slope(to);
        m_page.curveTo({a.x + u.x * reach, a.y + u.y * reach}, {b.x - v.x * reach, b.y - v.y * reach}, b);
    }
}

void Plotter::trace(const ScenePath& path) {
    std::size_t first = 0;
    for (const std::size_t end : path.breaks) {
        if (end <= first || end >= path.points.size()) continue;
        traceLine(path, first, end);
        first = end;
    }
    traceLine(path, first, path.points.size());
}

void Plotter::traceLine(const ScenePath& path, std::size_t first, std::size_t end) {
    m_page.moveTo(at(path.points[first]));
    auto arc = std::find_if(path.arcs.begin(), path.arcs.end(),
                            [first](const SceneArc& each) { return each.first >= first; });
    for (std::size_t i = first; i + 1 < end;) {
        if (arc != path.arcs.end() && arc->first == i && arc->last > i && arc->last < end) {
            curve(*arc);
            i = arc->last;
            ++arc;
        } else {
            m_page.lineTo(at(path.points[++i]));
        }
    }
    const OdGePoint2d &from = path.points[first], &to = path.points[end - 1];
    const bool isClosed = end - first > 2 && std::hypot(from.x - to.x, from.y - to.y) * m_place.scale < 1e-3;
    if (isClosed) m_page.closePath();
}

void Plotter::fill(const ScenePath& path) {
    constexpr PdfColor kPaper = {255, 255, 255};
    m_page.setFillColor(path.wipes ? kPaper : InkOf(path.style.color));
    trace(path);
    if (path.breaks.empty())
        m_page.fill();
    else
        m_page.fillByOddParity();
}

void Plotter::stroke(const ScenePath& path) {
    const double width = path.style.lineWeight / kHundredthsOfMillimetre * kPointsPerMillimetre;
    const bool isDot = hasDot(path);
    m_page.setStrokeColor(InkOf(path.style.color));
    m_page.setLineWidth(isDot ? std::max(width, kThinnestDot) : width);
    m_page.setRoundEnds(isDot);
    m_page.setDashes(DashesOnPaper(path.style.dashes, m_place.scale, std::max(width, kThinnestDot)));
    trace(path);
    m_page.stroke();
}

void Plotter::draw(const ScenePath& path) {
    const bool isInLayer = beginLayer(path.style);
    if (path.filled)
        fill(path);
    else
        stroke(path);
    if (isInLayer) m_page.endLayer();
}

void Plotter::write(const SceneText& text, const PlotFace& face) {
    const double em = text.height * m_place.scale / kCapitalShare;
    if (text.text.isEmpty() || em <= 0) return;
    const std::vector<PdfRun> runs = m_file.fonts().encode(face.name, text.text.view(), face.source);
    double length = 0;
    for (const PdfRun& run : runs) length += run.width;
    const double c = std::cos(text.rotation), s = std::sin(text.rotation);
    double stretch = em * text.widthFactor;
    if (text.fitWidth > 0 && length > 0)
        stretch = std::copysign(text.fitWidth * m_place.scale / length, text.widthFactor);
    const double slant = std::tan(text.font.oblique) * em, down = BaseLineDrop(text) * m_place.scale;
    double along = -length * stretch * std::clamp(text.horizontal, 0, 2) / 2;
    const PdfPoint start = at(text.position);
    const bool isInLayer = beginLayer(text.style);
    m_page.setFillColor(InkOf(text.style.color));
    for (const PdfRun& run : runs) {
        const double matrix[6] = {stretch * c,
                                  stretch * s,
                                  slant * c - em * s,
                                  slant * s + em * c,
                                  start.x + along * c + down * s,
                                  start.y + along * s - down * c};
        m_page.showText(run.font, run.codes, matrix);
        along += run.width * stretch;
    }
    if (isInLayer) m_page.endLayer();
}

void Plotter::draw(const SceneImage& image) {
    constexpr PicturePixel kOpaque = 0xFF000000;
    const PdfColor color = InkOf(image.style.color);
    const auto ink = static_cast<PicturePixel>(color.red << 16 | color.green << 8 | color.blue);
    const PictureLook look(image, {0xFFFFFFFF, kOpaque | ink});
    const ScenePicture::Level& pixels = image.picture->levels().front();
    PdfPicture picture = {pixels.width, pixels.height, {}, {}};
    picture.colors.reserve(pixels.pixels.size() * 3);
    bool isWhole = true;
    for (const PicturePixel each : pixels.pixels) {
        const PicturePixel pixel = look(each);
        for (const int shift : {16, 8, 0}) picture.colors += static_cast<char>(pixel >> shift & 0xFF);
        picture.opacity += static_cast<char>(pixel >> 24);
        isWhole = isWhole && pixel >= kOpaque;
    }
    if (isWhole) picture.opacity.clear();
    const PdfPoint corner = at(image.origin);
    const double scale = m_place.scale;
    const double matrix[6] = {image.across.x * scale,
                              image.across.y * scale,
                              image.up.x * scale,
                              image.up.y * scale,
                              corner.x,
                              corner.y};
    const bool isInLayer = beginLayer(image.style);
    m_page.showPicture(m_file.picture(picture), matrix);
    if (isInLayer) m_page.endLayer();
}

}  // namespace

PdfColor InkOf(const OdCmColor& color) {
    if (color.isByACI() && color.colorIndex() == OdCmColor::kForeground) return {0, 0, 0};
    return {color.red(), color.green(), color.blue()};
}

std::vector<double> DashesOnPaper(const std::vector<double>& dashes, double scale, double dot) {
    std::vector<double> lengths;
    const bool hasGap = std::any_of(dashes.begin(), dashes.end(), [](double each) { return each < 0; });
    if (!hasGap) return lengths;
    for (const double each : dashes) {
        const bool isGap = each < 0;
        const double length = each == 0 ? dot : std::abs(each) * scale;
        // Dashes stand at even places. A pattern that begins with a gap begins with a dash of no length.
        if (lengths.empty() && isGap) lengths.push_back(0);
        const bool continues = !lengths.empty() && (lengths.size() % 2 == 0) == isGap;
        if (continues)
            lengths.back() += length;
        else
            lengths.push_back(length);
    }
    // An odd count would swap dashes and gaps at each repetition.
    if (lengths.size() % 2 != 0) lengths.push_back(0);
    return lengths;
}

void PlotScene(PdfWriter& file, PdfPage& page, const Scene& scene, const PaperPlace& place,
               const PlotFaces& faces, const PlotLook& look) {
    Plotter plotter(file, page, place, faces, look);
    page.saveState();
    page.setRoundCorners();
    if (look.merges) page.useState(PdfWriter::kMergeState);
    plotter.draw(scene);
    page.restoreState();
}
