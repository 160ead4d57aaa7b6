// The window that tells what is printed, and by which it is given up.
#pragma once

#include <kmfc/dialog.h>

namespace kmfc {

class PrintingDialog : public CDialog {
public:
    /// What is printed, on what, and where to: names for the user.
    PrintingDialog(const CString& document, const CString& device, const CString& port);

    /// Shows it over the main window.
    bool show();
    void tell_page(UINT page);
    bool was_given_up() const { return m_givenUp; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override;

private:
    CString m_document, m_device, m_port;
    bool m_givenUp = false;

    DECLARE_MESSAGE_MAP()
};

}  // namespace kmfc
