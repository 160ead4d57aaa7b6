// DocumentGroups: the documents of a frame in groups side by side or one below the other, each with tabs.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include <kmfc/mdi_frame_ex.h>
#include <kmfc/mdi_tab_info.h>
#include <kmfc/pane_divider.h>

#include "core/group_drop.h"
#include "core/split_tree.h"
#include "document_holder.h"
#include "guide_windows.h"

namespace kmfc::docking {

class GroupTabs;

/// One for each frame; without a group it does nothing. Documents have no frame of their own while they are
/// in groups: all of a group stand in the same place, the active one before the others.
class DocumentGroups : public DocumentHolder {
public:
    explicit DocumentGroups(CMDIFrameWndEx& frame);
    ~DocumentGroups() override;

    /// Puts all documents into one group, or applies other parameters to the groups that there are.
    void start(const CMDITabInfo& params);
    void stop();
    bool is_on() const { return !m_groups.empty(); }
    const CObList& list() const { return m_list; }

    /// After a document has gone, the one of its group that was active before comes, not its neighbour.
    void activate_last(bool last);
    void new_group(bool beside);
    void move_active(bool next);
    /// AFX_MDI_ bits.
    DWORD allowed() const;

    /// Puts strips, dividers and documents where they belong in the documents' room.
    void place();
    /// The user chose a tab of a strip; false when it is none of these.
    bool chosen(const CMFCBaseTabCtrl* strip, int tab);

    void add(CMDIChildWndEx& child) override;
    void remove(CMDIChildWndEx& child) override;
    void rename(CMDIChildWndEx& child) override;
    void activate(CMDIChildWndEx& child) override;
    void make_way(CMDIChildWndEx& child) override;
    bool maximizes() const override { return false; }

    // For the strips.
    void show_menu(GroupTabs& strip, CPoint screen);
    void begin_drag(GroupTabs& strip, int tab);
    void drag_to(CPoint screen);
    void end_drag(bool drops);
    bool is_dragging() const { return m_drag.child != nullptr; }
    /// Whether the message is Escape during a drag, which ends it.
    bool ends_drag(const MSG& message);
    void forget(GroupTabs& strip);
    /// Moves a divider; the answer is how far it went.
    int move_divider(int id, int delta);

private:
    struct Drag {
        GroupTabs* from = nullptr;
        CMDIChildWndEx* child = nullptr;
        GroupTabs* to = nullptr;
        GroupDrop drop;
        CPoint at{0, 0};  ///< where the mouse was last, screen coordinates
    };

    GroupTabs* make_strip();
    void apply_params(GroupTabs& strip);
    GroupTabs* group_of(const CWnd& child) const;
    GroupTabs* active() const { return m_active != nullptr ? m_active : m_groups.front(); }
    void insert(GroupTabs& group, CMDIChildWndEx& child);
    void transfer(CMDIChildWndEx& child, GroupTabs& from, GroupTabs& to);
    void begin_group(CMDIChildWndEx& child, GroupTabs& from, GroupTabs& beside, Side side);
    void drop_group(GroupTabs& group);
    void note_groups();
    void mark_active(GroupTabs& group);
    void raise_documents();
    void take_frame(CMDIChildWndEx& child);
    void give_frame_back(HWND child);
    void place_dividers_of(const Arrangement& now);
    CRect room() const;
    Rules rules() const;

    CMDIFrameWndEx& m_frame;
    CMDITabInfo m_params;
    std::vector<GroupTabs*> m_groups;  ///< from left to right or from top to bottom; they delete themselves
    GroupTabs* m_active = nullptr;     ///< the group of the active document, or null
    CObList m_list;                    ///< the same groups
    SplitTree m_tree;
    Arrangement m_now;
    bool m_stand = true;  ///< groups stand side by side
    bool m_activatesLast = false;
    std::map<int, std::unique_ptr<CPaneDivider>> m_dividers;
    std::map<HWND, DWORD> m_styles;  ///< what documents' frames were made of
    bool m_isFollowing = false;      ///< a tab is chosen because its document became active
    Drag m_drag;
    ShadeWindow m_shade;
};

}  // namespace kmfc::docking
