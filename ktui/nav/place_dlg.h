// CPlaceDlg: asks for the caption and the folder of a row of the Places list. Private to the library.
//
//     CPlaceDlg dialog(this, item.m_display, item.m_path);
//     if (dialog.DoModal() == IDOK) store(dialog.m_display, dialog.m_path);
#pragma once

#include <ktui/dialogs/ktui_dialog.h>

class CPlaceDlg : public CKtUiDialog {
    DECLARE_DYNAMIC(CPlaceDlg)

public:
    /// With an empty `display` it is a new place that is asked for.
    explicit CPlaceDlg(CWnd* parent, const CString& display = {}, const CString& path = {});
    ~CPlaceDlg() override;

    CString m_display;  ///< the caption; may be empty
    CString m_path;     ///< after OK a folder that is there, without one backslash at its end

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
};
