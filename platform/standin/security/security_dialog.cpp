#include "security/security_dialog.h"

#include "dialog_items.h"
#include "resource.h"
#include "standin_message.h"

namespace {

constexpr int kLongestSigner = 80;

UINT textOf(SealState state) {
    switch (state) {
        case SealState::kNone: return IDS_SEAL_NONE;
        case SealState::kIntact: return IDS_SEAL_INTACT;
        case SealState::kChanged: return IDS_SEAL_CHANGED;
        case SealState::kDamaged: return IDS_SEAL_DAMAGED;
        default: return IDS_SEAL_UNREADABLE;
    }
}

CString fromUtf8(const std::string& text) {
    std::wstring wide(text.size(), 0);
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                             wide.data(), static_cast<int>(wide.size()));
    return CString(wide.data(), length);
}

std::string toUtf8(const CString& text) {
    constexpr int kLongestCharacter = 4;  // bytes
    std::string bytes(static_cast<std::size_t>(text.GetLength()) * kLongestCharacter, 0);
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), bytes.data(),
                                             static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

}  // namespace

IMPLEMENT_DYNAMIC(CStandinSecurityDialog, CDialog)

BEGIN_MESSAGE_MAP(CStandinSecurityDialog, CDialog)
    ON_BN_CLICKED(IDC_SEAL, &CStandinSecurityDialog::OnSeal)
    ON_BN_CLICKED(IDC_SEAL_REMOVE, &CStandinSecurityDialog::OnRemove)
END_MESSAGE_MAP()

CStandinSecurityDialog::CStandinSecurityDialog(const CString& drawing, CWnd* parent)
    : CDialog(IDD_SECURITY, parent), m_drawing(drawing) {}

BOOL CStandinSecurityDialog::OnInitDialog() {
    const bool isWhole = HasDialogItems(*this, {IDC_SEAL_STATE, IDC_SEAL_SIGNER, IDC_SEAL, IDC_SEAL_REMOVE});
    if (!CDialog::OnInitDialog() || !isWhole) {
        EndDialog(-1);
        return FALSE;
    }
    SetDlgItemText(IDC_SEAL_DRAWING, m_drawing);
    SendDlgItemMessage(IDC_SEAL_SIGNER, EM_LIMITTEXT, kLongestSigner);
    showState();
    GetDlgItem(IDC_SEAL_SIGNER)->SetFocus();
    return FALSE;
}

void CStandinSecurityDialog::showState() {
    DrawingSeal seal;
    const SealState state = CheckSeal(m_drawing, seal);
    CString text;
    text.LoadString(textOf(state));
    text.Replace(L"%1", fromUtf8(seal.signer));
    text.Replace(L"%2", CString(seal.date.c_str()));
    SetDlgItemText(IDC_SEAL_STATE, text);
    const bool hasSeal = state != SealState::kNone && state != SealState::kUnreadable;
    GetDlgItem(IDC_SEAL_REMOVE)->EnableWindow(hasSeal);
}

void CStandinSecurityDialog::OnSeal() {
    CString name;
    GetDlgItemText(IDC_SEAL_SIGNER, name);
    const std::string signer = signerName(toUtf8(name));
    if (signer.empty()) {
        ShowStandinMessage(IDS_SEAL_NO_SIGNER, MB_ICONINFORMATION);
        GetDlgItem(IDC_SEAL_SIGNER)->SetFocus();
        return;
    }
    if (!SealFile(m_drawing, signer)) ShowStandinMessage(IDS_SEAL_FAILED, MB_ICONEXCLAMATION);
    showState();
}

void CStandinSecurityDialog::OnRemove() {
    if (!RemoveSeal(m_drawing)) ShowStandinMessage(IDS_SEAL_FAILED, MB_ICONEXCLAMATION);
    showState();
    GetDlgItem(IDC_SEAL_SIGNER)->SetFocus();
}
