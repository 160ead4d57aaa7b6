// CDlgFindPage2: between which dates the files to be found were written. Private to the library.
#pragma once

#include <afxdtctl.h>

#include <ktui/nav/find_page.h>
#include <ktui/nav/find_search_request.h>

class CDlgFindPage2 : public FindPage {
public:
    CDlgFindPage2() = default;

    /// No filter by date; each field at its first value. Kept: which kind of range is chosen stays.
    void Reset();
    bool IsFiltering() const;
    /// The chosen range of dates. Throws COleException for one that is no date, and `to` is set then.
    void GetRange(FindTime& from, FindTime& to) const;

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnFilter(UINT id);
    afx_msg void OnRange(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    bool isChecked(int id) const { return IsDlgButtonChecked(id) == BST_CHECKED; }
    FindTime pickedTime(int id) const;
    void setPickedTime(int id, FindTime time);
    int count(int id) const;
    /// Enables what belongs to the chosen range alone.
    void enableFields();
};
