// CCmdTarget: whatever can own a message map and receive commands; CCmdUI, the update-command-UI request.
#pragma once

#include <afx.h>
#include <kmfc/message_map.h>

class CCmdUI;
class CMenu;
class CWnd;

/// What OnCmdMsg reports instead of calling, when its caller only asks who would handle a command.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

/// Notification codes of OnCmdMsg besides those of controls.
constexpr int CN_COMMAND = 0;
constexpr int CN_UPDATE_COMMAND_UI = -1;

/// Base of all classes with a message map.
class KMFC_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget() = default;

    /// Offers command `nID` with notification `nCode` to this object's message map, most derived class first.
    /// `nCode` carries the message in its high word (WM_COMMAND when that is 0). With `pHandlerInfo` the
    /// handler is only reported. Returns TRUE when a handler took the command.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP* GetThisMessageMap();

    friend class CWnd;
    friend class CView;
};

/// One request to bring a user-interface item (menu item or child window) up to date.
class KMFC_API CCmdUI {
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;               ///< command of the item
    UINT m_nIndex = 0;            ///< its place in the menu
    CMenu* m_pMenu = nullptr;     ///< the menu that holds it, or null
    CMenu* m_pSubMenu = nullptr;  ///< the submenu it opens, or null
    CMenu* m_pParentMenu = nullptr;
    CWnd* m_pOther = nullptr;  ///< the window that holds it when it is no menu item
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0;

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    /// Sends the request through `pTarget`; with `bDisableIfNoHndler`, disables an item that nobody handles.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};

/// Shows the hourglass for its own lifetime.
class KMFC_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    void Restore();
};
