// CFrameWnd: its views, the active one, and the title by their document.
#include <kmfc/document.h>
#include <kmfc/frame.h>
#include <kmfc/view.h>

CWnd* CFrameWnd::CreateView(CCreateContext* pContext, UINT nID) {
    ENSURE_ARG(pContext != nullptr && pContext->m_pNewViewClass != nullptr);
    auto* view = static_cast<CWnd*>(pContext->m_pNewViewClass->CreateObject());
    if (view == nullptr) return nullptr;
    // A view that can't be created deletes itself.
    if (!view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this, nID, pContext))
        return nullptr;
    // The only view of a frame has the frame's own edge.
    if ((view->GetExStyle() & WS_EX_CLIENTEDGE) != 0)
        view->ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED);
    return view;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* pContext) {
    if (pContext == nullptr || pContext->m_pNewViewClass == nullptr) return TRUE;
    return CreateView(pContext) != nullptr;
}

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify) {
    CView* former = m_pViewActive;
    if (pViewNew == former) return;
    m_pViewActive = nullptr;
    if (former != nullptr && former->m_hWnd != nullptr && bNotify)
        former->OnActivateView(FALSE, pViewNew, former);
    // What was told may have made another view the active one.
    if (m_pViewActive != nullptr) return;
    m_pViewActive = pViewNew;
    if (pViewNew != nullptr && bNotify) pViewNew->OnActivateView(TRUE, pViewNew, former);
}

CDocument* CFrameWnd::GetActiveDocument() {
    const CView* view = GetActiveView();
    return view != nullptr ? view->GetDocument() : nullptr;
}

namespace {

/// The first pane that is a view: splitters have the id of the pane that they fill.
CView* first_view(HWND frame) {
    for (HWND pane = ::GetDlgItem(frame, AFX_IDW_PANE_FIRST); pane != nullptr;
         pane = ::GetDlgItem(pane, AFX_IDW_PANE_FIRST))
        if (auto* view = DYNAMIC_DOWNCAST(CView, CWnd::FromHandlePermanent(pane))) return view;
    return nullptr;
}

}  // namespace

void CFrameWnd::InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible) {
    CView* view = GetActiveView();
    if (view == nullptr) {
        view = first_view(m_hWnd);
        if (view != nullptr) SetActiveView(view, FALSE);
    }
    if (bMakeVisible) {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
        if (view != nullptr) view->OnActivateFrame(WA_INACTIVE, this);
        // The main window shows itself as the program was asked to, once.
        int show = -1;
        CWinApp* app = AfxGetApp();
        if (app != nullptr && app->m_pMainWnd == this) {
            show = app->m_nCmdShow;
            app->m_nCmdShow = -1;
        }
        ActivateFrame(show);
        if (view != nullptr) view->OnActivateView(TRUE, view, view);
    }
    if (pDoc != nullptr) pDoc->UpdateFrameCounts();
    OnUpdateFrameTitle(TRUE);
}

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if ((GetStyle() & FWS_ADDTOTITLE) == 0) return;
    CDocument* document = bAddToTitle ? GetActiveDocument() : nullptr;
    UpdateFrameTitleForDocument(document != nullptr ? document->GetTitle().GetString() : nullptr);
}

void CFrameWnd::UpdateFrameTitleForDocument(LPCTSTR lpszDocName) {
    CString name = lpszDocName;
    if (lpszDocName != nullptr && m_nWindow > 0) name.AppendFormat(L":%d", m_nWindow);
    CString text = m_strTitle;
    if (lpszDocName != nullptr) {
        const bool first = (GetStyle() & FWS_PREFIXTITLE) != 0;
        text = first ? name + L" - " + m_strTitle : m_strTitle + L" - " + name;
    }
    AfxSetWindowText(m_hWnd, text);
}
