#include "style_dialog.h"

#include "name_dialog.h"
#include "resource.h"

IMPLEMENT_DYNAMIC(CStyleDialog, CFieldsDialog)

BEGIN_MESSAGE_MAP(CStyleDialog, CFieldsDialog)
    ON_CBN_SELCHANGE(IDC_STYLE, &CStyleDialog::OnStyle)
    ON_CBN_DROPDOWN(IDC_STYLE, &CStyleDialog::OnStylesDropped)
    ON_CONTROL(CBN_SELENDCANCEL, IDC_STYLE, &CStyleDialog::OnStylesCancelled)
    ON_CBN_CLOSEUP(IDC_STYLE, &CStyleDialog::OnStyle)
    ON_BN_CLICKED(IDC_NEW_STYLE, &CStyleDialog::OnNewStyle)
END_MESSAGE_MAP()

void CStyleDialog::ListStyles(const OdString& name) {
    CWnd* list = GetDlgItem(IDC_STYLE);
    list->SendMessage(CB_RESETCONTENT);
    m_current = 0;
    std::size_t index = 0;
    for (const OdString& each : StyleNames()) {
        list->SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(each.c_str()));
        if (each.iCompare(name) == 0) m_current = index;
        ++index;
    }
    list->SendMessage(CB_SETCURSEL, m_current);
    show(m_current);
}

void CStyleDialog::show(std::size_t index) {
    m_current = index;
    m_isShowing = true;
    ShowStyle(index);
    m_isShowing = false;
}

void CStyleDialog::OnStyle() {
    CWnd* list = GetDlgItem(IDC_STYLE);
    const auto chosen = list->SendMessage(CB_GETCURSEL);
    if (chosen < 0 || static_cast<std::size_t>(chosen) == m_current) return;
    if (RefuseInvalid()) {
        list->SendMessage(CB_SETCURSEL, m_current);
        return;
    }
    KeepStyle(m_current);
    show(static_cast<std::size_t>(chosen));
}

void CStyleDialog::OnStylesDropped() {
    m_formerStyle = static_cast<int>(GetDlgItem(IDC_STYLE)->SendMessage(CB_GETCURSEL));
}

void CStyleDialog::OnStylesCancelled() {
    CWnd* list = GetDlgItem(IDC_STYLE);
    // One comes with the loss of the focus as well, for a list that isn't open.
    if (!list->SendMessage(CB_GETDROPPEDSTATE)) return;
    list->SendMessage(CB_SETCURSEL, static_cast<WPARAM>(m_formerStyle));
    OnStyle();
}

void CStyleDialog::OnNewStyle() {
    if (RefuseInvalid()) return;
    KeepStyle(m_current);
    CNameDialog dialog(StyleNames(), this, {IDS_NEW_STYLE_TITLE, IDS_TAKEN_STYLE_NAME});
    if (dialog.DoModal() != IDOK) return;
    CopyStyle(m_current, dialog.name());
    ListStyles(dialog.name());
}

void CStyleDialog::Apply() {
    KeepStyle(m_current);
    ApplyStyles(m_current);
}

void CStyleDialog::ResizeStyleRow() {
    StretchControlX(IDC_STYLE, 100);
    MoveControlX(IDC_NEW_STYLE, 100);
}
