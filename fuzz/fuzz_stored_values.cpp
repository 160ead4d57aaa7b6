// Any values of the registry become places and remembered texts by their rules, and what is written comes
// back.
//
// Each line of the input is a value, "NAME=TEXT".
#include <map>

#include <ktui/nav/stored_values.h>

#include "text_lines.h"

namespace {

using Values = std::map<std::wstring, std::wstring>;

TextOfValue reader(const Values& values) {
    return [&values](const CString& name) {
        const auto found = values.find(name.GetString());
        return found != values.end() ? CString(found->second.c_str()) : CString();
    };
}

void expectPlaces(const Values& values) {
    constexpr std::size_t kMost = 99;
    const std::vector<StoredPlace> places = PlacesIn(reader(values));
    if (places.size() > kMost) fail("too many places");
    for (std::size_t i = 0; i <= places.size() && i < kMost; ++i) {
        const auto value = values.find(L"PlacesOrder" + std::to_wstring(i));
        const std::wstring text = value != values.end() ? value->second : L"";
        if (i < places.size() ? text.empty() || places[i].name != text.c_str() : !text.empty())
            fail("the places don't end at the first empty name");
    }
    Values written;
    PutPlaces(places, [&written](const CString& name, const CString& text) {
        if (!written.emplace(name.GetString(), text.GetString()).second) fail("a value is written twice");
    });
    if (written.size() != places.size() * 3 + 1) fail("not three values a place and one behind");
    const std::vector<StoredPlace> again = PlacesIn(reader(written));
    if (again.size() != places.size()) fail("places are lost");
    for (std::size_t i = 0; i < places.size(); ++i)
        if (again[i].name != places[i].name || again[i].display != places[i].display)
            fail("a place comes back as another");
}

void expectHistory(const Values& values) {
    for (const int maximum : {0, 1, 10}) {
        const std::vector<CString> items = HistoryIn(L"FileNameMRU%d", maximum, reader(values));
        std::size_t wanted = 0;
        for (int i = 0; i < maximum; ++i) {
            const auto value = values.find(L"FileNameMRU" + std::to_wstring(i));
            if (value == values.end() || value->second.empty()) continue;
            if (wanted >= items.size() || items[wanted] != value->second.c_str()) fail("a text is lost");
            ++wanted;
        }
        if (wanted != items.size()) fail("a text that isn't there");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Values values;
    for (const std::wstring& line : linesOf(data, size)) {
        const std::size_t sign = line.find(L'=');
        if (sign != std::wstring::npos) values[line.substr(0, sign)] = line.substr(sign + 1);
    }
    expectPlaces(values);
    expectHistory(values);
    return 0;
}
