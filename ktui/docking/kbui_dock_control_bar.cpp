// The bar's creation, its flags and places, and its entry points without effect.
#include <ktui/docking/kbui_dock_control_bar.h>

#include <ktui/docking/bar_background.h>
#include <ktui/docking/dock_bar_xml.h>
#include <ktui/docking/multi_pane_frame_wnd_ex.h>
#include <ktui/docking/tabbed_pane_ex.h>

#include <algorithm>

namespace {

constexpr DWORD kTabbedStyle = 32;
constexpr DWORD kControlBarStyle = 15;
const CSize kDefaultSize(100, 140);  // pixels

}  // namespace

bool CKbUiDockControlBar::m_bToolsRestartMode = false;
CPtrArray CKbUiDockControlBar::m_paBars;
UINT CKbUiDockControlBar::m_nLastBarID = 0;

int KbUiRegisterTool(const char*, const char*, GUID*) { return 0; }
int KbUiSetFloatingFrameClass(CRuntimeClass*) { return 0; }
void KbUiRegisterFloatingFrameClassAddress(CRuntimeClass**) {}

IMPLEMENT_DYNCREATE(CKbUiDockControlBar, CDockablePane)

BEGIN_MESSAGE_MAP(CKbUiDockControlBar, CDockablePane)
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_ERASEBKGND()
    ON_WM_CONTEXTMENU()
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCMOUSELEAVE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CKbUiDockControlBar::CKbUiDockControlBar(int dockFlags)
    : m_dockFlags(static_cast<unsigned>(dockFlags) & ~kVisibleFlag) {
    m_sizeDefault = kDefaultSize;
    m_recentDockInfo.GetRecentDockedRect(TRUE) = CRect(CPoint(0, 0), kDefaultSize);
}

CKbUiDockControlBar::~CKbUiDockControlBar() {
    if (m_hWnd == nullptr) return;
    try {
        DestroyWindow();
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
    }
}

bool CKbUiDockControlBar::CanFrameworkTakeFocus() { return false; }
void CKbUiDockControlBar::PaintControlBar(CDC*) {}
int CKbUiDockControlBar::CreateControlBar(CREATESTRUCT*) { return 1; }
void CKbUiDockControlBar::SizeChanged(CRect*, int, int) {}
bool CKbUiDockControlBar::OnClosing() { return false; }
int CKbUiDockControlBar::AddCustomMenuItems(__int64) { return 0; }
void CKbUiDockControlBar::OnUserSizing(unsigned, RECT*) {}

void CKbUiDockControlBar::GetFloatingMinSize(long* width, long* height) {
    CSize least(0, 0);
    GetMinSize(least);
    if (width != nullptr) *width = least.cx;
    if (height != nullptr) *height = least.cy;
}

int CKbUiDockControlBar::Create(CWnd* parent, const wchar_t* name, unsigned id, unsigned long style,
                                const RECT& rect) {
    return Create(nullptr, name, style, rect, parent, id, nullptr);
}

BOOL CKbUiDockControlBar::Create(LPCTSTR, LPCTSTR name, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                                 CCreateContext* context) {
    CSize least(0, 0);
    GetMinSize(least);
    CRect area = rect;
    area.right = std::max(area.right, area.left + least.cx);
    area.bottom = std::max(area.bottom, area.top + least.cy);
    style &= ~CBRS_ALIGN_TOP;
    if (parent != nullptr) style |= WS_CHILD;
    if (!CDockablePane::CreateEx(0, name, parent, area, TRUE, id, style, kTabbedStyle, kControlBarStyle,
                                 context))
        return FALSE;
    SetTabbedPaneRTC(RUNTIME_CLASS(CTabbedPaneEx));
    SetMiniFrameRTC(RUNTIME_CLASS(CMultiPaneFrameWndEx));
    return TRUE;
}

int CKbUiDockControlBar::OnCreate(LPCREATESTRUCT create) {
    if (CDockablePane::OnCreate(create) == -1 || CreateControlBar(create) <= 0) return -1;
    return 0;
}

void CKbUiDockControlBar::setVisible(bool visible) {
    m_dockFlags = visible ? m_dockFlags | kVisibleFlag : m_dockFlags & ~kVisibleFlag;
}

void CKbUiDockControlBar::SetToolID(GUID* id) {
    if (id != nullptr) m_toolId = *id;
}

void CKbUiDockControlBar::InitFloatingPosition(CRect* rect) {
    if (rect != nullptr) m_floatingRect = *rect;
}

void CKbUiDockControlBar::dockAt(unsigned alignment, const RECT* rect) {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    auto* frame = host != nullptr ? DYNAMIC_DOWNCAST(CMDIFrameWndEx, host->mainFrame()) : nullptr;
    if (frame != nullptr && frame->m_hWnd != nullptr) frame->DockPane(this, alignment, rect);
}

void CKbUiDockControlBar::DockControlBar(unsigned alignment, RECT* rect) { dockAt(alignment, rect); }

void CKbUiDockControlBar::RestoreControlBar(unsigned alignment, CRect* rect) {
    if (!isVisible()) ShowPane(TRUE, FALSE, TRUE);
    if (IsAutoHideMode()) ToggleAutoHide();
    dockAt(alignment, rect);
}

