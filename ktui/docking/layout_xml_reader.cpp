#include <ktui/docking/layout_xml.h>
#include <ktui/docking/layout_xml_names.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>

namespace layouts {

namespace {

using namespace xml;

/// A whole number with nothing around it.
std::optional<long> numberIn(const CString& text, long low, long high) {
    const int start = text.GetLength() > 0 && text[0] == L'-' ? 1 : 0;
    constexpr int kMostDigits = 9;
    if (text.GetLength() == start || text.GetLength() > start + kMostDigits) return std::nullopt;
    long number = 0;
    for (int i = start; i < text.GetLength(); ++i) {
        if (text[i] < L'0' || text[i] > L'9') return std::nullopt;
        number = number * 10 + (text[i] - L'0');
    }
    if (start == 1) number = -number;
    return number >= low && number <= high ? std::optional(number) : std::nullopt;
}

/// Reads one layout after the other. From the first fault on everything answers false or 0.
class Reader {
public:
    explicit Reader(Fault& fault) : m_fault(fault) { m_fault = {}; }

    bool good() const { return m_fault.kind == FaultKind::none; }
    bool readRoot(const Element& root, std::vector<NamedRecord>& layouts);

private:
    void fail(FaultKind kind, const wchar_t* attribute = L"", const CString& value = CString());
    void failAt(FaultKind kind, const wchar_t* child);
    const CString* text(const Element& element, const wchar_t* attribute);
    long number(const Element& element, const wchar_t* attribute, long low, long high);
    bool flag(const Element& element, const wchar_t* attribute) {
        return number(element, attribute, 0, 1) != 0;
    }
    int choice(const Element& element, const wchar_t* attribute, std::initializer_list<const wchar_t*> names);
    unsigned paneId(const Element& element, const wchar_t* attribute) {
        return static_cast<unsigned>(number(element, attribute, 1, static_cast<long>(kLastPane)));
    }
    unsigned groupId(const Element& element) {
        const long number = this->number(element, kId, 1, static_cast<long>(kLastGroup - kFirstGroup) + 1);
        return kFirstGroup + static_cast<unsigned>(number) - 1;
    }
    CRect place(const Element& element);
    /// Calls `read` for each child; each must have one of the names.
    void eachChild(const Element& element, std::initializer_list<const wchar_t*> names,
                   const std::function<void(const Element&)>& read);
    void checkVersion(const Element& root);
    void readLayout(const Element& element, NamedRecord& layout);
    void readTree(const Element& element, Tree& tree, bool docked, int depth);
    void readOnlyTree(const Element& parent, Tree& tree, bool docked);
    void readLeaf(const Element& element, Tree& tree, bool docked);
    void readRow(const Element& element, Record& record);
    void readFrame(const Element& element, Record& record);
    void readGroup(const Element& element, Record& record);
    void readState(const Element& element, Record& record);
    void addMissingStates(Record& record) const;

