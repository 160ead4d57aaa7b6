// A host's first dialog: a distance that is validated as it is typed, in a dialog that remembers its place.
#include <ktui/ktui.h>
#include <standin_host.h>

#include "resource.h"

class CDistanceDialog : public CKtUiDialog {
public:
    CDistanceDialog() : CKtUiDialog(IDD_DISTANCE) {}
    CKtUiNumericEdit m_distance;

protected:
    void DoDataExchange(CDataExchange* exchange) override { DDX_Control(exchange, IDC_DISTANCE, m_distance); }
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiDialog::OnInitDialog();
        m_distance.SetStyleMask(kKtUiEditValidateOnKillFocus);
        m_distance.SetRange(0, 1000);
        StretchControlX(IDC_DISTANCE, 100);
        return result;
    }
    void OnOK() override {
        if (m_distance.Validate()) CKtUiDialog::OnOK();
    }
};

class CMinimalApp : public CWinApp {
    BOOL InitInstance() override {
        InitKtUiDLL();
        CStandinHost host(*this);
        CDistanceDialog().DoModal();
        return FALSE;
    }
} theApp;
