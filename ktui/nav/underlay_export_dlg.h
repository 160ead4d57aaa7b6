// CNavUnderlayExportFileDlg: the navigation file dialog that exports a drawing to a DWF, DWFx or PDF file. It
// shows the options in force and lets the user choose the plot area and the page set-up; the host's plot
// service (kKhPlotService) does the work. CNavDialogImp makes it where CKtUiNavDialog::ConvertFlagsToState
// got 0x10000000. Private to the library.
//
// Without the service the added controls stay inert. Nothing is written here: the caller exports to the path
// that the dialog gave.
#pragma once

#include <ktui/controls/ktui_buttons.h>
#include <ktui/nav/nav_file_dlg.h>
#include <ktui/nav/underlay_export_rules.h>

class CKhPlotSvr;

class CNavUnderlayExportFileDlg : public CNavFileDlg {
    DECLARE_DYNAMIC(CNavUnderlayExportFileDlg)

public:
    /// As CNavFileDlg; a Save dialog gets the template of the export in the place of the usual ones.
    CNavUnderlayExportFileDlg(CNavDialogImp* owner, int open, const wchar_t* fileName, unsigned long flags,
                              const wchar_t* filter);

protected:
    void OnInitDone() override;
    BOOL OnFileNameOK() override;

    // Each takes the hot keys away until it is done, and does nothing else without the service.
    afx_msg void OnExportOptions();
    afx_msg void OnPlotStamp();
    afx_msg void OnPickWindow();
    afx_msg void OnOverride();
    afx_msg void OnFirstSwitch();
    afx_msg void OnSecondSwitch();
    afx_msg void OnAreaSelected();
    afx_msg void OnPageSetupSelected();
    DECLARE_MESSAGE_MAP()

private:
    void settleFormat();
    void refreshSummary(CKhPlotSvr& service);
    void fillAreas(CKhPlotSvr& service);
    void fillPageSetups(CKhPlotSvr& service);
    void say(int id, const ExportText& text);
    void enable(int id, bool enabled);
    void check(int id, bool checked);
    /// Hides the dialog from the user while work is done in the drawing, and shows it again.
    void stepAside(bool aside);
    void tellInUse(const CString& path) const;

    int m_tag = 1;  ///< what the page set-up override goes by
    int m_format = 0;
    int m_flag = 1;
    CKtUiBitmapButton m_plotStamp;
    CKtUiBitmapButton m_windowPick;
};
