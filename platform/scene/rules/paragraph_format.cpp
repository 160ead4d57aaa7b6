#include "rules/paragraph_format.h"

#include <cmath>
#include <numbers>

#include "rules/text_codes.h"

namespace {

constexpr std::size_t kDeepest = 64;    // braces within braces
constexpr std::size_t kMostTabs = 100;  // stops of one paragraph

/// A number at the start of a text; 0 where there is none.
double numberOf(std::wstring_view text) {
    double value = 0, place = 0, sign = 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t c = text[i];
        if (i == 0 && (c == L'-' || c == L'+')) {
            sign = c == L'-' ? -1 : 1;
        } else if (c == L'.' && place == 0) {
            place = 1;
        } else if (c >= L'0' && c <= L'9') {
            value = value * 10 + (c - L'0');
            if (place != 0) place *= 10;
        } else {
            break;
        }
    }
    return std::isfinite(value) ? sign * value / (place == 0 ? 1 : place) : 0;
}

class Reader {
public:
    Reader(std::wstring_view contents, const LetterFormat& start) : m_rest(contents), m_unit(start.height) {
        m_formats.push_back(start);
        m_paragraphs.emplace_back();
    }
    std::vector<Paragraph> read();

private:
    LetterFormat& format() { return m_formats.back(); }
    void put(wchar_t letter);
    void put(const std::wstring& letters) {
        for (const wchar_t letter : letters) put(letter);
    }
    void endParagraph();
    void takeLetter();
    void takeCode();
    bool takeSwitch(wchar_t code);
    void takeSetting(wchar_t code);
    void takeHeight(std::wstring_view value);
    void takeFont(std::wstring_view value);
    void takeParagraphSetting(std::wstring_view value);
    void takeTabs(std::wstring_view value);
    void takeStack(std::wstring_view value);
    bool takeCharacterCode(wchar_t code);
    std::wstring_view upToSemicolon();

    std::wstring_view m_rest;
    double m_unit;  // of indents and tabs, in drawing units
    std::vector<LetterFormat> m_formats;
    std::vector<Paragraph> m_paragraphs;
};

void Reader::put(wchar_t letter) {
    std::vector<ParagraphRun>& runs = m_paragraphs.back().runs;
    if (runs.empty() || runs.back().stack != 0 || !(runs.back().format == format())) {
        runs.emplace_back();
        runs.back().format = format();
    }
    runs.back().text += letter;
}

/// The settings of a paragraph hold on for the next one.
void Reader::endParagraph() {
    Paragraph next = m_paragraphs.back();
    next.runs.clear();
    next.beginsColumn = false;
    m_paragraphs.push_back(std::move(next));
}

std::wstring_view Reader::upToSemicolon() {
    std::size_t end = 0;
    while (end < m_rest.size() && m_rest[end] != L';') end += m_rest[end] == L'\\' ? 2 : 1;
    end = std::min(end, m_rest.size());
    const std::wstring_view value = m_rest.substr(0, end);
    m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
    return value;
}

void Reader::takeHeight(std::wstring_view value) {
    const bool isFactor = !value.empty() && (value.back() == L'x' || value.back() == L'X');
    const double number = numberOf(value);
    if (number > 0) format().height = isFactor ? format().height * number : number;
}

/// The name of a family or a file, that of a big font behind a comma, then cut and code page, parted by bars.
void Reader::takeFont(std::wstring_view value) {
    SceneFont& font = format().font;
    const std::wstring_view names = value.substr(0, value.find(L'|'));
    const std::size_t comma = names.find(L',');
    const OdString name(std::wstring(names.substr(0, comma)));
    const bool hasBigFont = comma != std::wstring_view::npos;
    const bool isFile = hasBigFont || names.find(L'.') != std::wstring_view::npos;
    font.family = isFile ? OdString() : name;
    font.file = isFile ? name : OdString();
    font.bigFile = hasBigFont ? OdString(std::wstring(names.substr(comma + 1))) : OdString();
    font.bold = value.find(L"|b1") != std::wstring_view::npos;
    font.italic = value.find(L"|i1") != std::wstring_view::npos;
}

