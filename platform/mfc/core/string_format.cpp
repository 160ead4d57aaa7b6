#include "kmfc/string_format.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "format_number.h"
#include "kmfc/exceptions.h"
#include "kmfc/text_conversion.h"

namespace kmfc {
namespace {

// More than any caller prints, and small enough that the length of a string object still holds it.
constexpr size_t kMostCharacters = INT_MAX / 4;

/// What a conversion letter asks for; decides how a C argument list is read.
enum class Wanted { integer32, integer64, real, narrow_text, wide_text, pointer };

class ListSource {
public:
    explicit ListSource(std::span<const FormatArgument> arguments) : m_arguments(arguments) {}
    FormatArgument next(Wanted) {
        return m_next < m_arguments.size() ? m_arguments[m_next++] : FormatArgument();
    }

private:
    std::span<const FormatArgument> m_arguments;
    size_t m_next = 0;
};

class VariadicSource {
public:
    explicit VariadicSource(va_list arguments) { va_copy(m_arguments, arguments); }
    ~VariadicSource() { va_end(m_arguments); }
    VariadicSource(const VariadicSource&) = delete;
    VariadicSource& operator=(const VariadicSource&) = delete;

    FormatArgument next(Wanted wanted) {
        switch (wanted) {
            case Wanted::integer32: return FormatArgument::from(va_arg(m_arguments, int));
            case Wanted::integer64: return FormatArgument::from(va_arg(m_arguments, long long));
            case Wanted::real: return FormatArgument::from(va_arg(m_arguments, double));
            case Wanted::narrow_text: return FormatArgument::from(va_arg(m_arguments, const char*));
            case Wanted::wide_text: return FormatArgument::from(va_arg(m_arguments, const wchar_t*));
            case Wanted::pointer: break;
        }
        return FormatArgument::from(va_arg(m_arguments, const void*));
    }

private:
    va_list m_arguments;
};

/// Text of either width up to its zero, or up to `most` characters when that is not negative.
template <class Ch>
std::basic_string_view<Ch> bounded(const void* address, int most) {
    const auto* text = static_cast<const Ch*>(address);
    size_t length = 0;
    while ((most < 0 || length < static_cast<size_t>(most)) && text[length] != Ch()) ++length;
    return {text, length};
}

std::wstring as_width(std::string_view text, wchar_t) { return widen(text); }
std::string as_width(std::wstring_view text, char) { return narrow(text); }
std::wstring as_width(std::wstring_view text, wchar_t) { return std::wstring(text); }
std::string as_width(std::string_view text, char) { return std::string(text); }

template <class Ch, class Source>
class Formatter {
public:
    Formatter(const Ch* format, Source& source) : m_at(format), m_source(source) {}

    std::basic_string<Ch> run() {
        while (*m_at) {
            const Ch* start = m_at;
            while (*m_at && *m_at != Ch('%')) ++m_at;
            m_out.append(start, m_at);
            if (*m_at) conversion();
        }
        return std::move(m_out);
    }

private:
    /// One % with its letter. A malformed one is copied as it stands.
    void conversion() {
        const Ch* start = m_at++;
        FormatField field;
        flags(field);
        field.width = std::max(number_or_star(field, true), 0);
        if (*m_at == Ch('.')) {
            ++m_at;
            field.precision = number_or_star(field, false);
        }
        size_prefix(field);
        field.letter = *m_at > 0 && *m_at < 0x7F ? static_cast<char>(*m_at) : '\0';
        if (*m_at) ++m_at;
        if (!write(field)) m_out.append(start, m_at);
    }

    void flags(FormatField& field) {
        for (;; ++m_at) {
            switch (*m_at) {
                case '-': field.left = true; break;
                case '+': field.plus = true; break;
                case ' ': field.blank = true; break;
                case '#': field.alternate = true; break;
                case '0': field.zeros = true; break;
                default: return;
            }
        }
    }