    Fault& m_fault;
    CString m_path;
    std::map<CString, bool> m_names;  ///< of layouts, in lower case
    std::set<unsigned> m_docked, m_dockedShown, m_floating, m_groups, m_tabs, m_states;
};

void Reader::fail(FaultKind kind, const wchar_t* attribute, const CString& value) {
    if (good()) m_fault = {kind, m_path, attribute, value};
}

void Reader::failAt(FaultKind kind, const wchar_t* child) {
    const CString former = m_path;
    m_path += (m_path.IsEmpty() ? L"" : L"/") + CString(child);
    fail(kind);
    m_path = former;
}

const CString* Reader::text(const Element& element, const wchar_t* attribute) {
    const CString* found = good() ? element.find(attribute) : nullptr;
    if (found == nullptr) fail(FaultKind::missingAttribute, attribute);
    return found;
}

long Reader::number(const Element& element, const wchar_t* attribute, long low, long high) {
    const CString* value = text(element, attribute);
    if (value == nullptr) return 0;
    const std::optional<long> number = numberIn(*value, low, high);
    if (!number) fail(FaultKind::badAttribute, attribute, *value);
    return number.value_or(0);
}

int Reader::choice(const Element& element, const wchar_t* attribute,
                   std::initializer_list<const wchar_t*> names) {
    const CString* value = text(element, attribute);
    if (value == nullptr) return 0;
    int index = 0;
    for (const wchar_t* name : names) {
        if (*value == name) return index;
        ++index;
    }
    fail(FaultKind::badAttribute, attribute, *value);
    return 0;
}

CRect Reader::place(const Element& element) {
    const long left = number(element, kLeft, -kMostPixels, kMostPixels);
    const long top = number(element, kTop, -kMostPixels, kMostPixels);
    const long width = number(element, kWidth, 0, kMostPixels);
    const long height = number(element, kHeight, 0, kMostPixels);
    return CRect(CPoint(static_cast<int>(left), static_cast<int>(top)),
                 CSize(static_cast<int>(width), static_cast<int>(height)));
}

void Reader::eachChild(const Element& element, std::initializer_list<const wchar_t*> names,
                       const std::function<void(const Element&)>& read) {
    if (good() && element.children.size() > kMostOf) return fail(FaultKind::tooMany);
    const CString here = m_path;
    std::map<CString, int> counts;
    for (const Element& child : element.children) {
        if (!good()) break;
        m_path.Format(L"%s%s%s[%d]", here.GetString(), here.IsEmpty() ? L"" : L"/", child.name.GetString(),
                      ++counts[child.name]);
        if (std::ranges::none_of(names, [&](const wchar_t* name) { return child.name == name; }))
            fail(FaultKind::unknownElement);
        else
            read(child);
    }
    m_path = here;
}

void Reader::checkVersion(const Element& root) {
    if (root.name != kRoot) return failAt(FaultKind::foreign, root.name);
    const CString here = m_path;
    m_path = kRoot;
    const CString* version = text(root, kVersion);
    const std::optional<long> number =
        version != nullptr ? numberIn(*version, 0, 999'999'999) : std::optional<long>();
    if (version != nullptr && !number) fail(FaultKind::badAttribute, kVersion, *version);
    if (number && *number < kFileVersion) fail(FaultKind::older, kVersion, *version);
    if (number && *number > kFileVersion) fail(FaultKind::newer, kVersion, *version);
    m_path = here;
}

bool Reader::readRoot(const Element& root, std::vector<NamedRecord>& layouts) {
    checkVersion(root);
    std::vector<NamedRecord> read;
    eachChild(root, {kLayout}, [&](const Element& child) {
        NamedRecord layout;
        readLayout(child, layout);
        read.push_back(std::move(layout));
    });
    if (good() && read.empty()) failAt(FaultKind::missingElement, kLayout);
    if (good()) layouts = std::move(read);
    return good();
}

void Reader::readLayout(const Element& element, NamedRecord& layout) {
    for (auto* ids : {&m_docked, &m_dockedShown, &m_floating, &m_groups, &m_tabs, &m_states}) ids->clear();
    if (const CString* name = text(element, kName)) {
        layout.name = TrimmedName(*name);
        if (!IsName(layout.name)) fail(FaultKind::badAttribute, kName, *name);
        CString lower = layout.name;
        lower.MakeLower();
        if (!m_names.emplace(lower, true).second) fail(FaultKind::doubledId, kName, *name);
    }
    // The groups go first: what stands in a row must be there.
    std::map<CString, const Element*> parts;
    eachChild(element, {kDocked, kFloating, kTabs, kPanes}, [&](const Element& part) {
        if (!parts.emplace(part.name, &part).second) fail(FaultKind::unknownElement);
    });
    for (const wchar_t* name : {kTabs, kDocked, kFloating, kPanes})
        if (good() && parts.count(name) == 0) failAt(FaultKind::missingElement, name);
    const auto readPart = [&](const wchar_t* part, const wchar_t* child,
                              void (Reader::*read)(const Element&, Record&)) {
        if (!good()) return;
        const CString here = m_path;
        m_path.Format(L"%s/%s[1]", here.GetString(), part);
        eachChild(*parts[part], {child}, [&](const Element& each) { (this->*read)(each, layout.record); });
        m_path = here;
    };
    readPart(kTabs, kTabGroup, &Reader::readGroup);
    readPart(kDocked, kRow, &Reader::readRow);
    readPart(kFloating, kFrame, &Reader::readFrame);
    readPart(kPanes, kState, &Reader::readState);
    // Every group stands somewhere.
    for (std::size_t i = 0; i < layout.record.groups.size() && good(); ++i) {
        const unsigned id = layout.record.groups[i].id;
        if (m_docked.count(id) != 0 || m_floating.count(id) != 0) continue;
        m_path.Format(L"%s/%s[1]/%s[%d]", m_path.GetString(), kTabs, kTabGroup, static_cast<int>(i) + 1);
        const Element& group = parts[kTabs]->children[i];
        fail(FaultKind::unknownId, kId, *group.find(kId));
    }
    if (good()) addMissingStates(layout.record);
}

void Reader::readGroup(const Element& element, Record& record) {
    Group group;
    group.id = groupId(element);
    if (good() && !m_groups.insert(group.id).second) fail(FaultKind::doubledId, kId, *element.find(kId));
    group.active = paneId(element, kActive);
    eachChild(element, {kTab}, [&](const Element& child) {
        const Tab tab{paneId(child, kPane), flag(child, kShown)};
        if (good() && !m_tabs.insert(tab.pane).second) fail(FaultKind::doubledId, kPane, *child.find(kPane));
        if (!child.children.empty()) failAt(FaultKind::unknownElement, child.children.front().name);
        group.tabs.push_back(tab);
    });
    if (good() && group.tabs.empty()) failAt(FaultKind::missingElement, kTab);
    if (good() && std::ranges::find(group.tabs, group.active, &Tab::pane) == group.tabs.end())
        fail(FaultKind::unknownId, kActive, *element.find(kActive));
    record.groups.push_back(std::move(group));
}

void Reader::readRow(const Element& element, Record& record) {
    Row row;
    row.side = static_cast<Side>(
        choice(element, kSide, {kSideNames[0], kSideNames[1], kSideNames[2], kSideNames[3]}));
    row.extent = static_cast<int>(number(element, kExtent, 0, kMostPixels));
    readOnlyTree(element, row.panes, true);
    record.rows.push_back(std::move(row));
}

void Reader::readFrame(const Element& element, Record& record) {
    Frame frame;
    frame.place = place(element);
    readOnlyTree(element, frame.panes, false);
    record.frames.push_back(std::move(frame));
}

void Reader::readOnlyTree(const Element& parent, Tree& tree, bool docked) {
    bool isThere = false;
    eachChild(parent, {kSplit, kPane, kTabGroup}, [&](const Element& child) {
        if (isThere) return fail(FaultKind::unknownElement);
        isThere = true;
        readTree(child, tree, docked, 0);
    });
    if (good() && !isThere) failAt(FaultKind::missingElement, kPane);
}

void Reader::readTree(const Element& element, Tree& tree, bool docked, int depth) {
    if (element.name != kSplit) return readLeaf(element, tree, docked);
    if (depth >= kDeepest) return fail(FaultKind::tooDeep);
    tree.upright = choice(element, kDirection, {kBeside, kBelow}) == 0;
    tree.share = static_cast<int>(number(element, kShare, 0, kWhole));
    eachChild(element, {kSplit, kPane, kTabGroup}, [&](const Element& child) {
        if (tree.halves.size() == 2) return fail(FaultKind::unknownElement);
        Tree half;
        readTree(child, half, docked, depth + 1);
        tree.halves.push_back(std::move(half));
    });
    if (good() && tree.halves.size() != 2) failAt(FaultKind::missingElement, kPane);
}

void Reader::readLeaf(const Element& element, Tree& tree, bool docked) {
    const bool isGroup = element.name == kTabGroup;
    tree.id = isGroup ? groupId(element) : paneId(element, kId);
    tree.shown = flag(element, kShown);
    if (element.find(kHides) != nullptr) {
        tree.hides = flag(element, kHides);
        if (tree.hides && (!docked || !tree.shown))
            fail(FaultKind::badAttribute, kHides, *element.find(kHides));
        if (tree.hides) {
            tree.size.cx = static_cast<int>(number(element, kWidth, 0, kMostPixels));
            tree.size.cy = static_cast<int>(number(element, kHeight, 0, kMostPixels));
        }
    }
    if (!element.children.empty()) failAt(FaultKind::unknownElement, element.children.front().name);
    if (!good()) return;
    const CString& id = *element.find(kId);
    if (isGroup && m_groups.count(tree.id) == 0) return fail(FaultKind::unknownId, kId, id);
    const bool stands = tree.shown || !docked;
    const bool isElsewhere =
        (stands && m_tabs.count(tree.id) != 0) || (!docked && m_dockedShown.count(tree.id) != 0);
    if (isElsewhere || !(docked ? m_docked : m_floating).insert(tree.id).second)
        fail(FaultKind::doubledId, kId, id);
    if (docked && tree.shown) m_dockedShown.insert(tree.id);
}

void Reader::readState(const Element& element, Record& record) {
    Pane pane;
    pane.id = paneId(element, kId);
    if (const CString* name = text(element, kName)) pane.name = *name;
    pane.floating = place(element);
    if (element.find(kPalette) != nullptr)
        pane.palette = static_cast<int>(number(element, kPalette, 0, kMostPalettes));
    if (!element.children.empty()) failAt(FaultKind::unknownElement, element.children.front().name);
    if (good() && !m_states.insert(pane.id).second) fail(FaultKind::doubledId, kId, *element.find(kId));
    record.panes.push_back(std::move(pane));
}

/// A pane of which nothing is said still has its place.
void Reader::addMissingStates(Record& record) const {
    for (const unsigned id : PlacedPanes(record))
        if (m_states.count(id) == 0) record.panes.push_back({id, {}, CRect(0, 0, 0, 0), -1});
}

}  // namespace

CString TrimmedName(const CString& name) {
    CString trimmed = name;
    return trimmed.Trim(L' ');
}

bool IsName(const CString& name) {
    if (name.IsEmpty() || name.GetLength() > kLongestName) return false;
    for (int i = 0; i < name.GetLength(); ++i)
        if (name[i] < L' ') return false;
    return true;
}

bool FromElement(const Element& root, std::vector<NamedRecord>& layouts, Fault& fault) {
    return Reader(fault).readRoot(root, layouts);
}

}  // namespace layouts
