#include <ktui/nav/find_mask.h>

#include <vector>

namespace {

// The system's listing turns a mask into these before it compares.
constexpr wchar_t kAnyToLastPoint = L'<';  // a `*` and the point that ends the mask
constexpr wchar_t kOneOrNone = L'>';       // a `?`
constexpr wchar_t kPointOrEnd = L'"';      // a point before a wildcard

CString inSmallLetters(CString text) { return text.MakeLower(); }

bool isWildcard(wchar_t c) { return c == L'*' || c == L'?'; }

/// Whether `name` ends in `length` characters of `ending`, which are small letters. Makes no text where all
/// is plain, since each file of a search comes by here.
bool endsIn(const CString& name, const wchar_t* ending, int length) {
    const int first = name.GetLength() - length;
    if (first < 0) return false;
    const wchar_t* const end = name.GetString() + first;
    for (int i = 0; i < length; ++i) {
        const wchar_t c = end[i];
        if (c >= 128) return inSmallLetters(name.Mid(first)) == ending;
        const bool isCapital = c >= L'A' && c <= L'Z';
        if ((isCapital ? c - L'A' + L'a' : c) != ending[i]) return false;
    }
    return true;
}

bool isAnyText(wchar_t sign) { return sign == L'*' || sign == kAnyToLastPoint; }

/// The places in a mask that have been reached, the mask's end among them.
class Places {
public:
    explicit Places(const CString& mask) : m_mask(mask), m_now(size()), m_next(size()) { reach(m_now, 0); }

    /// Goes on by one character of the name.
    void Take(wchar_t c, bool isLastPoint) {
        if (c == L'.') skipEmpty(false);
        m_next.assign(size(), 0);
        for (int place = 0; place < m_mask.GetLength(); ++place)
            if (m_now[static_cast<size_t>(place)] && takes(m_mask[place], c, isLastPoint))
                reach(m_next, isAnyText(m_mask[place]) ? place : place + 1);
        m_now.swap(m_next);
    }
    /// Whether the name may end here.
    bool End() {
        skipEmpty(true);
        return m_now.back();
    }

private:
    size_t size() const { return static_cast<size_t>(m_mask.GetLength()) + 1; }
    /// Whatever stands behind what may stand for nothing is reached too.
    void reach(std::vector<char>& places, int place) const {
        places[static_cast<size_t>(place)] = 1;
        while (place < m_mask.GetLength() && isAnyText(m_mask[place])) {
            char& next = places[static_cast<size_t>(++place)];
            if (next) return;  // from there on it has been done
            next = 1;
        }
    }
    /// Goes past what stands for nothing before a point and at the end.
    void skipEmpty(bool atEnd) {
        for (int place = 0; place < m_mask.GetLength(); ++place)
            if (m_now[static_cast<size_t>(place)] &&
                (m_mask[place] == kOneOrNone || (atEnd && m_mask[place] == kPointOrEnd)))
                reach(m_now, place + 1);
    }
    static bool takes(wchar_t sign, wchar_t c, bool isLastPoint) {
        switch (sign) {
            case L'*': return true;
            case kAnyToLastPoint: return !isLastPoint;
            case kOneOrNone: return c != L'.';
            case kPointOrEnd: return c == L'.';
            default: return sign == c;
        }
    }

    const CString& m_mask;
    std::vector<char> m_now, m_next;
};

}  // namespace

FindMask::FindMask(const CString& mask) : m_mask(mask == L"*.*" ? CString(L"*") : inSmallLetters(mask)) {
    const int length = m_mask.GetLength();
    const CString written = m_mask;
    for (int i = 0; i < length; ++i) {
        const wchar_t next = i + 1 < length ? written[i + 1] : L'\0';
        if (written[i] == L'?') m_mask.SetAt(i, kOneOrNone);
        if (written[i] == L'.' && isWildcard(next)) m_mask.SetAt(i, kPointOrEnd);
    }
    if (written.Right(2) == L"*.") {
        m_mask.SetAt(length - 2, kAnyToLastPoint);
        m_mask.Truncate(length - 1);
    }
    m_isEnding = m_mask.Left(1) == L"*" && m_mask.Mid(1).FindOneOf(L"*?<>\"") < 0;
}

bool FindMask::Matches(const CString& name) const {
    if (m_isEnding) return endsIn(name, m_mask.GetString() + 1, m_mask.GetLength() - 1);
    const CString text = inSmallLetters(name);
    const int lastPoint = text.ReverseFind(L'.');
    Places places(m_mask);
    for (int at = 0; at < text.GetLength(); ++at) places.Take(text[at], at == lastPoint);
    return places.End();
}
