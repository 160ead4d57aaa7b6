// CToolBars: the drafter's menu bar and toolbars, which dock in the main window. Where they stand is kept
// with its panes.
#pragma once

#include <afxwin.h>
#include <afxmenubar.h>
#include <afxtoolbar.h>

#include "resource.h"

class CMDIFrameWndEx;

class CToolBars {
public:
    /// Makes the bars and docks them at the top: the menu in a row of its own, the others below it in one.
    /// False when a window can't be made.
    bool Create(CMDIFrameWndEx& frame);

    // By the commands of View > Toolbars.
    bool IsShown(UINT command) const { return barOf(command).IsVisible() != FALSE; }
    void Toggle(UINT command);

    /// Lets the user at the menu and at the toolbars, or keeps him from them, also where they float.
    void Enable(bool menu, bool tools);

private:
    const CMFCToolBar& barOf(UINT command) const { return command == ID_VIEW_TOOLBAR_FILE ? m_file : m_view; }

    CMFCMenuBar m_menu;
    CMFCToolBar m_file;
    CMFCToolBar m_view;
};
