// DocumentGroups: where groups stand, and the tab that is dragged.
#include <algorithm>

#include <kmfc/global_data.h>

#include "document_groups.h"
#include "group_tabs.h"

namespace kmfc::docking {

namespace {

constexpr int kLeast = 60;  // pixels of a group across and along, at 96 dots an inch

/// The line between two groups.
class GroupDivider : public CPaneDivider {
public:
    GroupDivider(DocumentGroups& groups, int id) : m_groups(groups), m_which(id) {}

protected:
    int move_edge(int delta) override { return m_groups.move_divider(m_which, delta); }

private:
    DocumentGroups& m_groups;
    int m_which;
};

}  // namespace

Rules DocumentGroups::rules() const {
    Rules rules;
    rules.divider = CPaneDivider::m_nDefaultWidth;
    rules.least = [](PaneKey) { return CSize(afxGlobalData.scaled(kLeast), afxGlobalData.scaled(kLeast)); };
    return rules;
}

/// Inside the documents' window, client coordinates of the frame.
CRect DocumentGroups::room() const {
    CRect rect;
    ::GetClientRect(m_frame.m_hWndMDIClient, &rect);
    ::MapWindowPoints(m_frame.m_hWndMDIClient, m_frame.m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void DocumentGroups::place() {
    if (!is_on()) return;
    // A print preview stands in the place of the documents.
    const bool hides = m_frame.IsPrintPreview() != FALSE;
    m_now = Arrangement();
    if (!hides) m_tree.arrange(room(), rules(), m_now);
    for (GroupTabs* const group : m_groups) {
        const CRect* const found = m_now.find(reinterpret_cast<PaneKey>(group));
        const int height = found != nullptr ? group->GetTabsHeight() : 0;
        if (found == nullptr || height == 0) group->ShowWindow(SW_HIDE);
        if (found == nullptr) continue;
        group->place = *found;
        CRect strip(*found), documents(*found);
        if (group->GetLocation() == CMFCTabCtrl::LOCATION_TOP)
            strip.bottom = documents.top = std::min(strip.top + height, strip.bottom);
        else
            strip.top = documents.bottom = std::max(strip.bottom - height, strip.top);
        if (height != 0)
            group->SetWindowPos(nullptr, strip.left, strip.top, strip.Width(), strip.Height(),
                                SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
        ::MapWindowPoints(m_frame.m_hWnd, m_frame.m_hWndMDIClient, reinterpret_cast<POINT*>(&documents), 2);
        for (int i = 0; i < group->GetTabsNum(); ++i) {
            CWnd* const document = group->GetTabWnd(i);
            if (document->IsZoomed() || document->IsIconic()) m_frame.MDIRestore(document);
            document->SetWindowPos(nullptr, documents.left, documents.top, documents.Width(),
                                   documents.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
    place_dividers_of(m_now);
}

void DocumentGroups::place_dividers_of(const Arrangement& now) {
    constexpr UINT kId = 0xFFFF;
    for (const PlacedDivider& placed : now.dividers) {
        auto& divider = m_dividers[placed.id];
        if (divider == nullptr) {
            divider = std::make_unique<GroupDivider>(*this, placed.id);
            divider->CreateEx(0, placed.upright ? CPaneDivider::SS_VERT : CPaneDivider::SS_HORZ, placed.rect,
                              &m_frame, kId);
            ::SetWindowPos(divider->m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        }
        ::SetWindowPos(divider->m_hWnd, nullptr, placed.rect.left, placed.rect.top, placed.rect.Width(),
                       placed.rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    }
    std::erase_if(m_dividers, [&](const auto& each) { return now.find_divider(each.first) == nullptr; });
}

int DocumentGroups::move_divider(int id, int delta) {
    const PlacedDivider* const placed = m_now.find_divider(id);
    const int moved = placed != nullptr ? m_tree.move_divider(*placed, delta, rules()) : 0;
    if (moved != 0) place();
    return moved;
}

// A dragged tab.

void DocumentGroups::begin_drag(GroupTabs& strip, int tab) {
    m_drag.from = &strip;
    m_drag.child = DYNAMIC_DOWNCAST(CMDIChildWndEx, strip.GetTabWnd(tab));
    if (m_drag.child == nullptr) return;
    strip.SetCapture();
    CPoint cursor;
    ::GetCursorPos(&cursor);
    drag_to(cursor);
}

void DocumentGroups::drag_to(CPoint screen) {
    if (!is_dragging()) return;
    CPoint point(screen);
    m_frame.ScreenToClient(&point);
    m_drag.at = screen;
    m_drag.to = nullptr;
    m_drag.drop = GroupDrop();
    const bool alone = m_groups.size() == 1, single = m_drag.from->GetTabsNum() == 1;
    for (GroupTabs* const group : m_groups) {
        if (!group->place.PtInRect(point)) continue;
        GroupTarget target;
        target.rect = group->place;
        group->GetWindowRect(&target.strip);
        m_frame.ScreenToClient(&target.strip);
        target.own = group == m_drag.from;
        // The only document of a group makes no new one out of that.
        const bool may = !(target.own && single);
        target.mayStand = may && (alone || m_stand);
        target.mayLie = may && (alone || !m_stand);
        m_drag.to = group;
        m_drag.drop = drop_on_group(target, point);
    }
    CRect shade(0, 0, 0, 0);
    if (m_drag.drop.changes) {
        shade = m_drag.drop.place;
        m_frame.ClientToScreen(&shade);
    }
    m_shade.show(shade, &m_frame);
    ::SetCursor(m_drag.drop.changes ? afxGlobalData.m_hcurMoveTab : afxGlobalData.m_hcurNoMoveTab);
}

void DocumentGroups::end_drag(bool drops) {
    if (!is_dragging()) return;
    const Drag drag = std::exchange(m_drag, Drag());
    if (::GetCapture() == drag.from->m_hWnd) ::ReleaseCapture();
    m_shade.show(CRect(0, 0, 0, 0), &m_frame);
    if (!drops || !drag.drop.changes) return;
    if (drag.drop.side) return begin_group(*drag.child, *drag.from, *drag.to, *drag.drop.side);
    // Over the documents of another group the program may ask the user first.
    CRect strip;
    drag.to->GetWindowRect(&strip);
    if (!strip.PtInRect(drag.at) && m_frame.OnShowMDITabContextMenu(drag.at, allowed(), TRUE)) return;
    transfer(*drag.child, *drag.from, *drag.to);
}

bool DocumentGroups::ends_drag(const MSG& message) {
    if (!is_dragging() || message.message != WM_KEYDOWN || message.wParam != VK_ESCAPE) return false;
    end_drag(false);
    return true;
}

}  // namespace kmfc::docking
