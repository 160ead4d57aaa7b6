#include "rules/paragraph_layout.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

constexpr double kBaseLineDistance = 5.0 / 3;  // in heights of the text
constexpr double kTabDistance = 4;             // the same
constexpr double kNear = 1e-9;                 // of a length, by which sums of it may differ

double widthOf(const ParagraphRun& run, const LetterWidth& width) {
    const double scale = run.format.height * run.format.widthFactor;
    if (run.stack == 0) return width(run.format.font, run.text) * run.format.spacing * scale;
    const double upper = width(run.format.font, run.upper), lower = width(run.format.font, run.lower);
    return (run.stack == L'#' ? upper + lower : std::max(upper, lower)) * scale;
}

bool isTab(const ParagraphRun& word) { return word.stack == 0 && word.text == L"\t"; }

ParagraphRun withoutSpacesBehind(const ParagraphRun& word) {
    ParagraphRun visible = word;
    while (!visible.text.empty() && visible.text.back() == L' ') visible.text.pop_back();
    return visible;
}

/// The end of a word that begins at `at`: behind the spaces that follow it, or behind a tab.
std::size_t wordEnd(std::wstring_view text, std::size_t at) {
    if (text[at] == L'\t') return at + 1;
    std::size_t end = std::min(text.find_first_of(L" \t", at), text.size());
    while (end < text.size() && text[end] == L' ') ++end;
    return end;
}

/// The runs cut into words, each with the spaces behind it; a stack and a tab are words.
std::vector<ParagraphRun> wordsOf(const Paragraph& paragraph) {
    std::vector<ParagraphRun> words;
    for (const ParagraphRun& run : paragraph.runs) {
        if (run.stack != 0) {
            words.push_back(run);
            continue;
        }
        for (std::size_t at = 0; at < run.text.size();) {
            const std::size_t end = wordEnd(run.text, at);
            words.emplace_back();
            words.back().format = run.format;
            words.back().text = run.text.substr(at, end - at);
            at = end;
        }
    }
    return words;
}

/// Puts words into lines, one paragraph after the other.
class LineBreaker {
public:
    LineBreaker(const LayoutSettings& settings, const LetterWidth& width)
        : m_settings(settings), m_width(width) {}
    void add(const Paragraph& paragraph);
    ParagraphBlock take();

private:
    void begin(const Paragraph& paragraph, bool isFirst);
    void put(const ParagraphRun& word);
    void putTab(const Paragraph& paragraph, std::span<const ParagraphRun> words);
    bool findStop(const Paragraph& paragraph, double cell, double& place) const;
    void place();
    double room(const Paragraph& paragraph) const {
        return m_settings.width - paragraph.rightIndent - m_block.lines.back().indent;
    }

    const LayoutSettings& m_settings;
    const LetterWidth& m_width;
    ParagraphBlock m_block;
    double m_x = 0;              // where the next word begins
    bool m_isBehindTab = false;  // whether that is not where the last one ends
};

void LineBreaker::begin(const Paragraph& paragraph, bool isFirst) {
    m_block.lines.emplace_back();
    ParagraphLine& line = m_block.lines.back();
    line.align = paragraph.align;
    line.indent = paragraph.align == ParagraphAlign::kRight
                      ? paragraph.rightIndent
                      : paragraph.leftIndent + (isFirst ? paragraph.firstIndent : 0);
    line.beginsColumn = isFirst && paragraph.beginsColumn;
    m_x = 0;
    m_isBehindTab = false;
}

void LineBreaker::put(const ParagraphRun& word) {
    ParagraphLine& line = m_block.lines.back();
    const double width = widthOf(word, m_width);
    const ParagraphRun visible = withoutSpacesBehind(word);
    line.width = m_x + (visible.text.empty() && word.stack == 0 ? 0 : widthOf(visible, m_width));
    line.height = std::max(line.height, word.format.height);
    const bool continues = !m_isBehindTab && !line.pieces.empty() && word.stack == 0 &&
                           line.pieces.back().run.stack == 0 && line.pieces.back().run.format == word.format;
    if (continues) {
        line.pieces.back().run.text += word.text;
        line.pieces.back().width += width;
    } else {
        line.pieces.push_back({word, m_x, width});
    }
    m_x += width;
    m_isBehindTab = false;
}

/// Where the next stop lets letters begin that take up `cell`; false for none in the line. Behind the
/// paragraph's own stops there are the usual ones.
bool LineBreaker::findStop(const Paragraph& paragraph, double cell, double& place) const {
    const double here = m_block.lines.back().indent + m_x, end = m_settings.width;
    double last = here;
    for (const TabStop& stop : paragraph.tabs) {
        const double share = stop.align == ParagraphAlign::kRight    ? 1
                             : stop.align == ParagraphAlign::kCentre ? 0.5
                                                                     : 0;
        place = stop.place - cell * share;
        if (place > here * (1 + kNear) && (end <= 0 || stop.place <= end)) return true;
        last = std::max(last, stop.place);
    }
    const double step = kTabDistance * m_settings.height;
    place = (std::floor(last / step * (1 + kNear)) + 1) * step;
    return std::isfinite(place) && (end <= 0 || place < end);
}

