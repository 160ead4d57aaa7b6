// CDialogBar: a bar of controls that a dialog template describes.
#pragma once

#include <kmfc/control_bar.h>

/// The template is a child dialog (WS_CHILD) that says nothing of WS_VISIBLE. The Tab key goes round in the
/// bar.
class KMFC_API CDialogBar : public CControlBar {
    DECLARE_DYNAMIC(CDialogBar)
public:
    CDialogBar() = default;
    ~CDialogBar() override;

    /// Creates and shows the bar; `nStyle` are its CBRS_ styles. FALSE without the template or the window.
    virtual BOOL Create(CWnd* pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID);
    virtual BOOL Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID);

    /// The template's size, or all the room of its edge.
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    /// Asks the frame about the state of each control.
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

    CSize m_sizeDefault{0, 0};  ///< the template's size in pixels

protected:
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    LPCTSTR m_lpszTemplateName = nullptr;
};
