#include "kmfc/string.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <string_view>
#include <type_traits>

#include "kmfc/exceptions.h"
#include "kmfc/string_resource.h"
#include "kmfc/text_conversion.h"

namespace {

std::wstring to_width(std::string_view text, wchar_t) { return kmfc::widen(text); }
std::string to_width(std::wstring_view text, char) { return kmfc::narrow(text); }

wchar_t upper(wchar_t ch) { return static_cast<wchar_t>(std::towupper(static_cast<wint_t>(ch))); }
wchar_t lower(wchar_t ch) { return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(ch))); }
char upper(char ch) { return static_cast<char>(std::toupper(static_cast<unsigned char>(ch))); }
char lower(char ch) { return static_cast<char>(std::tolower(static_cast<unsigned char>(ch))); }
bool is_space(wchar_t ch) { return std::iswspace(static_cast<wint_t>(ch)) != 0; }
bool is_space(char ch) { return std::isspace(static_cast<unsigned char>(ch)) != 0; }
int collated(const wchar_t* a, const wchar_t* b) { return std::wcscoll(a, b); }
int collated(const char* a, const char* b) { return std::strcoll(a, b); }

template <class Ch>
const Ch* or_empty(const Ch* text) {
    static const Ch nothing[1] = {};
    return text ? text : nothing;
}

template <class Ch>
std::basic_string_view<Ch> view_of(const CSimpleStringT<Ch>& s) {
    return {s.GetString(), static_cast<size_t>(s.GetLength())};
}

template <class Ch>
int index_of(typename std::basic_string_view<Ch>::size_type at) {
    return at == std::basic_string_view<Ch>::npos ? -1 : static_cast<int>(at);
}

int sign_of(int value) { return (value > 0) - (value < 0); }

}  // namespace

template <class Ch>
CStringT<Ch>::CStringT(PCXSTR pszSrc) {
    if (kmfc::is_resource_id(pszSrc)) {
        LoadString(kmfc::resource_id(pszSrc));
    } else {
        this->SetString(pszSrc);
    }
}

template <class Ch>
CStringT<Ch>::CStringT(PCYSTR pszSrc) {
    if (kmfc::is_resource_id(pszSrc)) {
        LoadString(kmfc::resource_id(pszSrc));
    } else {
        convert(pszSrc, CSimpleStringT<YCHAR>::StringLength(pszSrc));
    }
}

template <class Ch>
CStringT<Ch>::CStringT(const unsigned char* pszSrc) : CStringT(reinterpret_cast<const char*>(pszSrc)) {}

template <class Ch>
CStringT<Ch>::CStringT(const CSimpleStringT<YCHAR>& strSrc) {
    convert(strSrc.GetString(), strSrc.GetLength());
}

template <class Ch>
CStringT<Ch>::CStringT(const YCHAR* pch, int nLength) {
    if (nLength < 0 || (!pch && nLength > 0)) AfxThrowInvalidArgException();
    convert(pch, nLength);
}

template <class Ch>
CStringT<Ch>::CStringT(char ch, int nLength) {
    if (nLength <= 0) return;
    if constexpr (std::is_same_v<Ch, char>) {
        std::fill_n(this->GetBufferSetLength(nLength), nLength, ch);
    } else {
        const CStringT one(&ch, 1);
        if (!one.IsEmpty()) std::fill_n(this->GetBufferSetLength(nLength), nLength, one[0]);
    }
}

template <class Ch>
CStringT<Ch>::CStringT(wchar_t ch, int nLength) {
    if (nLength <= 0) return;
    if constexpr (std::is_same_v<Ch, wchar_t>) {
        std::fill_n(this->GetBufferSetLength(nLength), nLength, ch);
    } else {
        const CStringT one(&ch, 1);
        for (int i = 0; i < nLength; ++i) this->Append(one);
    }
}

