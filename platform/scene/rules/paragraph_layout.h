// Breaks paragraphs into lines and says where their pieces stand. Internal to the module.
#pragma once

#include <functional>
#include <vector>

#include "rules/paragraph_format.h"

/// Width of letters whose capitals are 1 high.
using LetterWidth = std::function<double(const SceneFont& font, std::wstring_view text)>;

/// A piece of a line; `x` counts from the line's start, along it.
struct LinePiece {
    ParagraphRun run;
    double x = 0, width = 0;
};

struct ParagraphLine {
    std::vector<LinePiece> pieces;
    double width = 0;   ///< without spaces at its end
    double height = 0;  ///< of its highest capitals
    double indent = 0;  ///< from the left edge of the box, or from the right one for right alignment
    double down = 0;    ///< from the top of the box to the base line
    ParagraphAlign align = ParagraphAlign::kByAttachment;
};

struct LayoutSettings {
    double width = 0;      ///< of the box; 0 for lines as long as they come
    double height = 1;     ///< of the text, for lines without letters
    double spacing = 1;    ///< factor on the distance between base lines
    bool isExact = false;  ///< whether that distance is the same for all lines
    std::size_t mostLines = 10000;
};

struct ParagraphBlock {
    std::vector<ParagraphLine> lines;
    double width = 0;   ///< of the widest line
    double height = 0;  ///< from the top of the first line's capitals to the last base line
};

ParagraphBlock LayOut(const std::vector<Paragraph>& paragraphs, const LayoutSettings& settings,
                      const LetterWidth& width);

/// Height of the numbers of a stack, in that of the text around it.
constexpr double kStackShare = 0.7;