/// `words` begin with a tab. It is a blank in lines that don't begin at the left.
void LineBreaker::putTab(const Paragraph& paragraph, std::span<const ParagraphRun> words) {
    double cell = 0, spaces = 0;  // up to the next tab
    for (const ParagraphRun& word : words.subspan(1)) {
        if (isTab(word) || (m_settings.width > 0 && cell > m_settings.width)) break;
        const double whole = widthOf(word, m_width);
        cell += whole;
        spaces = whole - widthOf(withoutSpacesBehind(word), m_width);
    }
    const ParagraphAlign align =
        paragraph.align == ParagraphAlign::kByAttachment ? m_settings.align : paragraph.align;
    double place = 0;
    if (align == ParagraphAlign::kLeft && findStop(paragraph, cell - spaces, place)) {
        m_x = place - m_block.lines.back().indent;
        m_isBehindTab = true;
        return;
    }
    ParagraphRun blank = words.front();
    blank.text = L" ";
    put(blank);
}

void LineBreaker::add(const Paragraph& paragraph) {
    begin(paragraph, true);
    const std::vector<ParagraphRun> words = wordsOf(paragraph);
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (m_block.lines.size() >= m_settings.mostLines) return;
        if (isTab(words[i])) {
            putTab(paragraph, std::span(words).subspan(i));
            continue;
        }
        const double width = widthOf(withoutSpacesBehind(words[i]), m_width);
        if (m_settings.width > 0 && m_x > 0 && m_x + width > room(paragraph) * (1 + kNear))
            begin(paragraph, false);
        put(words[i]);
    }
}

/// Places the columns that have lines.
void LineBreaker::place() {
    const ParagraphColumns& columns = m_settings.columns;
    std::vector<PlacedColumn>& placed = m_block.columns;
    if (!columns.areThere()) {
        if (m_settings.width > 0) m_block.width = m_settings.width;
        placed.at(0).width = m_block.width;
        return;
    }
    const std::size_t count = std::max(placed.size(), static_cast<std::size_t>(columns.count));
    const double step = columns.width + columns.gutter;
    for (std::size_t i = 0; i < placed.size(); ++i) {
        placed[i].left = step * static_cast<double>(columns.isReversed ? count - 1 - i : i);
        placed[i].width = columns.width;
        m_block.height = std::max(m_block.height, columns.heightOf(i));
    }
    m_block.width = step * static_cast<double>(count) - columns.gutter;
}

double heightOfStack(const ParagraphRun& run) {
    return (run.stack == L'#' ? 2 : 2 * (1 + kStackGap)) * run.format.height;
}

/// How far the stacks of a line reach above its letters.
double stacksAbove(const ParagraphLine& line) {
    double above = 0;
    for (const LinePiece& piece : line.pieces)
        if (piece.run.stack != 0)
            above =
                std::max(above, Rise(piece.run, line.height) + heightOfStack(piece.run) / 2 - line.height);
    return above;
}

ParagraphBlock LineBreaker::take() {
    const ParagraphColumns& columns = m_settings.columns;
    double down = 0;
    m_block.columns.emplace_back();
    bool isFirst = true;
    for (ParagraphLine& line : m_block.lines) {
        if (line.height <= 0) line.height = m_settings.height;
        const double step = m_settings.isExact ? m_settings.height : line.height;
        const double higher = m_settings.isExact ? 0 : stacksAbove(line);
        down = isFirst ? line.height : down + step * kBaseLineDistance * m_settings.spacing + higher;
        const std::size_t column = m_block.columns.size() - 1;
        const double most = columns.heightOf(column);
        const bool isFull = line.beginsColumn || (most > 0 && down > most * (1 + kNear));
        if (columns.areThere() && isFull && !isFirst && !columns.isLast(column)) {
            m_block.columns.emplace_back();
            down = line.height;
        }
        line.down = down;
        line.column = m_block.columns.size() - 1;
        m_block.columns.back().height = down;
        m_block.height = std::max(m_block.height, down);
        isFirst = false;
        m_block.width = std::max(m_block.width, line.indent + line.width);
        // Spaces at the end of a line are nowhere.
        if (line.pieces.empty() || line.pieces.back().run.stack != 0) continue;
        std::wstring& text = line.pieces.back().run.text;
        while (!text.empty() && text.back() == L' ') text.pop_back();
        line.pieces.back().width = widthOf(line.pieces.back().run, m_width);
    }
    place();
    return std::move(m_block);
}

}  // namespace

double Rise(const ParagraphRun& run, double lineHeight) {
    const double own = run.format.height;
    if (run.stack == 0) return (lineHeight - own) * run.format.row / 2;
    const double stack = heightOfStack(run);
    return stack / 2 + (lineHeight - stack) * run.format.row / 2;
}

ParagraphBlock LayOut(const std::vector<Paragraph>& paragraphs, const LayoutSettings& settings,
                      const LetterWidth& width) {
    LineBreaker breaker(settings, width);
    for (const Paragraph& paragraph : paragraphs) breaker.add(paragraph);
    return breaker.take();
}
