// Reads compiled shape files and traces the shapes in them. Internal to the module.
//
// A file begins with a line of text that ends in 0x1A. An index of shape numbers and lengths follows, then
// each shape: its name, a zero, and its code, bytes that move and draw. In a font whose numbers are those of
// Unicode each shape stands behind its own number and length. In a big font, whose numbers are the two bytes
// of a character in an East Asian code page, the index says where each shape is. In a font, number 0
// describes it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <od_ge.h>

/// Lines of a shape, each through its points, in units of the file.
using ShapeLines = std::vector<std::vector<OdGePoint2d>>;

/// What the codes of a file's shapes need of each other.
struct ShapeCodes {
    std::map<int, std::string> shapes;
    bool hasWideNumbers = false;  ///< whether shapes within shapes have numbers of two bytes
    bool hasParts = false;        ///< whether shapes may be parts of others, scaled each way (in big fonts)
    double partWidth = 1, partHeight = 1;  ///< the size of a part, which is scaled to that of its place
};

class ShapeFile {
public:
    /// Takes the bytes of a file; one of another layout has no shapes.
    explicit ShapeFile(const std::string& bytes);

    /// The number of the shape with a name, without regard to case; 0 if there is none.
    int numberOf(const std::string& name) const;
    bool has(int number) const { return m_codes.shapes.contains(number); }
    /// The lines of a shape; none for a number that no shape has.
    ShapeLines lines(int number) const;
    /// Where the pen stands after a shape that it begins at 0, 0.
    OdGePoint2d end(int number) const;
    /// Whether the file describes itself as a font.
    bool isFont() const { return m_isFont; }
    /// Whether the numbers are those of Unicode.
    bool isUnicode() const { return m_isUnicode; }
    /// Whether the numbers are the two bytes of characters, the first the higher one.
    bool isBig() const { return m_isBig; }
    /// Height of capitals where the file is a font, and 1 for a library of shapes.
    double capitalHeight() const { return m_capitalHeight; }

private:
    void readIndexed(const std::string& bytes, std::size_t at);
    void readUnicode(const std::string& bytes, std::size_t at);
    void readBig(const std::string& bytes, std::size_t at);
    void describe(const std::string& measures);
    void take(int number, const std::string& whole);

    ShapeCodes m_codes;
    std::map<std::string, int> m_numbers;
    double m_capitalHeight = 1;
    bool m_isFont = false, m_isUnicode = false, m_isBig = false;
};
