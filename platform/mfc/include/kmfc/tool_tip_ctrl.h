// CToolTipCtrl: tool tips.
#pragma once

#include <kmfc/wnd.h>

/// A tool-tip control. A tool is a child window (`nIDTool` 0), or a rectangle of a window with an id of its
/// own. Texts may be LPSTR_TEXTCALLBACK, which asks the tool's owner by TTN_NEEDTEXT. Times are in
/// milliseconds.
class KMFC_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    CToolTipCtrl() = default;
    /// Creates the control, a popup owned by the parent.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd* pParent, DWORD dwStyle = 0, DWORD dwStyleEx = 0);
    /// Destroys the window.
    BOOL DestroyToolTipCtrl() { return DestroyWindow(); }

    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACKW, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0, LPARAM lParam = 0);
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0,
                 LPARAM lParam = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    /// The text of a tool, up to 1023 characters.
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(TOOLINFO& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo) { send(TTM_SETTOOLINFOW, 0, lpToolInfo); }
    int GetToolCount() const { return static_cast<int>(send(TTM_GETTOOLCOUNT)); }
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;

    void Activate(BOOL bActivate) { send(TTM_ACTIVATE, static_cast<WPARAM>(bActivate)); }
    /// Shows the control the mouse messages of its tools; call it where they pass by.
    void RelayEvent(LPMSG lpMsg);
    void Pop() { send(TTM_POP); }
    void Popup() { send(TTM_POPUP); }
    void Update() { send(TTM_UPDATE); }

    int GetDelayTime(DWORD dwDuration) const { return static_cast<int>(send(TTM_GETDELAYTIME, dwDuration)); }
    void SetDelayTime(UINT nDelay) { SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay); }
    void SetDelayTime(DWORD dwDuration, int iTime) {
        SendMessage(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
    }
    void GetMargin(LPRECT lprc) const { send(TTM_GETMARGIN, 0, lprc); }
    void SetMargin(LPRECT lprc) { send(TTM_SETMARGIN, 0, lprc); }
    /// The widest a tip gets before its text wraps, in pixels; -1 for no limit.
    int GetMaxTipWidth() const { return static_cast<int>(send(TTM_GETMAXTIPWIDTH)); }
    int SetMaxTipWidth(int iWidth) { return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
    COLORREF GetTipBkColor() const { return static_cast<COLORREF>(send(TTM_GETTIPBKCOLOR)); }
    void SetTipBkColor(COLORREF clr) { send(TTM_SETTIPBKCOLOR, clr); }
    COLORREF GetTipTextColor() const { return static_cast<COLORREF>(send(TTM_GETTIPTEXTCOLOR)); }
    void SetTipTextColor(COLORREF clr) { send(TTM_SETTIPTEXTCOLOR, clr); }
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle) {
        return static_cast<BOOL>(send(TTM_SETTITLEW, uIcon, lpstrTitle));
    }
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE) {
        return static_cast<BOOL>(send(TTM_ADJUSTRECT, static_cast<WPARAM>(bLarger), lprc));
    }
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const {
        return static_cast<BOOL>(send(TTM_GETCURRENTTOOLW, 0, lpToolInfo));
    }
    void TrackActivate(LPTOOLINFO lpToolInfo, BOOL bActivate) {
        send(TTM_TRACKACTIVATE, static_cast<WPARAM>(bActivate), lpToolInfo);
    }
    void TrackPosition(LPPOINT lppt) { SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(lppt->x, lppt->y)); }

private:
    LRESULT send(UINT message, WPARAM wParam = 0, const void* data = nullptr) const {
        return SendMessage(message, wParam, reinterpret_cast<LPARAM>(data));
    }
    static void fill_tool(TOOLINFO& tool, CWnd* window, UINT_PTR id);
};
