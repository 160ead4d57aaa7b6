#include "layout_tabs.h"

#include <afxext.h>

#include <ktui/host/appearance.h>

#include "resource.h"

namespace {

constexpr int kLongestLabel = 40;  // characters
// Pixels at 96 dots an inch: above and below the letters and below the tabs, and beside the letters.
constexpr int kSpace = 2, kPadding = 8;

/// What stands on a tab: long names end in an ellipsis, and no letter is underlined.
CString labelOf(const CString& name) {
    CString label = name.GetLength() > kLongestLabel ? name.Left(kLongestLabel - 1) + L"\u2026" : name;
    label.Replace(L"&", L"&&");
    return label;
}

}  // namespace

IMPLEMENT_DYNAMIC(CLayoutTabs, CTabCtrl)

BEGIN_MESSAGE_MAP(CLayoutTabs, CTabCtrl)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_SIZEPARENT, &CLayoutTabs::OnSizeParent)
END_MESSAGE_MAP()

BOOL CLayoutTabs::CreateTabs(CWnd* parent, UINT id) {
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | TCS_BOTTOM |
                        TCS_SINGLELINE | TCS_FOCUSNEVER;
    if (!Create(style, CRect(0, 0, 0, 0), parent, id)) return FALSE;
    CString name;
    name.LoadString(IDS_LAYOUT_TABS);
    SetWindowText(name);
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    m_font.CreateFontIndirect(&metrics.lfMenuFont);
    SetFont(&m_font);
    SetPadding(CSize(KtUiAppearancePixels(m_hWnd, kPadding), KtUiAppearancePixels(m_hWnd, kSpace)));
    return TRUE;
}

void CLayoutTabs::Show(const std::vector<CString>& names, int current) {
    if (m_hWnd == nullptr) return;
    if (names != m_names) {
        m_names = names;
        DeleteAllItems();
        int at = 0;
        for (const CString& name : names) InsertItem(at++, labelOf(name));
    }
    SetCurSel(current);
    Invalidate();
}

void CLayoutTabs::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    if (client.IsRectEmpty()) return;
    CMemDC memory(dc, client);
    CDC& to = memory.GetDC();
    to.FillSolidRect(client, ::GetSysColor(COLOR_BTNFACE));
    to.FillSolidRect(client.left, client.top, client.Width(), 1, ::GetSysColor(COLOR_BTNSHADOW));
    CFont* const former = to.SelectObject(&m_font);
    to.SetBkMode(TRANSPARENT);
    for (int i = 0; i < GetItemCount(); ++i) paintTab(to, i);
    to.SelectObject(former);
}

/// The tab in front is open to the drawing above it; the others are parted by lines.
void CLayoutTabs::paintTab(CDC& dc, int index) {
    CRect tab, client;
    if (!GetItemRect(index, &tab)) return;
    GetClientRect(&client);
    tab.top = client.top;
    tab.bottom = client.bottom - KtUiAppearancePixels(m_hWnd, kSpace);
    const bool isInFront = index == GetCurSel();
    const COLORREF edge = ::GetSysColor(COLOR_BTNSHADOW);
    if (isInFront) {
        dc.FillSolidRect(tab, ::GetSysColor(COLOR_WINDOW));
        dc.FillSolidRect(tab.left, tab.top, 1, tab.Height(), edge);
        dc.FillSolidRect(tab.left, tab.bottom - 1, tab.Width(), 1, edge);
    }
    dc.FillSolidRect(tab.right - 1, tab.top, 1, tab.Height(), edge);
    dc.SetTextColor(::GetSysColor(isInFront ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
    dc.DrawText(labelOf(m_names[static_cast<std::size_t>(index)]), tab,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

BOOL CLayoutTabs::OnEraseBkgnd(CDC*) { return TRUE; }

/// Takes the bottom of what the parent gives away.
LRESULT CLayoutTabs::OnSizeParent(WPARAM, LPARAM lParam) {
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    CRect tab(0, 0, 0, 0);
    GetItemRect(0, &tab);
    CRect place(layout.rect);
    const int height = tab.Height() + 2 * KtUiAppearancePixels(m_hWnd, kSpace);
    place.top = std::max(place.top, place.bottom - height);
    layout.rect.bottom = place.top;
    if (layout.hDWP != nullptr)
        ::DeferWindowPos(layout.hDWP, m_hWnd, nullptr, place.left, place.top, place.Width(), place.Height(),
                         SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}