/// Numbers parted by commas, some behind the letter of an alignment. They stand for those that were set
/// before.
void Reader::takeTabs(std::wstring_view value) {
    std::vector<TabStop>& tabs = m_paragraphs.back().tabs;
    tabs.clear();
    while (!value.empty() && tabs.size() < kMostTabs) {
        const std::size_t end = std::min(value.find(L','), value.size());
        std::wstring_view part = value.substr(0, end);
        TabStop stop;
        if (!part.empty() && (part[0] == L'c' || part[0] == L'r')) {
            stop.align = part[0] == L'c' ? ParagraphAlign::kCentre : ParagraphAlign::kRight;
            part.remove_prefix(1);
        }
        stop.place = numberOf(part) * m_unit;
        if (stop.place > 0) tabs.push_back(stop);
        value.remove_prefix(std::min(end + 1, value.size()));
    }
}

/// Letters with numbers, parted by commas: i the first line's indent, l and r those of all, q the alignment,
/// and last t the stops of tabs.
void Reader::takeParagraphSetting(std::wstring_view value) {
    Paragraph& paragraph = m_paragraphs.back();
    while (!value.empty()) {
        const std::size_t end = std::min(value.find(L','), value.size());
        std::wstring_view part = value.substr(0, end);
        if (!part.empty() && part[0] == L'x') part.remove_prefix(1);
        const wchar_t kind = part.empty() ? L' ' : part[0];
        const std::wstring_view rest = part.empty() ? part : part.substr(1);
        if (kind == L'i') paragraph.firstIndent = numberOf(rest) * m_unit;
        if (kind == L'l') paragraph.leftIndent = numberOf(rest) * m_unit;
        if (kind == L'r') paragraph.rightIndent = numberOf(rest) * m_unit;
        if (kind == L't') return takeTabs(value.substr(value.find(L't') + 1));
        if (kind == L'q' && !rest.empty())
            paragraph.align = rest[0] == L'c'   ? ParagraphAlign::kCentre
                              : rest[0] == L'r' ? ParagraphAlign::kRight
                              : rest[0] == L'*' ? ParagraphAlign::kByAttachment
                                                : ParagraphAlign::kLeft;
        value.remove_prefix(std::min(end + 1, value.size()));
    }
}

void Reader::takeStack(std::wstring_view value) {
    ParagraphRun run;
    run.format = format();
    std::wstring* part = &run.upper;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const wchar_t c = value[i];
        if (c == L'\\' && i + 1 < value.size()) {
            *part += value[++i];
        } else if (run.stack == 0 && (c == L'/' || c == L'#' || c == L'^')) {
            run.stack = c;
            part = &run.lower;
        } else if (!(c == L' ' && part->empty())) {
            *part += c;
        }
    }
    if (run.stack == 0)
        put(run.upper);
    else
        m_paragraphs.back().runs.push_back(std::move(run));
}

/// Codes without a value; false for another one.
bool Reader::takeSwitch(wchar_t code) {
    switch (code) {
        case L'P':
        case L'X': endParagraph(); return true;
        case L'N':
            endParagraph();
            m_paragraphs.back().beginsColumn = true;
            return true;
        case L'~': put(L'\u00A0'); return true;
        case L'\\':
        case L'{':
        case L'}': put(code); return true;
        case L'L': format().isUnderlined = true; return true;
        case L'l': format().isUnderlined = false; return true;
        case L'O': format().isOverlined = true; return true;
        case L'o': format().isOverlined = false; return true;
        case L'K': format().isStruck = true; return true;
        case L'k': format().isStruck = false; return true;
        default: return false;
    }
}

