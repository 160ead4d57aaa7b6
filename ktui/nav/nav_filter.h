// CNavFilter: one line of the list of file types of a navigation dialog; CNavFilterArray: the whole list.
// Without any window.
//
//     CNavFilterArray filters;
//     CNavFilter* drawings = filters.AddData();
//     drawings->SetDescription(L"Drawing");  // shown as Drawing(*.dwg,*.dxf)
//     drawings->Add(L"*.dwg");
//     drawings->Add(L"*.dxf");
//
// A filter without patterns stands for all files.
#pragma once

#include <ktui/ktui_api.h>
#include <ktui/nav/nav_array.h>

/// The elements are the patterns, each with its wildcard, as in `*.dwg`.
class KTUI_API CNavFilter : public CStringArray {
public:
    CNavFilter() = default;
    ~CNavFilter() override;

    /// Number of patterns.
    int GetCount() const { return static_cast<int>(GetSize()); }

    /// The text as it was set.
    const wchar_t* GetDescription() const { return m_description; }
    /// Sets the text that the patterns are still to be added to; nothing for null.
    void SetDescription(const wchar_t* text);
    /// Sets the complete text of the line; nothing for null.
    void SetFullDescription(const wchar_t* text);
    /// The text of the line as it is shown: the full one, or else the description with the patterns behind
    /// it, `Drawing(*.dwg,*.dxf)`.
    void GetFullDescription(CString& text) const;

    /// The caller's number for this filter.
    int GetTagIndex() const { return m_tagIndex; }
    void SetTagIndex(int index) { m_tagIndex = index; }

    /// Index of the first pattern equal to `pattern` (not null) without regard to case, or -1.
    int Find(const wchar_t* pattern) const;
    /// 1 if there are no patterns or the pattern `*.name` with the whole of `name` is there; 0 otherwise,
    /// also for null and for a name without a point.
    int IsAllowed(const wchar_t* name) const;
    /// Empties the patterns; with a text, not null, becomes a filter of this description, full or not.
    /// Answers an empty text.
    const wchar_t* SetFrom(const wchar_t* text, int isFull);

private:
    int m_isFullDescription = 0;  ///< 1: m_description is the whole line
    CString m_description;
    int m_tagIndex = 0;
};

/// The filters of a dialog, which it owns.
class KTUI_API CNavFilterArray : public CNavArray<CNavFilter> {
public:
    CNavFilterArray() = default;
    ~CNavFilterArray() override;

    /// Becomes one filter with this description, without patterns and with tag index 1.
    void SetFrom(const wchar_t* text, int isFull);
    /// Index of the first filter that holds a pattern equal without regard to case; -1 for none or null.
    int Find(const wchar_t* pattern) const;
    /// Index of the first filter whose patterns, put together, equal `text` without regard to case; -1 for
    /// none or null. One pattern is `a`, two are `ab,`, three `ab,c,`.
    int FindExact(const wchar_t* text) const;
};
