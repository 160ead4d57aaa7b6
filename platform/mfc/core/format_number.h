// Numbers as the letters d, u, x, e, f, g, a ... print them, before the field's width is filled.
#pragma once

#include <string>

namespace kmfc {

/// What stands between the % and its letter, and the letter.
struct FormatField {
    bool left = false;       ///< '-'
    bool plus = false;       ///< '+'
    bool blank = false;      ///< ' '
    bool alternate = false;  ///< '#'
    bool zeros = false;      ///< '0'
    int width = 0;
    int precision = -1;         ///< -1 when absent
    int integer_size = 4;       ///< bytes of an integer argument
    bool narrow_asked = false;  ///< h before a text letter
    bool wide_asked = false;    ///< l or w before a text letter
    char letter = 0;
};

/// A number in three pieces, so that zeros can be filled in between.
struct NumberText {
    std::string sign;              ///< "-", "+", " " or a base prefix
    std::string digits;            ///< the digits, with point and exponent
    long long trailing_zeros = 0;  ///< zeros to add inside `digits` at `zeros_at`
    size_t zeros_at = 0;
    bool finite = true;  ///< false for inf and nan, which zeros must not fill
};

NumberText integer_text(const FormatField& field, long long value);
NumberText real_text(const FormatField& field, double value);

}  // namespace kmfc
