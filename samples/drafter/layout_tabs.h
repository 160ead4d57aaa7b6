// CLayoutTabs: the row of tabs below a drawing's view, one for model space and one for each sheet. It is the
// system's tab control, so assistive programs know it, but paints itself, since themes know no tabs at the
// bottom; the parent hears its TCN_SELCHANGE. It takes no focus: Ctrl+Page Up and
// Ctrl+Page Down go through the tabs.
#pragma once

#include <vector>

#include <afxcmn.h>

class CLayoutTabs : public CTabCtrl {
    DECLARE_DYNAMIC(CLayoutTabs)

public:
    /// Makes the row, which takes the bottom of its parent.
    BOOL CreateTabs(CWnd* parent, UINT id);
    /// Shows these tabs, with `current` in front; nothing happens before the row is made. The parent isn't
    /// told.
    void Show(const std::vector<CString>& names, int current);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void paintTab(CDC& dc, int index);

    CFont m_font;
    std::vector<CString> m_names;
};
