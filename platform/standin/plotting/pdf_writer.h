// PdfWriter: puts pages, fonts and layers together into a PDF file (1.5). Knows no window and no drawing.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "plotting/pdf_font.h"
#include "plotting/pdf_page.h"

/// A picture of a file: rows from the top, three bytes for each pixel, and one for its opacity where that
/// isn't whole everywhere.
struct PdfPicture {
    int width = 0, height = 0;
    std::string colors, opacity;
};

class STANDIN_API PdfWriter {
public:
    /// Graphics state in which overlapping colours merge (multiply) instead of covering each other.
    static constexpr std::string_view kMergeState = "Merge";

    /// A new page at the end. It stays where it is until the writer goes.
    PdfPage& addPage(double width, double height) { return m_pages.emplace_back(width, height); }
    const std::deque<PdfPage>& pages() const { return m_pages; }
    PdfFonts& fonts() { return m_fonts; }
    /// The number of the layer `name`, which is made when it is first asked for.
    int layer(std::wstring_view name);

    /// The number of a picture; one that is there already comes once.
    int picture(const PdfPicture& picture);

    /// Shown as the file's title.
    void setTitle(std::wstring_view title) { m_title = title; }
    void setCreator(std::wstring_view creator) { m_creator = creator; }

    /// The whole file.
    std::string write() const;

private:
    std::deque<PdfPage> m_pages;
    PdfFonts m_fonts;
    std::vector<std::wstring> m_layers;
    std::vector<PdfPicture> m_pictures;  ///< their bytes are packed
    std::wstring m_title, m_creator;
};
