// Linetype definition files (.lin): text files from which a drawing loads linetypes.
//
//     ;; a comment
//     *DASHED,Dashed __ __ __ __
//     A,0.5,-0.25
//
// A definition is a line with the name and a description, and a line with the pattern: "A", then lengths in
// drawing units, above 0 a dash, below 0 a gap, 0 a dot. Shapes and texts in brackets make it complex.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <od_string.h>

#include "standin_api.h"

/// Most dashes, gaps and dots that a pattern may have.
constexpr int kMostDashes = 12;
/// Most definitions that are read from one file.
constexpr std::size_t kMostLinetypes = 10000;

/// Most mistakes that are reported of one file.
constexpr std::size_t kMostLinetypeProblems = 1000;

/// A shape or text of a complex linetype.
struct LinetypeInsert {
    int behind;     ///< count of dashes before it
    OdString text;  ///< what stands between the brackets
};

/// One linetype of a file.
struct LinetypeDefinition {
    OdString name;
    OdString description;
    std::vector<double> dashes;
    std::vector<LinetypeInsert> inserts;
    int line = 0;  ///< of the name in the file, from 1

    bool isComplex() const { return !inserts.empty(); }
};

/// What can be wrong in a file.
enum class LinetypeFault {
    kNoName,           ///< a definition begins without a name
    kBadName,          ///< the name holds characters that names can't have; `detail` is the name
    kNameTwice,        ///< the name is defined already; `detail` is the name
    kNoPattern,        ///< no pattern follows; `detail` is the name
    kStrayLine,        ///< a line belongs to no definition
    kBadAlignment,     ///< the pattern doesn't begin with "A,"
    kBadNumber,        ///< a length is no number; `detail` is its text
    kTooFewDashes,     ///< fewer than two lengths
    kTooManyDashes,    ///< more than kMostDashes lengths
    kBeginsWithGap,    ///< the first length is a gap
    kNoLength,         ///< all lengths are 0
    kOpenBracket,      ///< a bracket is not closed
    kTooManyLinetypes  ///< the file goes on behind kMostLinetypes definitions
};

/// One mistake. The definition it is in is left out, and reading goes on with the next.
struct LinetypeFileProblem {
    LinetypeFault fault;
    int line;  ///< from 1
    OdString detail;
};

/// What a file holds.
struct LinetypeFile {
    std::vector<LinetypeDefinition> definitions;  ///< in the order of the file
    std::vector<LinetypeFileProblem> problems;
};

/// Reads the bytes of a file, which are UTF-8, UTF-16 with a byte order mark, or in the code page `codePage`.
/// Lines end with CR, LF or both. Never fails: what is no definition is reported.
STANDIN_API LinetypeFile ReadLinetypeFile(std::string_view bytes, int codePage);
