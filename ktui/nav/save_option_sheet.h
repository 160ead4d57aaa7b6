// CSaveOptionSheet: how drawings and exchange files are saved. Private to the library.
//
//     CSaveOptionSheet sheet;
//     if (sheet.DoModal() == IDOK) ...   // the pages have stored what was set
//
// For a host with a current document and a working drawing.
#pragma once

#include <ktui/nav/dwg_page.h>
#include <ktui/nav/dxf_page.h>

class CSaveOptionSheet : public CPropertySheet {
    DECLARE_DYNAMIC(CSaveOptionSheet)

public:
    /// Without `parent` the main window is it.
    explicit CSaveOptionSheet(CWnd* parent = nullptr);
    ~CSaveOptionSheet() override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnHelp();
    /// F1 asks for what the Help button asks for.
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    DECLARE_MESSAGE_MAP()

private:
    CDwgPage m_dwgPage;
    CDxfPage m_dxfPage;
};
