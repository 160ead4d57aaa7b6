#include "od_db_texts.h"

namespace {

/// Reads paragraph contents from left to right, leaving out what only formats.
class PlainText {
public:
    explicit PlainText(std::wstring_view contents) : m_rest(contents) {}

    std::wstring run() {
        while (!m_rest.empty()) {
            const wchar_t c = take();
            if (c == L'\\')
                code();
            else if (c != L'{' && c != L'}')
                m_out += c;
        }
        return m_out;
    }

private:
    wchar_t take() {
        const wchar_t c = m_rest.front();
        m_rest.remove_prefix(1);
        return c;
    }

    /// What stands behind a backslash.
    void code() {
        if (m_rest.empty()) return;
        const wchar_t c = take();
        switch (c) {
            case L'P':
            case L'N': m_out += L'\n'; break;
            case L'~': m_out += L' '; break;
            case L'\\':
            case L'{':
            case L'}': m_out += c; break;
            case L'S': stack(); break;
            case L'A':
            case L'C':
            case L'c':
            case L'F':
            case L'f':
            case L'H':
            case L'p':
            case L'Q':
            case L'T':
            case L'W': argument(); break;
            case L'L':
            case L'l':
            case L'O':
            case L'o':
            case L'K':
            case L'k': break;
            default: (m_out += L'\\') += c; break;
        }
    }

    /// The argument of a code, up to its semicolon.
    std::wstring_view argument() {
        const std::size_t end = m_rest.find(L';');
        const std::wstring_view found = m_rest.substr(0, end);
        m_rest.remove_prefix(end == std::wstring_view::npos ? m_rest.size() : end + 1);
        return found;
    }

    /// A fraction or a pair of tolerances: shown with a slash.
    void stack() {
        for (const wchar_t c : argument()) m_out += c == L'^' || c == L'#' ? L'/' : c;
    }

    std::wstring_view m_rest;
    std::wstring m_out;
};

}  // namespace

OdString odPlainMText(std::wstring_view contents) { return OdString(PlainText(contents).run()); }
