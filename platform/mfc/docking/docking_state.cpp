// CDockingManager: the layout in the registry and in archives.
#include <algorithm>
#include <cstring>

#include <kmfc/auto_hide_bar.h>
#include <kmfc/docking_manager.h>
#include <kmfc/settings_store.h>
#include <kmfc/tabbed_pane.h>

#include "core/caption_layout.h"
#include "core/layout_record.h"
#include "docked_bars.h"
#include "frame_state.h"

using namespace kmfc::docking;

namespace {

constexpr LPCTSTR kValue = L"DockingPaneAndPaneDividers";
constexpr LPCTSTR kBarsValue = L"DockedBars";

CString key_of_layout(LPCTSTR profile, UINT id) {
    CString key;
    const CString path = AFXGetRegPath(L"DockingManager", profile);
    key.Format(L"%sDockingManager-%d", path.GetString(),
               id == static_cast<UINT>(-1) ? 0 : static_cast<int>(id));
    return key;
}

PaneKey id_of(PaneKey key) { return static_cast<PaneKey>(::GetDlgCtrlID(pane_of(key)->m_hWnd)); }

/// A tree whose panes are named by other keys; those that become 0 go.
SplitTree renamed(SplitTree tree, const std::function<PaneKey(PaneKey)>& name) {
    for (const PaneKey key : tree.panes()) {
        const PaneKey by = name(key);
        if (by == 0 || (by != key && tree.contains(by)))
            tree.remove(key);
        else if (by != key)
            tree.replace(key, by);
    }
    return tree;
}

FrameLayout renamed(const FrameLayout& layout, const std::function<PaneKey(PaneKey)>& name) {
    FrameLayout result;
    for (FrameLayout::Row row : layout.rows()) {
        row.panes = renamed(row.panes, name);
        if (!row.panes.empty()) result.add_row(std::move(row));
    }
    return result;
}

bool is_own_id(PaneKey id) { return id > 0 && id < 0xFFFF; }

/// Names panes by their ids, and tabbed panes by ids of groups, which it collects. Panes without an id of
/// their own can't be found again, and get none.
class Namer {
public:
    explicit Namer(LayoutRecord& record) : m_record(record) {}

    PaneKey operator()(PaneKey key) {
        if (pane_of(key)->holds_tabs()) return group(*static_cast<CBaseTabbedPane*>(pane_of(key)));
        const PaneKey id = id_of(key);
        return is_own_id(id) ? id : 0;
    }

private:
    PaneKey group(CBaseTabbedPane& tabbed) {
        if (const auto known = m_groups.find(key_of(&tabbed)); known != m_groups.end()) return known->second;
        GroupRecord group;
        group.id = kFirstGroup + m_record.groups.size();
        CMFCBaseTabCtrl* const control = tabbed.GetUnderlyingWindow();
        for (int i = 0; control != nullptr && i < control->GetTabsNum(); ++i) {
            auto* pane = DYNAMIC_DOWNCAST(CDockablePane, control->GetTabWnd(i));
            if (pane == nullptr || !is_own_id(id_of(key_of(pane)))) continue;
            if (control->GetActiveTab() == i) group.active = static_cast<int>(group.tabs.size());
            group.tabs.push_back({id_of(key_of(pane)), control->IsTabVisible(i) != FALSE});
        }
        const PaneKey id = group.tabs.empty() ? 0 : group.id;
        if (id != 0) m_record.groups.push_back(std::move(group));
        m_groups[key_of(&tabbed)] = id;
        return id;
    }

    LayoutRecord& m_record;
    std::map<PaneKey, PaneKey> m_groups;
};

CByteArray& as_bytes(const std::vector<std::int32_t>& numbers, CByteArray& bytes) {
    bytes.SetSize(static_cast<INT_PTR>(numbers.size() * sizeof(std::int32_t)));
    std::memcpy(bytes.GetData(), numbers.data(), numbers.size() * sizeof(std::int32_t));
    return bytes;
}

std::vector<std::int32_t> as_numbers(const CByteArray& bytes) {
    const auto size = static_cast<size_t>(bytes.GetSize());
    if (size % sizeof(std::int32_t) != 0) return {};
    std::vector<std::int32_t> numbers(size / sizeof(std::int32_t));
    if (size != 0) std::memcpy(numbers.data(), bytes.GetData(), size);
    return numbers;
}

}  // namespace

