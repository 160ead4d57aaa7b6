// CFrameWndEx, CMDIFrameWndEx and CMDIChildWndEx: frames whose panes dock.
#pragma once

#include <kmfc/docking_frame.h>
#include <kmfc/mdi_frame.h>

/// A frame window with a docking manager.
class KMFC_API CFrameWndEx : public DockingFrame<CFrameWnd> {
    DECLARE_DYNCREATE(CFrameWndEx)
public:
    CFrameWndEx();
    ~CFrameWndEx() override;

protected:
    DECLARE_MESSAGE_MAP()
};

/// The main window of a program with several documents, with a docking manager.
class KMFC_API CMDIFrameWndEx : public DockingFrame<CMDIFrameWnd> {
    DECLARE_DYNCREATE(CMDIFrameWndEx)
public:
    CMDIFrameWndEx();
    ~CMDIFrameWndEx() override;

protected:
    DECLARE_MESSAGE_MAP()
};

/// A document window of CMDIFrameWndEx.
class KMFC_API CMDIChildWndEx : public CMDIChildWnd {
    DECLARE_DYNCREATE(CMDIChildWndEx)
public:
    CMDIChildWndEx();
    ~CMDIChildWndEx() override;
    /// The docking manager of the main window, or null.
    CDockingManager* GetDockingManager() const;
};
