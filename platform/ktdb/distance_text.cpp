// Distances as text and back.
//
// Why a text that was written comes back as itself: the decimal forms are rounded from the exact value, and
// reading them gives the nearest number, which rounds to the same digits. For the forms in feet, feet and
// inches are put together digit by digit before anything is rounded, and fractions of a power of two are
// exact.

#include <cmath>
#include <cstring>

#include "number_text.h"

namespace {

enum { kScientific = 1, kDecimal, kEngineering, kArchitectural, kFractional };

constexpr int kInchesPerFoot = 12;

bool usesFeet(int mode) { return mode == kEngineering || mode == kArchitectural; }

/// Digits of a whole number on the stack.
struct Digits {
    char text[kKtdbBufferSize];
    std::size_t length = 0;
    std::string_view view() const { return {text, length}; }
};

/// Divides a whole number in digits by 12; the answer is the remainder.
int divideByTwelve(std::string_view number, Digits& quotient) {
    int remainder = 0;
    quotient.length = 0;
    for (const char c : number) {
        const int part = remainder * 10 + (c - '0');
        const int digit = part / kInchesPerFoot;
        remainder = part % kInchesPerFoot;
        if (digit || quotient.length) quotient.text[quotient.length++] = static_cast<char>('0' + digit);
    }
    return remainder;
}

/// Multiplies digits by 12 and adds `more`; false if that gets too long.
bool timesTwelvePlus(std::wstring_view number, int more, Digits& product) {
    if (number.size() + 3 > sizeof product.text) return false;
    char reversed[kKtdbBufferSize];
    std::size_t count = 0;
    int carry = more;
    for (std::size_t i = number.size(); i-- > 0;) {
        const int part = (number[i] - L'0') * kInchesPerFoot + carry;
        reversed[count++] = static_cast<char>('0' + part % 10);
        carry = part / 10;
    }
    for (; carry; carry /= 10) reversed[count++] = static_cast<char>('0' + carry % 10);
    if (!count) reversed[count++] = '0';
    for (std::size_t i = 0; i < count; ++i) product.text[i] = reversed[count - 1 - i];
    product.length = count;
    return true;
}

bool isZeroText(std::string_view text) {
    for (const char c : text)
        if (c >= '1' && c <= '9')
            return false;
        else if (c == 'E')
            break;
    return true;
}

// ---- writing ----

/// Feet and inches: `whole` inches in digits, and what follows them.
void addFeet(StackText& out, std::string_view whole, std::string_view behind, bool blank, bool inputForm) {
    Digits feet;
    const int inches = divideByTwelve(whole, feet);
    if (feet.length) {
        out.add(feet.view());
        out.add('\'');
        if (!inputForm) out.add('-');
    }
    const bool fractionAlone = blank && inches == 0 && !feet.length;
    if (!fractionAlone) {
        out.addWhole(inches);
        if (blank) out.add(inputForm ? '-' : ' ');
    }
    out.add(behind);
    out.add('"');
}

void addFraction(StackText& out, long long numerator, long long denominator) {
    while (numerator % 2 == 0) {
        numerator /= 2;
        denominator /= 2;
    }
    out.addWhole(numerator);
    out.add('/');
    out.addWhole(denominator);
}

/// Modes 4 and 5: whole inches or units and a fraction of a power of two.
void addInFractions(StackText& out, double size, int mode, int precision, bool inputForm) {
    const double denominator = static_cast<double>(1 << precision);
    // From here on a double has no fraction left; below, the product is exact.
    constexpr double kNoFraction = 4503599627370496.0;
    const double parts = size < kNoFraction ? std::round(size * denominator) : size;
    const double whole = size < kNoFraction ? std::floor(parts / denominator) : size;
    const auto numerator = static_cast<long long>(size < kNoFraction ? parts - whole * denominator : 0);
    StackText units, fraction;
    units.addFixed(whole, 0);
    if (numerator) addFraction(fraction, numerator, 1LL << precision);
    if (mode == kArchitectural) {
        addFeet(out, units.view(), fraction.view(), numerator != 0, inputForm);
        return;
    }
    if (whole != 0 || !numerator) out.add(units.view());
    if (whole != 0 && numerator) out.add(inputForm ? '-' : ' ');
    out.add(fraction.view());
}

bool addSize(StackText& out, double size, int mode, int precision, bool inputForm) {
    switch (mode) {
        case kScientific: {
            if (!out.addScientific(size, precision)) return false;
            double back = 0;
            StackText shorter;
            // The greatest numbers would round up beyond any double; they are cut off instead.
            wchar_t wide[kKtdbBufferSize];
            out.give(wide);
            if (!ktdbNumberValue(wide, back)) {
                double scale = 1e308;
                for (int i = 0; i < precision; ++i) scale /= 10;
                shorter.addScientific(std::floor(size / scale) * scale, precision);
                out = shorter;
            }
            return true;
        }
        case kDecimal: return out.addFixed(size, precision);
        case kEngineering: {
            StackText inches;
            if (!inches.addFixed(size, precision)) return false;
            const std::string_view text = inches.view();
            const std::size_t point = std::min(text.find('.'), text.size());
            addFeet(out, text.substr(0, point), text.substr(point), false, inputForm);
            return true;
        }
        default: addInFractions(out, size, mode, precision, inputForm); return true;
    }
}

// ---- reading ----

/// Reads `num/den` of digits.
bool takeFraction(WideCursor& in, double& value) {
    const std::wstring_view before = in.rest();
    const std::wstring_view numerator = in.takeDigits();
    double n = 0, d = 0;
    if (!numerator.empty() && in.take(L'/')) {
        const std::wstring_view denominator = in.takeDigits();
        if (ktdbNumberValue(numerator, n) && ktdbNumberValue(denominator, d) && d != 0) {
            value = n / d;
            return true;
        }
    }
    in.restore(before);
    return false;
}

/// A number, a fraction, or both: the number's text and the fraction's value.
struct Mixed {
    std::wstring_view number;
    double fraction = 0;
    bool hasFraction = false;
};

bool takeMixed(WideCursor& in, Mixed& mixed) {
    if (takeFraction(in, mixed.fraction)) {
        mixed.hasFraction = true;
        return true;
    }
    mixed.number = in.takeNumber();
    if (mixed.number.empty()) return false;
    if (!WideCursor::isWhole(mixed.number)) return true;
    const std::wstring_view before = in.rest();
    if (!in.take(L'-')) {
        in.skipBlanks();
        if (in.rest().size() == before.size()) return true;
    }
    if (in.peekDigit() && takeFraction(in, mixed.fraction))
        mixed.hasFraction = true;
    else
        in.restore(before);
    return true;
}

bool mixedValue(const Mixed& mixed, double& value) {
    value = 0;
    if (!mixed.number.empty() && !ktdbNumberValue(mixed.number, value)) return false;
    value += mixed.fraction;
    return true;
}

/// Feet and inches in one number of inches. Whole feet with at most two digits of inches are put together as
/// digits.
bool feetValue(std::wstring_view feet, const Mixed& inches, double& value) {
    const std::size_t point = std::min(inches.number.find(L'.'), inches.number.size());
    const bool plain = WideCursor::isWhole(feet) && point <= 2 &&
                       inches.number.find_first_of(L"eE") == std::wstring_view::npos;
    if (!plain) {
        double f = 0, i = 0;
        if (!ktdbNumberValue(feet, f) || !mixedValue(inches, i)) return false;
        value = f * kInchesPerFoot + i;
        return std::isfinite(value);
    }
    int whole = 0;
    for (std::size_t i = 0; i < point; ++i) whole = whole * 10 + (inches.number[i] - L'0');
    Digits digits;
    if (!timesTwelvePlus(feet, whole, digits)) return false;
    const std::wstring_view behind = inches.number.substr(point);
    wchar_t number[kKtdbBufferSize];
    if (digits.length + behind.size() > kKtdbBufferSize) return false;
    for (std::size_t i = 0; i < digits.length; ++i) number[i] = static_cast<wchar_t>(digits.text[i]);
    for (std::size_t i = 0; i < behind.size(); ++i) number[digits.length + i] = behind[i];
    if (!ktdbNumberValue(std::wstring_view(number, digits.length + behind.size()), value)) return false;
    value += inches.fraction;
    return true;
}

/// Inches behind a foot mark, or nothing.
bool takeInchesBehindFeet(WideCursor& in, Mixed& inches, bool& present) {
    present = false;
    if (in.atEnd()) return true;
    if (!in.take(L'-')) in.skipBlanks();
    present = true;
    return takeMixed(in, inches);
}

bool takeSize(WideCursor& in, bool feetAllowed, double& value) {
    const std::wstring_view start = in.rest();
    const std::wstring_view feet = feetAllowed ? in.takeNumber() : std::wstring_view();
    Mixed mixed;
    if (!feet.empty() && in.take(L'\'')) {
        bool inches = false;
        if (!takeInchesBehindFeet(in, mixed, inches)) return false;
        if (inches) in.take(L'"');
        return feetValue(feet, mixed, value);
    }
    in.restore(start);
    if (!takeMixed(in, mixed)) return false;
    if (feetAllowed) in.take(L'"');
    return mixedValue(mixed, value);
}

}  // namespace

