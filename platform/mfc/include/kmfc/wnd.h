// CWnd: a window and its message map.
//
// A CWnd made by Create, CreateEx, Attach or SubclassWindow is the permanent object of its handle: messages
// reach it until WM_NCDESTROY. FromHandle gives any other window a temporary object that is good until the
// thread is next idle. A CWnd's destructor destroys its window.
#pragma once

#include <kmfc/cmd_target.h>
#include <kmfc/gdi.h>
#include <kmfc/menu.h>
#include <kmfc/safe_handle.h>
#include <shellapi.h>

// CWnd has a member function of the name of this macro of the platform.
#undef GetNextWindow

class CDataExchange;
struct CCreateContext;
class CFrameWnd;
class CScrollBar;
class CListBox;
class CToolTipCtrl;
class CWinThread;
struct AFX_MODAL_LOOP;
class CWndHandleMap;

/// Bits of CWnd::m_nFlags.
enum : UINT {
    WF_TOOLTIPS = 0x0001,       ///< EnableToolTips is on
    WF_STAYDISABLED = 0x0004,   ///< stay disabled when the frame's modal state ends
    WF_CONTINUEMODAL = 0x0008,  ///< RunModalLoop goes on while this is set
    WF_MODALLOOP = 0x0010,      ///< RunModalLoop is on the stack for this window
    WF_TRACKINGTOOLTIPS = 0x0400,
    WF_NEVERSHOWN = 0x0800,  ///< a dialog that ended while it was initialised, and stays hidden
};

/// Flags of CWnd::RunModalLoop.
enum : DWORD {
    MLF_NOIDLEMSG = 0x0001,   ///< send no WM_ENTERIDLE
    MLF_NOKICKIDLE = 0x0002,  ///< send no WM_KICKIDLE
    MLF_SHOWONIDLE = 0x0004,  ///< show the window when first idle
};

/// Sent once per idle step of a modal loop; and to every window when it should bring its items up to date.
constexpr UINT WM_KICKIDLE = 0x036A;
constexpr UINT WM_IDLEUPDATECMDUI = 0x0363;
constexpr UINT WM_COMMANDHELP = 0x0365;
constexpr UINT WM_SETMESSAGESTRING = 0x0362;
constexpr UINT WM_ACTIVATETOPLEVEL = 0x036E;
constexpr UINT WM_QUERYAFXWNDPROC = 0x0360;

