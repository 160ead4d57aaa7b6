// CTabbedPaneEx: the pane that holds the toolkit's bars in tabs. It can't be moved while panes are locked
// (KbUiLockPanel), and remembers of a bar that is closed that it is hidden.
#pragma once

#include <afxcontrolbars.h>
#include <afxtabbedpane.h>

#include <functional>

#include <ktui/ktui_api.h>

class KTUI_API CTabbedPaneEx : public CTabbedPane {
    DECLARE_DYNCREATE(CTabbedPaneEx)

public:
    CTabbedPaneEx();

    /// 0 while the pane is locked.
    BOOL CanFloat() const override;
    void OnPressCloseButton() override;
    /// Replaces the alignment. Unlike a bar, a tabbed pane may stand at the top.
    void SetPaneAlignment(DWORD alignment) override;
    /// The enabled alignment, 32 bits, goes before what the base keeps.
    void Serialize(CArchive& archive) override;

    /// Calls `action` with the window of each tab.
    void ForEachTabWindow(const std::function<void(CWnd* window)>& action);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    bool m_blockedDrag = false;  ///< the press was refused, and the cursor says so until the button is up
};