int ktdbDisToF(const wchar_t* text, int unitMode, double* value) {
    const int mode =
        unitMode == -1 ? ktdbCurrentUnits().lunits : ktdbSetting(unitMode, 0, kScientific, kFractional);
    if (!text || !value || mode < 0) return kKtdbInvalid;
    WideCursor in(text);
    const bool negative = in.take(L'-');
    if (!negative) in.take(L'+');
    double size = 0;
    if (!takeSize(in, usesFeet(mode), size) || !in.atEnd()) return kKtdbInvalid;
    *value = negative ? -size : size;
    return kKtdbOk;
}

int ktdbRToS(double value, int unitMode, int precision, wchar_t* buffer) {
    if (!buffer) return kKtdbInvalid;
    buffer[0] = L'\0';
    const KtdbUnits units = unitMode == -1 || precision == -1 ? ktdbCurrentUnits() : KtdbUnits{};
    const int mode = ktdbSetting(unitMode, units.lunits, kScientific, kFractional);
    const int places = ktdbSetting(precision, units.luprec, 0, 8);
    if (mode < 0 || places < 0) return kKtdbInvalid;
    if (!std::isfinite(value)) return kKtdbRange;
    StackText size;
    const bool inputForm = unitMode == -1 && units.unitmode == 1;
    if (!addSize(size, std::fabs(value), mode, places, inputForm)) return kKtdbRange;
    StackText out;
    if (value < 0 && !isZeroText(size.view())) out.add('-');
    out.add(size.view());
    return out.give(buffer);
}
