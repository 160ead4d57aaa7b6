// PdfPage: the drawing operators of one page of a PDF file. Lengths are points (1/72 inch), the origin is the
// page's lower left corner. Knows no window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standin_api.h"

/// A place on a page, in points.
struct PdfPoint {
    double x = 0, y = 0;
};

/// Red, green and blue from 0 to 255.
struct PdfColor {
    int red = 0, green = 0, blue = 0;
    friend bool operator==(const PdfColor&, const PdfColor&) = default;
};

/// Appends a number as PDF writes it: at most four decimals, never an exponent, "0" for what is no number.
STANDIN_API void AppendPdfNumber(std::string& text, double value);

class STANDIN_API PdfPage {
public:
    /// A page that is `width` by `height` points large.
    PdfPage(double width, double height) : m_width(width), m_height(height) {}

    double width() const { return m_width; }
    double height() const { return m_height; }
    /// The operators so far.
    const std::string& content() const { return m_content; }

    void saveState() { put("q"); }
    void restoreState() { put("Q"); }
    void setStrokeColor(const PdfColor& color) { putColor(color, "RG"); }
    void setFillColor(const PdfColor& color) { putColor(color, "rg"); }
    /// 0 is the thinnest line there is.
    void setLineWidth(double width) { put({width}, "w"); }
    /// Lengths of dashes and gaps in turn; none for a continuous line.
    void setDashes(const std::vector<double>& lengths);
    /// Round ends and corners, or flat ends.
    void setRoundEnds(bool round) { put({round ? 1.0 : 0.0}, "J"); }
    void setRoundCorners() { put({1}, "j"); }
    /// Draws what follows with the graphics state of that name (PdfWriter::kMergeState).
    void useState(std::string_view name);

    void moveTo(const PdfPoint& to) { put({to.x, to.y}, "m"); }
    void lineTo(const PdfPoint& to) { put({to.x, to.y}, "l"); }
    void curveTo(const PdfPoint& a, const PdfPoint& b, const PdfPoint& to) {
        put({a.x, a.y, b.x, b.y, to.x, to.y}, "c");
    }
    void closePath() { put("h"); }
    void stroke() { put("S"); }
    void fill() { put("f"); }
    /// Fills what an odd count of the path's parts surrounds.
    void fillByOddParity() { put("f*"); }
    /// Keeps what follows within a rectangle, until the state is restored.
    void clip(const PdfPoint& low, const PdfPoint& high);
    /// The same within an outline that is closed by itself; nothing is left within fewer than three points.
    void clip(const std::vector<PdfPoint>& outline);

    /// What follows belongs to layer number `layer` of the file, up to endLayer.
    void beginLayer(int layer);
    void endLayer() { put("EMC"); }

    /// Shows the codes `codes` of font number `font`; the matrix (a b c d e f) maps one unit of the em.
    void showText(int font, std::string_view codes, const double (&matrix)[6]);

    /// Shows picture number `picture` of the file; the matrix maps a square of 1 to its place, its lower left
    /// corner at 0, 0.
    void showPicture(int picture, const double (&matrix)[6]);

private:
    void put(std::string_view what);
    void put(std::initializer_list<double> numbers, std::string_view what);
    void putColor(const PdfColor& color, std::string_view what);

    double m_width, m_height;
    std::string m_content;
};
