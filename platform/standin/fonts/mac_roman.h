// The encoding of names in old fonts that lack Unicode ones.
#pragma once

/// The Unicode character of a code in the Macintosh Roman encoding.
char32_t macRomanCharacter(unsigned char code);