/// A character by its number; false for another code.
bool Reader::takeCharacterCode(wchar_t code) {
    constexpr std::size_t kForeignDigits = 5;
    if (code == L'U' && m_rest.substr(0, 1) == L"+") {
        std::wstring letters;
        const int number = DigitsAt(m_rest.substr(1), 4, 16);
        if (number <= 0) return false;
        AppendCharacter(letters, number);
        m_rest.remove_prefix(5);
        put(letters);
        return true;
    }
    // A character of another code page.
    if (code == L'M' && m_rest.substr(0, 1) == L"+") {
        if (DigitsAt(m_rest.substr(1), kForeignDigits, 16) < 0) return false;
        m_rest.remove_prefix(kForeignDigits + 1);
        put(L'\uFFFD');
        return true;
    }
    return false;
}

/// Codes with a value that a semicolon ends.
void Reader::takeSetting(wchar_t code) {
    const std::wstring_view value = upToSemicolon();
    const double number = numberOf(value);
    switch (code) {
        case L'H': takeHeight(value); break;
        case L'W':
            if (number > 0) format().widthFactor = number;
            break;
        case L'Q': format().font.oblique = number * std::numbers::pi / 180; break;
        case L'T':
            if (number > 0) format().spacing = number;
            break;
        case L'C':
            format().hasColor = format().color.setColorIndex(static_cast<int>(std::min(number, 1000.0)));
            break;
        case L'c': {
            // Blue is in the high byte.
            const auto raw = static_cast<std::uint32_t>(std::min(std::max(number, 0.0), 16777215.0));
            format().color.setRGB(static_cast<std::uint8_t>(raw), static_cast<std::uint8_t>(raw >> 8),
                                  static_cast<std::uint8_t>(raw >> 16));
            format().hasColor = true;
            break;
        }
        case L'A': format().row = static_cast<int>(std::min(std::max(number, 0.0), 2.0)); break;
        case L'f':
        case L'F': takeFont(value); break;
        case L'p': takeParagraphSetting(value); break;
        case L'S': takeStack(value); break;
        default: break;
    }
}

void Reader::takeCode() {
    if (m_rest.empty()) return;
    const wchar_t code = m_rest[0];
    m_rest.remove_prefix(1);
    if (takeSwitch(code) || takeCharacterCode(code)) return;
    if (std::wstring_view(L"HWQTCcfFpSA").find(code) != std::wstring_view::npos)
        takeSetting(code);
    else
        put(code);
}

void Reader::takeLetter() {
    const wchar_t letter = m_rest[0];
    if (m_rest.substr(0, 2) == L"%%" && m_rest.size() > 2) {
        const std::size_t length = DigitsAt(m_rest.substr(2), 3, 10) > 0 ? 5 : 3;
        put(DecodeText(m_rest.substr(0, length)).letters);
        m_rest.remove_prefix(length);
        return;
    }
    m_rest.remove_prefix(1);
    if (letter == L'\n')
        endParagraph();
    else if (letter != L'\r')
        put(letter);
}

std::vector<Paragraph> Reader::read() {
    while (!m_rest.empty()) {
        const wchar_t letter = m_rest[0];
        if (letter == L'\\') {
            m_rest.remove_prefix(1);
            takeCode();
        } else if (letter == L'{') {
            m_rest.remove_prefix(1);
            if (m_formats.size() < kDeepest) m_formats.push_back(format());
        } else if (letter == L'}') {
            m_rest.remove_prefix(1);
            if (m_formats.size() > 1) m_formats.pop_back();
        } else {
            takeLetter();
        }
    }
    return std::move(m_paragraphs);
}

}  // namespace

bool operator==(const LetterFormat& a, const LetterFormat& b) {
    const auto sameFont = [](const SceneFont& x, const SceneFont& y) {
        return x.family == y.family && x.file == y.file && x.bigFile == y.bigFile && x.bold == y.bold &&
               x.italic == y.italic && x.oblique == y.oblique;
    };
    return a.height == b.height && a.widthFactor == b.widthFactor && a.spacing == b.spacing &&
           a.row == b.row && sameFont(a.font, b.font) && a.hasColor == b.hasColor && a.color == b.color &&
           a.isUnderlined == b.isUnderlined && a.isOverlined == b.isOverlined && a.isStruck == b.isStruck;
}

std::vector<Paragraph> ReadParagraphs(std::wstring_view contents, const LetterFormat& start) {
    return Reader(contents, start).read();
}
