#include "plotting/pdf_writer.h"

#include <zlib.h>

#include <algorithm>
#include <cstdio>

namespace {

std::string referTo(int number) { return std::to_string(number) + " 0 R"; }

std::string packed(std::string_view data) {
    uLongf size = compressBound(static_cast<uLong>(data.size()));
    std::string result(size, '\0');
    compress(reinterpret_cast<Bytef*>(result.data()), &size, reinterpret_cast<const Bytef*>(data.data()),
             static_cast<uLong>(data.size()));
    result.resize(size);
    return result;
}

/// The objects of a file, numbered from 1, and the file that they make.
class Objects {
public:
    /// A number for an object that comes later.
    int reserve() {
        m_objects.emplace_back();
        return static_cast<int>(m_objects.size());
    }
    void set(int number, std::string object) {
        m_objects[static_cast<std::size_t>(number) - 1] = std::move(object);
    }
    int add(std::string object) {
        const int number = reserve();
        set(number, std::move(object));
        return number;
    }
    int addStream(std::string_view data, const std::string& entries = {}) {
        return addPacked(packed(data), entries);
    }
    int addPacked(std::string_view body, const std::string& entries);
    std::string file(int catalog, int information) const;

private:
    std::vector<std::string> m_objects;
};

int Objects::addPacked(std::string_view body, const std::string& entries) {
    return add("<< " + entries + "/Filter /FlateDecode /Length " + std::to_string(body.size()) +
               " >>\nstream\n" + std::string(body) + "\nendstream");
}

int addPicture(Objects& objects, const PdfPicture& picture) {
    const auto entries = [&picture](const char* space) {
        return "/Type /XObject /Subtype /Image /Width " + std::to_string(picture.width) + " /Height " +
               std::to_string(picture.height) + " /ColorSpace /" + space + " /BitsPerComponent 8 ";
    };
    std::string mask;
    if (!picture.opacity.empty())
        mask = "/SMask " + referTo(objects.addPacked(picture.opacity, entries("DeviceGray"))) + " ";
    return objects.addPacked(picture.colors, entries("DeviceRGB") + mask);
}

std::string Objects::file(int catalog, int information) const {
    // The second line tells programs that the file isn't text.
    std::string file = "%PDF-1.5\n%\xE2\xE3\xCF\xD3\n";
    std::string table;
    for (std::size_t i = 0; i < m_objects.size(); ++i) {
        char entry[32] = {};
        std::snprintf(entry, sizeof entry, "%010zu 00000 n \n", file.size());
        table += entry;
        file += std::to_string(i + 1) + " 0 obj\n" + m_objects[i] + "\nendobj\n";
    }
    const std::size_t start = file.size();
    const std::string count = std::to_string(m_objects.size() + 1);
    file += "xref\n0 " + count + "\n0000000000 65535 f \n" + table;
    file += "trailer\n<< /Size " + count + " /Root " + referTo(catalog) + " /Info " + referTo(information) +
            " >>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n";
    return file;
}

/// Two bytes for each unit of UTF-16, the higher first, in hexadecimal digits.
std::string utf16Digits(std::u32string_view characters) {
    std::string digits;
    const auto put = [&](char32_t unit) {
        char four[8] = {};
        std::snprintf(four, sizeof four, "%04X", static_cast<unsigned>(unit & 0xFFFF));
        digits += four;
    };
    for (const char32_t each : characters) {
        if (each < 0x10000) {
            put(each);
        } else {
            put(0xD800 + ((each - 0x10000) >> 10));
            put(0xDC00 + ((each - 0x10000) & 0x3FF));
        }
    }
    return digits;
}

std::string pdfText(std::wstring_view text) { return "<FEFF" + utf16Digits(CharactersOf(text)) + ">"; }

struct Box {
    double left = 0, bottom = 0, right = 0, top = 0;
};

Box boxOf(const Glyph& glyph) {
    Box box;
    bool isFirst = true;
    for (const GlyphPiece& piece : glyph.pieces)
        for (int i = 0; i < (piece.kind == 'c' ? 3 : 1); ++i) {
            const PdfPoint& point = piece.points[i];
            if (isFirst) box = {point.x, point.y, point.x, point.y};
            isFirst = false;
            box = {std::min(box.left, point.x), std::min(box.bottom, point.y), std::max(box.right, point.x),
                   std::max(box.top, point.y)};
        }
    return box;
}

/// The operators that draw a letter; its colour is that of the text.
std::string procedureOf(const Glyph& glyph) {
    std::string text;
    const auto put = [&](std::initializer_list<double> numbers, const char* what) {
        for (const double number : numbers) {
            AppendPdfNumber(text, number);
            text += ' ';
        }
        text += what;
        text += '\n';
    };
    const Box box = boxOf(glyph);
    put({glyph.advance, 0, box.left, box.bottom, box.right, box.top}, "d1");
    for (const GlyphPiece& piece : glyph.pieces) {
        const PdfPoint(&p)[3] = piece.points;
        if (piece.kind == 'c')
            put({p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y}, "c");
        else
            put({p[0].x, p[0].y}, piece.kind == 'l' ? "l" : "m");
    }
    if (!glyph.pieces.empty()) put({}, "f");
    return text;
}

/// What the codes of a font stand for.
std::string meaningOf(const PdfFonts::Font& font) {
    constexpr std::size_t kMostInBlock = 100;
    std::string map =
        "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n/CIDSystemInfo << /Registry (Adobe) "
        "/Ordering (UCS) /Supplement 0 >> def\n/CMapName /Meaning def\n/CMapType 2 def\n1 "
        "begincodespacerange\n<00> <FF>\nendcodespacerange\n";
    for (std::size_t from = 0; from < font.size(); from += kMostInBlock) {
        const std::size_t to = std::min(from + kMostInBlock, font.size());
        map += std::to_string(to - from) + " beginbfchar\n";
        for (std::size_t code = from; code < to; ++code) {
            char digits[8] = {};
            std::snprintf(digits, sizeof digits, "<%02X> <", static_cast<unsigned>(code));
            map += digits + utf16Digits({&font[code].character, 1}) + ">\n";
        }
        map += "endbfchar\n";
    }
    return map + "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
}

int addFont(Objects& objects, const PdfFonts::Font& font) {
    std::string procedures, names, widths;
    Box all;
    for (std::size_t code = 0; code < font.size(); ++code) {
        const std::string name = "/g" + std::to_string(code);
        procedures += name + " " + referTo(objects.addStream(procedureOf(font[code].glyph))) + " ";
        names += name + " ";
        AppendPdfNumber(widths, font[code].glyph.advance);
        widths += ' ';
        const Box box = boxOf(font[code].glyph);
        all = {std::min(all.left, box.left), std::min(all.bottom, box.bottom), std::max(all.right, box.right),
               std::max(all.top, box.top)};
    }
    std::string box;
    for (const double edge : {all.left, all.bottom, all.right, all.top}) {
        AppendPdfNumber(box, edge);
        box += ' ';
    }
    const int meaning = objects.addStream(meaningOf(font));
    return objects.add("<< /Type /Font /Subtype /Type3 /FontBBox [" + box +
                       "] /FontMatrix [0.001 0 0 0.001 0 0] /Resources << >> /FirstChar 0 /LastChar " +
                       std::to_string(font.size() - 1) + " /Widths [" + widths +
                       "] /Encoding << /Type /Encoding /Differences [0 " + names + "] >> /CharProcs << " +
                       procedures + ">> /ToUnicode " + referTo(meaning) + " >>");
}

/// An entry of a resource dictionary: numbered names and what they stand for.
std::string numbered(const char* key, char prefix, const std::vector<int>& objects) {
    if (objects.empty()) return {};
    std::string text = key;
    text += " << ";
    for (std::size_t i = 0; i < objects.size(); ++i)
        text += std::string("/") + prefix + std::to_string(i) + " " + referTo(objects[i]) + " ";
    return text + ">> ";
}

std::string listOf(const std::vector<int>& objects) {
    std::string text = "[";
    for (const int each : objects) text += referTo(each) + " ";
    return text + "]";
}

}  // namespace

