#include "shapes/shape_code.h"

#include <cmath>
#include <cstdint>
#include <numbers>

#include "geometry/curve_points.h"
#include "geometry/space_transform.h"

namespace {

constexpr int kDeepest = 8;                 // shapes within shapes
constexpr std::size_t kMostSteps = 100000;  // bytes followed and points drawn, of one shape

std::string lowered(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

int little16(const std::string& bytes, std::size_t at) {
    if (at + 2 > bytes.size()) return -1;
    return static_cast<unsigned char>(bytes[at]) | static_cast<unsigned char>(bytes[at + 1]) << 8;
}

/// Follows the code of a shape with a pen.
class Tracer {
public:
    explicit Tracer(const ShapeCodes& codes) : m_codes(codes) {}
    void run(const std::string& code, int depth);
    ShapeLines take();
    /// Where the pen stands.
    OdGePoint2d place() const { return m_at; }

private:
    void moveBy(double x, double y);
    void vector(unsigned byte);
    void octantArc(int radius, int octants);
    void fractionalArc(const std::string& code, std::size_t at);
    void bulge(int x, int y, int height);
    std::size_t special(unsigned byte, const std::string& code, std::size_t at, int depth);
    std::size_t following(unsigned byte, const std::string& code, std::size_t at) const;
    void within(const std::string& code, std::size_t at, int depth);
    void part(const std::string& code, std::size_t at, int depth);
    void arc(double radius, double start, double sweep);
    void begin() {
        if (m_lines.empty() || !m_lines.back().empty()) m_lines.emplace_back();
    }
    void put(const OdGePoint2d& point);

    const ShapeCodes& m_codes;
    ShapeLines m_lines;
    OdGePoint2d m_at;
    double m_scale = 1;
    bool m_isDown = true;
    std::vector<OdGePoint2d> m_stack;
    std::size_t m_count = 0;
};

void Tracer::put(const OdGePoint2d& point) {
    if (++m_count > kMostSteps) return;
    if (m_lines.empty() || m_lines.back().empty()) {
        begin();
        m_lines.back().push_back(m_at);
    }
    m_lines.back().push_back(point);
}

void Tracer::moveBy(double x, double y) {
    const OdGePoint2d to = m_at + OdGePoint2d{x, y} * m_scale;
    if (m_isDown)
        put(to);
    else
        begin();
    m_at = to;
}

/// Length in the upper half byte, one of sixteen directions in the lower.
void Tracer::vector(unsigned byte) {
    constexpr double kX[] = {1, 1, 1, 0.5, 0, -0.5, -1, -1, -1, -1, -1, -0.5, 0, 0.5, 1, 1};
    constexpr double kY[] = {0, 0.5, 1, 1, 1, 1, 1, 0.5, 0, -0.5, -1, -1, -1, -1, -1, -0.5};
    const double length = byte >> 4;
    moveBy(kX[byte & 15] * length, kY[byte & 15] * length);
}

void Tracer::arc(double radius, double start, double sweep) {
    const OdGePoint2d center = m_at - OdGePoint2d{std::cos(start), std::sin(start)} * radius;
    const SceneArc piece = {0, 0, center, {radius, 0}, {0, radius}, start, sweep};
    std::vector<OdGePoint2d> points;
    AppendArc(points, piece, 0, false);
    if (m_isDown)
        for (const OdGePoint2d& point : points) put(point);
    else
        begin();
    m_at = points.back();
}

void Tracer::octantArc(int radius, int octants) {
    const bool isClockwise = octants < 0;
    const int count = (octants & 7) == 0 ? 8 : octants & 7;
    const double octant = std::numbers::pi / 4;
    arc(radius * m_scale, (octants >> 4 & 7) * octant, (isClockwise ? -count : count) * octant);
}

/// Five bytes: where in its octant the arc begins and ends, the radius in two, and the octants.
void Tracer::fractionalArc(const std::string& code, std::size_t at) {
    constexpr double kParts = 256;
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(code[at + i]); };
    const double octant = std::numbers::pi / 4;
    const double startPart = byteAt(0) / kParts * octant, endPart = byteAt(1) / kParts * octant;
    const double radius = (byteAt(2) * kParts + byteAt(3)) * m_scale;
    const auto octants = static_cast<signed char>(code[at + 4]);
    const bool isClockwise = octants < 0;
    const int first = octants >> 4 & 7, count = (octants & 7) == 0 ? 8 : octants & 7;
    const double sign = isClockwise ? -1 : 1;
    const double start = first * octant + sign * startPart;
    // The last octant counts up to the end's part; without a part it is whole.
    const double whole = (byteAt(1) != 0 ? count - 1 : count) * octant + endPart;
    arc(radius, start, sign * (whole - startPart));
}

void Tracer::bulge(int x, int y, int height) {
    constexpr double kHalfCircle = 127;
    const OdGePoint2d to = m_at + OdGePoint2d{static_cast<double>(x), static_cast<double>(y)} * m_scale;
    std::vector<OdGePoint2d> points = {m_at};
    std::vector<SceneArc> arcs;
    AppendBulge(points, arcs, m_at, to, height / kHalfCircle, 0);
    if (m_isDown)
        for (std::size_t i = 1; i < points.size(); ++i) put(points[i]);
    else
        begin();
    m_at = to;
}

/// How many bytes belong to a byte that is no vector.
std::size_t Tracer::following(unsigned byte, const std::string& code, std::size_t at) const {
    constexpr std::size_t kFollowing[] = {0, 0, 0, 1, 1, 0, 0, 1, 2, 0, 2, 5, 3, 0, 0, 0};
    constexpr std::size_t kOfPart = 7, kOfWideNumber = 2;
    if (byte != 7) return kFollowing[byte];
    if (m_codes.hasParts && at < code.size() && code[at] == 0) return kOfPart;
    return m_codes.hasWideNumbers ? kOfWideNumber : kFollowing[byte];
}

int big16(const std::string& bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) << 8 | static_cast<unsigned char>(bytes[at + 1]);
}

