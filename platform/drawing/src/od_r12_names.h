// Names of table records in R12: up to 31 letters without accents, digits and three signs. Other names are
// written in a legal form, with the whole name beside them in extended data, by which it comes back when the
// file is read.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_set>
#include "od_db_store.h"

/// The application under which whole names stand.
inline constexpr std::string_view kOdWholeNames = "KTUI_NAMES";

/// Other names for records, and the groups that bear them.
class OdRecordNames {
public:
    bool isEmpty() const { return m_count == 0; }
    int count() const { return m_count; }
    /// Has records called `name` called `other`.
    void add(OdTableKind kind, const OdString& name, const OdString& other);
    /// The other name; null if there is none.
    const OdString* find(OdTableKind kind, const OdString& name) const;
    /// The same, or the name itself.
    OdString of(OdTableKind kind, const OdString& name) const;
    /// Replaces the names that stand in the groups of a record of this type.
    void replaceIn(std::string_view type, OdGroupList& groups) const;
    /// Replaces the name in a header variable.
    void replaceInVariable(std::string_view variable, OdGroupList& groups) const;

private:
    void replaceAt(OdTableKind kind, const OdGroup& group, OdGroupList& groups) const;

    std::map<std::wstring, OdString> m_names[kTableCount];
    int m_count = 0;
};

/// Whether R12 can have this name.
bool odIsR12Name(std::wstring_view name);

/// The legal names of the records whose own ones aren't, each beside no other. Names that a file of R12
/// itself brought stay.
OdRecordNames odR12Names(const OdDbStore& store);

/// The extended data that keep a whole name beside the legal one.
OdGroupList odWholeNameData(const OdString& legal, const OdString& whole);

/// Gives the records of a file that was just read their whole names back.
void odTakeWholeNames(OdDbStore& store);
