#include "rules/paragraph_layout.h"

#include <algorithm>

namespace {

constexpr double kBaseLineDistance = 5.0 / 3;  // in heights of the text

double widthOf(const ParagraphRun& run, const LetterWidth& width) {
    const double scale = run.format.height * run.format.widthFactor;
    if (run.stack == 0) return width(run.format.font, run.text) * run.format.spacing * scale;
    const double upper = width(run.format.font, run.upper), lower = width(run.format.font, run.lower);
    return (run.stack == L'#' ? upper + lower : std::max(upper, lower)) * kStackShare * scale;
}

/// The runs cut into words, each with the spaces behind it; a stack is a word.
std::vector<ParagraphRun> wordsOf(const Paragraph& paragraph) {
    std::vector<ParagraphRun> words;
    for (const ParagraphRun& run : paragraph.runs) {
        if (run.stack != 0) {
            words.push_back(run);
            continue;
        }
        for (std::size_t at = 0; at < run.text.size();) {
            std::size_t end = std::min(run.text.find(L' ', at), run.text.size());
            while (end < run.text.size() && run.text[end] == L' ') ++end;
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
    double room(const Paragraph& paragraph) const {
        return m_settings.width - paragraph.rightIndent - m_block.lines.back().indent;
    }

    const LayoutSettings& m_settings;
    const LetterWidth& m_width;
    ParagraphBlock m_block;
    double m_x = 0;  // where the next word begins
};

void LineBreaker::begin(const Paragraph& paragraph, bool isFirst) {
    m_block.lines.emplace_back();
    ParagraphLine& line = m_block.lines.back();
    line.align = paragraph.align;
    line.indent = paragraph.align == ParagraphAlign::kRight
                      ? paragraph.rightIndent
                      : paragraph.leftIndent + (isFirst ? paragraph.firstIndent : 0);
    m_x = 0;
}

void LineBreaker::put(const ParagraphRun& word) {
    ParagraphLine& line = m_block.lines.back();
    const double width = widthOf(word, m_width);
    ParagraphRun visible = word;
    while (!visible.text.empty() && visible.text.back() == L' ') visible.text.pop_back();
    line.width = m_x + (visible.text.empty() && word.stack == 0 ? 0 : widthOf(visible, m_width));
    line.height = std::max(line.height, word.format.height);
    const bool continues = !line.pieces.empty() && word.stack == 0 && line.pieces.back().run.stack == 0 &&
                           line.pieces.back().run.format == word.format;
    if (continues) {
        line.pieces.back().run.text += word.text;
        line.pieces.back().width += width;
    } else {
        line.pieces.push_back({word, m_x, width});
    }
    m_x += width;
}

void LineBreaker::add(const Paragraph& paragraph) {
    begin(paragraph, true);
    for (const ParagraphRun& word : wordsOf(paragraph)) {
        if (m_block.lines.size() >= m_settings.mostLines) return;
        ParagraphRun visible = word;
        while (!visible.text.empty() && visible.text.back() == L' ') visible.text.pop_back();
        const bool isFull =
            m_settings.width > 0 && m_x > 0 && m_x + widthOf(visible, m_width) > room(paragraph) * (1 + 1e-9);
        if (isFull) begin(paragraph, false);
        put(word);
    }
}

ParagraphBlock LineBreaker::take() {
    double down = 0;
    bool isFirst = true;
    for (ParagraphLine& line : m_block.lines) {
        if (line.height <= 0) line.height = m_settings.height;
        const double step = m_settings.isExact ? m_settings.height : line.height;
        down += isFirst ? line.height : step * kBaseLineDistance * m_settings.spacing;
        line.down = down;
        isFirst = false;
        m_block.width = std::max(m_block.width, line.indent + line.width);
        // Spaces at the end of a line are nowhere.
        if (line.pieces.empty() || line.pieces.back().run.stack != 0) continue;
        std::wstring& text = line.pieces.back().run.text;
        while (!text.empty() && text.back() == L' ') text.pop_back();
        line.pieces.back().width = widthOf(line.pieces.back().run, m_width);
    }
    m_block.height = down;
    return std::move(m_block);
}

}  // namespace

ParagraphBlock LayOut(const std::vector<Paragraph>& paragraphs, const LayoutSettings& settings,
                      const LetterWidth& width) {
    LineBreaker breaker(settings, width);
    for (const Paragraph& paragraph : paragraphs) breaker.add(paragraph);
    return breaker.take();
}