std::vector<std::int32_t> CDockingManager::stored_layout() const {
    LayoutRecord record;
    Namer namer(record);
    const auto stored_name = [&namer](PaneKey key) { return namer(key); };
    record.docked = renamed(m_state->layout, stored_name);
    for (const CMFCAutoHideBar* bar : CMFCAutoHideBar::of_frame(m_pParentWnd))
        for (const auto& button : bar->buttons()) {
            CDockablePane* pane = CMFCAutoHideBar::sliding_pane(button->GetAutoHideWindow());
            const PaneKey name = stored_name(key_of(pane));
            const auto isIt = [name](const HiddenRecord& known) { return known.pane == name; };
            if (name != 0 && button->IsVisible() &&
                std::none_of(record.hidden.begin(), record.hidden.end(), isIt))
                record.hidden.push_back({name, side_of(bar->GetCurrentAlignment()), pane->auto_hide_size()});
        }
    for (POSITION at = m_lstMiniFrames.GetTailPosition(); at != nullptr;) {
        auto* frame = static_cast<CPaneFrameWnd*>(m_lstMiniFrames.GetPrev(at));
        FloatingRecord floating;
        frame->GetWindowRect(&floating.rect);
        if (const auto* group = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, frame))
            floating.panes = renamed(group->tree(), stored_name);
        else if (auto* pane = DYNAMIC_DOWNCAST(CDockablePane, frame->GetPane())) {
            SplitTree one(key_of(pane));
            one.set_shown(key_of(pane), pane->IsVisible() != FALSE);
            floating.panes = renamed(one, stored_name);
        }
        if (!floating.panes.empty()) record.floating.push_back(std::move(floating));
    }
    return encode(record);
}

BOOL CDockingManager::SaveState(LPCTSTR lpszProfileName, UINT uiID) {
    CObList panes;
    GetPaneList(panes, TRUE, nullptr, TRUE);
    for (POSITION at = panes.GetHeadPosition(); at != nullptr;)
        static_cast<CBasePane*>(panes.GetNext(at))->SaveState(lpszProfileName, -1, uiID);
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, FALSE);
    CByteArray bytes, bars;
    if (!settings.CreateKey(key_of_layout(lpszProfileName, uiID))) return FALSE;
    if (m_state->bars != nullptr &&
        !settings.Write(kBarsValue, as_bytes(encode_bars(m_state->bars->stored()), bars)))
        return FALSE;
    return settings.Write(kValue, as_bytes(stored_layout(), bytes));
}

BOOL CDockingManager::LoadState(LPCTSTR lpszProfileName, UINT uiID) {
    if (m_bRestoreDockStateDisabled) return FALSE;
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, TRUE);
    CByteArray bytes;
    if (!settings.Open(key_of_layout(lpszProfileName, uiID)) || !settings.Read(kValue, bytes)) return FALSE;
    LayoutRecord record;
    if (!decode(as_numbers(bytes), record)) return FALSE;
    CByteArray stored;
    std::vector<BarRecord> places;
    if (settings.Read(kBarsValue, stored) && !decode_bars(as_numbers(stored), places)) return FALSE;
    apply(record);
    if (!places.empty()) bars().restore(places);
    // The panes go last: what they make of their own state stands above the layout's.
    CObList panes;
    GetPaneList(panes, TRUE, nullptr, TRUE);
    for (POSITION at = panes.GetHeadPosition(); at != nullptr;)
        static_cast<CBasePane*>(panes.GetNext(at))->LoadState(lpszProfileName, -1, uiID);
    return TRUE;
}

void CDockingManager::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        const std::vector<std::int32_t> numbers = stored_layout();
        ar.WriteCount(numbers.size());
        for (const std::int32_t number : numbers) ar << static_cast<int>(number);
        return;
    }
    constexpr DWORD_PTR kMost = 1'000'000;
    const DWORD_PTR count = ar.ReadCount();
    if (count > kMost) AfxThrowArchiveException(CArchiveException::badIndex);
    std::vector<std::int32_t> numbers;
    for (DWORD_PTR i = 0; i < count; ++i) {
        int number = 0;
        ar >> number;
        numbers.push_back(number);
    }
    LayoutRecord record;
    if (!decode(numbers, record)) AfxThrowArchiveException(CArchiveException::badSchema);
    apply(record);
}

