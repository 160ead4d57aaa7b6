// What the parsers and formatters share: plain texts on the stack, and decimal numbers without locale or
// heap.
#pragma once

#include <cstddef>
#include <string_view>

#include "ktdb.h"

/// ASCII text of limited length on the stack. Appending past the end is noted and does no harm.
class StackText {
public:
    void add(char c) {
        if (m_length + 1 < sizeof m_text)
            m_text[m_length++] = c;
        else
            m_overflow = true;
    }
    void add(std::string_view text) {
        for (const char c : text) add(c);
    }
    /// Appends a whole number of 0 or more.
    void addWhole(long long value);
    /// Appends `value` with exactly `places` decimals; false if it doesn't fit.
    bool addFixed(double value, int places);
    /// Appends `value` with one digit before the point, `places` behind it, and an exponent of two digits or
    /// more.
    bool addScientific(double value, int places);
    std::string_view view() const { return {m_text, m_length}; }
    void clear() { m_length = 0; }
    /// Writes the text with a terminator into a formatter's buffer; kKtdbOk, or kKtdbRange with an empty
    /// buffer.
    int give(wchar_t* buffer) const;

private:
    char m_text[kKtdbBufferSize];
    std::size_t m_length = 0;
    bool m_overflow = false;
};

/// Reads ASCII-like characters of a wide text from left to right.
class WideCursor {
public:
    /// Starts behind leading blanks and ends before trailing ones.
    explicit WideCursor(const wchar_t* text);
    bool atEnd() const { return m_rest.empty(); }
    wchar_t peek() const { return m_rest.empty() ? L'\0' : m_rest.front(); }
    /// Takes the next character if it is `c`, or one of its two cases for a letter.
    bool take(wchar_t c);
    void skipBlanks();
    bool peekDigit() const { return isDigit(peek()); }
    /// Takes a run of digits.
    std::wstring_view takeDigits();
    /// Takes a number: digits with an optional point and, if `exponent`, an optional exponent. Empty if none
    /// is here.
    std::wstring_view takeNumber(bool exponent = true);
    static bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
    /// Whether a number that was taken has neither a point nor an exponent.
    static bool isWhole(std::wstring_view number) {
        return number.find_first_not_of(L"0123456789") == std::wstring_view::npos;
    }
    /// Goes back to an earlier state.
    std::wstring_view rest() const { return m_rest; }
    void restore(std::wstring_view rest) { m_rest = rest; }

private:
    std::wstring_view m_rest;
};

/// The value of a number that WideCursor took: the nearest one, or the one next above it if only that is
/// written as the number stands, which happens below DBL_MIN. False if it is too large for a double or too
/// long to be a number.
bool ktdbNumberValue(std::wstring_view number, double& value);

/// The settings of the working drawing, or the defaults without one.
struct KtdbUnits {
    int lunits, luprec, aunits, auprec, unitmode, angdir;
    double angbase;
};
KtdbUnits ktdbCurrentUnits();

/// A mode or precision as given, or the drawing's for -1; -1 if it isn't within `low` to `high`.
int ktdbSetting(int given, int current, int low, int high);
