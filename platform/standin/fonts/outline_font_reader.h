// Reads the families and styles of an outline font (TrueType and OpenType, single or in a collection).
#pragma once

#include <vector>

#include "font_file.h"

/// Appends a face for each font in `bytes` to `faces`. A single font has to be whole: every table that its
/// directory lists lies within the file, a header, a character map and a name among them. Of a collection the
/// faces that are whole are taken. Answers kNone exactly if there is a face. Reads at most some hundred
/// kilobytes, whatever the file says.
STANDIN_API FontProblem readOutlineFont(ByteSource& bytes, std::vector<FontFace>& faces);
