// CDialogBar: a bar made of a dialog template.
#include <kmfc/dialog_bar.h>
#include <kmfc/frame.h>

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

BEGIN_MESSAGE_MAP(CDialogBar, CControlBar)
    ON_MESSAGE(WM_INITDIALOG, &CDialogBar::HandleInitDialog)
END_MESSAGE_MAP()

CDialogBar::~CDialogBar() {
    m_bAutoDelete = FALSE;
    DestroyWindow();
}

BOOL CDialogBar::Create(CWnd* pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID) {
    return Create(pParentWnd, MAKEINTRESOURCEW(nIDTemplate), nStyle, nID);
}

BOOL CDialogBar::Create(CWnd* pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID) {
    m_dwStyle = nStyle & CBRS_ALL;
    m_lpszTemplateName = lpszTemplateName;
    HINSTANCE module = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    HRSRC resource = ::FindResourceW(module, lpszTemplateName, RT_DIALOG);
    HGLOBAL loaded = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    if (loaded == nullptr) return FALSE;
    if (!CreateDlgIndirect(static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)), pParentWnd, module))
        return FALSE;
    SetDlgCtrlID(static_cast<int>(nID));
    CRect rect;
    GetWindowRect(&rect);
    m_sizeDefault = rect.Size();
    ShowWindow(SW_SHOWNA);
    return TRUE;
}

CSize CDialogBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CSize size = m_sizeDefault;
    (bHorz ? size.cx : size.cy) += gripper_extent();
    if (bStretch) {
        const CSize whole = CControlBar::CalcFixedLayout(bStretch, bHorz);
        if (bHorz)
            size.cx = whole.cx;
        else
            size.cy = whole.cy;
    }
    return size;
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

LRESULT CDialogBar::HandleInitDialog(WPARAM, LPARAM) {
    Default();
    return ExecuteDlgInit(m_lpszTemplateName);
}