    /// A number or '*'. A negative width from an argument means left, a negative precision none at all.
    int number_or_star(FormatField& field, bool is_width) {
        if (*m_at == Ch('*')) {
            ++m_at;
            const long long value = static_cast<int>(m_source.next(Wanted::integer32).integer);
            if (value >= 0) return static_cast<int>(value);
            if (!is_width) return -1;
            field.left = true;
            return static_cast<int>(std::min<long long>(-value, INT_MAX));
        }
        long long value = 0;
        for (; *m_at >= Ch('0') && *m_at <= Ch('9'); ++m_at) {
            value = std::min<long long>(value * 10 + (*m_at - Ch('0')), INT_MAX);
        }
        return static_cast<int>(value);
    }

    bool skip(Ch first, Ch second) {
        if (m_at[0] != first || m_at[1] != second) return false;
        m_at += 2;
        return true;
    }

    void size_prefix(FormatField& field) {
        if (skip('h', 'h')) {
            field.integer_size = 1;
        } else if (skip('l', 'l')) {
            field.integer_size = 8;
        } else if (*m_at == Ch('h')) {
            field.integer_size = 2;
            field.narrow_asked = true;
            ++m_at;
        } else if (*m_at == Ch('l') || *m_at == Ch('w')) {
            field.wide_asked = true;
            ++m_at;
        } else if (*m_at == Ch('I')) {
            ++m_at;
            if (skip('6', '4')) {
                field.integer_size = 8;
            } else if (!skip('3', '2')) {
                field.integer_size = sizeof(void*);
            }
        } else if (*m_at == Ch('z') || *m_at == Ch('t') || *m_at == Ch('j')) {
            field.integer_size = 8;
            ++m_at;
        } else if (*m_at == Ch('L')) {
            ++m_at;
        }
    }

    bool write(const FormatField& field) {
        switch (field.letter) {
            case '%': m_out.push_back(Ch('%')); return true;
            case 'd':
            case 'i':
            case 'u':
            case 'o':
            case 'x':
            case 'X': write_integer(field); return true;
            case 'e':
            case 'E':
            case 'f':
            case 'F':
            case 'g':
            case 'G':
            case 'a':
            case 'A': write_number(field, real_text(field, real_argument())); return true;
            case 'c':
            case 'C': write_character(field); return true;
            case 's':
            case 'S': write_text(field); return true;
            case 'p': write_pointer(field); return true;
            case 'n': m_source.next(Wanted::pointer); return true;
            default: return false;
        }
    }

    /// Whether a text letter means wide text in this format.
    bool means_wide(const FormatField& field) const {
        if (field.narrow_asked) return false;
        if (field.wide_asked) return true;
        const bool plain = field.letter == 's' || field.letter == 'c';
        return plain == (sizeof(Ch) > 1);
    }

    double real_argument() {
        const FormatArgument argument = m_source.next(Wanted::real);
        return argument.kind == FormatArgument::Kind::integer ? static_cast<double>(argument.integer)
                                                              : argument.real;
    }

    void write_integer(const FormatField& field) {
        const FormatArgument argument =
            m_source.next(field.integer_size == 8 ? Wanted::integer64 : Wanted::integer32);
        const long long address = static_cast<long long>(reinterpret_cast<std::intptr_t>(argument.address));
        const bool is_address = argument.kind != FormatArgument::Kind::integer && argument.address;
        write_number(field, integer_text(field, is_address ? address : argument.integer));
    }

    void write_pointer(const FormatField& field) {
        const FormatArgument argument = m_source.next(Wanted::pointer);
        const auto address = static_cast<long long>(reinterpret_cast<std::intptr_t>(argument.address));
        FormatField hex = field;
        hex.letter = 'X';
        hex.alternate = false;
        hex.integer_size = 8;
        hex.precision = 2 * static_cast<int>(sizeof(void*));
        write_number(hex, integer_text(hex, argument.kind == FormatArgument::Kind::integer ? argument.integer
                                                                                           : address));
    }

