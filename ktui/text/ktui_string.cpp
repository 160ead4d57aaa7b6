#include <ktui/text/ktui_string.h>

#include <cwctype>
#include <ktut.h>

namespace {

constexpr wchar_t kTab = 9;
constexpr wchar_t kBlank = 32;
constexpr wchar_t kCaseDistance = 32;  // between an ASCII letter and its other case
constexpr wchar_t kLastAlphanumericCode = 128;

std::wint_t Code(wchar_t character) { return static_cast<std::wint_t>(character); }

}  // namespace

bool CKtUiString::isAt(int index, bool (*passes)(wchar_t)) const {
    return index >= 0 && index <= GetLength() && passes(GetString()[index]);
}

BOOL CKtUiString::IsTab(int index) const {
    return isAt(index, [](wchar_t c) { return c == kTab; });
}

BOOL CKtUiString::IsBlank(int index) const {
    return isAt(index, [](wchar_t c) { return std::iswspace(Code(c)) != 0; });
}

BOOL CKtUiString::IsWhiteSpace(int index) const { return IsBlank(index); }

BOOL CKtUiString::IsAlphabetic(int index) const {
    return isAt(index, [](wchar_t c) { return std::iswalpha(Code(c)) != 0; });
}

BOOL CKtUiString::IsAlphanumeric(int index) const {
    // Kept: the only test with a guard against other scripts.
    return isAt(index, [](wchar_t c) { return c <= kLastAlphanumericCode && std::iswalnum(Code(c)) != 0; });
}

BOOL CKtUiString::IsPunctuation(int index) const {
    return isAt(index, [](wchar_t c) { return std::iswpunct(Code(c)) != 0; });
}

BOOL CKtUiString::IsUppercase(int index) const {
    return isAt(index, [](wchar_t c) { return std::iswupper(Code(c)) != 0; });
}

BOOL CKtUiString::IsLowercase(int index) const {
    return isAt(index, [](wchar_t c) { return std::iswlower(Code(c)) != 0; });
}

BOOL CKtUiString::IsNumeric(int index) const {
    return isAt(index, [](wchar_t c) { return ktutIsDigit(c) != 0; });
}

BOOL CKtUiString::IsHexNumeric(int index) const {
    return isAt(index, [](wchar_t c) { return std::iswxdigit(Code(c)) != 0; });
}

void CKtUiString::MakeCharUpper(int index) {
    if (IsLowercase(index)) SetAt(index, static_cast<wchar_t>(GetString()[index] - kCaseDistance));
}

void CKtUiString::MakeCharLower(int index) {
    if (IsUppercase(index)) SetAt(index, static_cast<wchar_t>(GetString()[index] + kCaseDistance));
}

void CKtUiString::ReplaceCharWithChar(wchar_t original, wchar_t replacement) {
    Replace(original, replacement);
}

void CKtUiString::StripMnemonic() {
    // Kept: the first one only, so that of a doubled ampersand the second stays.
    const int index = Find(L'&');
    if (index >= 0) Delete(index, 1);
}

void CKtUiString::StripDiesel() {
    constexpr const wchar_t* kMarker = L"$M=";
    const int index = Find(kMarker);
    if (index >= 0) Delete(index, 3);
}

void CKtUiString::ConvertMenuExecString() { Replace(kTab, kBlank); }

void CKtUiString::ConvertFromMenuExecString() {
    // Kept: tabs are the input here too; the pair isn't each other's inverse.
    Replace(L"\t", L"^I");
}

void CKtUiString::FixFileName() { Replace(L'\\', L'/'); }

void CKtUiString::ExpandTabs(int count) {
    const CString blanks(kBlank, count > 0 ? count : 0);
    Replace(L"\t", blanks.GetString());
}

void CKtUiString::StripTrailingBlanks() { StripTrailingCharacters(kBlank); }

void CKtUiString::StripPrecedingBlanks() { StripPrecedingCharacters(kBlank); }

void CKtUiString::StripTrailingCharacters(wchar_t character) { TrimRight(character); }

void CKtUiString::StripPrecedingCharacters(wchar_t character) { TrimLeft(character); }

void CKtUiString::WrapLine(CKtUiString& rest, int column) {
    if (column < 1 || column > GetLength()) return;
    const CString whole = *this;
    rest = CKtUiString(whole.Mid(column));
    *this = CKtUiString(whole.Left(column));
}

void CKtUiString::WrapLine(CStringList& lines, int column) {
    if (column < 1 || column > GetLength()) return;
    POSITION last = nullptr;
    while (GetLength() > column) {
        const CString piece = Left(column);
        Delete(0, column);
        last = last ? lines.InsertAfter(last, piece) : lines.AddHead(piece);
    }
}
