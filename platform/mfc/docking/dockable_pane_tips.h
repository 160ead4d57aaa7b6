// The tips of a pane's caption buttons.
#pragma once

#include <afxcmn.h>
#include <kmfc/dockable_pane.h>

struct CDockablePane::Tips {
    CToolTipCtrl control;
    /// One tool for each button, without rectangles.
    void create(CDockablePane* pane);
    void place(const CDockablePane& pane);
};
