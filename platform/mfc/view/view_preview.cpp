// CView and CFrameWnd: into a print preview and out of it.
#include <utility>

#include <kmfc/app.h>
#include <kmfc/dialog_bar.h>
#include <kmfc/preview_view.h>

#include "../res/kmfc_ids.h"
#include "../window/thread_state.h"

namespace {

constexpr DWORD bit_of(UINT bar) { return 1U << (bar - AFX_IDW_CONTROLBAR_FIRST); }

/// The frame's close button closes the preview.
BOOL CALLBACK close_preview(CFrameWnd* frame) {
    frame->SendMessage(WM_COMMAND, AFX_ID_PREVIEW_CLOSE);
    return FALSE;
}

/// The focus goes back to where it was, or else to the view of the active document.
void give_focus_back(CFrameWnd& frame) {
    const HWND before = std::exchange(kmfc::thread_state().m_focusBeforePreview, nullptr);
    const HWND root = ::GetAncestor(before, GA_ROOT);
    const bool isOfFrame = root == frame.m_hWnd || ::GetWindow(root, GW_OWNER) == frame.m_hWnd;
    if (before != nullptr && isOfFrame && ::IsWindowVisible(before) && ::IsWindowEnabled(before))
        ::SetFocus(before);
    else if (CView* const active = frame.GetActiveFrame()->GetActiveView())
        active->SetFocus();
}

}  // namespace

CPrintPreviewState::CPrintPreviewState()
    : dwStates(bit_of(AFX_IDW_STATUS_BAR) | bit_of(AFX_IDW_PREVIEW_BAR)), lpfnCloseProc(close_preview) {}

void CFrameWnd::OnSetPreviewMode(BOOL bPreview, CPrintPreviewState* pState) {
    ASSERT(pState != nullptr);
    // Bars change places: those of the other state are shown.
    DWORD shown = 0;
    for (UINT i = 0; i < 32; ++i) {
        CControlBar* const bar = GetControlBar(AFX_IDW_CONTROLBAR_FIRST + i);
        if (bar == nullptr) continue;
        if (bar->IsVisible()) shown |= 1U << i;
        ShowControlBar(bar, (pState->dwStates & (1U << i)) != 0, TRUE);
    }
    pState->dwStates = shown;
    m_pPreviewState = bPreview ? pState : nullptr;
    const int from = bPreview ? static_cast<int>(pState->nIDMainPane) : AFX_IDW_PANE_SAVE;
    const int to = bPreview ? AFX_IDW_PANE_SAVE : static_cast<int>(pState->nIDMainPane);
    if (HWND const pane = ::GetDlgItem(m_hWnd, from)) {
        ::SetWindowLongPtrW(pane, GWLP_ID, to);
        ::ShowWindow(pane, bPreview ? SW_HIDE : SW_SHOWNA);
    }
    if (bPreview) {
        pState->hMenu = ::GetMenu(m_hWnd);
        pState->hAccelTable = m_hAccelTable;
        m_hAccelTable = nullptr;
        ::SetMenu(m_hWnd, nullptr);
    } else {
        ::SetMenu(m_hWnd, pState->hMenu);
        m_hAccelTable = pState->hAccelTable;
    }
}

void CView::OnFilePrintPreview() {
    auto state = std::make_unique<CPrintPreviewState>();
    // A preview that has begun keeps it.
    if (DoPrintPreview(AFX_IDD_PREVIEW_TOOLBAR, this, RUNTIME_CLASS(CPreviewView), state.get()))
        state.release();
}

BOOL CView::DoPrintPreview(UINT nIDResource, CView* pPrintView, CRuntimeClass* pPreviewViewClass,
                           CPrintPreviewState* pState) {
    auto* const frame = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
    if (frame == nullptr || frame->m_pPreviewState != nullptr) return FALSE;
    auto info = std::make_unique<CPrintInfo>();
    info->m_bPreview = TRUE;
    if (!pPrintView->OnPreparePrinting(info.get()) || info->m_pPD->m_pd.hDC == nullptr) return FALSE;

    CCreateContext context;
    context.m_pCurrentFrame = frame;
    auto bar = std::make_unique<CDialogBar>();
    if (!bar->Create(frame, nIDResource, CBRS_TOP, AFX_IDW_PREVIEW_BAR)) return FALSE;
    kmfc::thread_state().m_focusBeforePreview = ::GetFocus();
    frame->OnSetPreviewMode(TRUE, pState);
    auto* const view = STATIC_DOWNCAST(CPreviewView, pPreviewViewClass->CreateObject());
    if (view == nullptr || !view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW | WS_HSCROLL | WS_VSCROLL,
                                         CRect(0, 0, 0, 0), frame, AFX_IDW_PANE_FIRST, &context)) {
        // A view whose window failed has deleted itself.
        frame->OnSetPreviewMode(FALSE, pState);
        bar->DestroyWindow();
        frame->RecalcLayout();
        give_focus_back(*frame);
        return FALSE;
    }
    bar->m_bAutoDelete = TRUE;
    pState->pViewActiveOld = frame->GetActiveView();
    frame->SetActiveView(view);
    view->begin(*pPrintView, std::move(info), std::unique_ptr<CPrintPreviewState>(pState), bar.release());
    frame->RecalcLayout();
    return TRUE;
}

void CView::OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT, CPreviewView* pView) {
    OnEndPrinting(pDC, pInfo);
    CFrameWnd* const frame = pView->GetParentFrame();
    CPrintPreviewState* const state = pView->m_state.get();
    frame->OnSetPreviewMode(FALSE, state);
    CView* const former = state->pViewActiveOld;
    pView->m_bar->DestroyWindow();
    pView->DestroyWindow();  // it deletes itself
    frame->SetActiveView(former);
    frame->RecalcLayout();
    frame->SetMessageText(AFX_IDS_IDLEMESSAGE);
    give_focus_back(*frame);
}
