#include <ktui/docking/frame_layout_access.h>

#include <afxadv.h>

#include <algorithm>

#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/layout_numbers.h>

namespace layouts {

namespace {

std::vector<CDockablePane*> panesOf(CDockingManager& manager) {
    CObList list;
    manager.GetPaneList(list, TRUE, RUNTIME_CLASS(CDockablePane), TRUE);
    std::vector<CDockablePane*> panes;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        auto* pane = static_cast<CDockablePane*>(list.GetNext(at));
        if (pane->GetSafeHwnd() != nullptr && !pane->IsKindOf(RUNTIME_CLASS(CBaseTabbedPane)))
            panes.push_back(pane);
    }
    return panes;
}

unsigned idOf(const CDockablePane& pane) {
    const int id = pane.GetDlgCtrlID();
    return id > 0 && id <= static_cast<int>(kLastPane) ? static_cast<unsigned>(id) : 0;
}

Pane knowledgeOf(CDockablePane& pane) {
    Pane known;
    known.id = idOf(pane);
    pane.GetWindowText(known.name);
    known.floating = pane.m_recentDockInfo.m_rectRecentFloatingRect;
    if (const auto* set = DYNAMIC_DOWNCAST(CKbUiPaletteSet, &pane);
        set != nullptr && set->GetPaletteCount() > 0)
        known.palette = set->GetActivePaletteTabIndex();
    return known;
}

bool readNumbers(CDockingManager& manager, std::vector<std::int32_t>& numbers) {
    CMemFile memory;
    {
        CArchive archive(&memory, CArchive::store);
        manager.Serialize(archive);
    }
    memory.SeekToBegin();
    CArchive archive(&memory, CArchive::load);
    constexpr DWORD_PTR kMostNumbers = 1'000'000;
    const DWORD_PTR count = archive.ReadCount();
    if (count > kMostNumbers) return false;
    for (DWORD_PTR i = 0; i < count; ++i) {
        int number = 0;
        archive >> number;
        numbers.push_back(number);
    }
    return true;
}

bool writeNumbers(CDockingManager& manager, const std::vector<std::int32_t>& numbers) try {
    CMemFile memory;
    {
        CArchive archive(&memory, CArchive::store);
        archive.WriteCount(numbers.size());
        for (const std::int32_t number : numbers) archive << static_cast<int>(number);
    }
    memory.SeekToBegin();
    CArchive archive(&memory, CArchive::load);
    manager.Serialize(archive);
    return true;
} catch (CArchiveException* exception) {
    exception->Delete();
    return false;
}

bool isDockedIn(const Record& record, unsigned id) {
    return std::ranges::any_of(record.rows, [&](const Row& row) { return Find(row.panes, id) != nullptr; });
}

/// Of a pane that has no place among the docked ones the manager would keep the one that it has now.
void clearAway(CDockingManager& manager, const Record& record) {
    for (CDockablePane* pane : panesOf(manager)) {
        if (idOf(*pane) == 0 || isDockedIn(record, idOf(*pane))) continue;
        pane->UndockPane(TRUE);
        // One that floated or stood in tabs may have a place of its own still.
        if (pane->IsDocked()) pane->UndockPane(TRUE);
    }
}

void tell(CDockablePane& pane, const Pane& known) {
    if (!CRect(known.floating).IsRectEmpty()) pane.m_recentDockInfo.m_rectRecentFloatingRect = known.floating;
    auto* set = DYNAMIC_DOWNCAST(CKbUiPaletteSet, &pane);
    if (set != nullptr && known.palette >= 0 && known.palette < set->GetPaletteCount())
        set->SetActivePalette(known.palette);
    if (auto* bar = DYNAMIC_DOWNCAST(CKbUiDockControlBar, &pane)) bar->setVisible(pane.IsVisible() != FALSE);
}

/// The focus stays where it was, if that can be seen, and goes to the main window otherwise.
class FocusKept {
public:
    explicit FocusKept(CWnd* frame) : m_frame(frame), m_focus(::GetFocus()) {}
    ~FocusKept() {
        if (m_focus == nullptr) return;
        if (::IsWindowVisible(m_focus))
            ::SetFocus(m_focus);
        else if (m_frame != nullptr)
            m_frame->SetFocus();
    }
    FocusKept(const FocusKept&) = delete;
    FocusKept& operator=(const FocusKept&) = delete;

private:
    CWnd* m_frame;
    HWND m_focus;
};

}  // namespace

CDockablePane* PaneOf(CDockingManager& manager, unsigned id) {
    for (CDockablePane* pane : panesOf(manager))
        if (idOf(*pane) == id) return pane;
    return nullptr;
}

bool Capture(CDockingManager& manager, Record& record) {
    std::vector<std::int32_t> numbers;
    Record captured;
    if (!readNumbers(manager, numbers) || !FromNumbers(numbers, captured)) return false;
    Tidy(captured);
    for (CDockablePane* pane : panesOf(manager))
        if (idOf(*pane) != 0 && captured.findPane(idOf(*pane)) == nullptr)
            captured.panes.push_back(knowledgeOf(*pane));
    record = std::move(captured);
    return true;
}

bool Restore(CDockingManager& manager, const Record& record) {
    const FocusKept focus(manager.GetDockSiteFrameWnd());
    std::vector<std::int32_t> before;
    if (!readNumbers(manager, before)) return false;
    clearAway(manager, record);
    if (!writeNumbers(manager, ToNumbers(record))) {
        writeNumbers(manager, before);
        return false;
    }
    for (const Pane& known : record.panes)
        if (CDockablePane* pane = PaneOf(manager, known.id)) tell(*pane, known);
    manager.AdjustDockingLayout();
    return true;
}

}  // namespace layouts
