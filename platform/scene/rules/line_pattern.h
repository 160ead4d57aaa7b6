// The dashes of linetypes, and the shapes and texts that stand in some of them. Internal to the module.
#pragma once

#include <unordered_map>
#include <vector>

#include <od_db.h>

/// A shape or text at the end of one of a pattern's dashes.
struct PatternMark {
    std::size_t dash = 0;  ///< behind which dash it stands
    OdString text;         ///< empty for a shape
    int shape = 0;         ///< the shape's number in its file
    OdDbHandle style = 0;  ///< the text style, or that which names the shape's file
    double scale = 1, rotation = 0;
    bool isUpright = false;  ///< turned from the x axis and not from the line
    OdGePoint2d offset;      ///< along the line and to its left
};

/// What one repetition of a linetype holds, at scale 1.
struct LinePattern {
    std::vector<double> dashes;
    std::vector<PatternMark> marks;
};

/// Reads the linetypes of a drawing, each once.
class LinePatterns {
public:
    /// The pattern of a linetype; one without dashes for what is none. Lives as long as this object.
    const LinePattern& of(const OdDbObjectId& linetype);

private:
    std::unordered_map<OdDbHandle, LinePattern> m_patterns;
};
