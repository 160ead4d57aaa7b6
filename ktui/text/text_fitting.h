// Fits a text to a width in pixels, given something that measures text.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

#include <functional>

/// Answers the width in pixels of a text.
using TextMeasurer = std::function<int(const CString&)>;

/// `text` with its middle replaced by "..." so that it is about `width` pixels wide. A text shorter than five
/// characters or no wider than `width` comes back whole. The ellipsis isn't measured, so the result may be
/// slightly wider or narrower than `width`.
CString ShortenToWidth(const CString& text, unsigned width, const TextMeasurer& measure);

/// `text` repeated, with a shortened piece in the middle, so that it is about `width` pixels wide. A text
/// shorter than five characters comes back once; an exact multiple of the text's width has no ellipsis; a
/// text wider than `width` is shortened. A text of five or more characters has to have a width above 0.
CString RepeatToWidth(const CString& text, unsigned width, const TextMeasurer& measure);
