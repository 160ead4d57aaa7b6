// CCtrlView: a view that is a control of the system.
#pragma once

#include <kmfc/control_over_view.h>
#include <kmfc/view.h>

/// The window is a control of class `lpszClass`, which draws itself.
class KMFC_API CCtrlView : public CView {
    DECLARE_DYNCREATE(CCtrlView)
public:
    CCtrlView(LPCTSTR lpszClass, DWORD dwStyle);
    ~CCtrlView() override;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    CCtrlView() : CCtrlView(nullptr, 0) {}

    /// Controls draw themselves.
    void OnDraw(CDC* pDC) override;
    afx_msg void OnPaint();

    CString m_strClass;
    DWORD m_dwDefaultStyle;

    DECLARE_MESSAGE_MAP()
};
