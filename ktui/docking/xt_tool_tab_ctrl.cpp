// The strip's tabs, where they lie, and what the mouse does to them. Its painting is a file of its own.
#include <ktui/docking/xt_tool_tab_ctrl.h>

#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/name_edit.h>
#include <ktui/docking/tab_strip_layout.h>
#include <ktui/host/appearance.h>

#include <algorithm>
#include <memory>

namespace {

/// One channel of the strip's own background, between the system's face colour and white.
BYTE lighter(BYTE channel) { return static_cast<BYTE>(((channel * 3 + 240) >> 2) + 1); }

COLORREF backgroundOf(COLORREF face) {
    return RGB(lighter(GetRValue(face)), lighter(GetGValue(face)), lighter(GetBValue(face)));
}

void remake(CRgn& region, const strip::Outline& outline, POINT (&points)[6]) {
    std::copy(outline.begin(), outline.end(), points);
    region.DeleteObject();
    region.CreatePolygonRgn(points, 6, WINDING);
}

}  // namespace

BEGIN_MESSAGE_MAP(CXToolTabCtrl, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

CXToolTabCtrl::CXToolTabCtrl()
    : m_background(backgroundOf(::GetSysColor(COLOR_3DFACE))),
      m_shadowColor(::GetSysColor(COLOR_BTNSHADOW)),
      m_darkColor(::GetSysColor(COLOR_3DDKSHADOW)) {
    LOGFONTW font = {};
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    m_font.CreateFontIndirect(&font);
}

CXToolTabCtrl::~CXToolTabCtrl() {
    // Here, while WM_DESTROY still reaches this class.
    DestroyWindow();
    for (int i = 0; i < GetTabCount(); ++i) delete GetTab(i);
}

int CXToolTabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    m_style = style & 255;
    return CWnd::Create(nullptr, L"", style | WS_CHILD, rect, parent, id);
}

int CXToolTabCtrl::OnCreate(LPCREATESTRUCT create) {
    const int result = CWnd::OnCreate(create);
    m_unscaled = {m_scrollWidth, m_minTabWidth, m_maxTabWidth};
    for (int* size : {&m_scrollWidth, &m_minTabWidth, &m_maxTabWidth})
        *size = KtUiAppearancePixels(m_hWnd, *size);
    if (m_style & strip::kHasTips) {
        m_tip.Create(this);
        m_tip.Activate(TRUE);
    }
    return result;
}

void CXToolTabCtrl::OnDestroy() {
    CWnd::OnDestroy();
    while (!m_tabs.IsEmpty()) {
        const std::unique_ptr<XTTabItem> tab(GetTab(0));
        m_tabs.RemoveAt(0);
        if (tab->m_window == nullptr) continue;
        forgetWindow(tab->m_window);
        tab->m_window->DestroyWindow();
        delete tab->m_window;
    }
    startAnew();
}

void CXToolTabCtrl::forgetWindow(const CWnd* window) {
    for (int index = 0; index < GetTabCount(); ++index)
        if (GetTab(index)->m_window == window) GetTab(index)->m_window = nullptr;
}

void CXToolTabCtrl::startAnew() {
    // The tip's owner is the main window, so it doesn't go by itself.
    m_tip.DestroyWindow();
    m_nextToolId = 0;
    m_activeTab = 0;
    m_firstVisible = 0;
    m_lastVisible = -1;
    m_scrollRect.SetRectEmpty();
    m_scrollWidth = m_unscaled.scroll;
    m_minTabWidth = m_unscaled.minTab;
    m_maxTabWidth = m_unscaled.maxTab;
}

int CXToolTabCtrl::InsertTab(int index, const wchar_t* text, const wchar_t* tip, CWnd* window) {
    if (text == nullptr || *text == L'\0') return -1;
    auto tab = std::make_unique<XTTabItem>();
    tab->m_text = text;
    tab->m_window = window;
    m_tabs.InsertAt(index, tab.get());
    XTTabItem& inserted = *tab.release();
    m_lastVisible = GetTabCount() - 1;
    if (m_style & strip::kHasTips) {
        inserted.m_tip = tip;
        inserted.m_toolId = ++m_nextToolId;
        if (m_tip.m_hWnd != nullptr)
            m_tip.AddTool(this, inserted.m_tip, inserted.m_rect, static_cast<UINT_PTR>(inserted.m_toolId));
    }
    Recalc();
    return 0;
}

int CXToolTabCtrl::RemoveTab(int index) {
    if (index < 0 || index >= GetTabCount()) return 0;
    const std::unique_ptr<XTTabItem> tab(GetTab(index));
    if (tab->m_toolId != 0 && m_tip.m_hWnd != nullptr)
        m_tip.DelTool(this, static_cast<UINT_PTR>(tab->m_toolId));
    m_tabs.RemoveAt(index);
    m_activeTab = strip::ActiveAfterRemoving(m_activeTab, index);
    const strip::TabRange range = strip::RangeWithin({m_firstVisible, m_lastVisible}, GetTabCount());
    m_firstVisible = range.first;
    m_lastVisible = range.last;
    Recalc();
    return 1;
}

int CXToolTabCtrl::SetTabText(int index, const wchar_t* text) {
    if (index < 0 || index >= GetTabCount()) return 0;
    XTTabItem& tab = *GetTab(index);
    if (tab.m_text == text) return 1;
    // Kept: the tip stays the one that the tab was inserted with.
    tab.m_text = text;
    Recalc();
    return 1;
}

