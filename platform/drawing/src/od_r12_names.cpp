#include "od_r12_names.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace {

constexpr std::size_t kLongestName = 31;
constexpr std::size_t kLongestText = 250;  // bytes of one text in extended data
constexpr int kApplicationName = 1001;
constexpr int kXDataText = 1000;
constexpr int kXDataLayer = 1003;

/// A group that bears a record's name.
struct NameGroup {
    std::string_view type;
    int code;
    OdTableKind kind;
};

constexpr NameGroup kNameGroups[] = {
    {"TEXT", 7, kTextStyleTable}, {"ATTRIB", 7, kTextStyleTable}, {"ATTDEF", 7, kTextStyleTable},
    {"INSERT", 2, kBlockTable},   {"DIMENSION", 2, kBlockTable},  {"DIMENSION", 3, kDimStyleTable},
    {"LAYER", 6, kLinetypeTable}, {"DIMSTYLE", 5, kBlockTable},   {"DIMSTYLE", 6, kBlockTable},
    {"DIMSTYLE", 7, kBlockTable},
};

/// A header variable whose value is a record's name.
struct NameVariable {
    std::string_view name;
    OdTableKind kind;
};

constexpr NameVariable kNameVariables[] = {
    {"CLAYER", kLayerTable},      {"CELTYPE", kLinetypeTable}, {"TEXTSTYLE", kTextStyleTable},
    {"DIMSTYLE", kDimStyleTable}, {"DIMBLK", kBlockTable},     {"DIMBLK1", kBlockTable},
    {"DIMBLK2", kBlockTable},     {"UCSNAME", kUcsTable},      {"PUCSNAME", kUcsTable},
};

bool isLegal(wchar_t c) {
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'$' ||
           c == L'-' || c == L'_';
}

/// What may begin the name of a block or viewport that the program made, or part a reference from its name.
bool isSpecial(std::wstring_view name, std::size_t at) {
    return (at == 0 && name[0] == L'*') || name[at] == L'|';
}

std::wstring legalForm(std::wstring_view name) {
    std::wstring legal;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool secondHalf = name[i] >= 0xDC00 && name[i] < 0xE000;
        if (!secondHalf) legal += isLegal(name[i]) || isSpecial(name, i) ? name[i] : L'_';
    }
    if (legal.size() > kLongestName) legal.resize(kLongestName);
    return legal;
}

/// The legal names of one table that are taken, and what was made of each that was wanted again.
class TakenNames {
public:
    void take(const std::wstring& name) { m_taken.insert(odFoldedName(name.c_str())); }
    /// `legal`, or with a number at its end if that is taken.
    std::wstring freeForm(const std::wstring& legal) {
        std::wstring form = legal;
        int& number = m_numbers.emplace(odFoldedName(legal.c_str()), 1).first->second;
        while (!m_taken.insert(odFoldedName(form.c_str())).second) {
            const std::wstring end = L"_" + std::to_wstring(++number);
            form = legal.substr(0, kLongestName - end.size()) + end;
        }
        return form;
    }

private:
    std::unordered_set<std::wstring> m_taken;  // folded
    std::unordered_map<std::wstring, int> m_numbers;
};

bool isOfWholeNames(const OdString& application) {
    return application.iCompare(odWide(kOdWholeNames).c_str()) == 0;
}

/// The legal and the whole name that stand in extended data; both empty if they don't.
struct BothNames {
    OdString legal, whole;
};

BothNames takeNames(OdGroupList& groups) {
    BothNames names;
    OdGroup group;
    std::uint32_t at = 0;
    while (groups.read(at, group) && (group.code != kApplicationName || group.text != kOdWholeNames))
        at = group.end;
    if (group.code != kApplicationName || group.text != kOdWholeNames) return names;
    const std::uint32_t begin = at;
    std::string whole;
    int count = 0;
    for (at = group.end; groups.read(at, group) && group.code == kXDataText; at = group.end) {
        if (count++ == 0)
            names.legal = group.wide();
        else
            whole += group.text;
    }
    names.whole = odWide(whole);
    // What stands behind extended data without being some would become the record's own.
    while (groups.read(at, group) && !odIsExtendedDataCode(group.code)) at = group.end;
    groups.replace(begin, at, OdGroupList());
    return names;
}

}  // namespace

void OdRecordNames::add(OdTableKind kind, const OdString& name, const OdString& other) {
    if (m_names[kind].emplace(odFoldedName(name), other).second) ++m_count;
}

const OdString* OdRecordNames::find(OdTableKind kind, const OdString& name) const {
    if (m_names[kind].empty()) return nullptr;
    const auto found = m_names[kind].find(odFoldedName(name));
    return found == m_names[kind].end() ? nullptr : &found->second;
}

OdString OdRecordNames::of(OdTableKind kind, const OdString& name) const {
    const OdString* other = find(kind, name);
    return other ? *other : name;
}

