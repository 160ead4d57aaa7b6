// A list of names to choose one from: plot styles, linetypes. Internal to the module.
#pragma once

#include <vector>

#include <afxwin.h>

class CChoiceDialog : public CDialog {
    DECLARE_DYNAMIC(CChoiceDialog)

public:
    /// Lists `names` under the title string `titleId`, `current` chosen (-1 for none).
    CChoiceDialog(UINT titleId, std::vector<CString> names, int current, CWnd* parent);

    /// Index of the name chosen after DoModal has answered IDOK.
    int chosen() const { return m_current; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnDoubleClick();
    DECLARE_MESSAGE_MAP()

private:
    UINT m_titleId;
    std::vector<CString> m_names;
    int m_current;
};