bool CXToolTabCtrl::IsTurned() const { return strip::IsTurned(m_style); }

void CXToolTabCtrl::SetBackground(COLORREF color) {
    if (m_background == color) return;
    m_background = color;
    Invalidate(FALSE);
    UpdateWindow();
}

void CXToolTabCtrl::SetActiveTab(int index) {
    if (m_activeTab == index) return;
    m_activeTab = index;
    Invalidate(FALSE);
    UpdateWindow();
}

CSize CXToolTabCtrl::turnedSize() const {
    CRect client;
    if (m_hWnd != nullptr) GetClientRect(&client);
    return IsTurned() ? CSize(client.Height(), client.Width()) : client.Size();
}

void CXToolTabCtrl::Recalc() {
    const CSize size = turnedSize();
    if (m_tabs.IsEmpty() || !strip::CanBeLaidOut(size)) return;
    CClientDC dc(this);
    CFont* former = dc.SelectObject(&m_font);
    m_tabHeight = static_cast<int>(dc.GetTextExtent(L"test", 4).cy) + 4;
    if (m_style & strip::kFitsTabs) layOutTabs(dc, static_cast<int>(size.cx));
    dc.SelectObject(former);
    outlineTabs();
    if (m_style & strip::kHasTips) placeTools();
}

void CXToolTabCtrl::layOutTabs(CDC& dc, int width) {
    const int fit = strip::AvailableWidth(width, m_scrollWidth) / m_minTabWidth;
    const strip::TabRange range =
        strip::FitRange({m_firstVisible, m_lastVisible}, m_activeTab, GetTabCount(), fit);
    m_firstVisible = range.first;
    m_lastVisible = range.last;
    MeasureTabs(&dc, m_firstVisible, m_lastVisible);
    const strip::PlacedTabs placed =
        strip::PlaceTabs(range, GetTabCount(), width, {m_scrollWidth, m_maxTabWidth, m_tabHeight});
    for (int i = 0; i < range.count(); ++i)
        GetTab(range.first + i)->m_rect = placed.tabs[static_cast<std::size_t>(i)];
    m_scrollRect = placed.arrows;
}

void CXToolTabCtrl::MeasureTabs(CDC* dc, int first, int last) {
    int left = 0;
    for (int index = first; index <= last; ++index) {
        XTTabItem& tab = *GetTab(index);
        CRect text;
        dc->DrawText(tab.m_text, &text, DT_CALCRECT | DT_SINGLELINE);
        const int width = strip::WantedWidth(text.Width(), m_marginX, m_minTabWidth);
        tab.m_rect = CRect(left, 0, left + width, m_tabHeight);
        left += width;
    }
}

void CXToolTabCtrl::outlineTabs() {
    const bool overturned = strip::IsOverturned(m_style);
    for (int index = 0; index < GetTabCount(); ++index) {
        XTTabItem& tab = *GetTab(index);
        remake(tab.m_region, strip::OutlineOf(tab.m_rect, overturned), tab.m_points);
    }
    remake(m_scrollRgn, strip::OutlineOf(m_scrollRect, overturned), m_scrollPoints);
}

void CXToolTabCtrl::placeTools() {
    if (m_tip.m_hWnd == nullptr) return;
    CRect client;
    GetClientRect(&client);
    const strip::TabRange visible = {m_firstVisible, m_lastVisible};
    for (int index = 0; index < GetTabCount(); ++index) {
        const XTTabItem& tab = *GetTab(index);
        CRect tool = IsTurned() ? strip::TurnedBack(tab.m_rect, client.Height()) : tab.m_rect;
        // A hidden tab's tip would cover that of the tab which is shown in its place.
        if (!visible.holds(index)) tool.SetRectEmpty();
        m_tip.SetToolRect(this, static_cast<UINT_PTR>(tab.m_toolId), &tool);
    }
    // Not activated: a name edit would lose the focus.
    m_tip.SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

int CXToolTabCtrl::HitTest(CPoint point, int& index) {
    if (IsTurned()) {
        CRect client;
        GetClientRect(&client);
        point = strip::Turned(point, client.Height());
    }
    const auto holds = [this, point](int tab) { return GetTab(tab)->m_region.PtInRegion(point) != FALSE; };
    return static_cast<int>(
        strip::HitTarget(point, {m_firstVisible, m_lastVisible}, m_scrollRect, holds, index));
}

BOOL CXToolTabCtrl::PreTranslateMessage(MSG* message) {
    if (message->message == WM_MOUSEMOVE && m_tip.m_hWnd != nullptr) m_tip.RelayEvent(message);
    return CWnd::PreTranslateMessage(message);
}

void CXToolTabCtrl::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (!m_tabs.IsEmpty()) Recalc();
}

void CXToolTabCtrl::OnLButtonDown(UINT flags, CPoint point) {
    if (::GetFocus() != m_hWnd) SetFocus();
    int index = -1;
    if (HitTest(point, index) == static_cast<int>(strip::Target::Tab)) {
        SetActiveTab(index);
        if (m_paletteSet != nullptr) m_paletteSet->SetActivePalette(index);
    }
    CWnd::OnLButtonDown(flags, point);
}

void CXToolTabCtrl::OnLButtonDblClk(UINT, CPoint point) {
    int index = -1;
    if (HitTest(point, index) != static_cast<int>(strip::Target::Tab)) return;
    if (CWnd* window = GetTab(index)->m_window) window->SendMessage(kBeginNameEdit, 0, 0);
}
