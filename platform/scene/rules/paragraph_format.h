// Reads the formatting codes of paragraph texts into runs of one format each. Internal to the module.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scene.h"

/// How letters are written. Lengths are drawing units.
struct LetterFormat {
    double height = 1;
    double widthFactor = 1;
    double spacing = 1;  ///< factor on the distance from letter to letter
    int row = 0;         ///< where lower letters stand beside higher ones: 0 below, 1 in the middle, 2 above
    SceneFont font;
    bool hasColor = false;
    OdCmColor color;
    bool isUnderlined = false, isOverlined = false, isStruck = false;
    friend bool operator==(const LetterFormat& a, const LetterFormat& b);
};

/// Letters of one format, or one number over another.
struct ParagraphRun {
    std::wstring text;
    LetterFormat format;
    wchar_t stack = 0;          ///< '/' with a bar, '#' with a slanted one, '^' without; 0 for letters
    std::wstring upper, lower;  ///< of a stack
};

enum class ParagraphAlign { kByAttachment, kLeft, kCentre, kRight };

/// A place in a line to which a tab goes: what follows begins, has its middle or ends there.
struct TabStop {
    double place = 0;  ///< drawing units from the left edge of the box
    ParagraphAlign align = ParagraphAlign::kLeft;
};

/// What stands between two ends of paragraphs. Indents are drawing units. Tabs are letters of runs.
struct Paragraph {
    std::vector<ParagraphRun> runs;
    ParagraphAlign align = ParagraphAlign::kByAttachment;
    double firstIndent = 0;  ///< of the first line, beside that of all
    double leftIndent = 0, rightIndent = 0;
    std::vector<TabStop> tabs;  ///< those of its own, in the order of the text
    bool beginsColumn = false;  ///< whether it stands at the top of the next column
};

/// The paragraphs of a text that begins in the format `start`, whose height is the unit of indents and tabs.
/// Codes that mean nothing are left out.
std::vector<Paragraph> ReadParagraphs(std::wstring_view contents, const LetterFormat& start);
