// The plot style dialog of the stand-in host: the plot styles that an object can have under the style sheet
// of the current layout. Internal to the module.
#pragma once

#include <vector>

#include <afxwin.h>
#include <od_db.h>

#include "plotting/style_sheets.h"

class CStandinPlotStyleDialog : public CDialog {
    DECLARE_DYNAMIC(CStandinPlotStyleDialog)

public:
    /// Lists the styles of `drawing` (null for none) with `current` selected, and ByLayer and ByBlock before
    /// them if `allowMeta` holds. The arguments must outlive the dialog.
    CStandinPlotStyleDialog(OdDbDatabase* drawing, StandinStyleSheets& sheets, const CString& current,
                            bool allowMeta, CWnd* parent);

    /// The name chosen, after DoModal has answered IDOK.
    const CString& chosen() const { return m_chosen; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnDoubleClick();
    DECLARE_MESSAGE_MAP()

private:
    /// Reads the style sheet in force and says which one it is and what is wrong with it.
    void readSheet();
    /// Whether the sheet lets the style be chosen.
    bool isAllowed(const OdString& name) const;
    void collectNames();
    /// Lists the names. False when the control does not take them.
    bool fill();

    OdDbDatabase* m_drawing;
    StandinStyleSheets& m_sheets;
    CString m_chosen;
    bool m_allowMeta;
    const PlotStyleTable* m_table = nullptr;  ///< null when every style counts; only while the dialog starts
    std::vector<CString> m_names;             ///< of the entries, in their order
};
