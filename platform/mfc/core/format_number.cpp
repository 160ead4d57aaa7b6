#include "format_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace kmfc {
namespace {

// Beyond this many decimals a double has nothing but zeros (2^-1074 needs 1074).
constexpr int kMostDecimals = 1100;
constexpr int kDefaultPrecision = 6;
constexpr int kHexPrecision = 13;  // decimals of the full 52-bit fraction

std::string sign_of(const FormatField& field, bool negative) {
    return negative ? "-" : field.plus ? "+" : field.blank ? " " : "";
}

unsigned long long low_bytes(long long value, int size) {
    const auto bits = static_cast<unsigned long long>(value);
    return size >= 8 ? bits : bits & ((1ULL << (8 * size)) - 1);
}

long long sign_extended(long long value, int size) {
    switch (size) {
        case 1: return static_cast<signed char>(value);
        case 2: return static_cast<short>(value);
        case 4: return static_cast<int>(value);
        default: return value;
    }
}

std::string digits_of(unsigned long long value, int base) {
    char buffer[24];
    return std::string(buffer, std::to_chars(buffer, buffer + sizeof buffer, value, base).ptr);
}

void to_upper(std::string& text) {
    for (char& ch : text) {
        if (ch >= 'a' && ch <= 'z') ch = static_cast<char>(ch - 'a' + 'A');
    }
}

std::string printed(double value, std::chars_format style, int precision) {
    std::string buffer(static_cast<size_t>(precision) + 400, '\0');
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, style, precision).ptr;
    buffer.resize(static_cast<size_t>(end - buffer.data()));
    return buffer;
}

/// The decimal exponent of the number when printed with `precision` decimals in scientific style.
int exponent_of(double value, int precision) {
    const std::string text = printed(value, std::chars_format::scientific, precision);
    return std::atoi(text.c_str() + text.find('e') + 1);
}

/// %g with '#': the shorter of the two styles by the usual rule, trailing zeros kept.
std::string general_with_zeros(double value, int precision) {
    const int significant = std::max(precision, 1);
    const int exponent = value == 0 ? 0 : exponent_of(value, significant - 1);
    if (exponent < -4 || exponent >= significant) {
        return printed(value, std::chars_format::scientific, significant - 1);
    }
    return printed(value, std::chars_format::fixed, significant - 1 - exponent);
}

/// Puts the point in that '#' asks for, before the exponent if there is one.
void force_point(std::string& digits, char exponent_letter) {
    if (digits.find('.') != std::string::npos) return;
    digits.insert(std::min(digits.find(exponent_letter), digits.size()), 1, '.');
}

}  // namespace

NumberText integer_text(const FormatField& field, long long value) {
    NumberText text;
    const bool is_signed = field.letter == 'd' || field.letter == 'i';
    const long long extended = sign_extended(value, field.integer_size);
    const bool negative = is_signed && extended < 0;
    const unsigned long long bits = negative    ? 0 - static_cast<unsigned long long>(extended)
                                    : is_signed ? static_cast<unsigned long long>(extended)
                                                : low_bytes(value, field.integer_size);
    const bool hex = field.letter == 'x' || field.letter == 'X';
    if (is_signed) text.sign = sign_of(field, negative);
    if (bits != 0 || field.precision != 0)
        text.digits = digits_of(bits, hex ? 16 : field.letter == 'o' ? 8 : 10);
    if (field.precision > static_cast<int>(text.digits.size())) {
        text.trailing_zeros = field.precision - static_cast<long long>(text.digits.size());
    }
    if (field.alternate && hex && bits != 0) text.sign = "0x";
    if (field.alternate && field.letter == 'o' && text.trailing_zeros == 0 &&
        (text.digits.empty() || text.digits[0] != '0')) {
        text.digits = std::string(1, '0').append(text.digits);
    }
    if (field.letter == 'X') {
        to_upper(text.sign);
        to_upper(text.digits);
    }
    return text;
}

NumberText real_text(const FormatField& field, double value) {
    NumberText text;
    const char letter = static_cast<char>(field.letter | 0x20);
    const bool upper = letter != field.letter;
    text.sign = sign_of(field, std::signbit(value));
    const double magnitude = std::fabs(value);
    text.finite = std::isfinite(value);
    const int asked = field.precision >= 0 ? field.precision
                      : letter == 'a'      ? kHexPrecision
                                           : kDefaultPrecision;
    const int precision = std::min(asked, kMostDecimals);
    if (!text.finite) {
        text.digits = std::isnan(value) ? "nan" : "inf";
    } else if (letter == 'g') {
        text.digits = field.alternate ? general_with_zeros(magnitude, precision)
                                      : printed(magnitude, std::chars_format::general, precision);
    } else {
        text.digits = letter == 'f'   ? printed(magnitude, std::chars_format::fixed, precision)
                      : letter == 'e' ? printed(magnitude, std::chars_format::scientific, precision)
                                      : printed(magnitude, std::chars_format::hex, precision);
        if (letter == 'a') text.sign += "0x";
        text.trailing_zeros = asked - precision;
    }
    if (text.finite && field.alternate) force_point(text.digits, letter == 'a' ? 'p' : 'e');
    text.zeros_at = letter == 'f' || letter == 'g'
                        ? text.digits.size()
                        : std::min(text.digits.find(letter == 'a' ? 'p' : 'e'), text.digits.size());
    if (upper) {
        to_upper(text.sign);
        to_upper(text.digits);
    }
    return text;
}

}  // namespace kmfc
