// CFrameWndEx: a frame whose panes dock.
#pragma once

#include <kmfc/docking_frame.h>
#include <kmfc/frame.h>

/// A frame window with a docking manager.
class KMFC_API CFrameWndEx : public DockingFrame<CFrameWnd> {
    DECLARE_DYNCREATE(CFrameWndEx)
public:
    CFrameWndEx();
    ~CFrameWndEx() override;

protected:
    DECLARE_MESSAGE_MAP()
};