/// A shape within this one, by its number.
void Tracer::within(const std::string& code, std::size_t at, int depth) {
    if (m_codes.hasParts && code[at] == 0) return part(code, at + 1, depth);
    const int number = m_codes.hasWideNumbers ? big16(code, at) : static_cast<unsigned char>(code[at]);
    if (const auto inner = m_codes.shapes.find(number); inner != m_codes.shapes.end())
        run(inner->second, depth + 1);
}

/// A part: its number in two bytes, where it stands beside the pen, and its width and height there. The pen
/// stays.
void Tracer::part(const std::string& code, std::size_t at, int depth) {
    const auto inner = m_codes.shapes.find(big16(code, at));
    if (inner == m_codes.shapes.end()) return;
    Tracer drawn(m_codes);
    drawn.m_count = m_count;
    drawn.run(inner->second, depth + 1);
    m_count = drawn.m_count;
    const double x = static_cast<signed char>(code[at + 2]), y = static_cast<signed char>(code[at + 3]);
    const double wide = static_cast<unsigned char>(code[at + 4]) / m_codes.partWidth;
    const double high = static_cast<unsigned char>(code[at + 5]) / m_codes.partHeight;
    for (std::vector<OdGePoint2d>& line : drawn.take()) {
        for (OdGePoint2d& point : line)
            point = m_at + OdGePoint2d{x + point.x * wide, y + point.y * high} * m_scale;
        if (!m_lines.empty() && m_lines.back().empty()) m_lines.pop_back();
        m_lines.push_back(std::move(line));
    }
    begin();
}

/// Takes a byte that is no vector, with what follows it; answers the place of the next one.
std::size_t Tracer::special(unsigned byte, const std::string& code, std::size_t at, int depth) {
    const std::size_t next = at + following(byte, code, at);
    if (next > code.size()) return code.size();
    const auto number = [&](std::size_t i) { return static_cast<signed char>(code[at + i]); };
    switch (byte) {
        case 1: m_isDown = true; break;
        case 2:
            m_isDown = false;
            begin();
            break;
        case 3:
            if (code[at] != 0) m_scale /= static_cast<unsigned char>(code[at]);
            break;
        case 4: m_scale *= static_cast<unsigned char>(code[at]); break;
        case 5: m_stack.push_back(m_at); break;
        case 6:
            if (m_stack.empty()) break;
            m_at = m_stack.back();
            m_stack.pop_back();
            begin();
            break;
        case 7: within(code, at, depth); break;
        case 8: moveBy(number(0), number(1)); break;
        case 10: octantArc(static_cast<unsigned char>(code[at]), number(1)); break;
        case 11: fractionalArc(code, at); break;
        case 12: bulge(number(0), number(1), number(2)); break;
        default: break;
    }
    return next;
}

void Tracer::run(const std::string& code, int depth) {
    if (depth > kDeepest) return;
    std::size_t at = 0;
    bool skips = false;
    while (at < code.size() && ++m_count <= kMostSteps) {
        const auto byte = static_cast<unsigned char>(code[at++]);
        if (byte == 0) return;
        // Vertical writing alone takes what follows 14.
        if (byte == 14) {
            skips = true;
            continue;
        }
        if (byte > 15) {
            if (!skips) vector(byte);
        } else if (byte == 9 || byte == 13) {
            const std::size_t step = byte == 9 ? 2 : 3;
            while (at + 2 <= code.size()) {
                const auto x = static_cast<signed char>(code[at]), y = static_cast<signed char>(code[at + 1]);
                if (x == 0 && y == 0) {
                    at += 2;
                    break;
                }
                if (at + step > code.size()) return;
                if (!skips && byte == 9) moveBy(x, y);
                if (!skips && byte == 13) bulge(x, y, static_cast<signed char>(code[at + 2]));
                at += step;
            }
        } else if (skips) {
            at += following(byte, code, at);
        } else {
            at = special(byte, code, at, depth);
        }
        skips = false;
    }
}

