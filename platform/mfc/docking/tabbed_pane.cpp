#include <kmfc/tabbed_pane.h>

#include <algorithm>

namespace {

/// All tabbed panes of the program.
std::vector<CTabbedPane*>& all_panes() {
    static std::vector<CTabbedPane*> panes;
    return panes;
}

CArray<COLORREF, COLORREF>& chosen_colors() {
    static CArray<COLORREF, COLORREF> colors;
    return colors;
}

constexpr int kTabBorder = 0;  // the pane has borders of its own

template <class Change>
void for_all_tabs(Change change) {
    for (CTabbedPane* const pane : all_panes())
        if (CMFCTabCtrl* const tabs = pane->GetTabWnd()) change(*tabs);
}

}  // namespace

IMPLEMENT_DYNCREATE(CTabbedPane, CBaseTabbedPane)

BEGIN_MESSAGE_MAP(CTabbedPane, CBaseTabbedPane)
END_MESSAGE_MAP()

BOOL CTabbedPane::m_bTabsAlwaysTop = FALSE;
BOOL CTabbedPane::m_bTabsAutoColor = FALSE;
CRuntimeClass* CTabbedPane::m_pTabWndRTC = nullptr;

CTabbedPane::CTabbedPane(BOOL bAutoDestroy) : CBaseTabbedPane(bAutoDestroy) { all_panes().push_back(this); }
CTabbedPane::~CTabbedPane() { std::erase(all_panes(), this); }

CMFCBaseTabCtrl* CTabbedPane::create_tab_window() {
    CObject* const made = m_pTabWndRTC != nullptr ? m_pTabWndRTC->CreateObject() : nullptr;
    auto* tabs = DYNAMIC_DOWNCAST(CMFCTabCtrl, made);
    if (tabs == nullptr) {
        delete made;
        tabs = new CMFCTabCtrl;
    }
    const auto location = m_bTabsAlwaysTop ? CMFCTabCtrl::LOCATION_TOP : CMFCTabCtrl::LOCATION_BOTTOM;
    if (!tabs->Create(CMFCTabCtrl::STYLE_3D, CRect(0, 0, 0, 0), this, 1, location)) {
        delete tabs;
        return nullptr;
    }
    tabs->HideSingleTab(IsHideSingleTab());
    tabs->SetTabBorderSize(kTabBorder, FALSE);
    tabs->EnableTabSwap(TRUE);
    tabs->EnableAutoColor(m_bTabsAutoColor);
    tabs->SetAutoColors(chosen_colors());
    return tabs;
}

BOOL CTabbedPane::IsTabLocationBottom() const {
    return m_pTabWnd != nullptr && m_pTabWnd->GetLocation() == CMFCBaseTabCtrl::LOCATION_BOTTOM;
}

void CTabbedPane::EnableTabAutoColor(BOOL bEnable) {
    m_bTabsAutoColor = bEnable;
    for_all_tabs([&](CMFCTabCtrl& tabs) { tabs.EnableAutoColor(bEnable); });
}

void CTabbedPane::SetTabAutoColors(const CArray<COLORREF, COLORREF>& arColors) {
    chosen_colors().Copy(arColors);
    for_all_tabs([&](CMFCTabCtrl& tabs) { tabs.SetAutoColors(arColors); });
}

void CTabbedPane::ResetTabs() {
    for_all_tabs([](CMFCTabCtrl& tabs) {
        tabs.EnableAutoColor(m_bTabsAutoColor);
        tabs.SetTabBorderSize(kTabBorder);
    });
}
