// DocumentTabs: the tabs of a frame's document windows.
#pragma once

#include <kmfc/mdi_frame_ex.h>

#include "document_holder.h"

namespace kmfc::docking {

/// One for each frame. Without a window of its own, which EnableMDITabs makes, it does nothing.
class DocumentTabs : public CMFCTabCtrl, public DocumentHolder {
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

    void add(CMDIChildWndEx& child) override;
    void remove(CMDIChildWndEx& child) override;
    void rename(CMDIChildWndEx& child) override;
    void activate(CMDIChildWndEx& child) override;
    void make_way(CMDIChildWndEx& child) override;
    bool maximizes() const override { return true; }
    /// The user chose the tab.
    void chosen(int tab);

private:
    void room_changes(int heightBefore);

    CMDIFrameWndEx& m_frame;
    bool m_hasIcons = false;
    bool m_isFollowing = false;  ///< a tab is chosen because its document became active
};

}  // namespace kmfc::docking
