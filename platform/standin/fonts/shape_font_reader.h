// Recognises compiled stroke fonts (.shx) by their headers.
//
// The extension is shared by four kinds of files of one origin, and by others that have nothing to do with
// them. A file begins with a line of text that names its layout and ends with the byte 0x1A; counts and an
// index follow.
//
//   shapes    an index of 16-bit codes. With an entry 0, which describes the font (height, depth, modes), it
//             is a font. Without one it is a library of shapes for linetypes and symbols: no font.
//   unifont   letters by Unicode. Always a font, if there is a letter behind its description.
//   bigfont   ranges of lead bytes, and an index of two-byte codes. Always a big font.
#pragma once

#include "font_file.h"

/// Says what kind of stroke font `bytes` are. `kind` stays unless the answer is kNone.
STANDIN_API FontProblem readShapeFont(ByteSource& bytes, FontKind& kind);
