#include "number_text.h"

#include <charconv>
#include <cfloat>
#include <cmath>

#include <od_db_database.h>
#include <od_host_services.h>

namespace {

bool isBlank(wchar_t c) { return c == L' ' || c == L'\t'; }

/// Whether a number that no double holds is too large, and not merely too close to zero: by the place of its
/// first digit that counts.
bool isTooLarge(std::string_view number) {
    long place = 0;
    bool point = false;
    bool counting = false;
    std::size_t i = 0;
    for (; i < number.size() && number[i] != 'e' && number[i] != 'E'; ++i) {
        if (number[i] == '.') {
            point = true;
        } else {
            counting = counting || number[i] != '0';
            if (!point && counting) ++place;
            if (point && !counting) --place;
        }
    }
    if (!counting) return false;
    constexpr long kBeyondAnyDouble = 100000;
    long exponent = 0;
    const bool negative = i + 1 < number.size() && number[i + 1] == '-';
    for (++i; i < number.size(); ++i)
        if (number[i] >= '0' && number[i] <= '9' && exponent < kBeyondAnyDouble)
            exponent = exponent * 10 + (number[i] - '0');
    return place + (negative ? -exponent : exponent) > 0;
}

/// Whether `value` in scientific form, with as many places as `number` has, is written exactly as `number`.
bool isWrittenAs(double value, std::string_view number) {
    const std::size_t exponent = number.find('E');
    if (exponent == std::string_view::npos) return false;
    const std::size_t point = number.find('.');
    const std::size_t places = point < exponent ? exponent - point - 1 : 0;
    StackText text;
    return places < kKtdbBufferSize && text.addScientific(value, static_cast<int>(places)) &&
           text.view() == number;
}

/// Among the smallest numbers the steps are so wide that the number nearest to 1.0E-322 lies below it and is
/// written 9.9E-323. The next one up is then the one that 1.0E-322 was written for.
double settleSmallest(double nearest, std::string_view number) {
    if (nearest >= DBL_MIN || isWrittenAs(nearest, number)) return nearest;
    const double above = std::nextafter(nearest, 1.0);
    return isWrittenAs(above, number) ? above : nearest;
}

}  // namespace

void StackText::addWhole(long long value) {
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, value);
    add(std::string_view(digits, static_cast<std::size_t>(result.ptr - digits)));
}

bool StackText::addFixed(double value, int places) {
    const auto result =
        std::to_chars(m_text + m_length, m_text + sizeof m_text - 1, value, std::chars_format::fixed, places);
    if (result.ec != std::errc()) return false;
    m_length = static_cast<std::size_t>(result.ptr - m_text);
    return true;
}

bool StackText::addScientific(double value, int places) {
    const std::size_t begin = m_length;
    const auto result = std::to_chars(m_text + m_length, m_text + sizeof m_text - 1, value,
                                      std::chars_format::scientific, places);
    if (result.ec != std::errc()) return false;
    m_length = static_cast<std::size_t>(result.ptr - m_text);
    for (std::size_t i = begin; i < m_length; ++i)
        if (m_text[i] == 'e') m_text[i] = 'E';
    return true;
}

int StackText::give(wchar_t* buffer) const {
    if (m_overflow) {
        buffer[0] = L'\0';
        return kKtdbRange;
    }
    for (std::size_t i = 0; i < m_length; ++i) buffer[i] = static_cast<wchar_t>(m_text[i]);
    buffer[m_length] = L'\0';
    return kKtdbOk;
}

WideCursor::WideCursor(const wchar_t* text) : m_rest(text) {
    skipBlanks();
    while (!m_rest.empty() && isBlank(m_rest.back())) m_rest.remove_suffix(1);
}

bool WideCursor::take(wchar_t c) {
    if (m_rest.empty() || odFoldCase(m_rest.front()) != odFoldCase(c)) return false;
    m_rest.remove_prefix(1);
    return true;
}

void WideCursor::skipBlanks() {
    while (!m_rest.empty() && isBlank(m_rest.front())) m_rest.remove_prefix(1);
}

std::wstring_view WideCursor::takeDigits() {
    std::size_t count = 0;
    while (count < m_rest.size() && isDigit(m_rest[count])) ++count;
    const std::wstring_view digits = m_rest.substr(0, count);
    m_rest.remove_prefix(count);
    return digits;
}

std::wstring_view WideCursor::takeNumber(bool exponent) {
    const std::wstring_view whole = m_rest;
    std::size_t digits = takeDigits().size();
    if (take(L'.')) digits += takeDigits().size();
    if (digits == 0) {
        m_rest = whole;
        return {};
    }
    if (const std::wstring_view before = m_rest; exponent && take(L'e')) {
        if (!take(L'+')) take(L'-');
        if (takeDigits().empty()) m_rest = before;
    }
    return whole.substr(0, whole.size() - m_rest.size());
}

bool ktdbNumberValue(std::wstring_view number, double& value) {
    char text[kKtdbBufferSize];
    if (number.empty() || number.size() > sizeof text) return false;
    for (std::size_t i = 0; i < number.size(); ++i)
        text[i] = number[i] == L'e' ? 'E' : static_cast<char>(number[i]);
    const char* end = text + number.size();
    const auto result = std::from_chars(text, end, value);
    if (result.ec == std::errc::result_out_of_range) {
        if (isTooLarge(std::string_view(text, number.size()))) return false;
        value = 0;
        return true;
    }
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value)) return false;
    value = settleSmallest(value, std::string_view(text, number.size()));
    return true;
}

KtdbUnits ktdbCurrentUnits() {
    const OdDbHostAppServices* services = oddbHostApplicationServices();
    const OdDbDatabase* drawing = services ? services->workingDatabase() : nullptr;
    if (!drawing) return {2, 4, 0, 0, 0, 0, 0.0};
    const OdDbUnitSettings& units = drawing->units();
    return {units.lunits,   units.luprec, units.aunits, units.auprec,
            units.unitmode, units.angdir, units.angbase};
}

int ktdbSetting(int given, int current, int low, int high) {
    if (given == -1) return current;
    return given >= low && given <= high ? given : -1;
}
