// Formatting in the manner of printf with the platform's meaning of its letters, the same on every system.
//
// In a wide format %s and %c take wide text and %S and %C narrow text; in a narrow one it is the other way
// round. h and l (or w) before the letter fix the width. I64, ll, I, z, t and j size integers; l means 32
// bits. Numbers are those of the C locale. A letter that has no meaning is copied as it stands and takes no
// argument; a missing argument reads as zero, a text argument that is null or no text at all as "(null)"; %n
// writes nothing.
#pragma once

#include <cstdarg>
#include <span>
#include <string>
#include <type_traits>

#include "kmfc/diagnostics.h"

namespace kmfc {

/// One argument of a format, with what is known of its type.
struct FormatArgument {
    enum class Kind { none, integer, real, narrow_text, wide_text, pointer };

    FormatArgument() = default;

    template <class T>
    static FormatArgument from(const T& value) {
        FormatArgument argument;
        if constexpr (std::is_enum_v<T>) {
            return from(static_cast<std::underlying_type_t<T>>(value));
        } else if constexpr (std::is_floating_point_v<T>) {
            argument.kind = Kind::real;
            argument.real = static_cast<double>(value);
        } else if constexpr (std::is_integral_v<T>) {
            argument.kind = Kind::integer;
            argument.integer = static_cast<long long>(value);
        } else if constexpr (std::is_convertible_v<T, const wchar_t*> && !std::is_null_pointer_v<T>) {
            argument.kind = Kind::wide_text;
            argument.address = static_cast<const wchar_t*>(value);
        } else if constexpr (std::is_convertible_v<T, const char*> && !std::is_null_pointer_v<T>) {
            argument.kind = Kind::narrow_text;
            argument.address = static_cast<const char*>(value);
        } else {
            argument.kind = Kind::pointer;
            argument.address = address_of(value);
        }
        return argument;
    }

    Kind kind = Kind::none;
    long long integer = 0;
    double real = 0;
    const void* address = nullptr;

private:
    static const void* address_of(std::nullptr_t) { return nullptr; }
    static const void* address_of(const volatile void* address) { return const_cast<const void*>(address); }
    template <class R, class... A>
    static const void* address_of(R (*function)(A...)) {
        return reinterpret_cast<const void*>(function);
    }
};

/// Formats with arguments whose types are known. Safe with any format text.
template <class Ch>
KMFC_API std::basic_string<Ch> format_text(const Ch* format, std::span<const FormatArgument> arguments);

/// Formats with a C argument list, which must hold what the format asks for.
template <class Ch>
KMFC_API std::basic_string<Ch> format_text(const Ch* format, va_list arguments);

}  // namespace kmfc
