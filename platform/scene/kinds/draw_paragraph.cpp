#include "kinds/draw_paragraph.h"

#include <algorithm>
#include <cmath>

#include "kinds/draw_functions.h"
#include "kinds/draw_single_line.h"
#include "kinds/entity_cast.h"
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
    double boxWidth() const { return m_text.width > 0 ? m_text.width : m_block.width; }
    /// The top edge and the left edge of the box, from the position.
    double top() const { return m_block.height * ((m_text.attachment - 1) / 3) / 2; }
    double left() const { return -boxWidth() * column() / 2; }
    OdGePoint3d at(double x, double y) const { return m_text.position + m_text.along * x + m_text.up * y; }
    EntityPen penFor(const LetterFormat& format) const;
    void drawLine(const ParagraphLine& line);
    void drawLetters(const LetterFormat& format, const std::wstring& letters, double x, double y,
                     int horizontal, double share);
    void drawStack(const LinePiece& piece, double x, double y);
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

void ParagraphDrawer::drawLetters(const LetterFormat& format, const std::wstring& letters, double x, double y,
                                  int horizontal, double share) {
    PlacedText placed;
    placed.text = OdString(letters);
    placed.position = at(x, y);
    placed.along = m_text.along;
    placed.up = m_text.up;
    placed.height = format.height * share;
    placed.widthFactor = format.widthFactor * format.spacing;
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

/// One number over the other, around the middle of the capitals.
void ParagraphDrawer::drawStack(const LinePiece& piece, double x, double y) {
    constexpr double kGap = 0.15, kMiddle = 0.5;  // in the height of the text
    const ParagraphRun& run = piece.run;
    const double height = run.format.height, middle = y + kMiddle * height;
    const double upper = middle + kGap * height, lower = middle - (kGap + kStackShare) * height;
    if (run.stack == L'#') {
        drawLetters(run.format, run.upper, x, upper - kGap * height, 0, kStackShare);
        drawLetters(run.format, run.lower, x + piece.width, lower + kGap * height, 2, kStackShare);
        const double centre = x + piece.width / 2, reach = height * kStackShare;
        drawBar(run.format, centre - reach / 2, middle - reach, centre + reach / 2, middle + reach);
        return;
    }
    const double centre = x + piece.width / 2;
    drawLetters(run.format, run.upper, centre, upper, 1, kStackShare);
    drawLetters(run.format, run.lower, centre, lower, 1, kStackShare);
    if (run.stack == L'/') drawBar(run.format, x, middle, x + piece.width, middle);
}

void ParagraphDrawer::drawLine(const ParagraphLine& line) {
    const int align =
        line.align == ParagraphAlign::kByAttachment ? column() : static_cast<int>(line.align) - 1;
    const double y = top() - line.down;
    const double edge = left() + boxWidth() * align / 2;
    const double anchor = align == 2 ? edge - (line.align == ParagraphAlign::kRight ? line.indent : 0)
                                     : edge + line.indent / (align + 1);
    double x = anchor - line.width * align / 2;
    for (const LinePiece& piece : line.pieces) {
        if (piece.run.stack != 0)
            drawStack(piece, x + piece.x, y);
        else if (line.pieces.size() == 1)
            drawLetters(piece.run.format, piece.run.text, anchor, y, align, 1);
        else
            drawLetters(piece.run.format, piece.run.text, x + piece.x, y, 0, 1);
        drawMarks(piece, x + piece.x, y);
    }
}

void ParagraphDrawer::draw() {
    for (const ParagraphLine& line : m_block.lines) drawLine(line);
}

void ParagraphDrawer::fillBehind(const ParagraphBackground& behind) {
    const double x1 = left() - behind.margin, x2 = left() + boxWidth() + behind.margin;
    const double y1 = top() - m_block.height - behind.margin, y2 = top() + behind.margin;
    const std::vector<OdGePoint3d> box = {at(x1, y1), at(x2, y1), at(x2, y2), at(x1, y2)};
    EntityPen own = m_pen;
    if (behind.isPaper) {
        own.wipe(box);
    } else {
        m_pen.rules().setColor(own.look(), behind.color, m_pen.byBlock());
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
    settings.width = text.width;
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

ParagraphBackground backgroundOf(const OdDbMText& text) {
    constexpr int kFilled = 1, kPaper = 2;
    constexpr double kUsualScale = 1.5;
    const OdGroupList& groups = text.groups();
    ParagraphBackground behind;
    const auto flags = static_cast<int>(groups.integer(90));
    behind.isThere = (flags & (kFilled | kPaper)) != 0;
    behind.isPaper = (flags & kPaper) != 0;
    behind.margin = (groups.real(45, kUsualScale) - 1) * text.textHeight();
    behind.color.setColorIndex(static_cast<int>(groups.integer(63, OdCmColor::kForeground)));
    if (OdGroup rgb; groups.find(421, rgb))
        behind.color.setRGB(static_cast<std::uint8_t>(rgb.integer >> 16),
                            static_cast<std::uint8_t>(rgb.integer >> 8),
                            static_cast<std::uint8_t>(rgb.integer));
    return behind;
}

}  // namespace

void DrawParagraph(const OdDbEntity& entity, EntityPen& pen) {
    constexpr int kExact = 2;
    const auto* text = As<OdDbMText>(entity);
    if (text == nullptr) return;
    const OdGroupList& groups = text->groups();
    const OdGeVector3d normal = entity.normal();
    const SpaceTransform plane = SpaceTransform::OfNormal(normal);
    PlacedParagraph placed;
    placed.contents = text->contents();
    placed.position = text->location();
    OdGroup group;
    // The direction is one of space, an angle one of the text's plane.
    const bool hasAngle = groups.find(50, group), hasDirection = groups.find(11, group);
    const double angle = text->rotation();
    const SpaceVector byAngle = plane.turned({std::cos(angle), std::sin(angle), 0});
    placed.along = hasDirection && !hasAngle ? Unit(groups.point(11), byAngle) : byAngle;
    placed.up = Unit(Cross(plane.z, placed.along), plane.y);
    placed.attachment = text->attachment();
    placed.height = text->textHeight();
    placed.width = std::max(text->width(), 0.0);
    placed.lineSpacing = groups.real(44, 1);
    placed.hasExactSpacing = groups.integer(73) == kExact;
    const auto style = text->textStyle().open<OdDbTextStyleTableRecord>();
    placed.font = FontOfStyle(text->textStyle());
    if (style) {
        placed.font.oblique = style->obliquingAngle();
        placed.widthFactor = style->xScale() > 0 ? style->xScale() : 1;
    }
    DrawPlacedParagraph(placed, pen, backgroundOf(*text));
}
