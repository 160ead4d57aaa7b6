// OdString, the wide string value of the drawing runtime's interfaces.
//
// It converts from and to zero-terminated wide strings by itself, so that it passes through any interface
// that takes `const wchar_t*`. wchar_t has 16 bits on Windows (UTF-16) and 32 elsewhere (UTF-32); the UTF-8
// functions below hide the difference.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include "odrt_api.h"

/// A wide string with value semantics. A null pointer given to it counts as the empty string.
class OdString {
public:
    OdString() = default;
    /// Copies a zero-terminated text; null gives an empty string.
    OdString(const wchar_t* text) : m_text(text ? text : L"") {}
    /// Copies `length` characters.
    OdString(const wchar_t* text, int length) : m_text(text, static_cast<std::size_t>(length)) {}
    /// Takes over the characters of `text`.
    explicit OdString(std::wstring text) : m_text(std::move(text)) {}

    /// The zero-terminated characters, valid until the string changes.
    const wchar_t* c_str() const { return m_text.c_str(); }
    /// The same, wherever a plain pointer is asked for.
    operator const wchar_t*() const { return m_text.c_str(); }
    /// The characters as a view, for code that must not copy.
    std::wstring_view view() const { return m_text; }
    /// Whether there are no characters.
    bool isEmpty() const { return m_text.empty(); }
    /// Count of wchar_t units, without the terminator.
    int length() const { return static_cast<int>(m_text.size()); }
    /// The same as length().
    int getLength() const { return length(); }
    /// Drops all characters.
    void empty() { m_text.clear(); }
    /// The character at `index`, which must lie in 0 to length().
    wchar_t getAt(int index) const { return m_text[static_cast<std::size_t>(index)]; }

    /// Compares by code unit: below, equal to or above 0.
    int compare(const wchar_t* other) const { return m_text.compare(other ? other : L""); }
    /// Compares without regard to case, by odFoldCase of each character.
    ODRT_API int iCompare(const wchar_t* other) const;

    OdString& operator+=(const OdString& tail) {
        m_text += tail.m_text;
        return *this;
    }
    OdString& operator+=(const wchar_t* tail) {
        if (tail) m_text += tail;
        return *this;
    }
    OdString& operator+=(wchar_t tail) {
        m_text += tail;
        return *this;
    }

private:
    std::wstring m_text;
};

inline bool operator==(const OdString& a, const OdString& b) { return a.view() == b.view(); }
inline bool operator==(const OdString& a, const wchar_t* b) { return a.compare(b) == 0; }
inline bool operator==(const wchar_t* a, const OdString& b) { return b.compare(a) == 0; }
inline bool operator!=(const OdString& a, const OdString& b) { return !(a == b); }
inline bool operator!=(const OdString& a, const wchar_t* b) { return !(a == b); }
inline bool operator!=(const wchar_t* a, const OdString& b) { return !(a == b); }
inline bool operator<(const OdString& a, const OdString& b) { return a.view() < b.view(); }
inline OdString operator+(OdString a, const OdString& b) { return a += b; }
inline OdString operator+(OdString a, const wchar_t* b) { return a += b; }
inline OdString operator+(OdString a, wchar_t b) { return a += b; }
inline OdString operator+(const wchar_t* a, const OdString& b) { return OdString(a) += b; }

/// The upper-case form of one character for comparing names: ASCII, Latin, Greek, Cyrillic and full-width
/// letters; every other character is its own form. No locale takes part.
ODRT_API wchar_t odFoldCase(wchar_t character);

/// Compares two texts without regard to case: below, equal to or above 0.
ODRT_API int odCompareFolded(std::wstring_view a, std::wstring_view b);

/// UTF-8 of a wide text. An unpaired surrogate becomes its own three-byte sequence, so nothing is lost.
ODRT_API std::string odUtf8(std::wstring_view text);

/// Wide text of UTF-8, the reverse of odUtf8. A byte that starts no legal sequence becomes U+FFFD.
ODRT_API OdString odWide(std::string_view utf8);

/// Wide text of the bytes of a text file. A byte order mark decides (UTF-8, UTF-16); without one the bytes
/// are UTF-8 if they are legal as such, and otherwise in the code page `codePage` (936 or 1252, say). Null
/// characters and what is illegal become U+FFFD.
ODRT_API OdString odTextOfBytes(std::string_view bytes, int codePage);
