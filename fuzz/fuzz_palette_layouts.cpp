// Any elements become layouts of panes that the framework takes, or are refused with the fault told and
// nothing changed; what is read is written back as it was, and stays within the rules when panes leave and
// return.
//
// Each line of the input is an element: spaces for its depth, its name, attributes behind bars.
#include <docking/core/layout_record.h>

#include <ktui/docking/layout_merge.h>
#include <ktui/docking/layout_numbers.h>
#include <ktui/docking/layout_xml.h>

#include "text_lines.h"

namespace {

using namespace layouts;

Element elementOf(std::wstring line) {
    Element element;
    std::size_t bar = line.find(L'|');
    element.name = line.substr(0, bar).c_str();
    while (bar != std::wstring::npos) {
        line = line.substr(bar + 1);
        bar = line.find(L'|');
        const std::wstring attribute = line.substr(0, bar);
        const std::size_t sign = attribute.find(L'=');
        if (sign != std::wstring::npos)
            element.put(attribute.substr(0, sign).c_str(), CString(attribute.substr(sign + 1).c_str()));
    }
    return element;
}

/// The first line is the root; each other one a child of the last that is less deep.
Element treeOf(const std::vector<std::wstring>& lines) {
    Element root = elementOf(lines.front());
    for (std::size_t i = 1; i < lines.size(); ++i) {
        std::size_t depth = lines[i].find_first_not_of(L' ');
        if (depth == std::wstring::npos) continue;
        Element* parent = &root;
        for (std::size_t level = 1; level < depth && !parent->children.empty(); ++level)
            parent = &parent->children.back();
        parent->children.push_back(elementOf(lines[i].substr(depth)));
    }
    return root;
}

void expectTaken(const Record& record) {
    kmfc::docking::LayoutRecord taken;
    const std::vector<std::int32_t> numbers = ToNumbers(record);
    if (!kmfc::docking::decode(numbers, taken)) fail("the framework refuses a layout");
    if (kmfc::docking::encode(taken) != numbers) fail("the framework reads another layout");
    Record again;
    if (!FromNumbers(numbers, again)) fail("numbers don't come back");
    if (again.rows.size() != record.rows.size() || again.groups != record.groups)
        fail("numbers come back as others");
}

void expectReturn(const Record& whole) {
    const std::set<unsigned> placed = PlacedPanes(whole);
    std::set<unsigned> leaving;
    for (const unsigned pane : placed)
        if (pane % 3 == 0) leaving.insert(pane);
    Record rest = whole;
    Remove(rest, leaving);
    expectTaken(rest);
    if (whole.rows.size() + whole.frames.size() + leaving.size() > kMostOf) return;
    Bring(whole, leaving, rest);
    expectTaken(rest);
    if (PlacedPanes(rest) != placed) fail("panes don't return");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Element root = treeOf(linesOf(data, size));
    std::vector<NamedRecord> layouts{{L"before", {}}};
    Fault fault;
    if (!FromElement(root, layouts, fault)) {
        if (fault.kind == FaultKind::none) fail("refused without a fault");
        if (layouts.size() != 1 || layouts[0].name != L"before") fail("a refused file changed something");
        return 0;
    }
    std::vector<NamedRecord> again;
    if (!FromElement(ToElement(layouts), again, fault) || again.size() != layouts.size())
        fail("what was written is refused");
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        if (again[i].name != layouts[i].name || !(again[i].record == layouts[i].record))
            fail("a layout comes back as another");
        expectTaken(layouts[i].record);
        expectReturn(layouts[i].record);
    }
    return 0;
}
