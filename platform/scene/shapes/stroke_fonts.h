// Texts in the strokes of shape fonts. Internal to the module.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "shapes/shape_files.h"

/// A text in strokes: its base line begins at 0, 0, and its capitals are 1 high.
struct StrokeText {
    ShapeLines lines;
    double width = 0;
};

class StrokeFonts {
public:
    /// `inPlace` is the file of the font that stands for one that isn't there; empty for none. Big fonts have
    /// their letters by `codePage`, that of the drawing.
    StrokeFonts(ShapeFiles& files, OdString inPlace, int codePage)
        : m_files(files), m_inPlace(std::move(inPlace)), m_codePage(codePage) {}
    /// Writes `text` in a font that is a shape font. False where another font has to stand for it: the file
    /// isn't there or is no font, or it lacks one of the letters. `spend` is asked with the points of each
    /// letter; where it says no, the text ends.
    bool write(const SceneFont& font, std::wstring_view text, StrokeText& written,
               const std::function<bool(std::size_t)>& spend);
    /// The same for its width alone.
    bool measure(const SceneFont& font, std::wstring_view text, double& width);
    /// The parts of a text that the font has, and those for which another font has to stand.
    struct Run {
        std::wstring_view text;
        bool isWritten;
    };
    std::vector<Run> runs(const SceneFont& font, std::wstring_view text);
    /// The files of shape fonts that were asked for and weren't there, or are none.
    const std::set<std::wstring>& missing() const { return m_missing; }

private:
    struct Letter {
        ShapeLines lines;
        double advance = 0;
        std::size_t points = 0;
    };
    struct Place {
        const ShapeFile* file = nullptr;  ///< null for a letter that the font lacks
        int number = 0;
    };
    const ShapeFile* fontIn(const OdString& name, bool isBig);
    const ShapeFile* named(const OdString& file, bool isBig);
    const ShapeFile* fileOf(const SceneFont& font);
    Place find(const ShapeFile& file, const SceneFont& font, wchar_t letter);
    int numberInBigFont(const OdString& file, wchar_t letter) const;
    const Letter& letter(const ShapeFile& file, int number);
    template <class Use>
    bool eachLetter(const SceneFont& font, std::wstring_view text, Use use);

    ShapeFiles& m_files;
    OdString m_inPlace;
    int m_codePage;
    std::map<std::pair<const ShapeFile*, int>, Letter> m_letters;
    std::set<std::wstring> m_missing;
};