void OdRecordNames::replaceAt(OdTableKind kind, const OdGroup& group, OdGroupList& groups) const {
    const OdString* other = find(kind, group.wide());
    if (!other) return;
    OdGroupList named;
    named.addText(group.code, *other);
    groups.replace(group.begin, group.end, named);
}

void OdRecordNames::replaceIn(std::string_view type, OdGroupList& groups) const {
    if (isEmpty()) return;
    OdGroup group;
    for (const NameGroup& name : kNameGroups)
        if (name.type == type && groups.find(name.code, group)) replaceAt(name.kind, group, groups);
    for (std::uint32_t at = groups.ownEnd(); groups.read(at, group);) {
        const std::uint32_t begin = group.begin;
        if (group.code == kApplicationName) replaceAt(kRegAppTable, group, groups);
        if (group.code == kXDataLayer) replaceAt(kLayerTable, group, groups);
        groups.read(begin, group);
        at = group.end;
    }
}

void OdRecordNames::replaceInVariable(std::string_view variable, OdGroupList& groups) const {
    OdGroup group;
    for (const NameVariable& entry : kNameVariables)
        if (entry.name == variable && groups.read(0, group) && group.kind == OdGroupKind::kText)
            replaceAt(entry.kind, group, groups);
}

bool odIsR12Name(std::wstring_view name) { return legalForm(name) == name; }

OdRecordNames odR12Names(const OdDbStore& store) {
    OdRecordNames names;
    for (int table = 0; table < kTableCount; ++table) {
        const auto kind = static_cast<OdTableKind>(table);
        TakenNames taken;
        if (kind == kRegAppTable) taken.take(odWide(kOdWholeNames).c_str());
        if (kind == kBlockTable)
            for (const wchar_t* space : {L"$MODEL_SPACE", L"$PAPER_SPACE"}) taken.take(space);
        std::vector<const OdDbSymbolTableRecord*> illegal;
        for (const OdDbSymbolTableRecord* record : store.records(kind)) {
            if (record->isErased()) continue;
            const std::wstring folded = odFoldedName(record->getName());
            if (odIsR12Name(record->getName().view()) || store.namesOfR12File[kind].count(folded))
                taken.take(folded);
            else
                illegal.push_back(record);
        }
        for (const OdDbSymbolTableRecord* record : illegal) {
            if (names.find(kind, record->getName())) continue;
            const std::wstring legal = legalForm(record->getName().view());
            names.add(kind, record->getName(), OdString(taken.freeForm(legal)));
        }
    }
    return names;
}

OdGroupList odWholeNameData(const OdString& legal, const OdString& whole) {
    OdGroupList data;
    data.addText(kApplicationName, kOdWholeNames);
    data.addText(kXDataText, legal);
    const std::string utf8 = odUtf8(whole.view());
    for (std::string_view rest = utf8; !rest.empty();) {
        std::size_t size = std::min(rest.size(), kLongestText);
        while (size < rest.size() && (rest[size] & 0xC0) == 0x80) --size;
        data.addText(kXDataText, rest.substr(0, size));
        rest.remove_prefix(size);
    }
    return data;
}

void odTakeWholeNames(OdDbStore& store) {
    // A damaged file may name the application more than once, or not at all.
    for (OdDbSymbolTableRecord* application : store.records(kRegAppTable))
        if (isOfWholeNames(application->getName())) store.isErasedOf(*application) = true;
    OdRecordNames whole;
    for (int table = 0; table < kTableCount; ++table) {
        const auto kind = static_cast<OdTableKind>(table);
        for (OdDbSymbolTableRecord* record : store.records(kind)) {
            OdGroupList& groups = kind == kBlockTable
                                      ? store.blockBegin(static_cast<OdDbBlockTableRecord&>(*record))
                                      : store.groupsOf(*record);
            const BothNames names = takeNames(groups);
            // A damaged file may hold them more than once; the first are meant.
            for (std::uint32_t size = groups.size(); takeNames(groups), groups.size() != size;)
                size = groups.size();
            const bool isMeant = !names.whole.isEmpty() && record->getName().iCompare(names.legal) == 0;
            const bool isOurs = kind == kRegAppTable && isOfWholeNames(names.whole);
            if (!isMeant || isOurs || store.record(kind, names.whole)) continue;
            whole.add(kind, record->getName(), names.whole);
            store.nameOf(*record) = names.whole;
        }
    }
    store.refreshNames();
    if (whole.isEmpty()) return;
    for (const auto& entry : store.objects) {
        OdDbObject& object = *entry.second;
        whole.replaceIn(object.dxfName(), store.groupsOf(object));
    }
    for (const OdDbHeader::Variable& variable : store.header.variables()) {
        OdGroupList groups = variable.groups;
        whole.replaceInVariable(variable.name, groups);
        if (!(groups == variable.groups)) store.header.set(variable.name, groups);
    }
}