void CDockingManager::apply(const LayoutRecord& record) {
    const auto found = [this](PaneKey id) {
        return DYNAMIC_DOWNCAST(CDockablePane, FindPaneByID(static_cast<UINT>(id), TRUE));
    };
    // The first pane of a group that is there stands for it until the others join.
    const auto present = [&](PaneKey id) -> PaneKey {
        const GroupRecord* group = record.find_group(id);
        if (group == nullptr) return key_of(found(id));
        for (const TabRecord& tab : group->tabs)
            if (CDockablePane* pane = found(tab.pane)) return key_of(pane);
        return 0;
    };
    leave_tabs(record, found);
    m_bSuppressLayout = TRUE;
    FrameLayout next = renamed(record.docked, present);
    // What hides stands in its place first.
    for (const HiddenRecord& hidden : record.hidden) next.set_shown(present(hidden.pane), true);
    const std::vector<PaneKey> known = next.panes();
    // Panes that the record doesn't know keep their side, or go on floating.
    for (const PaneKey key : m_state->layout.panes()) {
        if (next.contains(key)) continue;
        CDockablePane* pane = pane_of(key);
        CRect rect;
        pane->GetWindowRect(&rect);
        const Side side = m_state->layout.side_of(key);
        next.dock(SplitTree(key), side, is_upright(side) ? rect.Width() : rect.Height(), false);
        next.set_shown(key, m_state->layout.shows(key));
    }
    for (const PaneKey key : known) bring_home(pane_of(key));
    m_state->layout = next;
    for (const PaneKey key : known) {
        pane_of(key)->m_isShown = next.shows(key);
        settle(pane_of(key));
    }
    for (const FloatingRecord& floating : record.floating)
        restore_frame(floating.rect, renamed(floating.panes, present));
    m_bSuppressLayout = FALSE;
    AdjustDockingLayout();
    for (const GroupRecord& group : record.groups) restore_group(group, found);
    for (const HiddenRecord& hidden : record.hidden)
        if (const PaneKey key = present(hidden.pane); key != 0)
            hide_again(hidden, CMFCAutoHideBar::sliding_pane(pane_of(key)));
}

/// The panes of a record leave the tabs that they are in now.
void CDockingManager::leave_tabs(const LayoutRecord& record,
                                 const std::function<CDockablePane*(std::uintptr_t)>& found) {
    std::vector<PaneKey> ids = record.docked.panes();
    for (const FloatingRecord& floating : record.floating)
        for (const PaneKey id : floating.panes.panes()) ids.push_back(id);
    for (const GroupRecord& group : record.groups)
        for (const TabRecord& tab : group.tabs) ids.push_back(tab.pane);
    for (const PaneKey id : ids) {
        CDockablePane* pane = id < kFirstGroup ? found(id) : nullptr;
        if (pane != nullptr && pane->IsTabbed()) bring_home(pane);
    }
}

void CDockingManager::restore_group(const GroupRecord& group,
                                    const std::function<CDockablePane*(std::uintptr_t)>& found) {
    CDockablePane *first = nullptr, *active = nullptr;
    for (const TabRecord& tab : group.tabs) {
        CDockablePane* pane = found(tab.pane);
        if (pane == nullptr) continue;
        const bool isActive = static_cast<size_t>(group.active) < group.tabs.size() &&
                              group.tabs[static_cast<size_t>(group.active)].pane == tab.pane;
        if (isActive) active = pane;
        if (first == nullptr)
            first = pane;
        else
            pane->AttachToTabWnd(first, DM_SHOW, FALSE);
    }
    CBaseTabbedPane* tabbed = first != nullptr ? first->GetParentTabbedPane() : nullptr;
    if (tabbed == nullptr) return;
    for (const TabRecord& tab : group.tabs) {
        CDockablePane* pane = found(tab.pane);
        if (pane == nullptr) continue;
        // A pane that was hidden before has only got a tab so far.
        pane->m_isShown = tab.shown;
        if (!tab.shown) pane->ShowPane(FALSE, FALSE, FALSE);
    }
    CMFCBaseTabCtrl* control = tabbed->GetUnderlyingWindow();
    if (active != nullptr) control->SetActiveTab(control->GetTabFromHwnd(active->m_hWnd));
}

/// It hides at its edge again, with the size that it had.
void CDockingManager::hide_again(const HiddenRecord& hidden, CDockablePane* pane) {
    if (pane->SetAutoHideMode(TRUE, alignment_of(hidden.side)) != nullptr) pane->m_autoHideSize = hidden.size;
}

void CDockingManager::restore_frame(const CRect& rect, const SplitTree& panes) {
    const std::vector<PaneKey> keys = panes.panes();
    if (keys.empty()) return;
    for (const PaneKey key : keys) {
        bring_home(pane_of(key));
        // Nothing was laid out since it was docked, and its frame doesn't hide what it doesn't show.
        pane_of(key)->ShowWindow(SW_HIDE);
        pane_of(key)->leave_home(true);
        pane_of(key)->m_isShown = panes.shows(key);
    }
    CPaneFrameWnd* frame = pane_of(keys.front())->make_miniframe(rect);
    if (frame == nullptr) return;
    if (auto* group = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, frame))
        group->take_over(panes, nullptr, Side::left, 0);
    else
        frame->AddPane(pane_of(keys.front()));
    frame->ShowWindow(frame->GetVisiblePaneCount() != 0 ? SW_SHOWNOACTIVATE : SW_HIDE);
}
