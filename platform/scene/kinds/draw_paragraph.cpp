#include "kinds/draw_paragraph.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "kinds/draw_functions.h"
#include "kinds/draw_single_line.h"
#include "kinds/entity_cast.h"
#include "rules/embedded_object.h"
#include "rules/paragraph_layout.h"
#include "rules/text_codes.h"

namespace {

/// Draws the pieces of a laid out text.
class ParagraphDrawer {
public:
    ParagraphDrawer(const PlacedParagraph& text, const EntityPen& pen, const ParagraphBlock& block)
        : m_text(text), m_pen(pen), m_block(block) {}
    void draw();
    void fillBehind(const ParagraphBackground& behind);

private:
    int column() const { return (m_text.attachment - 1) % 3; }
    /// The top edge and the left edge of the box, from the position.
    double top() const { return m_block.height * ((m_text.attachment - 1) / 3) / 2; }
    double left() const { return -m_block.width * column() / 2; }
    OdGePoint3d at(double x, double y) const { return m_text.position + m_text.along * x + m_text.up * y; }
    EntityPen penFor(const LetterFormat& format) const;
    void drawLine(const ParagraphLine& line);
    void drawLetters(const LetterFormat& format, std::wstring_view letters, double x, double y,
                     int horizontal);
    void drawPiece(const LinePiece& piece, double x, double y);
    void drawSpaced(const LinePiece& piece, double x, double y);
    void drawStack(const LinePiece& piece, double x, double middle);
    void drawMarks(const LinePiece& piece, double x, double y);
    void drawBar(const LetterFormat& format, double x1, double y1, double x2, double y2);

