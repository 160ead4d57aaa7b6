// The list of linetypes in the dialogs: name, a sample of the pattern, description. Its rows are kept by the
// list itself and asked for as they come into view, so that thousands of them cost nothing. Internal to the
// module.
#pragma once

#include <vector>

#include <afxcmn.h>

/// One linetype as it is listed.
struct LinetypeRow {
    CString name;
    CString description;
    std::vector<double> dashes;
};

class CLinetypeList : public CListCtrl {
    DECLARE_DYNAMIC(CLinetypeList)

public:
    /// Takes the place of a list view with LVS_REPORT and LVS_OWNERDATA, and gives it its columns. False when
    /// the dialog has no such control, or something else has taken it, or a column can't be had.
    bool TakeControl(UINT id, CWnd& dialog);
    /// Lists `rows` in their order; nothing is selected. False when the control does not show that many.
    bool SetRows(std::vector<LinetypeRow> rows);
    /// Selects one row alone and shows it; -1 for none.
    void Select(int row);
    /// The rows that are selected, in the order of the list.
    std::vector<int> Selected() const;

protected:
    afx_msg void OnGetDisplayInfo(NMHDR* header, LRESULT* result);
    afx_msg void OnFindItem(NMHDR* header, LRESULT* result);
    afx_msg void OnCustomDraw(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    void drawSample(CDC& dc, int row);
    std::vector<LinetypeRow> m_rows;
};
