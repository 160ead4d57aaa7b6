// CStatusBar: panes, their places, texts and states.
#include <kmfc/status_bar.h>

#include <algorithm>
#include <vector>

#include <kmfc/frame.h>

#include "../docking/core/status_panes.h"
#include "bar_item_request.h"

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_SIZE()
    ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
    ON_MESSAGE(WM_GETTEXT, &CStatusBar::OnGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::OnGetTextLength)
END_MESSAGE_MAP()

namespace {

constexpr int kTextMargin = 3;  // pixels beside a text in its pane
constexpr DWORD kControlStyles = CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;

}  // namespace

CStatusBar::~CStatusBar() {
    m_bAutoDelete = FALSE;
    DestroyWindow();
}

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    m_dwStyle = dwStyle & CBRS_ALL;
    const DWORD style = (dwStyle & ~CBRS_ALL) | kControlStyles | dwCtrlStyle;
    return CWnd::Create(STATUSCLASSNAMEW, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID);
}

CStatusBarCtrl& CStatusBar::GetStatusBarCtrl() const {
    // The control's class has no members of its own: it only names the messages of the window.
    return *reinterpret_cast<CStatusBarCtrl*>(const_cast<CStatusBar*>(this));
}

int CStatusBar::text_width(const CString& text) const {
    if (m_hWnd == nullptr || text.IsEmpty()) return 0;
    CClientDC dc(const_cast<CStatusBar*>(this));
    CFont* former = dc.SelectObject(GetFont());
    const CSize size = dc.GetTextExtent(text);
    if (former != nullptr) dc.SelectObject(former);
    return size.cx;
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    if (m_hWnd == nullptr || nIDCount < 1) return FALSE;
    std::vector<Pane> panes;
    for (int i = 0; i < nIDCount; ++i) {
        Pane made;
        made.isChanged = true;
        if (lpIDArray != nullptr) {
            made.id = lpIDArray[i];
            if (made.id != ID_SEPARATOR) {
                if (!made.text.LoadString(made.id)) return FALSE;
                made.width = text_width(made.text);
            }
            if (i == 0) {
                // The first is for messages: it gives way to the others.
                made.style = SBPS_STRETCH | SBPS_NOBORDERS;
                if (made.id == ID_SEPARATOR) made.width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
            }
        }
        panes.push_back(std::move(made));
    }
    m_panes = std::move(panes);
    m_nCount = nIDCount;
    arrange();
    for (int i = 0; i < nIDCount; ++i) show_pane(i);
    return TRUE;
}

/// The right edges of the panes: each as wide as its text wants, the stretching one as there is room.
void CStatusBar::arrange() {
    if (m_hWnd == nullptr || m_panes.empty()) return;
    CRect client;
    GetClientRect(&client);
    int horizontal = 0, vertical = 0, spacing = 0;
    GetStatusBarCtrl().GetBorders(horizontal, vertical, spacing);
    int room = client.Width() - 2 * horizontal;
    if (GetStyle() & SBARS_SIZEGRIP) room -= ::GetSystemMetrics(SM_CXVSCROLL);
    std::vector<kmfc::StatusPane> wanted;
    for (const Pane& each : m_panes)
        wanted.push_back({each.width + 2 * kTextMargin, (each.style & SBPS_STRETCH) != 0});
    std::vector<int> edges = kmfc::pane_edges(wanted, horizontal, room, spacing);
    GetStatusBarCtrl().SetParts(static_cast<int>(edges.size()), edges.data());
}

void CStatusBar::show_pane(int index) {
    Pane& shown = pane(index);
    shown.isChanged = false;
    if (m_hWnd == nullptr) return;
    const UINT looks = shown.style & (SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW);
    const LPCTSTR text = (shown.style & SBPS_DISABLED) ? L"" : shown.text.GetString();
    GetStatusBarCtrl().SetText(text, index, static_cast<int>(looks));
}

int CStatusBar::CommandToIndex(UINT nIDFind) const {
    for (int i = 0; i < count(); ++i)
        if (pane(i).id == nIDFind) return i;
    return -1;
}

