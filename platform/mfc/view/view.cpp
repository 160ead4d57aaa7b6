// CView: draws its document, takes part in the frame's activation.
#include <kmfc/document.h>
#include <kmfc/splitter_wnd.h>
#include <kmfc/view.h>

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_INITIALUPDATE, &CView::HandleInitialUpdate)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_SPLIT, &CView::OnUpdateSplitCmd)
    ON_COMMAND_EX(ID_WINDOW_SPLIT, &CView::OnSplitCmd)
    ON_UPDATE_COMMAND_UI(ID_NEXT_PANE, &CView::OnUpdateNextPaneMenu)
    ON_UPDATE_COMMAND_UI(ID_PREV_PANE, &CView::OnUpdateNextPaneMenu)
    ON_COMMAND_EX(ID_NEXT_PANE, &CView::OnNextPaneCmd)
    ON_COMMAND_EX(ID_PREV_PANE, &CView::OnNextPaneCmd)
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView() {
    if (m_pDocument != nullptr) m_pDocument->RemoveView(this);
}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    if ((cs.style & WS_BORDER) != 0) {
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~static_cast<LONG>(WS_BORDER);
    }
    return TRUE;
}

int CView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) return -1;
    const auto* context = static_cast<const CCreateContext*>(lpCreateStruct->lpCreateParams);
    if (context != nullptr && context->m_pCurrentDoc != nullptr && m_pDocument == nullptr)
        context->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnDestroy() {
    CFrameWnd* frame = GetParentFrame();
    if (frame != nullptr && frame->GetActiveView() == this) frame->SetActiveView(nullptr);
    CWnd::OnDestroy();
}

void CView::PostNcDestroy() { delete this; }

void CView::OnPaint() {
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

void CView::OnPrepareDC(CDC*, CPrintInfo*) {}
void CView::OnInitialUpdate() { OnUpdate(nullptr, 0, nullptr); }
void CView::OnUpdate(CView*, LPARAM, CObject*) { Invalidate(TRUE); }
BOOL CView::IsSelected(const CObject*) const { return FALSE; }
BOOL CView::OnScroll(UINT, UINT, BOOL) { return FALSE; }
BOOL CView::OnScrollBy(CSize, BOOL) { return FALSE; }

LRESULT CView::HandleInitialUpdate(WPARAM, LPARAM) {
    OnInitialUpdate();
    return 0;
}

void CView::OnActivateView(BOOL bActivate, CView* pActivateView, CView*) {
    if (!bActivate || pActivateView != this) return;
    // The focus follows only into a frame that has it anyway.
    const CFrameWnd* top = GetTopLevelFrame();
    if (top != nullptr && top->m_hWnd == ::GetActiveWindow()) SetFocus();
}

void CView::OnActivateFrame(UINT, CFrameWnd*) {}

int CView::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    const int answer = CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    if (answer == MA_NOACTIVATE || answer == MA_NOACTIVATEANDEAT) return answer;
    CFrameWnd* frame = GetParentFrame();
    if (frame == nullptr) return answer;
    // The frame may be inside one that is just activated: the view is told where it is the frame's already.
    CView* active = frame->GetActiveView();
    HWND focus = ::GetFocus();
    if (active == this && m_hWnd != focus && !::IsChild(m_hWnd, focus))
        OnActivateView(TRUE, this, this);
    else if (active != this)
        frame->SetActiveView(this);
    return answer;
}

BOOL CView::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    return m_pDocument != nullptr && m_pDocument->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

CSplitterWnd* CView::GetParentSplitter(const CWnd* pWnd, BOOL bAnyState) {
    auto* splitter = DYNAMIC_DOWNCAST(CSplitterWnd, pWnd->GetParent());
    if (splitter == nullptr || bAnyState) return splitter;
    for (HWND window = splitter->m_hWnd; window != nullptr; window = ::GetParent(window))
        if (::IsIconic(window)) return nullptr;
    return splitter;
}

CScrollBar* CView::GetScrollBarCtrl(int nBar) const {
    // A view with a bar of its own has no use for another.
    const DWORD own = nBar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL;
    CSplitterWnd* splitter = (GetStyle() & own) != 0 ? nullptr : GetParentSplitter(this, TRUE);
    if (splitter == nullptr) return nullptr;
    const int place = GetDlgCtrlID() - AFX_IDW_PANE_FIRST;
    const int id = nBar == SB_HORZ ? AFX_IDW_HSCROLL_FIRST + place % 16 : AFX_IDW_VSCROLL_FIRST + place / 16;
    HWND bar = place >= 0 ? ::GetDlgItem(splitter->m_hWnd, id) : nullptr;
    return bar != nullptr ? &m_sharedBars[nBar == SB_HORZ ? 0 : 1].over(bar) : nullptr;
}

void CView::OnUpdateSplitCmd(CCmdUI* pCmdUI) {
    const CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    pCmdUI->Enable(splitter != nullptr && !splitter->IsTracking());
}

BOOL CView::OnSplitCmd(UINT) {
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    if (splitter == nullptr) return FALSE;
    splitter->DoKeyboardSplit();
    return TRUE;
}

void CView::OnUpdateNextPaneMenu(CCmdUI* pCmdUI) {
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    pCmdUI->Enable(splitter != nullptr && splitter->CanActivateNext(pCmdUI->m_nID == ID_PREV_PANE));
}

BOOL CView::OnNextPaneCmd(UINT nID) {
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    if (splitter == nullptr) return FALSE;
    splitter->ActivateNext(nID == ID_PREV_PANE);
    return TRUE;
}
