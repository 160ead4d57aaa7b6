// The main window and the drawings in it: which one is in front, what follows it, and how the user goes from
// one to the other.
#include "main_frame.h"

#include <windowsx.h>

#include <ktdb.h>
#include <ktut.h>
#include <screen_scene.h>
#include <standin_host.h>

#include "messages.h"
#include "resource.h"
#include "resource_text.h"

namespace {

constexpr int kPointerPane = 1, kSelectionPane = 2;

}  // namespace

CDrawingWindow* CMainFrame::drawingOf(int tab) {
    return DYNAMIC_DOWNCAST(CDrawingWindow, GetMDITabs().GetTabWnd(tab));
}

std::vector<CDrawingWindow*> CMainFrame::drawings() {
    std::vector<CDrawingWindow*> all;
    for (int i = 0; i < GetMDITabs().GetTabsNum(); ++i)
        if (CDrawingWindow* const each = drawingOf(i)) all.push_back(each);
    return all;
}

CDrawingWindow* CMainFrame::WindowOf(const CString& path) {
    for (CDrawingWindow* const each : drawings())
        if (ktutPathIsSame(each->document().path().c_str(), path)) return each;
    return nullptr;
}

void CMainFrame::DrawingActivated(CDrawingWindow* window) {
    if (m_isGoing) return;
    m_active = window;
    // A drawing that had the focus takes it along when it goes.
    PostMessage(WM_DRAFTER_FOCUS);
    m_host.SetCurrentDocument(window != nullptr ? &window->document() : nullptr);
    m_host.SetPlotView(window != nullptr ? &window->plotView() : nullptr);
    // That of the drawing before.
    m_status.SetText(L"", kPointerPane, 0);
    if (window == nullptr) return showNothing();
    if (window->RefreshIfOutdated()) return;
    DrawingChanged(*window);
    NameChanged(*window);
}

LRESULT CMainFrame::OnTakeFocus(WPARAM, LPARAM) {
    if (::GetFocus() == nullptr && ::GetActiveWindow() == m_hWnd) SetFocus();
    return 0;
}

void CMainFrame::showNothing() {
    m_pickers.ShowNothing();
    m_palettes.ShowNothing();
    m_status.SetText(L"", kSelectionPane, 0);
    SayIdle();
    OnUpdateFrameTitle(FALSE);
}

void CMainFrame::DrawingChanged(const CDrawingWindow& window) {
    if (&window != m_active) return;
    if (!isPicking()) SayIdle();
    showSelection();
    m_palettes.ShowDrawing(m_active->document());
}

void CMainFrame::SelectionChanged(const CDrawingWindow& window) {
    if (&window == m_active) showSelection();
}

void CMainFrame::showSelection() {
    const std::vector<OdDbObjectId> objects = m_active->SelectedObjects();
    CString text = textOf(IDS_STATUS_NONE);
    if (!objects.empty()) text.Format(IDS_STATUS_SELECTION, static_cast<int>(objects.size()));
    m_status.SetText(text, kSelectionPane, 0);
    m_pickers.Show(m_active->drawing(), objects);
    m_palettes.ShowObjects(m_active->drawing(), objects);
}

void CMainFrame::PointerMoved(const CDrawingWindow& window) {
    if (&window != m_active) return;
    wchar_t x[kKtdbBufferSize] = {}, y[kKtdbBufferSize] = {};
    ktdbRToS(window.view().pointer().x, -1, -1, x);
    ktdbRToS(window.view().pointer().y, -1, -1, y);
    CString text;
    text.Format(L"%s, %s", x, y);
    m_status.SetText(text, kPointerPane, 0);
}

void CMainFrame::NameChanged(const CDrawingWindow& window) {
    if (&window == m_active) OnUpdateFrameTitle(TRUE);
}

/// While the user goes through the menu the line speaks of its items.
void CMainFrame::NoticeChanged(const CDrawingWindow& window) {
    if (&window == m_active && !isPicking() && m_nIDTracking == AFX_IDS_IDLEMESSAGE) SayIdle();
}

SceneOptions CMainFrame::ViewSceneOptions(OdDbDatabase& drawing, bool inBackground) {
    return inBackground ? BackgroundSceneOptions(drawing) : ScreenSceneOptions(drawing, false);
}

/// The drawing comes first, so that the task bar tells one drafter from the other.
void CMainFrame::OnUpdateFrameTitle(BOOL) {
    CString title = GetTitle();
    if (m_active != nullptr) title = m_active->Title() + L" - " + title;
    AfxSetWindowText(m_hWnd, title);
}

/// The system would add the name of the drawing in front to the title by itself.
LRESULT CMainFrame::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTEXT) return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
    return CMDIFrameWndEx::DefWindowProc(message, wParam, lParam);
}

void CMainFrame::GetMessageString(UINT id, CString& message) const {
    if (id == AFX_IDS_IDLEMESSAGE) {
        message = m_active != nullptr ? m_active->Notice() : textOf(IDS_NO_DRAWING_HINT);
        if (!message.IsEmpty()) return;
    }
    CMDIFrameWndEx::GetMessageString(id, message);
}

void CMainFrame::SayIdle() {
    CString text;
    GetMessageString(AFX_IDS_IDLEMESSAGE, text);
    m_status.Say(text);
}

bool CMainFrame::GiveUpCommand() {
    if (!m_isInCommand) return false;
    if (m_active != nullptr) m_active->GiveUpPicking();
    return true;
}

/// A dialog that waits for something to be picked belongs to the drawing in front.
LRESULT CMainFrame::OnChangingTab(WPARAM, LPARAM) { return GiveUpCommand() ? TRUE : FALSE; }

LRESULT CMainFrame::OnTabTip(WPARAM, LPARAM lParam) {
    auto& tip = *reinterpret_cast<CMFCTabToolTipInfo*>(lParam);
    const CDrawingWindow* const window = drawingOf(tip.m_nTabIndex);
    if (window == nullptr) return 0;
    const CString path = window->document().path().c_str();
    tip.m_strText = path.IsEmpty() ? window->ShownName() : path;
    return 0;
}

void CMainFrame::goBy(int step) {
    const int count = GetMDITabs().GetTabsNum();
    if (count > 1) GetMDITabs().SetActiveTab((GetMDITabs().GetActiveTab() + step + count) % count);
}

void CMainFrame::OnNextDrawing() { goBy(1); }

void CMainFrame::OnPreviousDrawing() { goBy(-1); }

bool CMainFrame::closesTab(const MSG& message) {
    if (message.message != WM_MBUTTONUP || message.hwnd != GetMDITabs().GetSafeHwnd()) return false;
    CPoint place(GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam));
    if (CDrawingWindow* const window = drawingOf(GetMDITabs().GetTabFromPoint(place)))
        window->PostMessage(WM_CLOSE);
    return true;
}

HMENU CMainFrame::GetWindowMenuPopup(HMENU bar) {
    for (int i = ::GetMenuItemCount(bar) - 1; i >= 0; --i) {
        const HMENU menu = ::GetSubMenu(bar, i);
        if (menu != nullptr && ::GetMenuState(menu, ID_WINDOW_NEXT_DRAWING, MF_BYCOMMAND) != UINT(-1))
            return menu;
    }
    return nullptr;
}

void CMainFrame::OnUpdateHasDrawing(CCmdUI* item) { item->Enable(m_active != nullptr); }

void CMainFrame::OnUpdateHasOthers(CCmdUI* item) { item->Enable(GetMDITabs().GetTabsNum() > 1); }