    const PlacedParagraph& m_text;
    const EntityPen& m_pen;
    const ParagraphBlock& m_block;
};

EntityPen ParagraphDrawer::penFor(const LetterFormat& format) const {
    EntityPen own = m_pen;
    own.look().style.dashes.clear();
    own.look().pattern = nullptr;
    if (format.hasColor) m_pen.rules().setColor(own.look(), format.color, m_pen.byBlock());
    return own;
}

void ParagraphDrawer::drawLetters(const LetterFormat& format, std::wstring_view letters, double x, double y,
                                  int horizontal) {
    PlacedText placed;
    placed.text = OdString(std::wstring(letters));
    placed.position = at(x, y);
    placed.along = m_text.along;
    placed.up = m_text.up;
    placed.height = format.height;
    placed.widthFactor = format.widthFactor;
    placed.horizontal = horizontal;
    placed.font = format.font;
    penFor(format).text(placed);
}

void ParagraphDrawer::drawBar(const LetterFormat& format, double x1, double y1, double x2, double y2) {
    penFor(format).stroke(at(x1, y1), at(x2, y2));
}

void ParagraphDrawer::drawMarks(const LinePiece& piece, double x, double y) {
    const LetterFormat& format = piece.run.format;
    const auto line = [&](TextMarkKind kind) {
        const double height = y + MarkHeight(kind) * format.height;
        drawBar(format, x, height, x + piece.width, height);
    };
    if (format.isUnderlined) line(TextMarkKind::kUnder);
    if (format.isOverlined) line(TextMarkKind::kOver);
    if (format.isStruck) line(TextMarkKind::kThrough);
}

/// One number over the other, around the middle of the stack.
void ParagraphDrawer::drawStack(const LinePiece& piece, double x, double middle) {
    const ParagraphRun& run = piece.run;
    const double height = run.format.height, centre = x + piece.width / 2;
    if (run.stack == L'#') {
        drawLetters(run.format, run.upper, x, middle, 0);
        drawLetters(run.format, run.lower, x + piece.width, middle - height, 2);
        drawBar(run.format, centre - height / 2, middle - height, centre + height / 2, middle + height);
        return;
    }
    drawLetters(run.format, run.upper, centre, middle + kStackGap * height, 1);
    drawLetters(run.format, run.lower, centre, middle - (kStackGap + 1) * height, 1);
    if (run.stack == L'/') drawBar(run.format, x, middle, x + piece.width, middle);
}

/// Letters farther apart or closer than they come, one by one.
void ParagraphDrawer::drawSpaced(const LinePiece& piece, double x, double y) {
    const LetterFormat& format = piece.run.format;
    const double scale = format.height * format.widthFactor * format.spacing;
    const std::wstring_view letters = piece.run.text;
    for (std::size_t begin = 0, end = 0; begin < letters.size() && !m_pen.work().isOver(); begin = end) {
        // The second half of a character of two isn't one by itself.
        for (++end; end < letters.size() && letters[end] >= 0xDC00 && letters[end] < 0xE000;) ++end;
        const std::wstring_view letter = letters.substr(begin, end - begin);
        if (letter != L" ") drawLetters(format, letter, x, y, 0);
        x += m_pen.work().textWidth(format.font, letter) * scale;
    }
}

void ParagraphDrawer::drawPiece(const LinePiece& piece, double x, double y) {
    if (piece.run.format.spacing != 1)
        drawSpaced(piece, x, y);
    else
        drawLetters(piece.run.format, piece.run.text, x, y, 0);
}

void ParagraphDrawer::drawLine(const ParagraphLine& line) {
    const int align =
        line.align == ParagraphAlign::kByAttachment ? column() : static_cast<int>(line.align) - 1;
    const double y = top() - line.down;
    const PlacedColumn& within = m_block.columns[line.column];
    const double edge = left() + within.left + within.width * align / 2;
    const double anchor = align == 2 ? edge - (line.align == ParagraphAlign::kRight ? line.indent : 0)
                                     : edge + line.indent / (align + 1);
    const double x = anchor - line.width * align / 2;
    for (const LinePiece& piece : line.pieces) {
        const double base = y + Rise(piece.run, line.height);
        const bool isAlone = line.pieces.size() == 1 && piece.x == 0 && piece.run.format.spacing == 1;
        if (piece.run.stack != 0)
            drawStack(piece, x + piece.x, base);
        else if (isAlone)
            drawLetters(piece.run.format, piece.run.text, anchor, base, align);
        else
            drawPiece(piece, x + piece.x, base);
        drawMarks(piece, x + piece.x, base);
    }
}

void ParagraphDrawer::draw() {
    for (const ParagraphLine& line : m_block.lines) drawLine(line);
}

void ParagraphDrawer::fillBehind(const ParagraphBackground& behind) {
    EntityPen own = m_pen;
    if (!behind.isPaper) m_pen.rules().setColor(own.look(), behind.color, m_pen.byBlock());
    for (const PlacedColumn& each : m_block.columns) {
        const double x1 = left() + each.left - behind.margin, x2 = x1 + each.width + 2 * behind.margin;
        const double y1 = top() - each.height - behind.margin, y2 = top() + behind.margin;
        const std::vector<OdGePoint3d> box = {at(x1, y1), at(x2, y1), at(x2, y2), at(x1, y2)};
        if (behind.isPaper)
            own.wipe(box);
        else
            own.fill(box);
    }
}

}  // namespace

void DrawPlacedParagraph(const PlacedParagraph& text, const EntityPen& pen,
                         const ParagraphBackground& behind) {
    const auto letters = static_cast<std::size_t>(text.contents.length());
    if (!(text.height > 0) || text.attachment < 1 || text.attachment > 9 || !pen.work().spend(letters))
        return;
    LetterFormat start;
    start.height = text.height;
    start.widthFactor = text.widthFactor;
    start.font = text.font;
    LayoutSettings settings;
    settings.columns = text.columns;
    settings.width = text.columns.areThere() ? text.columns.width : text.width;
    settings.align = static_cast<ParagraphAlign>((text.attachment - 1) % 3 + 1);
    settings.height = text.height;
    settings.spacing = text.lineSpacing > 0 ? text.lineSpacing : 1;
    settings.isExact = text.hasExactSpacing;
    const ParagraphBlock block = LayOut(
        ReadParagraphs(text.contents.view(), start), settings,
        [&pen](const SceneFont& font, std::wstring_view words) { return pen.work().textWidth(font, words); });
    ParagraphDrawer drawer(text, pen, block);
    if (behind.isThere) drawer.fillBehind(behind);
    drawer.draw();
}

