#include "plotting/pdf_page.h"

#include <cmath>
#include <cstdio>

namespace {

constexpr double kMostOf255 = 255;

}  // namespace

void AppendPdfNumber(std::string& text, double value) {
    constexpr double kLargest = 1e9;  // far beyond any page
    if (!std::isfinite(value)) value = 0;
    value = std::min(std::max(value, -kLargest), kLargest);
    char digits[40] = {};
    int length = std::snprintf(digits, sizeof digits, "%.4f", value);
    while (digits[length - 1] == '0') --length;
    if (digits[length - 1] == '.') --length;
    const std::string_view number(digits, static_cast<std::size_t>(length));
    text += number == "-0" ? "0" : number;
}

void PdfPage::put(std::string_view what) {
    m_content += what;
    m_content += '\n';
}

void PdfPage::put(std::initializer_list<double> numbers, std::string_view what) {
    for (const double number : numbers) {
        AppendPdfNumber(m_content, number);
        m_content += ' ';
    }
    put(what);
}

void PdfPage::putColor(const PdfColor& color, std::string_view what) {
    put({color.red / kMostOf255, color.green / kMostOf255, color.blue / kMostOf255}, what);
}

void PdfPage::setDashes(const std::vector<double>& lengths) {
    m_content += '[';
    for (const double length : lengths) {
        if (m_content.back() != '[') m_content += ' ';
        AppendPdfNumber(m_content, length);
    }
    put("] 0 d");
}

void PdfPage::useState(std::string_view name) {
    m_content += '/';
    m_content += name;
    put(" gs");
}

void PdfPage::clip(const PdfPoint& low, const PdfPoint& high) {
    put({low.x, low.y, high.x - low.x, high.y - low.y}, "re");
    put("W n");
}

void PdfPage::clip(const std::vector<PdfPoint>& outline) {
    if (outline.size() < 3) {
        clip({0, 0}, {0, 0});
        return;
    }
    moveTo(outline.front());
    for (std::size_t i = 1; i < outline.size(); ++i) lineTo(outline[i]);
    closePath();
    put("W* n");
}

void PdfPage::beginLayer(int layer) { put("/OC /L" + std::to_string(layer) + " BDC"); }

void PdfPage::showText(int font, std::string_view codes, const double (&matrix)[6]) {
    put("BT");
    put("/F" + std::to_string(font) + " 1 Tf");
    put({matrix[0], matrix[1], matrix[2], matrix[3], matrix[4], matrix[5]}, "Tm");
    m_content += '<';
    for (const char code : codes) {
        char digits[4] = {};
        std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned char>(code));
        m_content += digits;
    }
    put("> Tj");
    put("ET");
}

void PdfPage::showPicture(int picture, const double (&matrix)[6]) {
    saveState();
    put({matrix[0], matrix[1], matrix[2], matrix[3], matrix[4], matrix[5]}, "cm");
    put("/P" + std::to_string(picture) + " Do");
    restoreState();
}