    void write_character(const FormatField& field) {
        const bool wide = means_wide(field);
        const long long code = m_source.next(Wanted::integer32).integer;
        if (wide) {
            const auto ch = static_cast<wchar_t>(code);
            pad(as_width(std::wstring_view(&ch, 1), Ch()), field);
        } else {
            const auto ch = static_cast<char>(code);
            pad(as_width(std::string_view(&ch, 1), Ch()), field);
        }
    }

    /// The type that was passed wins over what the letter claims, so that a mismatch can't read past the end.
    void write_text(const FormatField& field) {
        using Kind = FormatArgument::Kind;
        const bool asked_wide = means_wide(field);
        const FormatArgument argument = m_source.next(asked_wide ? Wanted::wide_text : Wanted::narrow_text);
        const bool wide = argument.kind == Kind::wide_text || (argument.kind == Kind::pointer && asked_wide);
        if (!argument.address) {
            const std::string_view null_text = "(null)";
            pad(as_width(null_text.substr(0, field.precision < 0 ? null_text.size()
                                                                 : static_cast<size_t>(field.precision)),
                         Ch()),
                field);
        } else if (wide) {
            pad(as_width(bounded<wchar_t>(argument.address, field.precision), Ch()), field);
        } else {
            pad(as_width(bounded<char>(argument.address, field.precision), Ch()), field);
        }
    }

    void fill(Ch ch, long long count) {
        if (count <= 0) return;
        if (static_cast<size_t>(count) > kMostCharacters - std::min(kMostCharacters, m_out.size())) {
            AfxThrowMemoryException();
        }
        m_out.append(static_cast<size_t>(count), ch);
    }

    void pad(const std::basic_string<Ch>& text, const FormatField& field) {
        const long long missing = field.width - static_cast<long long>(text.size());
        if (!field.left) fill(field.zeros ? Ch('0') : Ch(' '), missing);
        m_out += text;
        if (field.left) fill(Ch(' '), missing);
    }

    void ascii(std::string_view text) { m_out.append(text.begin(), text.end()); }

    void write_number(const FormatField& field, const NumberText& number) {
        const long long size =
            static_cast<long long>(number.sign.size() + number.digits.size()) + number.trailing_zeros;
        const bool is_integer = std::string_view("diuoxX").find(field.letter) != std::string_view::npos;
        const bool zeros =
            field.zeros && !field.left && number.finite && !(is_integer && field.precision >= 0);
        const long long missing = field.width - size;
        if (!field.left && !zeros) fill(Ch(' '), missing);
        ascii(number.sign);
        if (zeros) fill(Ch('0'), missing);
        ascii(std::string_view(number.digits).substr(0, number.zeros_at));
        fill(Ch('0'), number.trailing_zeros);
        ascii(std::string_view(number.digits).substr(number.zeros_at));
        if (field.left) fill(Ch(' '), missing);
    }

    const Ch* m_at;
    Source& m_source;
    std::basic_string<Ch> m_out;
};

}  // namespace

template <class Ch>
std::basic_string<Ch> format_text(const Ch* format, std::span<const FormatArgument> arguments) {
    ListSource source(arguments);
    return Formatter<Ch, ListSource>(format, source).run();
}

template <class Ch>
std::basic_string<Ch> format_text(const Ch* format, va_list arguments) {
    VariadicSource source(arguments);
    return Formatter<Ch, VariadicSource>(format, source).run();
}

template KMFC_API std::wstring format_text(const wchar_t*, std::span<const FormatArgument>);
template KMFC_API std::string format_text(const char*, std::span<const FormatArgument>);
template KMFC_API std::wstring format_text(const wchar_t*, va_list);
template KMFC_API std::string format_text(const char*, va_list);

}  // namespace kmfc
