// Any filter text of the search gives its pairs, and any mask fits what a plain matcher says it fits.
//
// The first line is a filter text with "|" in the place of zeros, the second a typed name, the third a mask,
// the others names of files.
#include <algorithm>

#include <ktui/nav/find_mask.h>
#include <ktui/nav/find_terms.h>

#include "text_lines.h"

namespace {

void expectTypes(std::wstring text) {
    for (wchar_t& c : text)
        if (c == L'|') c = L'\0';
    text.append(2, L'\0');
    const std::vector<FindFileType> types = FileTypesOf(text.c_str());
    const wchar_t* at = text.c_str();
    for (const FindFileType& type : types) {
        if (type.description != at || *at == L'\0') fail("a type does not follow the one before");
        at += std::wstring(at).size() + 1;
        if (type.patterns != at || *at == L'\0') fail("a type without patterns");
        at += std::wstring(at).size() + 1;
        if (at > text.c_str() + text.size()) fail("beyond the filter text");
    }
}

void expectPatterns(const CString& name, const CString& type) {
    for (const CString& pattern : PatternsFor(name, type)) {
        if (pattern.IsEmpty()) fail("an empty pattern");
        if (!name.IsEmpty() && pattern[0] != L'*') fail("a typed name does not fit anywhere in a name");
        if (pattern.Find(name) < 0) fail("the typed name is lost");
    }
}

/// Whether `name` fits a mask of plain characters and `*`.
bool plainlyFits(const wchar_t* mask, const wchar_t* name) {
    const wchar_t *star = nullptr, *back = nullptr;
    while (*name != L'\0') {
        if (*mask == L'*') {
            star = ++mask;
            back = name;
        } else if (*mask == *name) {
            ++mask;
            ++name;
        } else if (star != nullptr) {
            mask = star;
            name = ++back;
        } else {
            return false;
        }
    }
    while (*mask == L'*') ++mask;
    return *mask == L'\0';
}

void expectMatch(const CString& mask, const CString& name) {
    const bool fits = FindMask(mask).Matches(name);
    if (mask == L"*" && !fits) fail("a name that the star does not fit");
    if (FindMask(name).Matches(name) != true && name.FindOneOf(L"*?<>\"") < 0)
        fail("a name does not fit itself");
    // Points before wildcards have rules of their own, as have the signs that stand for them.
    if (mask.FindOneOf(L"?<>\".") >= 0) return;
    CString small = name, smallMask = mask;
    small.MakeLower();
    smallMask.MakeLower();
    if (fits != plainlyFits(smallMask, small)) fail("not as a plain matcher");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::wstring> lines = linesOf(data, size);
    lines.resize(std::max<std::size_t>(lines.size(), 4));
    expectTypes(lines[0]);
    expectPatterns(lines[1].c_str(), lines[0].c_str());
    for (std::size_t i = 3; i < lines.size(); ++i) expectMatch(lines[2].c_str(), lines[i].c_str());
    return 0;
}
