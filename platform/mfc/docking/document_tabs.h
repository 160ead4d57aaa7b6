// DocumentTabs: the tabs of a frame's document windows.
#pragma once

#include <kmfc/mdi_frame_ex.h>

namespace kmfc::docking {

/// One for each frame. Without a window of its own, which EnableMDITabs makes, it does nothing.
class DocumentTabs : public CMFCTabCtrl {
public:
    explicit DocumentTabs(CMDIFrameWndEx& frame);

    bool start(bool icons, Location location, bool closeButton, Style style, bool ownTips,
               bool closeOnActive);
    void stop();
    bool is_on() const { return m_hWnd != nullptr; }

    /// Takes the strip's height from the border that surrounds the documents.
    void take_room(CRect& border) const;
    /// Puts the strip beside the documents, after they were laid out.
    void place();

    // What happens to a document window.
    void add(CMDIChildWndEx& child);
    void remove(CMDIChildWndEx& child);
    void rename(CMDIChildWndEx& child);
    void activate(CMDIChildWndEx& child);
    /// It is about to be destroyed: its neighbour becomes the active document.
    void make_way(CMDIChildWndEx& child);
    /// The user chose the tab.
    void chosen(int tab);

private:
    void room_changes(int heightBefore);

    CMDIFrameWndEx& m_frame;
    bool m_hasIcons = false;
    bool m_isFollowing = false;  ///< a tab is chosen because its document became active
};

}  // namespace kmfc::docking
