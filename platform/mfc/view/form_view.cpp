// CFormView: the dialog inside the view.
#include <kmfc/form_view.h>

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CFormView::CFormView(LPCTSTR lpszTemplateName) : m_lpszTemplateName(lpszTemplateName) {}
CFormView::CFormView(UINT nIDTemplate) : m_lpszTemplateName(MAKEINTRESOURCEW(nIDTemplate)) {}
CFormView::~CFormView() = default;

BOOL CFormView::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style |= WS_CLIPCHILDREN;
    return CScrollView::PreCreateWindow(cs);
}

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD dwRequestedStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                       CCreateContext* pContext) {
    // The window is made by the template; the context waits for WM_CREATE.
    m_context = pContext;
    HINSTANCE module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
    HRSRC found = ::FindResourceW(module, m_lpszTemplateName, RT_DIALOG);
    HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    const auto* shape = loaded != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
    const BOOL made = shape != nullptr && CreateDlgIndirect(shape, pParentWnd, module);
    m_context = nullptr;
    if (!made) {
        if (m_hWnd == nullptr) PostNcDestroy();
        return FALSE;
    }
    // The template's styles, but for what the view was asked to be.
    constexpr DWORD kAsked = WS_BORDER | WS_CAPTION;
    ModifyStyle(kAsked, dwRequestedStyle & kAsked & ~static_cast<DWORD>(WS_BORDER));
    ModifyStyleEx(WS_EX_CLIENTEDGE, (dwRequestedStyle & WS_BORDER) != 0 ? WS_EX_CLIENTEDGE : 0,
                  SWP_FRAMECHANGED);
    SetDlgCtrlID(static_cast<int>(nID));
    CRect size;
    GetWindowRect(&size);
    SetScrollSizes(MM_TEXT, size.Size());
    ExecuteDlgInit(m_lpszTemplateName);
    SetWindowPos(nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if ((dwRequestedStyle & WS_VISIBLE) != 0) ShowWindow(SW_NORMAL);
    return TRUE;
}

int CFormView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    CREATESTRUCT cs = *lpCreateStruct;
    cs.lpCreateParams = m_context;
    return CScrollView::OnCreate(&cs);
}

void CFormView::OnInitialUpdate() {
    m_isFilled = UpdateData(FALSE) != FALSE;
    CScrollView::OnInitialUpdate();
}

void CFormView::keep_focus() {
    HWND focus = ::GetFocus();
    if (focus != nullptr && ::IsChild(m_hWnd, focus)) m_focused = focus;
}

void CFormView::OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) {
    if (!bActivate) keep_focus();
    CScrollView::OnActivateView(bActivate, pActivateView, pDeactiveView);
}

void CFormView::OnActivateFrame(UINT nState, CFrameWnd*) {
    if (nState == WA_INACTIVE) keep_focus();
}

void CFormView::OnSetFocus(CWnd*) {
    if (::IsWindow(m_focused) && ::IsChild(m_hWnd, m_focused)) {
        ::SetFocus(m_focused);
        return;
    }
    m_focused = nullptr;
    HWND first = ::GetNextDlgTabItem(m_hWnd, nullptr, FALSE);
    if (first != nullptr)
        ::SetFocus(first);
    else
        Default();
}

BOOL CFormView::PreTranslateMessage(MSG* pMsg) {
    if (CScrollView::PreTranslateMessage(pMsg)) return TRUE;
    // Accelerators of the frames go before the dialog's keys.
    for (CFrameWnd* frame = GetParentFrame(); frame != nullptr; frame = frame->GetParentFrame())
        if (frame->PreTranslateMessage(pMsg)) return TRUE;
    return PreTranslateInput(pMsg);
}
