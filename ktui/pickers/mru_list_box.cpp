#include <ktui/pickers/mru_list_box.h>

#include <ktui/pickers/mru_combo_box.h>

namespace {

constexpr int kTipMargin = 2;  // pixels behind the text

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiMRUListBox, CKbUiListBox)

CKtUiMRUListBox::CKtUiMRUListBox() = default;

CKtUiMRUComboBox* CKtUiMRUListBox::MRUComboBox() const {
    return DYNAMIC_DOWNCAST(CKtUiMRUComboBox, GetComboBox());
}

int CKtUiMRUListBox::ExtraWidth() const {
    CKtUiMRUComboBox* combo = MRUComboBox();
    return combo ? combo->ExtraWidth() : 0;
}

void CKtUiMRUListBox::GetContentExtent(int index, const wchar_t* text, int& cx, int& cy) {
    CKbUiListBox::GetContentExtent(index, text, cx, cy);
    const KBUI_REPLY support = OnGetTipSupport(m_lastMousePoint);
    if (support == kKbUiReplyDrawnTip || support == kKbUiReplyKeepTip) cx += ExtraWidth();
}

BOOL CKtUiMRUListBox::OnGetTipRect(CRect& rect) {
    const BOOL wanted = CKbUiListBox::OnGetTipRect(rect);
    if (!wanted) return wanted;
    rect.right += kTipMargin;
    m_tipRect = rect;
    return TRUE;
}
