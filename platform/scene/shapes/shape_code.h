// Reads compiled shape files and traces the shapes in them. Internal to the module.
//
// A file begins with a line of text that ends in 0x1A. An index of shape numbers and lengths follows, then
// each shape: its name, a zero, and its code, bytes that move and draw. In a font whose numbers are those of
// Unicode each shape stands behind its own number and length. In a font, number 0 describes it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <od_ge.h>

/// Lines of a shape, each through its points, in units of the file.
using ShapeLines = std::vector<std::vector<OdGePoint2d>>;

class ShapeFile {
public:
    /// Takes the bytes of a file; one of another layout has no shapes.
    explicit ShapeFile(const std::string& bytes);

    /// The number of the shape with a name, without regard to case; 0 if there is none.
    int numberOf(const std::string& name) const;
    bool has(int number) const { return m_codes.contains(number); }
    /// The lines of a shape; none for a number that no shape has.
    ShapeLines lines(int number) const;
    /// Where the pen stands after a shape that it begins at 0, 0.
    OdGePoint2d end(int number) const;
    /// Whether the file describes itself as a font.
    bool isFont() const { return m_isFont; }
    /// Whether the numbers are those of Unicode.
    bool isUnicode() const { return m_isUnicode; }
    /// Height of capitals where the file is a font, and 1 for a library of shapes.
    double capitalHeight() const { return m_capitalHeight; }

private:
    void readIndexed(const std::string& bytes, std::size_t at);
    void readUnicode(const std::string& bytes, std::size_t at);
    void take(int number, const std::string& whole);

    std::map<int, std::string> m_codes;
    std::map<std::string, int> m_numbers;
    double m_capitalHeight = 1;
    bool m_isFont = false, m_isUnicode = false;
};
