// CPanelPalette: a palette that a dialog fills.
#pragma once

#include <ktui/ktui.h>

class CPanelPalette : public CKbUiPalette {
    DECLARE_DYNAMIC(CPanelPalette)

public:
    /// Shows `panel`, a dialog without a window yet that stays the caller's, from its child template. The
    /// name is a string.
    CPanelPalette(UINT name, CKtUiDialog& panel, UINT templateId);

    using CKbUiPalette::Create;
    int Create(CKbUiPaletteSet* set) override;
    /// Gives the panel's first control the focus.
    void FocusPanel();
    bool HasFocus() const;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* former);
    DECLARE_MESSAGE_MAP()

private:
    CKtUiDialog& m_panel;
    UINT m_templateId;
    CSize m_least{0, 0};  ///< of the template, pixels; a palette that is smaller shows a part of the panel
};
