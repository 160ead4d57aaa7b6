// The sample of a text style.
#pragma once

#include <scene.h>

#include "text_style_values.h"

/// Words in a style, as a drawing shows them: in strokes where the font is a shape font. Its height is 1.
Scene TextSample(const TextStyleValues& style, const wchar_t* words);
