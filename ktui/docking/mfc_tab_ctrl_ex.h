// CMFCTabCtrlEx: the tab control in CTabbedPaneEx, whose tabs can't be torn off while panes are locked.
#pragma once

#include <afxtabctrl.h>

#include <ktui/ktui_api.h>

class KTUI_API CMFCTabCtrlEx : public CMFCTabCtrl {
    DECLARE_DYNCREATE(CMFCTabCtrlEx)

public:
    /// 0 while the pane around the tabs is locked.
    BOOL IsTabDetachable(int tab) const override;
};
