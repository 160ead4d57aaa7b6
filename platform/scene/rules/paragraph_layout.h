// Breaks paragraphs into lines and says where their pieces stand. Internal to the module.
#pragma once

#include <functional>
#include <vector>

#include "rules/paragraph_columns.h"
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
    double indent = 0;  ///< from the left edge of the column, or from the right one for right alignment
    double down = 0;    ///< from the top of the box to the base line
    bool beginsColumn = false;  ///< whether the text asks for the next column in front of it
    std::size_t column = 0;     ///< of the block's columns
    ParagraphAlign align = ParagraphAlign::kByAttachment;
};

struct LayoutSettings {
    double width = 0;                              ///< of a column; 0 for lines as long as they come
    double height = 1;                             ///< of the text, for lines without letters
    double spacing = 1;                            ///< factor on the distance between base lines
    bool isExact = false;                          ///< whether that distance is the same for all lines
    ParagraphAlign align = ParagraphAlign::kLeft;  ///< of paragraphs that are aligned by the attachment
    ParagraphColumns columns = {};                 ///< without a width for a single one
    std::size_t mostLines = 10000;
};

/// A column in the box: its left edge from that of the box, and its width.
struct PlacedColumn {
    double left = 0, width = 0;
    double height = 0;  ///< from the top of the box to its last base line
};

struct ParagraphBlock {
    std::vector<ParagraphLine> lines;
    std::vector<PlacedColumn> columns;  ///< those that have lines; at least one
    double width = 0;                   ///< of all columns with what is between them
    double height = 0;  ///< from the top of the first line's capitals to the last base line of any column
};

ParagraphBlock LayOut(const std::vector<Paragraph>& paragraphs, const LayoutSettings& settings,
                      const LetterWidth& width);

/// Where the numbers of a stack are, in their height: how far either is from the middle.
constexpr double kStackGap = 0.15;

/// How far a piece in letters of this format is raised above the base line of a line; of a stack its middle.
double Rise(const ParagraphRun& run, double lineHeight);