class KMFC_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
public:
    CWnd();
    explicit CWnd(HWND hWnd);
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    HWND m_hWnd = nullptr;
    HWND m_hWndOwner = nullptr;  ///< set by SetOwner
    UINT m_nFlags = 0;           ///< WF_… bits
    BOOL m_bIsTouchWindowRegistered = FALSE;

    static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost;

    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
    /// The handle; null for an object without a window, and for a null object.
    HWND GetSafeHwnd() const;

    // Objects of handles.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd);
    static void DeleteTempMap();
    /// Makes this the permanent object of the window. FALSE for null, for a window that has another object,
    /// and when this object has another window.
    BOOL Attach(HWND hWndNew);
    HWND Detach();
    virtual void PreSubclassWindow();
    /// Attach, and the window's messages come here. FALSE, and nothing is changed, when Attach refuses.
    BOOL SubclassWindow(HWND hWnd);
    /// SubclassWindow with a dialog's control. FALSE too when there is no such control.
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    HWND UnsubclassWindow();

    // Creation. FALSE when it fails, with the reason in GetLastError as the system gave it. An exception of
    // any type that leaves PreSubclassWindow or the handler of WM_NCCREATE or WM_CREATE makes it fail, and
    // goes no further.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                          LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);

    // Style and text.
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowTextW(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
        return ::GetWindowTextW(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLengthW(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    CMenu* GetSystemMenu(BOOL bRevert) const;
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, nID)); }

    // Size, position, visibility.
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE) {
        MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
                   bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
        return ::SetWindowPos(m_hWnd, kmfc::safe_handle(pWndInsertAfter), x, y, cx, cy, nFlags);
    }
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void ShowOwnedPopups(BOOL bShow = TRUE) { ::ShowOwnedPopups(m_hWnd, bShow); }
    /// Centres the window over `pAlternateOwner`, or else its owner (or parent, for a child), inside the
    /// monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags) {
        return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
    }
    BOOL GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const {
        return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
    }
    BOOL UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc,
                             COLORREF crKey, BLENDFUNCTION* pblend, DWORD dwFlags) {
        return ::UpdateLayeredWindow(m_hWnd, kmfc::safe_handle(pDCDst), pptDst, psize,
                                     kmfc::safe_handle(pDCSrc), pptSrc, crKey, pblend, dwFlags);
    }
    int GetWindowRgn(HRGN hRgn) const { return ::GetWindowRgn(m_hWnd, hRgn); }
    BOOL GetWindowInfo(PWINDOWINFO pwi) const { return ::GetWindowInfo(m_hWnd, pwi); }
    BOOL GetTitleBarInfo(PTITLEBARINFO pti) const { return ::GetTitleBarInfo(m_hWnd, pti); }
    /// Makes the client area of `lpClientRect` the rectangle of a window of this one's styles.
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    enum AdjustType : UINT { adjustBorder = 0, adjustOutside = 1 };
    UINT ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
    void CloseWindow() { ::CloseWindow(m_hWnd); }
    BOOL OpenIcon() { return ::OpenIcon(m_hWnd); }
    BOOL AnimateWindow(DWORD dwTime, DWORD dwFlags) { return ::AnimateWindow(m_hWnd, dwTime, dwFlags); }
    BOOL FlashWindow(BOOL bInvert) { return ::FlashWindow(m_hWnd, bInvert); }
    BOOL FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout) {
        FLASHWINFO info = {sizeof(info), m_hWnd, dwFlags, uCount, dwTimeout};
        return ::FlashWindowEx(&info);
    }

    // Coordinates.
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
        ::MapWindowPoints(m_hWnd, kmfc::safe_handle(pwndTo), lpPoint, nCount);
    }
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
        ::MapWindowPoints(m_hWnd, kmfc::safe_handle(pwndTo), reinterpret_cast<LPPOINT>(lpRect), 2);
    }

    // Painting.
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL bRedraw = TRUE) { ::SendMessageW(m_hWnd, WM_SETREDRAW, bRedraw, 0); }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const {
        ::SendMessageW(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(kmfc::safe_handle(pDC)), dwFlags);
    }
    BOOL PrintWindow(CDC* pDC, UINT nFlags) const {
        return ::PrintWindow(m_hWnd, kmfc::safe_handle(pDC), nFlags);
    }
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRgn(CRgn* pRgn);
    BOOL DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo) {
        return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
    }
    BOOL DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags) {
        return ::DrawCaption(m_hWnd, kmfc::safe_handle(pDC), lprc, uFlags);
    }

    // Timers, state, input.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr) {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    static CWnd* GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    static CWnd* GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    BOOL DragDetect(POINT pt) const { return ::DragDetect(m_hWnd, pt); }
    BOOL RegisterTouchWindow(BOOL bRegister = TRUE, ULONG ulFlags = 0);
    BOOL IsTouchWindow() const { return m_bIsTouchWindowRegistered; }

    // The caret.
    void CreateCaret(CBitmap* pBitmap);
    void CreateSolidCaret(int nWidth, int nHeight) { ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight); }
    void CreateGrayCaret(int nWidth, int nHeight) {
        ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(1), nWidth, nHeight);
    }
    static CPoint GetCaretPos() {
        CPoint point;
        ::GetCaretPos(&point);
        return point;
    }
    static void SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    void HideCaret() { ::HideCaret(m_hWnd); }

    // The clipboard.
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd* GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
    static CWnd* GetClipboardViewer() { return FromHandle(::GetClipboardViewer()); }
    static CWnd* GetOpenClipboardWindow() { return FromHandle(::GetOpenClipboardWindow()); }
    HWND SetClipboardViewer() { return ::SetClipboardViewer(m_hWnd); }
    BOOL ChangeClipboardChain(HWND hWndNext) { return ::ChangeClipboardChain(m_hWnd, hWndNext); }

    // Help.
    DWORD GetWindowContextHelpId() const { return ::GetWindowContextHelpId(m_hWnd); }
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId) {
        return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
    }
    /// Asks the application for help by its top-level window's message WM_COMMANDHELP; see CWinApp::WinHelp.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    /// Handlers of ID_HELP and its kin: the help of what is at hand, the index, the contents, help on help.
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();
    void NotifyWinEvent(DWORD event, LONG idObjectType, LONG idObject) {
        ::NotifyWinEvent(event, m_hWnd, idObjectType, idObject);
    }
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);

    /// While a modal dialog is up: owned windows of this one take no input.
    virtual void BeginModalState() { ::EnableWindow(m_hWnd, FALSE); }
    virtual void EndModalState() { ::EnableWindow(m_hWnd, TRUE); }

    // Dialog items.
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemTextW(m_hWnd, nID, lpszString); }
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
        return static_cast<int>(::GetDlgItemTextW(m_hWnd, nID, lpStr, nMaxCount));
    }
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE) {
        ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
    }
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const {
        return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
    }
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton) {
        ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
    }
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendDlgItemMessageW(m_hWnd, nID, message, wParam, lParam);
    }
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType) {
        return ::DlgDirListW(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
    }
    int DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType) {
        return ::DlgDirListComboBoxW(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
    }
    /// `lpString` takes at most `nSize` characters; MAX_PATH without it.
    BOOL DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox) {
        return ::DlgDirSelectExW(m_hWnd, lpString, nSize, nIDListBox);
    }
    BOOL DlgDirSelect(LPTSTR lpString, int nIDListBox) {
        return DlgDirSelect(lpString, MAX_PATH, nIDListBox);
    }
    BOOL DlgDirSelectComboBox(LPTSTR lpString, int nSize, int nIDComboBox) {
        return ::DlgDirSelectComboBoxExW(m_hWnd, lpString, nSize, nIDComboBox);
    }
    BOOL DlgDirSelectComboBox(LPTSTR lpString, int nIDComboBox) {
        return DlgDirSelectComboBox(lpString, MAX_PATH, nIDComboBox);
    }
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    void NextDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    // Other windows.
    CWnd* ChildWindowFromPoint(POINT point) const {
        return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
    }
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
    }
    static CWnd* FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
        return FromHandle(::FindWindowW(lpszClassName, lpszWindowName));
    }
    static CWnd* FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow) {
        return FromHandle(::FindWindowExW(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
    }
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return FromHandle(::GetWindow(m_hWnd, nFlag)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, kmfc::safe_handle(pWnd)); }
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetAncestor(UINT gaFlags) const { return FromHandle(::GetAncestor(m_hWnd, gaFlags)); }
    CWnd* SetParent(CWnd* pWndNewParent) {
        return FromHandle(::SetParent(m_hWnd, kmfc::safe_handle(pWndNewParent)));
    }
    static CWnd* WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = kmfc::safe_handle(pOwnerWnd); }
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetParentOwner() const;
    static CWnd* GetSafeOwner(CWnd* pParent = nullptr, HWND* pWndTop = nullptr);
    virtual BOOL IsFrameWnd() const { return FALSE; }

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::SendNotifyMessageW(m_hWnd, message, wParam, lParam);
    }
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    static const MSG* GetCurrentMessage();
    LRESULT Default();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    BOOL IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessageW(m_hWnd, lpMsg); }
    BOOL PreTranslateInput(LPMSG lpMsg);
    virtual WNDPROC* GetSuperWndProcAddr();

    // Scrolling.
    int GetScrollPos(int nBar) const { return ::GetScrollPos(m_hWnd, nBar); }
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE) {
        return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
    }
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, nBar, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
    }
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// What RepositionBars does: lays out the bars and the window that is left over; answers the room that is
    /// left in the rectangle, moving nothing; lays out with the rectangle's sides taken off what is left.
    enum RepositionFlags : UINT { reposDefault = 0, reposQuery = 1, reposExtra = 2 };
    /// Gives the child windows with ids `nIDFirst` to `nIDLast` places by WM_SIZEPARENT, and what is left of
    /// the client area (or of `lpRectClient`) to the child `nIDLeftOver`.
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr, BOOL bStretch = TRUE);

    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE) {
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
    }
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
    }
    BOOL GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const {
        return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
    }
    /// The last place that the box can reach, the page taken into account.
    int GetScrollLimit(int nBar);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
    }

    // Tool tips that the framework shows for child windows.
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    BOOL EnableTrackingToolTips(BOOL bEnable = TRUE);
    static void CancelToolTips(BOOL bKeys = FALSE);
    void FilterToolTipMessage(MSG* pMsg);
    /// Describes the tool under `point` (client coordinates) in `pTI` and returns its id, or -1.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;

    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }

    // Modal loop.

    /// Pumps messages until EndModalLoop; its result. -1 at WM_QUIT, which is posted again, and when the
    /// window is destroyed. Throws what left a handler and is no CException. While it is idle the temporary
    /// objects made inside it are ended; those from before it stay good.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

    // Message handlers that message maps name; each does the default processing.
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg int OnCharToItem(UINT nChar, CListBox* pListBox, UINT nIndex);
    afx_msg void OnChildActivate();
    afx_msg void OnClose();
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg BOOL OnCopyData(CWnd* pWnd, COPYDATASTRUCT* pCopyDataStruct);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg void OnDestroy();
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg BOOL OnHelpInfo(HELPINFO* lpHelpInfo);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnInitMenu(CMenu* pMenu);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseLeave();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMove(int x, int y);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnNcDestroy();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcPaint();
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg BOOL OnQueryEndSession();
    afx_msg BOOL OnQueryOpen();
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnStyleChanging(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysColorChange();
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnThemeChanged();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnAppCommand(CWnd* pWnd, UINT nCmd, UINT nDevice, UINT nKey);
    afx_msg void OnAskCbFormatName(UINT nMaxCount, LPTSTR lpszString);
    afx_msg void OnChangeCbChain(HWND hWndRemove, HWND hWndAfter);
    afx_msg void OnChangeUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnClipboardUpdate();
    afx_msg void OnCompacting(UINT nCpuTime);
    afx_msg void OnDestroyClipboard();
    afx_msg BOOL OnDeviceChange(UINT nEventType, DWORD_PTR dwData);
    afx_msg void OnDevModeChange(LPTSTR lpDeviceName);
    afx_msg void OnDrawClipboard();
    afx_msg void OnColorizationColorChanged(DWORD dwColorizationColor, BOOL bOpacity);
    afx_msg void OnCompositionChanged();
    afx_msg void OnNcRenderingChanged(BOOL bIsRendering);
    afx_msg void OnWindowMaximizedChanged(BOOL bIsMaximized);
    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho);
    afx_msg void OnEnterMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu);
    afx_msg void OnFontChange();
    afx_msg void OnHotKey(UINT nHotKeyId, UINT nKey1, UINT nKey2);
    afx_msg void OnHScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnIconEraseBkgnd(CDC* pDC);
    afx_msg void OnRawInput(UINT nInputCode, HRAWINPUT hRawInput);
    afx_msg void OnInputDeviceChange(unsigned short uFlag);
    afx_msg void OnInputLangChange(UINT nCharSet, UINT nLocaleId);
    afx_msg void OnInputLangChangeRequest(UINT nFlags, UINT nLocaleId);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg UINT OnMenuDrag(UINT nPos, CMenu* pMenu);
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO* pMenu);
    afx_msg void OnMenuRButtonUp(UINT nPos, CMenu* pMenu);
    afx_msg void OnMouseHover(UINT nFlags, CPoint point);
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect);
    afx_msg void OnNcMButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcMButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseHover(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcRButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcXButtonDblClk(short nButton, UINT nHitTest, CPoint point);
    afx_msg void OnNcXButtonDown(short nButton, UINT nHitTest, CPoint point);
    afx_msg void OnNcXButtonUp(short nButton, UINT nHitTest, CPoint point);
    afx_msg void OnNextMenu(UINT nKey, LPMDINEXTMENU lpMdiNextMenu);
    afx_msg UINT OnNotifyFormat(CWnd* pWnd, UINT nCommand);
    afx_msg void OnPaintClipboard(CWnd* pClipAppWnd, HGLOBAL hPaintStruct);
    afx_msg void OnPaletteChanged(CWnd* pFocusWnd);
    afx_msg void OnPaletteIsChanging(CWnd* pRealizeWnd);
    afx_msg UINT OnPowerBroadcast(UINT nPowerEvent, LPARAM nEventData);
    afx_msg BOOL OnQueryNewPalette();
    afx_msg UINT OnQueryUIState();
    afx_msg void OnRenderAllFormats();
    afx_msg void OnRenderFormat(UINT nFormat);
    afx_msg void OnSizeClipboard(CWnd* pClipAppWnd, HGLOBAL hRect);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg void OnSpoolerStatus(UINT nStatus, UINT nJobs);
    afx_msg void OnSysDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnTCard(UINT idAction, DWORD dwActionData);
    afx_msg void OnTimeChange();
    afx_msg void OnUniChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnUnInitMenuPopup(CMenu* pPopupMenu, UINT nFlags);
    afx_msg void OnUpdateUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnUserChanged();
    afx_msg void OnVScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos);
    afx_msg void OnWinIniChange(LPCTSTR lpszSection);
    afx_msg void OnSessionChange(UINT nSessionState, UINT nId);
    afx_msg void OnXButtonDblClk(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonDown(UINT nFlags, UINT nButton, CPoint point);
    afx_msg void OnXButtonUp(UINT nFlags, UINT nButton, CPoint point);

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult);
    virtual void PostNcDestroy();
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL CheckAutoCenter();

    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);

    DECLARE_MESSAGE_MAP()

    int m_nModalResult = 0;
    WNDPROC m_pfnSuper = nullptr;

