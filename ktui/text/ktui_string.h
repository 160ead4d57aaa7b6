// CKtUiString: the platform's wide string with tests by position, stripping, wrapping and fitting.
//
// All operations change the string in place unless told otherwise. There are no errors: an index or a column
// outside the text changes nothing.
#pragma once

#include <afx.h>
#include <afxcoll.h>

#include <ktui/ktui_api.h>

class CDC;

class KTUI_API CKtUiString : public CString {
public:
    CKtUiString() = default;
    CKtUiString(const CString& text) : CString(text) {}
    /// `repeat` times `character`.
    CKtUiString(wchar_t character, int repeat) : CString(character, repeat) {}
    CKtUiString(const wchar_t* text) : CString(text) {}
    /// The first `length` characters of `text`.
    CKtUiString(const wchar_t* text, int length) : CString(text, length) {}
    /// String `resourceId` of the active resource module; empty if there is none.
    explicit CKtUiString(unsigned resourceId);

    // Tests of the character at `index`. An index below 0 or above the length answers FALSE; the length
    // itself tests the terminator, which passes no test.
    BOOL IsTab(int index) const;
    BOOL IsBlank(int index) const;
    /// The same as IsBlank.
    BOOL IsWhiteSpace(int index) const;
    BOOL IsAlphabetic(int index) const;
    /// FALSE for every code above 128.
    BOOL IsAlphanumeric(int index) const;
    BOOL IsPunctuation(int index) const;
    BOOL IsUppercase(int index) const;
    BOOL IsLowercase(int index) const;
    /// By the product's own digit test.
    BOOL IsNumeric(int index) const;
    BOOL IsHexNumeric(int index) const;

    /// Subtracts 32 from a lower-case character, with no locale rule.
    void MakeCharUpper(int index);
    /// Adds 32 to an upper-case character, with no locale rule.
    void MakeCharLower(int index);
    /// Puts `replacement` in the place of every `original`.
    void ReplaceCharWithChar(wchar_t original, wchar_t replacement);
    /// Takes the first "&" out, and only that: a doubled one loses one.
    void StripMnemonic();
    /// Takes the first "$M=" out and leaves the expression behind it.
    void StripDiesel();
    /// Makes each tab a blank.
    void ConvertMenuExecString();
    /// Makes each tab "^I".
    void ConvertFromMenuExecString();
    /// Makes each backslash a slash.
    void FixFileName();
    /// Makes each tab `count` blanks; 0 or less takes the tabs out.
    void ExpandTabs(int count);
    /// Trims blanks (character 32 only) at the end.
    void StripTrailingBlanks();
    /// Trims blanks (character 32 only) at the start.
    void StripPrecedingBlanks();
    /// Trims runs of `character` at the end.
    void StripTrailingCharacters(wchar_t character);
    /// Trims runs of `character` at the start.
    void StripPrecedingCharacters(wchar_t character);

    /// Becomes the process's current directory; empty if that is longer than 260 characters.
    void GetCurrentWorkingDirectory();

    /// Keeps the first `column` characters and puts the rest into `rest`. A column of 0 or less, or above the
    /// length, changes nothing.
    void WrapLine(CKtUiString& rest, int column);
    /// Cuts pieces of `column` characters off, puts them in reading order at the head of `lines` and keeps
    /// the last piece. A column below 1 or above the length changes nothing.
    void WrapLine(CStringList& lines, int column);

    /// Becomes `text` with its middle cut to fit `width` pixels of `dc`; see ShortenToWidth.
    void ShortenString(CDC* dc, CString text, unsigned width);
    /// `text` repeated to about `width` pixels of `dc`; see RepeatToWidth. The string itself stays as it is.
    CString CreateEllipsedString(CDC* dc, CString text, unsigned width);

private:
    bool isAt(int index, bool (*passes)(wchar_t)) const;
};
