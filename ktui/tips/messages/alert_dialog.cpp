#include <ktui/tips/messages/alert_dialog.h>

#include <ktdsres/resource_ids.h>

#include <ktui/controls/kbui_bitmap_button.h>
#include <ktui/dialogs/kbui_dialog.h>
#include <ktui/host/loaded_module.h>
#include <ktui/host/resource_scope.h>

namespace {

constexpr int kFirst = 0, kSecond = 1, kCancel = -1;

class CAlertDlg : public CKbUiDialog {
public:
    CAlertDlg(const wchar_t* caption, const wchar_t* text, const wchar_t* first, const wchar_t* second,
              unsigned defaultIndex)
        : CKbUiDialog(IDD_ALERT, nullptr, nullptr),
          m_caption(caption),
          m_text(text),
          m_first(first),
          m_second(second),
          m_default(defaultIndex <= kSecond ? static_cast<int>(defaultIndex) : kCancel) {}

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CKbUiDialog::DoDataExchange(exchange);
        DDX_Control(exchange, IDC_ALERT_SIGN, m_sign);
    }

    BOOL OnInitDialog() override {
        CKbUiDialog::OnInitDialog();
        m_sign.LoadBitmapW(L"WARNINGBMP");
        SetWindowText(m_caption != nullptr ? m_caption : L"");
        SetDlgItemText(IDC_ALERT_TEXT, m_text);
        if (m_first != nullptr) SetDlgItemText(IDC_ALERT_FIRST, m_first);
        if (m_second != nullptr)
            SetDlgItemText(IDC_ALERT_SECOND, m_second);
        else
            leaveTwoButtons();
        return markDefault() ? FALSE : TRUE;
    }

    void OnOK() override {
        // Kept: Enter does nothing if the second answer is the default and there is none.
        if (m_default == kSecond && m_second == nullptr) return;
        EndDialog(m_default);
    }
    void OnCancel() override { EndDialog(kCancel); }
    afx_msg void OnFirst() { EndDialog(kFirst); }
    afx_msg void OnSecond() { EndDialog(kSecond); }
    DECLARE_MESSAGE_MAP()

private:
    CRect placeOf(int id) {
        CRect rect;
        GetDlgItem(id)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        return rect;
    }

    /// The first answer and Cancel share the width evenly.
    void leaveTwoButtons() {
        CRect client, first = placeOf(IDC_ALERT_FIRST), cancel = placeOf(IDCANCEL);
        GetClientRect(&client);
        const int width = first.Width(), gap = (client.Width() - 2 * width) / 3;
        first.MoveToX(gap);
        cancel.MoveToXY(gap + width + gap, first.top);
        GetDlgItem(IDC_ALERT_FIRST)->MoveWindow(&first);
        GetDlgItem(IDCANCEL)->MoveWindow(&cancel);
        GetDlgItem(IDC_ALERT_SECOND)->ShowWindow(SW_HIDE);
        GetDlgItem(IDC_ALERT_SECOND)->EnableWindow(FALSE);
    }

    /// Marks the default button and gives it the focus; false if there is none.
    bool markDefault() {
        if (m_default == kSecond && m_second == nullptr) return false;
        const int id = m_default == kFirst    ? IDC_ALERT_FIRST
                       : m_default == kSecond ? IDC_ALERT_SECOND
                                              : IDCANCEL;
        CWnd* const button = GetDlgItem(id);
        button->ModifyStyle(0, BS_DEFPUSHBUTTON);
        button->SetFocus();
        return true;
    }

    CKbUiBitmapStatic m_sign;
    // The caller's own strings.
    const wchar_t* m_caption;
    const wchar_t* m_text;
    const wchar_t* m_first;
    const wchar_t* m_second;
    int m_default;  ///< the answer of Enter
};

BEGIN_MESSAGE_MAP(CAlertDlg, CKbUiDialog)
    ON_BN_CLICKED(IDC_ALERT_FIRST, &CAlertDlg::OnFirst)
    ON_BN_CLICKED(IDC_ALERT_SECOND, &CAlertDlg::OnSecond)
END_MESSAGE_MAP()

}  // namespace

int KbUiAlertDialog(const wchar_t* caption, const wchar_t* text, const wchar_t* first, const wchar_t* second,
                    unsigned defaultIndex) {
    const ResourceScope scope(LoadedToolkit().resourceLibrary);
    CAlertDlg dialog(caption, text, first, second, defaultIndex);
    return static_cast<int>(dialog.DoModal());
}