UINT CStatusBar::GetItemID(int nIndex) const { return has(nIndex) ? pane(nIndex).id : 0; }

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    ::SetRectEmpty(lpRect);
    if (has(nIndex) && m_hWnd != nullptr && !GetStatusBarCtrl().GetRect(nIndex, lpRect))
        ::SetRectEmpty(lpRect);
}

UINT CStatusBar::GetPaneStyle(int nIndex) const { return has(nIndex) ? pane(nIndex).style : 0; }

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    if (!has(nIndex) || pane(nIndex).style == nStyle) return;
    const UINT former = std::exchange(pane(nIndex).style, nStyle);
    if ((former ^ nStyle) & SBPS_STRETCH) arrange();
    show_pane(nIndex);
}

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    nID = GetItemID(nIndex);
    nStyle = GetPaneStyle(nIndex);
    cxWidth = has(nIndex) ? pane(nIndex).width : 0;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    if (!has(nIndex)) return;
    Pane& changed = pane(nIndex);
    const bool moves = changed.width != cxWidth || ((changed.style ^ nStyle) & SBPS_STRETCH);
    changed.id = nID;
    changed.style = nStyle;
    changed.width = std::max(cxWidth, 0);
    if (moves) arrange();
    show_pane(nIndex);
}

CString CStatusBar::GetPaneText(int nIndex) const { return has(nIndex) ? pane(nIndex).text : CString(); }

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    if (!has(nIndex)) return FALSE;
    Pane& changed = pane(nIndex);
    const CString text(lpszNewText);
    if (changed.text == text && !changed.isChanged) return TRUE;
    changed.text = text;
    changed.isChanged = true;
    if (bUpdate) show_pane(nIndex);
    return TRUE;
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM) return CControlBar::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatusBar::OnSize(UINT nType, int cx, int cy) {
    CControlBar::OnSize(nType, cx, cy);
    arrange();
}

LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam) {
    // Without panes the control shows its text by itself.
    if (m_panes.empty() || GetStatusBarCtrl().IsSimple()) return Default();
    return SetPaneText(0, reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CStatusBar::OnGetText(WPARAM wParam, LPARAM lParam) {
    if (m_panes.empty() || GetStatusBarCtrl().IsSimple()) return Default();
    if (wParam == 0 || lParam == 0) return 0;
    auto* buffer = reinterpret_cast<LPTSTR>(lParam);
    ::lstrcpynW(buffer, pane(0).text, static_cast<int>(std::min<WPARAM>(wParam, 0x7FFFFFFF)));
    return ::lstrlenW(buffer);
}

LRESULT CStatusBar::OnGetTextLength(WPARAM, LPARAM) {
    if (m_panes.empty() || GetStatusBarCtrl().IsSimple()) return Default();
    return pane(0).text.GetLength();
}

CSize CStatusBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    int height = 0;
    if (m_hWnd != nullptr) {
        CClientDC dc(this);
        CFont* former = dc.SelectObject(GetFont());
        TEXTMETRIC metrics = {};
        dc.GetTextMetrics(&metrics);
        if (former != nullptr) dc.SelectObject(former);
        int horizontal = 0, vertical = 0, spacing = 0;
        GetStatusBarCtrl().GetBorders(horizontal, vertical, spacing);
        // A text with a line above and below, in the bar's own border.
        height = metrics.tmHeight + 2 * vertical + 2 * ::GetSystemMetrics(SM_CYBORDER) + 2;
    }
    const int line = (m_dwStyle & CBRS_BORDER_3D) ? 2 : 1;
    height += line * (((m_dwStyle & CBRS_BORDER_TOP) != 0) + ((m_dwStyle & CBRS_BORDER_BOTTOM) != 0));
    const CSize whole = CControlBar::CalcFixedLayout(bStretch, bHorz);
    return CSize(std::max<LONG>(whole.cx, 0), std::max<LONG>(whole.cy, height));
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    for (int i = 0; i < count(); ++i)
        if (pane(i).isChanged) show_pane(i);
    // A pane that nobody answers for stays as it is.
    kmfc::PaneRequest(*this).ask_all(count(), pTarget, FALSE);
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