template <class Ch>
void CStringT<Ch>::convert(PCYSTR text, int length) {
    const auto converted = to_width(std::basic_string_view<YCHAR>(text, static_cast<size_t>(length)), Ch());
    this->SetString(converted.data(), static_cast<int>(converted.size()));
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator=(const CSimpleStringT<Ch>& strSrc) {
    Base::operator=(strSrc);
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator=(PCXSTR pszSrc) {
    this->SetString(pszSrc);
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator=(PCYSTR pszSrc) {
    convert(pszSrc, CSimpleStringT<YCHAR>::StringLength(pszSrc));
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator=(const unsigned char* pszSrc) {
    return *this = reinterpret_cast<const char*>(pszSrc);
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator=(const CSimpleStringT<YCHAR>& strSrc) {
    convert(strSrc.GetString(), strSrc.GetLength());
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator=(char ch) {
    return *this = CStringT(ch);
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator=(wchar_t ch) {
    return *this = CStringT(ch);
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator+=(const CSimpleStringT<Ch>& str) {
    this->Append(str);
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator+=(PCXSTR pszSrc) {
    this->Append(pszSrc);
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator+=(PCYSTR pszSrc) {
    return *this += CStringT(pszSrc);
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator+=(char ch) {
    if constexpr (std::is_same_v<Ch, char>) {
        this->AppendChar(ch);
    } else {
        this->Append(CStringT(ch));
    }
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::operator+=(wchar_t ch) {
    if constexpr (std::is_same_v<Ch, wchar_t>) {
        this->AppendChar(ch);
    } else {
        this->Append(CStringT(ch));
    }
    return *this;
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::concatenate(const CStringT& a, PCXSTR b, int length) {
    CStringT result;
    if (length > INT_MAX - 1 - a.GetLength()) AfxThrowMemoryException();
    const int total = a.GetLength() + length;
    if (total == 0) return result;
    Ch* text = result.GetBufferSetLength(total);
    Base::CopyChars(text, a.GetString(), a.GetLength());
    Base::CopyChars(text + a.GetLength(), b, length);
    return result;
}

template <class Ch>
int CStringT<Ch>::Compare(PCXSTR psz) const {
    const std::basic_string_view<Ch> other(or_empty(psz));
    return sign_of(std::basic_string_view<Ch>(GetString()).compare(other));
}

template <class Ch>
int CStringT<Ch>::CompareNoCase(PCXSTR psz) const {
    const Ch* a = GetString();
    const Ch* b = or_empty(psz);
    while (*a && lower(*a) == lower(*b)) ++a, ++b;
    const auto left = static_cast<std::make_unsigned_t<Ch>>(lower(*a));
    const auto right = static_cast<std::make_unsigned_t<Ch>>(lower(*b));
    return (left > right) - (left < right);
}

template <class Ch>
int CStringT<Ch>::Collate(PCXSTR psz) const {
    return sign_of(collated(GetString(), or_empty(psz)));
}

template <class Ch>
int CStringT<Ch>::CollateNoCase(PCXSTR psz) const {
    CStringT a(*this), b;
    b.SetString(psz);
    return a.MakeLower().Collate(b.MakeLower());
}

template <class Ch>
int CStringT<Ch>::Delete(int iIndex, int nCount) {
    const int first = std::max(iIndex, 0);
    const int length = GetLength();
    if (first >= length || nCount <= 0) return length;
    const int count = std::min(nCount, length - first);
    Ch* text = this->GetBuffer();
    std::char_traits<Ch>::move(text + first, text + first + count,
                               static_cast<size_t>(length - first - count));
    this->ReleaseBufferSetLength(length - count);
    return GetLength();
}

template <class Ch>
int CStringT<Ch>::Insert(int iIndex, XCHAR ch) {
    const int length = GetLength();
    const int at = std::clamp(iIndex, 0, length);
    this->AppendChar(ch);
    Ch* text = this->GetBuffer();
    std::char_traits<Ch>::move(text + at + 1, text + at, static_cast<size_t>(length - at));
    text[at] = ch;
    return GetLength();
}

template <class Ch>
int CStringT<Ch>::Insert(int iIndex, PCXSTR psz) {
    const int length = GetLength();
    const int at = std::clamp(iIndex, 0, length);
    const Base added(psz);
    this->Append(added);
    if (added.IsEmpty()) return length;
    Ch* text = this->GetBuffer();
    std::char_traits<Ch>::move(text + at + added.GetLength(), text + at, static_cast<size_t>(length - at));
    Base::CopyChars(text + at, added.GetString(), added.GetLength());
    return GetLength();
}

template <class Ch>
int CStringT<Ch>::Replace(XCHAR chOld, XCHAR chNew) {
    if (chOld == chNew) return 0;
    const int count = static_cast<int>(std::count(GetString(), GetString() + GetLength(), chOld));
    if (count > 0) {
        Ch* text = this->GetBuffer();
        std::replace(text, text + GetLength(), chOld, chNew);
    }
    return count;
}

template <class Ch>
int CStringT<Ch>::Replace(PCXSTR pszOld, PCXSTR pszNew) {
    const std::basic_string<Ch> old(or_empty(pszOld));
    const std::basic_string<Ch> fresh(or_empty(pszNew));
    if (old.empty()) return 0;
    const auto text = view_of<Ch>(*this);
    std::basic_string<Ch> result;
    int count = 0;
    size_t from = 0;
    for (size_t at; (at = text.find(old, from)) != text.npos; from = at + old.size(), ++count) {
        result.append(text, from, at - from).append(fresh);
    }
    if (count == 0) return 0;
    result.append(text, from);
    if (result.size() > INT_MAX - 1) AfxThrowMemoryException();
    this->SetString(result.data(), static_cast<int>(result.size()));
    return count;
}

template <class Ch>
int CStringT<Ch>::Remove(XCHAR chRemove) {
    const int count = static_cast<int>(std::count(GetString(), GetString() + GetLength(), chRemove));
    if (count == 0) return 0;
    Ch* text = this->GetBuffer();
    const int length = GetLength();
    static_cast<void>(std::remove(text, text + length, chRemove));
    this->ReleaseBufferSetLength(length - count);
    return count;
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::Tokenize(PCXSTR pszTokens, int& iStart) const {
    if (iStart < 0) AfxThrowInvalidArgException();
    const auto text = view_of<Ch>(*this);
    const std::basic_string_view<Ch> separators(or_empty(pszTokens));
    const size_t from = text.find_first_not_of(separators, static_cast<size_t>(iStart));
    if (from == text.npos) {
        iStart = -1;
        return CStringT();
    }
    const size_t end = std::min(text.find_first_of(separators, from), text.size());
    iStart = static_cast<int>(std::min(end + 1, text.size()));
    return Mid(static_cast<int>(from), static_cast<int>(end - from));
}

template <class Ch>
int CStringT<Ch>::Find(XCHAR ch, int iStart) const noexcept {
    if (iStart < 0 || iStart >= GetLength()) return -1;
    return index_of<Ch>(view_of<Ch>(*this).find(ch, static_cast<size_t>(iStart)));
}

template <class Ch>
int CStringT<Ch>::Find(PCXSTR pszSub, int iStart) const noexcept {
    if (!pszSub || iStart < 0 || iStart > GetLength()) return -1;
    return index_of<Ch>(view_of<Ch>(*this).find(pszSub, static_cast<size_t>(iStart)));
}

template <class Ch>
int CStringT<Ch>::FindOneOf(PCXSTR pszCharSet) const noexcept {
    return index_of<Ch>(view_of<Ch>(*this).find_first_of(or_empty(pszCharSet)));
}

template <class Ch>
int CStringT<Ch>::ReverseFind(XCHAR ch) const noexcept {
    return index_of<Ch>(view_of<Ch>(*this).rfind(ch));
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::MakeUpper() {
    Ch* text = this->GetBuffer();
    std::transform(text, text + GetLength(), text, [](Ch ch) { return upper(ch); });
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::MakeLower() {
    Ch* text = this->GetBuffer();
    std::transform(text, text + GetLength(), text, [](Ch ch) { return lower(ch); });
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::MakeReverse() {
    Ch* text = this->GetBuffer();
    std::reverse(text, text + GetLength());
    return *this;
}

template <class Ch>
template <class In>
CStringT<Ch>& CStringT<Ch>::trim_left_while(In&& in) {
    const Ch* text = GetString();
    const Ch* end = text + GetLength();
    Delete(0, static_cast<int>(std::find_if_not(text, end, in) - text));
    return *this;
}

template <class Ch>
template <class In>
CStringT<Ch>& CStringT<Ch>::trim_right_while(In&& in) {
    int length = GetLength();
    while (length > 0 && in(GetString()[length - 1])) --length;
    if (length < GetLength()) this->Truncate(length);
    return *this;
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::TrimLeft() {
    return trim_left_while([](Ch ch) { return is_space(ch); });
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::TrimLeft(XCHAR chTarget) {
    return trim_left_while([=](Ch ch) { return ch == chTarget; });
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::TrimLeft(PCXSTR pszTargets) {
    const std::basic_string<Ch> set(or_empty(pszTargets));
    return trim_left_while([&](Ch ch) { return set.find(ch) != set.npos; });
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::TrimRight() {
    return trim_right_while([](Ch ch) { return is_space(ch); });
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::TrimRight(XCHAR chTarget) {
    return trim_right_while([=](Ch ch) { return ch == chTarget; });
}

template <class Ch>
CStringT<Ch>& CStringT<Ch>::TrimRight(PCXSTR pszTargets) {
    const std::basic_string<Ch> set(or_empty(pszTargets));
    return trim_right_while([&](Ch ch) { return set.find(ch) != set.npos; });
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::Mid(int iFirst) const {
    return Mid(iFirst, INT_MAX);
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::Mid(int iFirst, int nCount) const {
    const int first = std::clamp(iFirst, 0, GetLength());
    const int count = std::clamp(nCount, 0, GetLength() - first);
    return count == GetLength() ? *this : CStringT(GetString() + first, count);
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::Left(int nCount) const {
    return Mid(0, nCount);
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::Right(int nCount) const {
    const int count = std::clamp(nCount, 0, GetLength());
    return Mid(GetLength() - count, count);
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::SpanIncluding(PCXSTR pszCharSet) const {
    const auto end = view_of<Ch>(*this).find_first_not_of(or_empty(pszCharSet));
    return end == std::basic_string_view<Ch>::npos ? *this : Left(static_cast<int>(end));
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::SpanExcluding(PCXSTR pszCharSet) const {
    const auto end = view_of<Ch>(*this).find_first_of(or_empty(pszCharSet));
    return end == std::basic_string_view<Ch>::npos ? *this : Left(static_cast<int>(end));
}

template <class Ch>
void CStringT<Ch>::format_list(PCXSTR format, std::span<const kmfc::FormatArgument> arguments) {
    if (!format) AfxThrowInvalidArgException();
    const auto text = kmfc::format_text(format, arguments);
    this->SetString(text.data(), static_cast<int>(text.size()));
}

template <class Ch>
void CStringT<Ch>::FormatV(PCXSTR pszFormat, va_list args) {
    if (!pszFormat) AfxThrowInvalidArgException();
    const auto text = kmfc::format_text(pszFormat, args);
    this->SetString(text.data(), static_cast<int>(text.size()));
}

template <class Ch>
void CStringT<Ch>::AppendFormatV(PCXSTR pszFormat, va_list args) {
    CStringT text;
    text.FormatV(pszFormat, args);
    this->Append(text);
}

template <class Ch>
BOOL CStringT<Ch>::LoadString(UINT nID) {
    std::wstring text;
    if (!kmfc::load_string_resource(nID, text)) return FALSE;
    *this = text.c_str();
    return TRUE;
}

template <class Ch>
CStringT<Ch> CStringT<Ch>::required_resource(UINT id) {
    CStringT text;
    if (!text.LoadString(id)) AfxThrowInvalidArgException();
    return text;
}

#ifdef _WIN32

template <class Ch>
BOOL CStringT<Ch>::LoadString(HINSTANCE hInstance, UINT nID) {
    return LoadString(hInstance, nID, MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL));
}

template <class Ch>
BOOL CStringT<Ch>::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID) {
    std::wstring text;
    if (!kmfc::read_string_resource(hInstance, nID, wLanguageID, text)) return FALSE;
    *this = text.c_str();
    return TRUE;
}

template <class Ch>
void CStringT<Ch>::format_message(PCXSTR format, const DWORD_PTR* arguments) {
    if (!format) AfxThrowInvalidArgException();
    constexpr DWORD kFlags =
        FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_ARGUMENT_ARRAY;
    auto* list = reinterpret_cast<va_list*>(const_cast<DWORD_PTR*>(arguments));
    Ch* text = nullptr;
    if constexpr (std::is_same_v<Ch, wchar_t>) {
        ::FormatMessageW(kFlags, format, 0, 0, reinterpret_cast<LPWSTR>(&text), 0, list);
    } else {
        ::FormatMessageA(kFlags, format, 0, 0, reinterpret_cast<LPSTR>(&text), 0, list);
    }
    if (!text) AfxThrowMemoryException();
    this->SetString(text);
    ::LocalFree(text);
}

template <class Ch>
BSTR CStringT<Ch>::AllocSysString() const {
    const CStringT<wchar_t> wide(*this);
    BSTR copy = ::SysAllocStringLen(wide.GetString(), static_cast<UINT>(wide.GetLength()));
    if (!copy) AfxThrowMemoryException();
    return copy;
}

template <class Ch>
BSTR CStringT<Ch>::SetSysString(BSTR* pbstr) const {
    const CStringT<wchar_t> wide(*this);
    if (!::SysReAllocStringLen(pbstr, wide.GetString(), static_cast<UINT>(wide.GetLength()))) {
        AfxThrowMemoryException();
    }
    return *pbstr;
}

template <class Ch>
BOOL CStringT<Ch>::GetEnvironmentVariable(PCXSTR pszVar) {
    const CStringT<wchar_t> name(pszVar);
    CStringT<wchar_t> value;
    const DWORD needed = ::GetEnvironmentVariableW(name, nullptr, 0);
    if (needed > 1) {
        ::GetEnvironmentVariableW(name, value.GetBuffer(static_cast<int>(needed)), needed);
        value.ReleaseBuffer();
    }
    *this = value.GetString();
    return needed != 0;
}

#endif

template class CStringT<wchar_t>;
template class CStringT<char>;
