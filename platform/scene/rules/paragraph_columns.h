// The columns of a paragraph text. Internal to the module.
#pragma once

#include <vector>

#include <od_db.h>

/// How a text runs in columns. Lengths are drawing units.
struct ParagraphColumns {
    double width = 0;             ///< of each; 0 and below for a text without columns
    double gutter = 0;            ///< from one to the next
    int count = 0;                ///< of all columns; 0 for as many as the text takes
    std::vector<double> heights;  ///< of each, or one for all; those of 0 and below hold any text
    bool isReversed = false;      ///< whether the first one is the rightmost

    bool areThere() const { return width > 0; }
    /// Whether no column follows one, which holds any text then.
    bool isLast(std::size_t column) const {
        return count > 0 && column + 1 >= static_cast<std::size_t>(count);
    }
    /// Height of a column; 0 for one that holds any text, as the last one does.
    double heightOf(std::size_t column) const;
};

/// The columns that a text is to be laid out in. A text whose further columns are entities of their own, as
/// in files before 2018, has none.
ParagraphColumns ColumnsOf(const OdDbMText& text);