private:
    CWnd* FindNextControl(CWnd* pWndCtl, BOOL bPrevious, BOOL bGroup) const;
    LRESULT CallHandler(const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam);
    void DetachFromMap();
    LRESULT ServeMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT InitialiseDialog(WPARAM wParam, LPARAM lParam);
    void EndFailedMessage(UINT message);
    void EndDestroyedModalLoop();
    bool GoesOnModally();

    friend class CWndHandleMap;
    friend class CDialog;
    friend KMFC_API LRESULT AfxCallWndProc(CWnd*, HWND, UINT, WPARAM, LPARAM);
};

/// The window procedure of every permanent CWnd. A CException that leaves a handler goes to
/// CWinThread::ProcessWndProcException. Any other exception goes on from the message pump, once the system's
/// code in between has returned; the message is answered with 0 meanwhile. While a window is created or
/// initialised, see CWnd::CreateEx and CDialog.
KMFC_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
KMFC_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0, LPARAM lParam = 0);

/// Registers a class of the given looks once per process and returns its name (kept by the framework).
/// Throws CResourceException when registration fails.
KMFC_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                     HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
/// Registers `lpWndClass` unless the module has it already; FALSE on failure.
KMFC_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);

/// The window that the next handle created on this thread belongs to; must be matched by
/// AfxUnhookWindowCreate.
KMFC_API void AfxHookWindowCreate(CWnd* pWnd);
/// Returns FALSE when no handle came (creation failed before WM_NCCREATE).
KMFC_API BOOL AfxUnhookWindowCreate();

/// Copies `lpszNew` to the window only when its text differs.
KMFC_API void AfxSetWindowText(HWND hWndCtrl, LPCTSTR lpszNew);
