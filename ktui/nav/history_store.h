// HistoryStore: texts that a box of file navigation remembers per user. Private to the library.
//
//     HistoryStore names(L"-Find", L"FileNameMRU%d");
//     names.Load();
//     show(names.m_items);
#pragma once

#include <afxcoll.h>

/// How many texts a history has.
constexpr int kHistoryLength = 10;

class HistoryStore {
public:
    /// `section` is the key below the product's dialogs, `valueFormat` a value's name with one %d.
    HistoryStore(const wchar_t* section, const wchar_t* valueFormat, int maximum = kHistoryLength)
        : m_section(section), m_valueFormat(valueFormat), m_maximum(maximum) {}

    /// Replaces the items by the stored texts that aren't empty; none without the key.
    void Load();
    /// Stores each item. Values beyond them stay as they are. A failure is not reported.
    void Save() const;

    CString m_section;
    CString m_valueFormat;
    int m_maximum;  ///< how many values are read
    CStringArray m_items;

private:
    CString key() const;
    CString valueName(int index) const;
};