namespace {

ParagraphBackground backgroundOf(const OdGroupList& groups) {
    constexpr int kFilled = 1, kPaper = 2;
    constexpr double kUsualScale = 1.5;
    ParagraphBackground behind;
    const auto flags = static_cast<int>(groups.integer(90));
    behind.isThere = (flags & (kFilled | kPaper)) != 0;
    behind.isPaper = (flags & kPaper) != 0;
    behind.margin = (groups.real(45, kUsualScale) - 1) * groups.real(40);
    behind.color.setColorIndex(static_cast<int>(groups.integer(63, OdCmColor::kForeground)));
    if (OdGroup rgb; groups.find(421, rgb))
        behind.color.setRGB(static_cast<std::uint8_t>(rgb.integer >> 16),
                            static_cast<std::uint8_t>(rgb.integer >> 8),
                            static_cast<std::uint8_t>(rgb.integer));
    return behind;
}

OdString contentsOf(const OdGroupList& groups) {
    std::string whole;
    OdGroup group;
    for (std::uint32_t at = 0; groups.find(3, group, at); at = group.end) whole += group.text;
    if (groups.find(1, group)) whole += group.text;
    return OdString(odWide(whole));
}

/// Where and how a text stands by the groups that an MTEXT has, without its columns.
PlacedParagraph paragraphOf(const OdGroupList& groups, const OdDbObjectId& textStyle) {
    constexpr int kExact = 2;
    const OdGePoint3d normal = groups.point(210, {0, 0, 1});
    const SpaceTransform plane = SpaceTransform::OfNormal({normal.x, normal.y, normal.z});
    PlacedParagraph placed;
    placed.contents = contentsOf(groups);
    placed.position = groups.point(10);
    OdGroup group;
    // The direction is one of space, an angle one of the text's plane.
    const bool hasAngle = groups.find(50, group), hasDirection = groups.find(11, group);
    const double angle = groups.real(50) * std::numbers::pi / 180;
    const SpaceVector byAngle = plane.turned({std::cos(angle), std::sin(angle), 0});
    placed.along = hasDirection && !hasAngle ? Unit(groups.point(11), byAngle) : byAngle;
    placed.up = Unit(Cross(plane.z, placed.along), plane.y);
    placed.attachment = static_cast<int>(groups.integer(71, 1));
    placed.height = groups.real(40);
    placed.width = std::max(groups.real(41), 0.0);
    placed.lineSpacing = groups.real(44, 1);
    placed.hasExactSpacing = groups.integer(73) == kExact;
    const auto style = textStyle.open<OdDbTextStyleTableRecord>();
    placed.font = FontOfStyle(textStyle);
    if (style) {
        placed.font.oblique = style->obliquingAngle();
        placed.widthFactor = style->xScale() > 0 ? style->xScale() : 1;
    }
    return placed;
}

}  // namespace

void DrawParagraph(const OdDbEntity& entity, EntityPen& pen) {
    const auto* text = As<OdDbMText>(entity);
    if (text == nullptr) return;
    PlacedParagraph placed = paragraphOf(text->groups(), text->textStyle());
    placed.columns = ColumnsOf(*text);
    DrawPlacedParagraph(placed, pen, backgroundOf(text->groups()));
}

bool DrawEmbeddedParagraph(const OdDbText& holder, const EntityPen& pen) {
    const OdGroupList groups = EmbeddedObject(holder.groups());
    const PlacedParagraph placed = paragraphOf(groups, holder.textStyle());
    if (placed.contents.isEmpty()) return false;
    DrawPlacedParagraph(placed, pen, backgroundOf(groups));
    return true;
}