ShapeLines Tracer::take() {
    std::erase_if(m_lines, [](const auto& line) { return line.size() < 2; });
    return std::move(m_lines);
}

}  // namespace

ShapeFile::ShapeFile(const std::string& bytes) {
    const std::size_t end = bytes.find('\x1A');
    if (end == std::string::npos) return;
    const std::string kind = lowered(bytes.substr(0, end));
    m_isUnicode = m_codes.hasWideNumbers = kind.rfind("autocad-86 unifont", 0) == 0;
    m_isBig = m_codes.hasParts = kind.rfind("autocad-86 bigfont", 0) == 0;
    if (m_isUnicode)
        readUnicode(bytes, end + 1);
    else if (m_isBig)
        readBig(bytes, end + 1);
    else if (kind.rfind("autocad-86 shapes", 0) == 0)
        readIndexed(bytes, end + 1);
}

/// First and last number, the count, then an index of numbers and lengths.
void ShapeFile::readIndexed(const std::string& bytes, std::size_t at) {
    const int count = little16(bytes, at + 4);
    at += 6;
    std::size_t place = at + static_cast<std::size_t>(std::max(count, 0)) * 4;
    for (int i = 0; i < count; ++i, at += 4) {
        const int number = little16(bytes, at), length = little16(bytes, at + 2);
        if (number < 0 || length < 0 || place + static_cast<std::size_t>(length) > bytes.size()) return;
        take(number, bytes.substr(place, static_cast<std::size_t>(length)));
        place += static_cast<std::size_t>(length);
    }
}

/// The count, then number, length and shape each.
void ShapeFile::readUnicode(const std::string& bytes, std::size_t at) {
    const int count = little16(bytes, at);
    at += 2;
    for (int i = 0; i < count; ++i) {
        const int number = little16(bytes, at), length = little16(bytes, at + 2);
        at += 4;
        if (number < 0 || length < 0 || at + static_cast<std::size_t>(length) > bytes.size()) return;
        take(number, bytes.substr(at, static_cast<std::size_t>(length)));
        at += static_cast<std::size_t>(length);
    }
}

/// The length of an entry, the count of shapes, that of ranges of first bytes, and these; then for each shape
/// its number, length and place in the file.
void ShapeFile::readBig(const std::string& bytes, std::size_t at) {
    constexpr std::size_t kRange = 4, kEntry = 8;
    const int count = little16(bytes, at + 2), ranges = little16(bytes, at + 4);
    if (count < 0 || ranges < 0) return;
    at += 6 + static_cast<std::size_t>(ranges) * kRange;
    for (int i = 0; i < count && at + kEntry <= bytes.size(); ++i, at += kEntry) {
        const auto length = static_cast<std::size_t>(little16(bytes, at + 2));
        const std::size_t place = static_cast<std::size_t>(little16(bytes, at + 4)) |
                                  static_cast<std::size_t>(little16(bytes, at + 6)) << 16;
        // Entries without a shape are left over.
        if (length == 0 || place > bytes.size() || length > bytes.size() - place) continue;
        take(little16(bytes, at), bytes.substr(place, length));
    }
}

/// Takes what describes a font: the height of capitals, and in a big font with parts 0, the orientations, and
/// the width of its letters.
void ShapeFile::describe(const std::string& measures) {
    const auto measure = [&](std::size_t i) {
        return i < measures.size() ? static_cast<unsigned char>(measures[i]) : 0;
    };
    m_isFont = measure(0) != 0;
    if (!m_isFont) return;
    m_capitalHeight = m_codes.partWidth = m_codes.partHeight = measure(0);
    if (measure(1) == 0 && measure(3) != 0) m_codes.partWidth = measure(3);
}

void ShapeFile::take(int number, const std::string& whole) {
    const std::size_t nameEnd = whole.find('\0');
    if (nameEnd == std::string::npos) return;
    if (number == 0) {
        describe(whole.substr(nameEnd + 1));
        return;
    }
    m_numbers.emplace(lowered(whole.substr(0, nameEnd)), number);
    m_codes.shapes.emplace(number, whole.substr(nameEnd + 1));
}

int ShapeFile::numberOf(const std::string& name) const {
    const auto found = m_numbers.find(lowered(name));
    return found != m_numbers.end() ? found->second : 0;
}

ShapeLines ShapeFile::lines(int number) const {
    const auto code = m_codes.shapes.find(number);
    if (code == m_codes.shapes.end()) return {};
    Tracer tracer(m_codes);
    tracer.run(code->second, 0);
    return tracer.take();
}

OdGePoint2d ShapeFile::end(int number) const {
    const auto code = m_codes.shapes.find(number);
    if (code == m_codes.shapes.end()) return {};
    Tracer tracer(m_codes);
    tracer.run(code->second, 0);
    return tracer.place();
}
