// CMFCToolBar: the states of its buttons, asked of whoever handles their commands.
#include <kmfc/frame.h>
#include <kmfc/tool_bar_ex.h>

namespace {

/// A button that is asked for its state.
class ButtonCmdUI : public CCmdUI {
public:
    explicit ButtonCmdUI(CMFCToolBar& bar) : m_bar(bar) { m_pOther = &bar; }

    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        // A button that is disabled is let go.
        change(TBBS_DISABLED | (bOn ? 0u : TBBS_PRESSED), bOn ? 0u : TBBS_DISABLED);
    }
    void SetCheck(int nCheck) override {
        change(TBBS_CHECKED | TBBS_INDETERMINATE, TBBS_CHECKBOX | (nCheck == 1   ? TBBS_CHECKED
                                                                   : nCheck == 2 ? TBBS_INDETERMINATE
                                                                                 : 0u));
    }
    void SetRadio(BOOL bOn) override { SetCheck(bOn ? 1 : 0); }
    /// Texts of menu items aren't those of buttons.
    void SetText(LPCTSTR) override {}

private:
    void change(UINT without, UINT with) {
        const int index = static_cast<int>(m_nIndex);
        m_bar.SetButtonStyle(index, (m_bar.GetButtonStyle(index) & ~without) | with);
    }

    CMFCToolBar& m_bar;
};

}  // namespace

void CMFCToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    ButtonCmdUI request(*this);
    request.m_nIndexMax = static_cast<UINT>(GetCount());
    for (request.m_nIndex = 0; request.m_nIndex < request.m_nIndexMax; ++request.m_nIndex) {
        const CMFCToolBarButton* const button = GetButton(static_cast<int>(request.m_nIndex));
        if (button->IsSeparator()) continue;
        request.m_nID = button->m_nID;
        request.m_bContinueRouting = FALSE;
        if (CWnd::OnCmdMsg(request.m_nID, CN_UPDATE_COMMAND_UI, &request, nullptr) &&
            !request.m_bContinueRouting)
            continue;
        request.DoUpdate(pTarget, bDisableIfNoHndler);
    }
    CPane::OnUpdateCmdUI(pTarget, bDisableIfNoHndler);
}