int PdfWriter::layer(std::wstring_view name) {
    const auto found = std::find(m_layers.begin(), m_layers.end(), name);
    if (found == m_layers.end()) m_layers.emplace_back(name);
    return static_cast<int>(std::find(m_layers.begin(), m_layers.end(), name) - m_layers.begin());
}

int PdfWriter::picture(const PdfPicture& picture) {
    PdfPicture small = {picture.width, picture.height, packed(picture.colors), {}};
    if (!picture.opacity.empty()) small.opacity = packed(picture.opacity);
    const auto found = std::find_if(m_pictures.begin(), m_pictures.end(), [&small](const PdfPicture& each) {
        return each.width == small.width && each.height == small.height && each.colors == small.colors &&
               each.opacity == small.opacity;
    });
    const auto number = static_cast<int>(found - m_pictures.begin());
    if (found == m_pictures.end()) m_pictures.push_back(std::move(small));
    return number;
}

std::string PdfWriter::write() const {
    Objects objects;
    std::vector<int> fonts, layers, pages, pictures;
    for (const PdfPicture& picture : m_pictures) pictures.push_back(addPicture(objects, picture));
    for (const PdfFonts::Font& font : m_fonts.fonts()) fonts.push_back(addFont(objects, font));
    for (const std::wstring& name : m_layers)
        layers.push_back(objects.add("<< /Type /OCG /Name " + pdfText(name) + " >>"));
    const int tree = objects.reserve();
    const int resources =
        objects.add("<< /ExtGState << /" + std::string(kMergeState) + " << /BM /Multiply >> >> " +
                    numbered("/Font", 'F', fonts) + numbered("/Properties", 'L', layers) +
                    numbered("/XObject", 'P', pictures) + ">>");
    for (const PdfPage& page : m_pages) {
        const int content = objects.addStream(page.content());
        std::string box;
        AppendPdfNumber(box, page.width());
        box += ' ';
        AppendPdfNumber(box, page.height());
        // The group has colours merge with the paper as they do on it.
        pages.push_back(objects.add("<< /Type /Page /Parent " + referTo(tree) + " /MediaBox [0 0 " + box +
                                    "] /Resources " + referTo(resources) + " /Contents " + referTo(content) +
                                    " /Group << /S /Transparency /CS /DeviceRGB >> >>"));
    }
    objects.set(tree,
                "<< /Type /Pages /Count " + std::to_string(pages.size()) + " /Kids " + listOf(pages) + " >>");
    std::string catalog = "<< /Type /Catalog /Pages " + referTo(tree);
    if (!layers.empty())
        catalog += " /OCProperties << /OCGs " + listOf(layers) + " /D << /Order " + listOf(layers) + " /ON " +
                   listOf(layers) + " >> >>";
    const int root = objects.add(catalog + " >>");
    const int information =
        objects.add("<< /Title " + pdfText(m_title) + " /Creator " + pdfText(m_creator) + " >>");
    return objects.file(root, information);
}
