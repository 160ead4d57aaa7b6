// Paragraphs as the single lines of text that R12 has.
#pragma once

#include <vector>
#include "od_db_texts.h"

/// The lines of a paragraph, in no drawing: broken at its width by a measure that needs no font, set at its
/// attachment point, none longer than R12 takes. Empty lines take their room but no text.
std::vector<OdDbEntityPtr> odLinesOfParagraph(const OdDbMText& paragraph);
