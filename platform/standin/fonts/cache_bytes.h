// Numbers and texts of the font cache as bytes. Numbers stand with the low byte first.
#pragma once

#include <od_string.h>

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

/// Collects bytes.
class CacheWriter {
public:
    template <std::unsigned_integral Number>
    void number(Number value) {
        for (std::size_t i = 0; i < sizeof value; ++i)
            m_bytes += static_cast<char>(static_cast<std::uint64_t>(value) >> (8 * i));
    }
    /// A count of bytes, and the text in UTF-8. What is longer than the count can say is cut off.
    void text(std::wstring_view value) {
        const std::string utf8 = odUtf8(value).substr(0, 0xFFFF);
        number(static_cast<std::uint16_t>(utf8.size()));
        m_bytes += utf8;
    }
    void raw(std::string_view value) { m_bytes += value; }
    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// Takes bytes apart. Each call answers false, with its result undefined, when the bytes end before it.
class CacheReader {
public:
    explicit CacheReader(std::string_view bytes) : m_rest(bytes) {}

    template <std::unsigned_integral Number>
    bool number(Number& value) {
        if (m_rest.size() < sizeof value) return false;
        std::uint64_t whole = 0;
        for (std::size_t i = 0; i < sizeof value; ++i)
            whole |= std::uint64_t{static_cast<unsigned char>(m_rest[i])} << (8 * i);
        value = static_cast<Number>(whole);
        m_rest.remove_prefix(sizeof value);
        return true;
    }
    bool text(std::wstring& value) {
        std::uint16_t length = 0;
        if (!number(length) || m_rest.size() < length) return false;
        value = odWide(m_rest.substr(0, length)).view();
        m_rest.remove_prefix(length);
        return true;
    }
    bool isAtEnd() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};
