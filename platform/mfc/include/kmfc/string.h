// CString (CStringW) and CStringA: CStringT over the storage of CSimpleStringT.
#pragma once

#include <compare>
#include <cstddef>

#include "kmfc/simple_string.h"
#include "kmfc/string_format.h"

// A program may ask for explicit conversions from characters and from text of the other width.
#ifdef _ATL_CSTRING_EXPLICIT_CONSTRUCTORS
#define CSTRING_EXPLICIT explicit
#else
#define CSTRING_EXPLICIT
#endif

/// A string of characters with searching, editing and formatting. Positions and counts are in characters;
/// "not found" is -1. Text of the other width is converted by the system's code page (UTF-8 natively).
/// A null text argument counts as empty.
template <class Ch>
class KMFC_API CStringT : public CSimpleStringT<Ch> {
    using Base = CSimpleStringT<Ch>;

public:
    using Base::GetLength;
    using Base::GetString;
    using typename Base::PCXSTR;
    using typename Base::PCYSTR;
    using typename Base::PXSTR;
    using typename Base::PYSTR;
    using typename Base::XCHAR;
    using typename Base::YCHAR;

    CStringT() noexcept = default;
    CStringT(const CStringT&) = default;
    CStringT(CStringT&&) noexcept = default;
    CStringT(const CSimpleStringT<Ch>& strSrc) : Base(strSrc) {}
    CStringT(std::nullptr_t) noexcept {}
    /// A copy of the text; a resource id made with MAKEINTRESOURCE loads that string instead.
    CStringT(PCXSTR pszSrc);
    CSTRING_EXPLICIT CStringT(PCYSTR pszSrc);
    CSTRING_EXPLICIT CStringT(const unsigned char* pszSrc);
    CSTRING_EXPLICIT CStringT(const CSimpleStringT<YCHAR>& strSrc);
    CStringT(const XCHAR* pch, int nLength) : Base(pch, nLength) {}
    CStringT(const YCHAR* pch, int nLength);
    /// `nLength` times the character; none when not positive.
    CSTRING_EXPLICIT CStringT(char ch, int nLength = 1);
    CSTRING_EXPLICIT CStringT(wchar_t ch, int nLength = 1);
    ~CStringT() = default;

    CStringT& operator=(const CStringT&) = default;
    CStringT& operator=(CStringT&&) noexcept = default;
    CStringT& operator=(const CSimpleStringT<Ch>& strSrc);
    CStringT& operator=(PCXSTR pszSrc);
    CStringT& operator=(PCYSTR pszSrc);
    CStringT& operator=(const unsigned char* pszSrc);
    CStringT& operator=(const CSimpleStringT<YCHAR>& strSrc);
    CStringT& operator=(char ch);
    CStringT& operator=(wchar_t ch);

    CStringT& operator+=(const CSimpleStringT<Ch>& str);
    CStringT& operator+=(PCXSTR pszSrc);
    CStringT& operator+=(PCYSTR pszSrc);
    CStringT& operator+=(char ch);
    CStringT& operator+=(unsigned char ch) { return *this += static_cast<char>(ch); }
    CStringT& operator+=(wchar_t ch);

    /// Order by character codes: negative, 0 or positive.
    int Compare(PCXSTR psz) const;
    /// Compare without regard to case, which is that of the C locale in force.
    int CompareNoCase(PCXSTR psz) const;
    /// Order by the collation of the C locale in force.
    int Collate(PCXSTR psz) const;
    int CollateNoCase(PCXSTR psz) const;

    /// Removes `nCount` characters from `iIndex` on, as many as there are; answers the new length.
    int Delete(int iIndex, int nCount = 1);
    /// Inserts at `iIndex` (at the end when beyond it, at the start when negative); answers the new length.
    int Insert(int iIndex, XCHAR ch);
    int Insert(int iIndex, PCXSTR psz);
    /// Replaces every occurrence; answers how many there were.
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /// Removes every occurrence of the character; answers how many there were.
    int Remove(XCHAR chRemove);

    /// The part up to the next of the token characters from `iStart` on, which moves behind it. Separators at
    /// the start are skipped. Empty and `iStart` -1 when nothing is left. A negative `iStart` throws.
    CStringT Tokenize(PCXSTR pszTokens, int& iStart) const;

    int Find(XCHAR ch, int iStart = 0) const noexcept;
    int Find(PCXSTR pszSub, int iStart = 0) const noexcept;
    int FindOneOf(PCXSTR pszCharSet) const noexcept;
    int ReverseFind(XCHAR ch) const noexcept;

    CStringT& MakeUpper();
    CStringT& MakeLower();
    CStringT& MakeReverse();

