// Any filters become pairs of a text and a match list, and any path is taken apart without a rest.
//
// Each line of the input is a filter, its fields parted by tabs: the description, then the patterns. A line
// that begins with "!" has a full description.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <ktui/nav/file_dialog_start.h>
#include <ktui/nav/filter_string.h>
#include <ktui/nav/type_change.h>

namespace {

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

/// The pieces of `text` between `separator`, also empty ones.
std::vector<std::wstring> split(const std::wstring& text, wchar_t separator) {
    std::vector<std::wstring> pieces(1);
    for (const wchar_t character : text)
        if (character == separator)
            pieces.emplace_back();
        else
            pieces.back() += character;
    return pieces;
}

void addFilter(CNavFilterArray& filters, const std::wstring& line) {
    CNavFilter& filter = *filters.AddData();
    const std::vector<std::wstring> fields = split(line, L'\t');
    for (std::size_t i = 1; i < fields.size(); ++i) filter.Add(fields[i].c_str());
    if (line[0] == L'!')
        filter.SetFullDescription(fields[0].c_str() + 1);
    else
        filter.SetDescription(fields[0].c_str());
}

/// Without bars of its own, each filter is a text and a list that isn't empty, unless its pattern is.
void expectPairs(const CNavFilterArray& filters) {
    const std::wstring text = BuildFilterString(filters).GetString();
    const std::size_t wanted =
        filters.GetCount() == 0 ? 1 : 2 * static_cast<std::size_t>(filters.GetCount()) + 2;
    if (split(text, L'|').size() != wanted) fail("the filters are not pairs");
}

void expectParts(const CString& path) {
    const CString name = NamePart(path), extension = ExtensionPart(path);
    if (name.GetLength() < 255 && path.Right(name.GetLength() + extension.GetLength()) != name + extension)
        fail("name and extension are not the path's end");
    if (name.FindOneOf(L"\\/") >= 0 || extension.FindOneOf(L"\\/") >= 0) fail("a part holds a folder");
    if (const auto typed = NameForPattern(path, L"*.dwg"); typed && typed->Right(4) != L".dwg")
        fail("a name has another extension");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::wstring text;
    for (std::size_t i = 0; i < size; ++i)
        if (data[i] != 0 && data[i] != '|') text += static_cast<wchar_t>(data[i]);
    CNavFilterArray filters;
    for (const std::wstring& line : split(text, L'\n')) {
        if (line.empty()) continue;
        addFilter(filters, line);
        expectParts(line.c_str());
        const CNavFilter& last = *filters.GetData(filters.GetCount() - 1);
        if (last.GetCount() > 0 && last.Find(last.GetAt(0)) != 0)
            fail("a filter does not find its first pattern");
    }
    expectPairs(filters);
    const int count = filters.GetCount();
    const unsigned long stored = size == 0 ? 0 : data[0] * 16777259ul & 0xFFFFFFFF;
    if (StartFilterIndex({-1, stored, 0, 0, count}) > static_cast<unsigned long>(count) + 1)
        fail("no such type");
    return 0;
}
