// CFormView: a view made of a dialog template.
#pragma once

#include <kmfc/scroll_view.h>

/// A scrolling view with the controls of a template, which has the styles WS_CHILD and no border. DDX goes by
/// UpdateData, as in a dialog.
class KMFC_API CFormView : public CScrollView {
    DECLARE_DYNAMIC(CFormView)
public:
    BOOL IsInitDlgCompleted() const { return m_isFilled; }

    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    explicit CFormView(LPCTSTR lpszTemplateName);
    explicit CFormView(UINT nIDTemplate);
    ~CFormView() override;

    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwRequestedStyle, const RECT& rect,
                CWnd* pParentWnd, UINT nID, CCreateContext* pContext) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;
    void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSetFocus(CWnd* pOldWnd);

    LPCTSTR m_lpszTemplateName;

    DECLARE_MESSAGE_MAP()

private:
    /// Remembers which control has the focus.
    void keep_focus();

    CCreateContext* m_context = nullptr;  ///< while the window is made
    HWND m_focused = nullptr;             ///< the control that had the focus when the view was left
    bool m_isFilled = false;
};
