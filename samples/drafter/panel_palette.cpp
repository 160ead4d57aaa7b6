#include "panel_palette.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CPanelPalette, CKbUiPalette)

BEGIN_MESSAGE_MAP(CPanelPalette, CKbUiPalette)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CPanelPalette::CPanelPalette(UINT name, CKtUiDialog& panel, UINT templateId)
    : m_panel(panel), m_templateId(templateId) {
    CString text;
    text.LoadString(name);
    SetName(text);
}

int CPanelPalette::Create(CKbUiPaletteSet* set) {
    if (!CKbUiPalette::Create(set)) return 0;
    if (!m_panel.Create(m_templateId, this)) {
        DestroyWindow();
        return 0;
    }
    CRect place;
    m_panel.GetWindowRect(&place);
    m_least = place.Size();
    m_panel.ShowWindow(SW_SHOWNA);
    return 1;
}

void CPanelPalette::OnSize(UINT type, int cx, int cy) {
    CKbUiPalette::OnSize(type, cx, cy);
    if (m_panel.m_hWnd == nullptr || m_least.cx == 0) return;
    m_panel.MoveWindow(0, 0, std::max<int>(cx, m_least.cx), std::max<int>(cy, m_least.cy));
}

void CPanelPalette::OnSetFocus(CWnd*) { FocusPanel(); }

void CPanelPalette::FocusPanel() {
    CWnd* first = m_panel.m_hWnd != nullptr ? m_panel.GetNextDlgTabItem(nullptr) : nullptr;
    if (first != nullptr) first->SetFocus();
}

bool CPanelPalette::HasFocus() const { return m_hWnd != nullptr && ::IsChild(m_hWnd, ::GetFocus()); }
