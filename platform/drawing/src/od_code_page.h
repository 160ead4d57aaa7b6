// Texts of drawing files: code pages, and the escapes that stand for characters a file's encoding lacks.
#pragma once

#include <string>
#include <string_view>

/// The code page that a drawing's $DWGCODEPAGE names ("ANSI_936", "dos850"); 1252 for an unknown name.
int odCodePageFromName(std::string_view name);

/// Wide text of bytes in a code page; false if the bytes are illegal in it, or the system lacks the page.
bool odDecodeBytes(int codePage, std::string_view bytes, std::wstring& text);

/// Bytes of one character (one wide unit, or a pair of surrogates) in a code page; false if it isn't in
/// there.
bool odEncodeCharacter(int codePage, std::wstring_view character, std::string& bytes);

/// Turns the value of a text group into UTF-8 with every escape resolved: \U+XXXX, \M+nXXXX, and the caret
/// forms of control characters.
class OdDxfTextDecoder {
public:
    /// `utf8` for files from 2007 on.
    OdDxfTextDecoder(int codePage, bool utf8) : m_codePage(codePage), m_utf8(utf8) {}
    /// The text; valid until the next call and as long as `value`.
    std::string_view decode(std::string_view value);

private:
    int m_codePage;
    bool m_utf8;
    std::string m_text;
};

/// The reverse of OdDxfTextDecoder: appends `utf8` to `out` as a file of this encoding holds it.
void odEncodeDxfText(std::string_view utf8, int codePage, bool fileIsUtf8, std::string& out);
