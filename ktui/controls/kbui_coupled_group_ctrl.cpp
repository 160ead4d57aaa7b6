#include <ktui/controls/kbui_group_ctrl.h>

IMPLEMENT_DYNAMIC(CKbUiCoupledGroupCtrl, CWnd)

BEGIN_MESSAGE_MAP(CKbUiCoupledGroupCtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

void CKbUiCoupledGroupCtrl::AddCouple(CWnd* top, CKbUiGroupCtrl* bottom) {
    m_topWnd = top;
    m_bottomGroup = bottom;
}

void CKbUiCoupledGroupCtrl::AddCouple(CKbUiGroupCtrl* top, CWnd* bottom) {
    m_topGroup = top;
    m_bottomWnd = bottom;
}

void CKbUiCoupledGroupCtrl::AddCouple(CWnd* top, CWnd* bottom) {
    m_topWnd = top;
    m_bottomWnd = bottom;
}

void CKbUiCoupledGroupCtrl::AddCouple(CKbUiGroupCtrl* top, CKbUiGroupCtrl* bottom) {
    m_topGroup = top;
    m_bottomGroup = bottom;
}

void CKbUiCoupledGroupCtrl::MinMaxOneChild(CWnd* child, bool minimise) {
    child->ShowWindow(minimise ? SW_SHOWMINIMIZED : SW_MAXIMIZE);
    for (CWnd* member :
         {static_cast<CWnd*>(m_topGroup), static_cast<CWnd*>(m_bottomGroup), m_topWnd, m_bottomWnd})
        if (member && member != child) member->ShowWindow(SW_MAXIMIZE);
}

void CKbUiCoupledGroupCtrl::SetTheme(CKbUiTheme*) {}

void CKbUiCoupledGroupCtrl::ResizeChildren() {}

bool CKbUiCoupledGroupCtrl::IsAnyCtrlMinimizedOrIconic() const { return false; }

bool CKbUiCoupledGroupCtrl::ValidateCtrls() const { return false; }

void CKbUiCoupledGroupCtrl::OnPaint() {}

void CKbUiCoupledGroupCtrl::OnSize(UINT, int, int) {}

void CKbUiCoupledGroupCtrl::OnLButtonDown(UINT, CPoint) {}

void CKbUiCoupledGroupCtrl::OnLButtonUp(UINT, CPoint) {}

void CKbUiCoupledGroupCtrl::OnMouseMove(UINT, CPoint) {}

HBRUSH CKbUiCoupledGroupCtrl::OnCtlColor(CDC*, CWnd*, UINT) { return nullptr; }