    /// Cut white space, the given character, or any of the given characters off one or both ends.
    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& Trim(XCHAR chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
    CStringT& Trim(PCXSTR pszTargets) { return TrimRight(pszTargets).TrimLeft(pszTargets); }
    CStringT& TrimLeft();
    CStringT& TrimLeft(XCHAR chTarget);
    CStringT& TrimLeft(PCXSTR pszTargets);
    CStringT& TrimRight();
    CStringT& TrimRight(XCHAR chTarget);
    CStringT& TrimRight(PCXSTR pszTargets);

    /// Parts of the string; negative positions and counts are 0, and what is not there is left out.
    CStringT Mid(int iFirst) const;
    CStringT Mid(int iFirst, int nCount) const;
    CStringT Left(int nCount) const;
    CStringT Right(int nCount) const;
    /// The leading run of characters that are in (not in) the set.
    CStringT SpanIncluding(PCXSTR pszCharSet) const;
    CStringT SpanExcluding(PCXSTR pszCharSet) const;

    /// Replaces the string by the formatted text (string_format.h has the letters). Strings may be passed as
    /// they are, this one too.
    template <class... Args>
    void Format(PCXSTR pszFormat, Args... args) {
        const kmfc::FormatArgument list[sizeof...(Args) + 1] = {kmfc::FormatArgument::from(args)...};
        format_list(pszFormat, {list, sizeof...(Args)});
    }
    /// The same with the format from string resource `nFormatID`; throws CInvalidArgException without it.
    template <class... Args>
    void Format(UINT nFormatID, Args... args) {
        const CStringT format = required_resource(nFormatID);
        Format(format.GetString(), args...);
    }
    /// Appends formatted text.
    template <class... Args>
    void AppendFormat(PCXSTR pszFormat, Args... args) {
        CStringT text;
        text.Format(pszFormat, args...);
        this->Append(text);
    }
    template <class... Args>
    void AppendFormat(UINT nFormatID, Args... args) {
        CStringT text;
        text.Format(nFormatID, args...);
        this->Append(text);
    }
    void FormatV(PCXSTR pszFormat, va_list args);
    void AppendFormatV(PCXSTR pszFormat, va_list args);

    /// Loads string resource `nID`, searching the module's resources in their order. FALSE, and the string is
    /// unchanged, when there is none.
    BOOL LoadString(UINT nID);

#ifdef _WIN32
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
    /// Replaces the string by a message text whose inserts are numbered (%1!d!, %2). Throws CMemoryException
    /// when the system can't format it.
    template <class... Args>
    void FormatMessage(PCXSTR pszFormat, Args... args) {
        const DWORD_PTR list[sizeof...(Args) + 1] = {message_argument(args)...};
        format_message(pszFormat, list);
    }
    template <class... Args>
    void FormatMessage(UINT nFormatID, Args... args) {
        const CStringT format = required_resource(nFormatID);
        FormatMessage(format.GetString(), args...);
    }
    /// A copy for automation, owned by the caller (SysFreeString). Throws CMemoryException.
    BSTR AllocSysString() const;
    /// Replaces the text of `*pbstr` and answers it.
    BSTR SetSysString(BSTR* pbstr) const;
    /// Takes the value of an environment variable; FALSE and empty when it isn't set.
    BOOL GetEnvironmentVariable(PCXSTR pszVar);
#endif

    friend CStringT operator+(const CStringT& a, const CStringT& b) {
        return concatenate(a, b, b.GetLength());
    }
    friend CStringT operator+(const CStringT& a, PCXSTR b) {
        return concatenate(a, b, Base::StringLength(b));
    }
    friend CStringT operator+(PCXSTR a, const CStringT& b) { return CStringT(Base(a)) += b; }
    friend CStringT operator+(const CStringT& a, PCYSTR b) { return CStringT(a) += b; }
    friend CStringT operator+(PCYSTR a, const CStringT& b) { return CStringT(a) += b; }
    friend CStringT operator+(const CStringT& a, wchar_t b) { return CStringT(a) += b; }
    friend CStringT operator+(const CStringT& a, char b) { return CStringT(a) += b; }
    friend CStringT operator+(wchar_t a, const CStringT& b) { return CStringT(a) += b; }
    friend CStringT operator+(char a, const CStringT& b) { return CStringT(a) += b; }

    friend bool operator==(const CStringT& a, const CStringT& b) { return a.Compare(b) == 0; }
    friend bool operator==(const CStringT& a, PCXSTR b) { return a.Compare(b) == 0; }
    friend bool operator==(const CStringT& a, PCYSTR b) { return a.Compare(CStringT(b)) == 0; }
    friend bool operator==(const CStringT& a, XCHAR b) { return a.GetLength() == 1 && a.GetAt(0) == b; }
    friend bool operator==(const CStringT& a, YCHAR b) { return a == CStringT(b); }
    friend std::strong_ordering operator<=>(const CStringT& a, const CStringT& b) {
        return a.Compare(b) <=> 0;
    }
    friend std::strong_ordering operator<=>(const CStringT& a, PCXSTR b) { return a.Compare(b) <=> 0; }
    friend std::strong_ordering operator<=>(const CStringT& a, PCYSTR b) {
        return a.Compare(CStringT(b)) <=> 0;
    }

private:
    static CStringT concatenate(const CStringT& a, PCXSTR b, int length);
    static CStringT required_resource(UINT id);
    void format_list(PCXSTR format, std::span<const kmfc::FormatArgument> arguments);
    void convert(PCYSTR text, int length);
    template <class In>
    CStringT& trim_left_while(In&& in);
    template <class In>
    CStringT& trim_right_while(In&& in);
#ifdef _WIN32
    void format_message(PCXSTR format, const DWORD_PTR* arguments);
    template <class T>
    static DWORD_PTR message_argument(const T& value) {
        const auto argument = kmfc::FormatArgument::from(value);
        return argument.address ? reinterpret_cast<DWORD_PTR>(argument.address)
                                : static_cast<DWORD_PTR>(argument.integer);
    }
#endif
};

using CSimpleStringW = CSimpleStringT<wchar_t>;
using CSimpleStringA = CSimpleStringT<char>;
using CSimpleString = CSimpleStringW;
using CStringW = CStringT<wchar_t>;
using CStringA = CStringT<char>;
using CString = CStringW;
