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

/// What stands between two ends of paragraphs. Indents are drawing units.
struct Paragraph {
    std::vector<ParagraphRun> runs;
    ParagraphAlign align = ParagraphAlign::kByAttachment;
    double firstIndent = 0;  ///< of the first line, beside that of all
    double leftIndent = 0, rightIndent = 0;
};

/// The paragraphs of a text that begins in the format `start`. Codes that mean nothing are left out.
std::vector<Paragraph> ReadParagraphs(std::wstring_view contents, const LetterFormat& start);