void CKbUiDockControlBar::SetPaneAlignment(DWORD alignment) {
    // Kept: of the former alignment the top stays until the last step.
    constexpr DWORD kCleared = CBRS_ALIGN_ANY & ~CBRS_ALIGN_TOP;
    SetPaneStyle(((GetPaneStyle() & ~kCleared) | alignment) & ~CBRS_ALIGN_TOP);
}

void CKbUiDockControlBar::EnableDocking(DWORD alignment) {
    CDockablePane::EnableDocking(alignment & ~CBRS_ALIGN_TOP);
}

CSize CKbUiDockControlBar::CalcFixedLayout(BOOL stretch, BOOL horizontal) {
    return CDockablePane::CalcFixedLayout(stretch, horizontal);
}

void CKbUiDockControlBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) {
    CDockablePane::OnUpdateCmdUI(target, disableIfNoHandler);
}

BOOL CKbUiDockControlBar::OnCommand(WPARAM wParam, LPARAM lParam) {
    return CDockablePane::OnCommand(wParam, lParam);
}

LRESULT CKbUiDockControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return CDockablePane::WindowProc(message, wParam, lParam);
}

void CKbUiDockControlBar::OnContextMenu(CWnd* window, CPoint point) {
    CDockablePane::OnContextMenu(window, point);
}

void CKbUiDockControlBar::OnWindowPosChanged(WINDOWPOS* position) {
    Default();
    CRect rect(CPoint(position->x, position->y), CSize(position->cx, position->cy));
    const bool floating = !IsDocked();
    SizeChanged(&rect, floating, static_cast<int>(position->flags));
    // Kept: of a floating bar this is the place inside its frame; Load takes it for one on the screen.
    (floating ? m_floatingRect : m_dockingRect) = rect;
}

BOOL CKbUiDockControlBar::OnEraseBkgnd(CDC* dc) {
    FillBarBackground(*this, *dc);
    return TRUE;
}

void CKbUiDockControlBar::OnPaint() {
    CPaintDC dc(this);
    PaintControlBar(&dc);
}

void CKbUiDockControlBar::OnAnchor() {
    if (IsDocked() && !IsAutoHideMode()) ToggleAutoHide();
}

void CKbUiDockControlBar::OnHideBar() { ShowPane(FALSE, TRUE, FALSE); }

void CKbUiDockControlBar::OnPressCloseButton() {
    CDockablePane::OnPressCloseButton();
    setVisible(false);
}

void CKbUiDockControlBar::ShowPane(BOOL show, BOOL delay, BOOL activate) {
    CDockablePane::ShowPane(show, delay, activate);
    if (IsDocked() || !IsTabbed() || !show || !activate) return;
    HWND tabWindow = nullptr;
    const CMFCBaseTabCtrl* tabs = GetParentTabWnd(tabWindow);
    if (tabs == nullptr) return;
    for (int tab = 0; tab < tabs->GetTabsNum(); ++tab) {
        auto* bar = DYNAMIC_DOWNCAST(CKbUiDockControlBar, tabs->GetTabWnd(tab));
        // Kept: the bar's own flag stays as it is.
        if (bar != nullptr && bar != this) bar->setVisible(true);
    }
}

int CKbUiDockControlBar::Save(IUnknown* node) {
    return SaveDockBar(node, {!IsDocked(), m_allowDocking, m_floatingRect, m_dockingRect, GetDockStyle()});
}

int CKbUiDockControlBar::Load(IUnknown* node) {
    const auto setOrientation = [this](unsigned orientation) {
        SetPaneAlignment(AlignmentOfOrientation(orientation, GetPaneStyle()));
    };
    if (!LoadDockBar(node, {setOrientation, m_allowDocking, m_floatingRect, m_dockingRect, m_dockFlags}))
        return 0;
    if (!isVisible()) return 1;
    if (GetPaneStyle() & CBRS_FLOATING)
        FloatPane(m_floatingRect, DM_UNKNOWN, true);
    else
        DockControlBar(GetDockStyle(), &m_dockingRect);
    return 1;
}

void CKbUiDockControlBar::RemoveBars() {}
void CKbUiDockControlBar::Draw3DRect(CDC*, const RECT&) {}
void CKbUiDockControlBar::LoadDefaultLocation() {}
void CKbUiDockControlBar::PaintBar(CDC*) {}
void CKbUiDockControlBar::Resized() {}
void CKbUiDockControlBar::OnAllowDock() {}
void CKbUiDockControlBar::OnAnchorLeft() {}
void CKbUiDockControlBar::OnAnchorRight() {}
void CKbUiDockControlBar::RepositionOrHideButtons() {}
void CKbUiDockControlBar::TileInRow() {}
int CKbUiDockControlBar::AddMenuItems(CMenu*) { return 0; }
LRESULT CALLBACK CKbUiDockControlBar::MouseProc(int, WPARAM, LPARAM) { return 0; }
int CKbUiDockControlBar::GetTitleBarSize() { return 0; }
int CKbUiDockControlBar::AdjustVertDockedBarHeight(int) { return 0; }
bool CKbUiDockControlBar::HidePalettes() { return false; }
bool CKbUiDockControlBar::ShowPalettes() { return false; }
