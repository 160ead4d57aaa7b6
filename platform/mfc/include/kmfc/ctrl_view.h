// CCtrlView: a view that is a control of the system.
#pragma once

#include <kmfc/view.h>

namespace kmfc {

/// The control class over a window that belongs to another object: it neither owns nor destroys it.
template <class Control>
class ControlOverView {
public:
    ControlOverView() = default;
    ~ControlOverView() { m_control.m_hWnd = nullptr; }
    ControlOverView(const ControlOverView&) = delete;
    ControlOverView& operator=(const ControlOverView&) = delete;

    Control& over(HWND window) const {
        m_control.m_hWnd = window;
        return m_control;
    }

private:
    mutable Control m_control;
};

}  // namespace kmfc

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
