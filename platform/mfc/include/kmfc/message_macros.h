// The entries of a message map: ON_WM_… for window messages, ON_COMMAND… and ON_NOTIFY… for commands and
// notifications, …_REFLECT… for messages that a control sent to its parent and may handle itself.
//
// Each macro checks the handler's signature at compile time. Included by message_map.h only.
#pragma once

/// An entry for window message `message` whose handler is `result CWnd::handler parameters`.
#define AFX_WINDOW_ENTRY(message, signature, result, handler, ...) \
    {                                                              \
        message,                                                   \
        0,                                                         \
        0,                                                         \
        0,                                                         \
        signature,                                                 \
        reinterpret_cast<AFX_PMSG>(static_cast<result (CWnd::*)(__VA_ARGS__)>(&ThisClass::handler))},

/// An entry for command or notification `message`/`code` from controls `first` to `last`.
#define AFX_COMMAND_ENTRY(message, code, first, last, signature, result, function, ...) \
    {static_cast<UINT>(message),                                                        \
     static_cast<UINT>(code),                                                           \
     static_cast<UINT>(first),                                                          \
     static_cast<UINT>(last),                                                           \
     signature,                                                                         \
     reinterpret_cast<AFX_PMSG>(static_cast<result (CCmdTarget::*)(__VA_ARGS__)>(function))},

#define ON_WM_CREATE() AFX_WINDOW_ENTRY(WM_CREATE, AfxSig_i_create, int, OnCreate, LPCREATESTRUCT)
#define ON_WM_DESTROY() AFX_WINDOW_ENTRY(WM_DESTROY, AfxSig_v_v, void, OnDestroy)
#define ON_WM_MOVE() AFX_WINDOW_ENTRY(WM_MOVE, AfxSig_v_int_int, void, OnMove, int, int)
#define ON_WM_SIZE() AFX_WINDOW_ENTRY(WM_SIZE, AfxSig_v_u_int_int, void, OnSize, UINT, int, int)
#define ON_WM_ACTIVATE() AFX_WINDOW_ENTRY(WM_ACTIVATE, AfxSig_v_activate, void, OnActivate, UINT, CWnd*, BOOL)
#define ON_WM_SETFOCUS() AFX_WINDOW_ENTRY(WM_SETFOCUS, AfxSig_v_wnd, void, OnSetFocus, CWnd*)
#define ON_WM_KILLFOCUS() AFX_WINDOW_ENTRY(WM_KILLFOCUS, AfxSig_v_wnd, void, OnKillFocus, CWnd*)
#define ON_WM_ENABLE() AFX_WINDOW_ENTRY(WM_ENABLE, AfxSig_v_b, void, OnEnable, BOOL)
#define ON_WM_PAINT() AFX_WINDOW_ENTRY(WM_PAINT, AfxSig_v_v, void, OnPaint)
#define ON_WM_CLOSE() AFX_WINDOW_ENTRY(WM_CLOSE, AfxSig_v_v, void, OnClose)
#define ON_WM_QUERYENDSESSION() AFX_WINDOW_ENTRY(WM_QUERYENDSESSION, AfxSig_b_v, BOOL, OnQueryEndSession)
#define ON_WM_ENDSESSION() AFX_WINDOW_ENTRY(WM_ENDSESSION, AfxSig_v_b, void, OnEndSession, BOOL)
#define ON_WM_QUERYOPEN() AFX_WINDOW_ENTRY(WM_QUERYOPEN, AfxSig_b_v, BOOL, OnQueryOpen)
#define ON_WM_QUERYDRAGICON() AFX_WINDOW_ENTRY(WM_QUERYDRAGICON, AfxSig_l_v, HCURSOR, OnQueryDragIcon)
#define ON_WM_ERASEBKGND() AFX_WINDOW_ENTRY(WM_ERASEBKGND, AfxSig_b_dc, BOOL, OnEraseBkgnd, CDC*)
#define ON_WM_SYSCOLORCHANGE() AFX_WINDOW_ENTRY(WM_SYSCOLORCHANGE, AfxSig_v_v, void, OnSysColorChange)
#define ON_WM_SHOWWINDOW() AFX_WINDOW_ENTRY(WM_SHOWWINDOW, AfxSig_v_b_u, void, OnShowWindow, BOOL, UINT)
#define ON_WM_CTLCOLOR() \
    AFX_WINDOW_ENTRY(WM_CTLCOLOR, AfxSig_h_ctlcolor, HBRUSH, OnCtlColor, CDC*, CWnd*, UINT)
#define ON_WM_SETTINGCHANGE() \
    AFX_WINDOW_ENTRY(WM_SETTINGCHANGE, AfxSig_v_settingchange, void, OnSettingChange, UINT, LPCTSTR)
#define ON_WM_ACTIVATEAPP() \
    AFX_WINDOW_ENTRY(WM_ACTIVATEAPP, AfxSig_v_activateapp, void, OnActivateApp, BOOL, DWORD)
#define ON_WM_CANCELMODE() AFX_WINDOW_ENTRY(WM_CANCELMODE, AfxSig_v_v, void, OnCancelMode)
#define ON_WM_SETCURSOR() \
    AFX_WINDOW_ENTRY(WM_SETCURSOR, AfxSig_b_setcursor, BOOL, OnSetCursor, CWnd*, UINT, UINT)
#define ON_WM_MOUSEACTIVATE() \
    AFX_WINDOW_ENTRY(WM_MOUSEACTIVATE, AfxSig_i_mouseactivate, int, OnMouseActivate, CWnd*, UINT, UINT)
#define ON_WM_CHILDACTIVATE() AFX_WINDOW_ENTRY(WM_CHILDACTIVATE, AfxSig_v_v, void, OnChildActivate)
#define ON_WM_GETMINMAXINFO() \
    AFX_WINDOW_ENTRY(WM_GETMINMAXINFO, AfxSig_v_minmaxinfo, void, OnGetMinMaxInfo, MINMAXINFO*)
#define ON_WM_DRAWITEM() \
    AFX_WINDOW_ENTRY(WM_DRAWITEM, AfxSig_v_int_drawitem, void, OnDrawItem, int, LPDRAWITEMSTRUCT)
#define ON_WM_MEASUREITEM() \
    AFX_WINDOW_ENTRY(WM_MEASUREITEM, AfxSig_v_int_measureitem, void, OnMeasureItem, int, LPMEASUREITEMSTRUCT)
#define ON_WM_DELETEITEM() \
    AFX_WINDOW_ENTRY(WM_DELETEITEM, AfxSig_v_int_deleteitem, void, OnDeleteItem, int, LPDELETEITEMSTRUCT)
#define ON_WM_COMPAREITEM() \
    AFX_WINDOW_ENTRY(WM_COMPAREITEM, AfxSig_i_int_compareitem, int, OnCompareItem, int, LPCOMPAREITEMSTRUCT)
#define ON_WM_VKEYTOITEM() \
    AFX_WINDOW_ENTRY(WM_VKEYTOITEM, AfxSig_i_u_wnd_u, int, OnVKeyToItem, UINT, CListBox*, UINT)
#define ON_WM_CHARTOITEM() \
    AFX_WINDOW_ENTRY(WM_CHARTOITEM, AfxSig_i_u_wnd_u, int, OnCharToItem, UINT, CListBox*, UINT)
#define ON_WM_WINDOWPOSCHANGING() \
    AFX_WINDOW_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_v_windowpos, void, OnWindowPosChanging, WINDOWPOS*)
#define ON_WM_WINDOWPOSCHANGED() \
    AFX_WINDOW_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_v_windowpos, void, OnWindowPosChanged, WINDOWPOS*)
#define ON_WM_COPYDATA() \
    AFX_WINDOW_ENTRY(WM_COPYDATA, AfxSig_b_copydata, BOOL, OnCopyData, CWnd*, COPYDATASTRUCT*)
#define ON_WM_HELPINFO() AFX_WINDOW_ENTRY(WM_HELP, AfxSig_b_help, BOOL, OnHelpInfo, HELPINFO*)
#define ON_WM_CONTEXTMENU() \
    AFX_WINDOW_ENTRY(WM_CONTEXTMENU, AfxSig_v_wnd_point, void, OnContextMenu, CWnd*, CPoint)
#define ON_WM_STYLECHANGING() \
    AFX_WINDOW_ENTRY(WM_STYLECHANGING, AfxSig_v_stylechange, void, OnStyleChanging, int, LPSTYLESTRUCT)
#define ON_WM_STYLECHANGED() \
    AFX_WINDOW_ENTRY(WM_STYLECHANGED, AfxSig_v_stylechange, void, OnStyleChanged, int, LPSTYLESTRUCT)
#define ON_WM_NCCREATE() AFX_WINDOW_ENTRY(WM_NCCREATE, AfxSig_b_create, BOOL, OnNcCreate, LPCREATESTRUCT)
#define ON_WM_NCDESTROY() AFX_WINDOW_ENTRY(WM_NCDESTROY, AfxSig_v_v, void, OnNcDestroy)
#define ON_WM_NCCALCSIZE() \
    AFX_WINDOW_ENTRY(WM_NCCALCSIZE, AfxSig_v_b_nccalc, void, OnNcCalcSize, BOOL, NCCALCSIZE_PARAMS*)
#define ON_WM_NCHITTEST() AFX_WINDOW_ENTRY(WM_NCHITTEST, AfxSig_l_point, LRESULT, OnNcHitTest, CPoint)
#define ON_WM_NCPAINT() AFX_WINDOW_ENTRY(WM_NCPAINT, AfxSig_v_v, void, OnNcPaint)
#define ON_WM_NCACTIVATE() AFX_WINDOW_ENTRY(WM_NCACTIVATE, AfxSig_b_b, BOOL, OnNcActivate, BOOL)
#define ON_WM_GETDLGCODE() AFX_WINDOW_ENTRY(WM_GETDLGCODE, AfxSig_u_v, UINT, OnGetDlgCode)
#define ON_WM_NCMOUSEMOVE() \
    AFX_WINDOW_ENTRY(WM_NCMOUSEMOVE, AfxSig_v_nchit_point, void, OnNcMouseMove, UINT, CPoint)
#define ON_WM_NCLBUTTONDOWN() \
    AFX_WINDOW_ENTRY(WM_NCLBUTTONDOWN, AfxSig_v_nchit_point, void, OnNcLButtonDown, UINT, CPoint)
#define ON_WM_NCLBUTTONUP() \
    AFX_WINDOW_ENTRY(WM_NCLBUTTONUP, AfxSig_v_nchit_point, void, OnNcLButtonUp, UINT, CPoint)
#define ON_WM_NCLBUTTONDBLCLK() \
    AFX_WINDOW_ENTRY(WM_NCLBUTTONDBLCLK, AfxSig_v_nchit_point, void, OnNcLButtonDblClk, UINT, CPoint)
#define ON_WM_NCRBUTTONDOWN() \
    AFX_WINDOW_ENTRY(WM_NCRBUTTONDOWN, AfxSig_v_nchit_point, void, OnNcRButtonDown, UINT, CPoint)
#define ON_WM_NCRBUTTONUP() \
    AFX_WINDOW_ENTRY(WM_NCRBUTTONUP, AfxSig_v_nchit_point, void, OnNcRButtonUp, UINT, CPoint)
#define ON_WM_KEYDOWN() AFX_WINDOW_ENTRY(WM_KEYDOWN, AfxSig_v_key, void, OnKeyDown, UINT, UINT, UINT)
#define ON_WM_KEYUP() AFX_WINDOW_ENTRY(WM_KEYUP, AfxSig_v_key, void, OnKeyUp, UINT, UINT, UINT)
#define ON_WM_CHAR() AFX_WINDOW_ENTRY(WM_CHAR, AfxSig_v_key, void, OnChar, UINT, UINT, UINT)
#define ON_WM_DEADCHAR() AFX_WINDOW_ENTRY(WM_DEADCHAR, AfxSig_v_key, void, OnDeadChar, UINT, UINT, UINT)
#define ON_WM_SYSKEYDOWN() AFX_WINDOW_ENTRY(WM_SYSKEYDOWN, AfxSig_v_key, void, OnSysKeyDown, UINT, UINT, UINT)
#define ON_WM_SYSKEYUP() AFX_WINDOW_ENTRY(WM_SYSKEYUP, AfxSig_v_key, void, OnSysKeyUp, UINT, UINT, UINT)
#define ON_WM_SYSCHAR() AFX_WINDOW_ENTRY(WM_SYSCHAR, AfxSig_v_key, void, OnSysChar, UINT, UINT, UINT)
#define ON_WM_SYSCOMMAND() \
    AFX_WINDOW_ENTRY(WM_SYSCOMMAND, AfxSig_v_syscommand, void, OnSysCommand, UINT, LPARAM)
#define ON_WM_TIMER() AFX_WINDOW_ENTRY(WM_TIMER, AfxSig_v_uint_ptr, void, OnTimer, UINT_PTR)
#define ON_WM_HSCROLL() \
    AFX_WINDOW_ENTRY(WM_HSCROLL, AfxSig_v_scroll, void, OnHScroll, UINT, UINT, CScrollBar*)
#define ON_WM_VSCROLL() \
    AFX_WINDOW_ENTRY(WM_VSCROLL, AfxSig_v_scroll, void, OnVScroll, UINT, UINT, CScrollBar*)
#define ON_WM_INITMENU() AFX_WINDOW_ENTRY(WM_INITMENU, AfxSig_v_menu, void, OnInitMenu, CMenu*)
#define ON_WM_INITMENUPOPUP() \
    AFX_WINDOW_ENTRY(WM_INITMENUPOPUP, AfxSig_v_initmenupopup, void, OnInitMenuPopup, CMenu*, UINT, BOOL)
#define ON_WM_MENUSELECT() \
    AFX_WINDOW_ENTRY(WM_MENUSELECT, AfxSig_v_menuselect, void, OnMenuSelect, UINT, UINT, HMENU)
#define ON_WM_MENUCHAR() \
    AFX_WINDOW_ENTRY(WM_MENUCHAR, AfxSig_l_menuchar, LRESULT, OnMenuChar, UINT, UINT, CMenu*)
#define ON_WM_MOUSEMOVE() AFX_WINDOW_ENTRY(WM_MOUSEMOVE, AfxSig_v_u_point, void, OnMouseMove, UINT, CPoint)
#define ON_WM_MOUSEWHEEL() \
    AFX_WINDOW_ENTRY(WM_MOUSEWHEEL, AfxSig_b_wheel, BOOL, OnMouseWheel, UINT, short, CPoint)
#define ON_WM_MOUSELEAVE() AFX_WINDOW_ENTRY(WM_MOUSELEAVE, AfxSig_v_v, void, OnMouseLeave)
#define ON_WM_LBUTTONDOWN() \
    AFX_WINDOW_ENTRY(WM_LBUTTONDOWN, AfxSig_v_u_point, void, OnLButtonDown, UINT, CPoint)
#define ON_WM_LBUTTONUP() AFX_WINDOW_ENTRY(WM_LBUTTONUP, AfxSig_v_u_point, void, OnLButtonUp, UINT, CPoint)
#define ON_WM_LBUTTONDBLCLK() \
    AFX_WINDOW_ENTRY(WM_LBUTTONDBLCLK, AfxSig_v_u_point, void, OnLButtonDblClk, UINT, CPoint)
#define ON_WM_RBUTTONDOWN() \
    AFX_WINDOW_ENTRY(WM_RBUTTONDOWN, AfxSig_v_u_point, void, OnRButtonDown, UINT, CPoint)
#define ON_WM_RBUTTONUP() AFX_WINDOW_ENTRY(WM_RBUTTONUP, AfxSig_v_u_point, void, OnRButtonUp, UINT, CPoint)
#define ON_WM_RBUTTONDBLCLK() \
    AFX_WINDOW_ENTRY(WM_RBUTTONDBLCLK, AfxSig_v_u_point, void, OnRButtonDblClk, UINT, CPoint)
#define ON_WM_MBUTTONDOWN() \
    AFX_WINDOW_ENTRY(WM_MBUTTONDOWN, AfxSig_v_u_point, void, OnMButtonDown, UINT, CPoint)
#define ON_WM_MBUTTONUP() AFX_WINDOW_ENTRY(WM_MBUTTONUP, AfxSig_v_u_point, void, OnMButtonUp, UINT, CPoint)
#define ON_WM_MBUTTONDBLCLK() \
    AFX_WINDOW_ENTRY(WM_MBUTTONDBLCLK, AfxSig_v_u_point, void, OnMButtonDblClk, UINT, CPoint)
#define ON_WM_CAPTURECHANGED() \
    AFX_WINDOW_ENTRY(WM_CAPTURECHANGED, AfxSig_v_wnd_l, void, OnCaptureChanged, CWnd*)
#define ON_WM_PARENTNOTIFY() \
    AFX_WINDOW_ENTRY(WM_PARENTNOTIFY, AfxSig_v_parentnotify, void, OnParentNotify, UINT, LPARAM)
#define ON_WM_DROPFILES() AFX_WINDOW_ENTRY(WM_DROPFILES, AfxSig_v_hdrop, void, OnDropFiles, HDROP)
#define ON_WM_ENTERSIZEMOVE() AFX_WINDOW_ENTRY(WM_ENTERSIZEMOVE, AfxSig_v_v, void, OnEnterSizeMove)
#define ON_WM_EXITSIZEMOVE() AFX_WINDOW_ENTRY(WM_EXITSIZEMOVE, AfxSig_v_v, void, OnExitSizeMove)
#define ON_WM_THEMECHANGED() AFX_WINDOW_ENTRY(WM_THEMECHANGED, AfxSig_l_v, LRESULT, OnThemeChanged)
#define ON_WM_CUT() AFX_WINDOW_ENTRY(WM_CUT, AfxSig_v_v, void, OnCut)
#define ON_WM_COPY() AFX_WINDOW_ENTRY(WM_COPY, AfxSig_v_v, void, OnCopy)
#define ON_WM_PASTE() AFX_WINDOW_ENTRY(WM_PASTE, AfxSig_v_v, void, OnPaste)
#define ON_WM_CLEAR() AFX_WINDOW_ENTRY(WM_CLEAR, AfxSig_v_v, void, OnClear)

#define ON_WM_APPCOMMAND() \
    AFX_WINDOW_ENTRY(WM_APPCOMMAND, AfxSig_v_appcommand, void, OnAppCommand, CWnd*, UINT, UINT, UINT)
#define ON_WM_ASKCBFORMATNAME() \
    AFX_WINDOW_ENTRY(WM_ASKCBFORMATNAME, AfxSig_v_u_text, void, OnAskCbFormatName, UINT, LPTSTR)
#define ON_WM_CHANGECBCHAIN() \
    AFX_WINDOW_ENTRY(WM_CHANGECBCHAIN, AfxSig_v_hwnd_hwnd, void, OnChangeCbChain, HWND, HWND)
#define ON_WM_CHANGEUISTATE() \
    AFX_WINDOW_ENTRY(WM_CHANGEUISTATE, AfxSig_v_lo_hi, void, OnChangeUIState, UINT, UINT)
#define ON_WM_CLIPBOARDUPDATE() AFX_WINDOW_ENTRY(WM_CLIPBOARDUPDATE, AfxSig_v_v, void, OnClipboardUpdate)
#define ON_WM_COMPACTING() AFX_WINDOW_ENTRY(WM_COMPACTING, AfxSig_v_u, void, OnCompacting, UINT)
#define ON_WM_DESTROYCLIPBOARD() AFX_WINDOW_ENTRY(WM_DESTROYCLIPBOARD, AfxSig_v_v, void, OnDestroyClipboard)
#define ON_WM_DEVICECHANGE() \
    AFX_WINDOW_ENTRY(WM_DEVICECHANGE, AfxSig_b_u_dwp, BOOL, OnDeviceChange, UINT, DWORD_PTR)
#define ON_WM_DEVMODECHANGE() AFX_WINDOW_ENTRY(WM_DEVMODECHANGE, AfxSig_v_text, void, OnDevModeChange, LPTSTR)
#define ON_WM_DRAWCLIPBOARD() AFX_WINDOW_ENTRY(WM_DRAWCLIPBOARD, AfxSig_v_v, void, OnDrawClipboard)
#define ON_WM_DWMCOLORIZATIONCOLORCHANGED()                                                                  \
    AFX_WINDOW_ENTRY(WM_DWMCOLORIZATIONCOLORCHANGED, AfxSig_v_dw_b, void, OnColorizationColorChanged, DWORD, \
                     BOOL)
#define ON_WM_DWMCOMPOSITIONCHANGED() \
    AFX_WINDOW_ENTRY(WM_DWMCOMPOSITIONCHANGED, AfxSig_v_v, void, OnCompositionChanged)
#define ON_WM_DWMNCRENDERINGCHANGED() \
    AFX_WINDOW_ENTRY(WM_DWMNCRENDERINGCHANGED, AfxSig_v_b, void, OnNcRenderingChanged, BOOL)
#define ON_WM_DWMWINDOWMAXIMIZEDCHANGE() \
    AFX_WINDOW_ENTRY(WM_DWMWINDOWMAXIMIZEDCHANGE, AfxSig_v_b, void, OnWindowMaximizedChanged, BOOL)
#define ON_WM_ENTERIDLE() AFX_WINDOW_ENTRY(WM_ENTERIDLE, AfxSig_v_u_wnd, void, OnEnterIdle, UINT, CWnd*)
#define ON_WM_ENTERMENULOOP() AFX_WINDOW_ENTRY(WM_ENTERMENULOOP, AfxSig_v_b, void, OnEnterMenuLoop, BOOL)
#define ON_WM_EXITMENULOOP() AFX_WINDOW_ENTRY(WM_EXITMENULOOP, AfxSig_v_b, void, OnExitMenuLoop, BOOL)
#define ON_WM_FONTCHANGE() AFX_WINDOW_ENTRY(WM_FONTCHANGE, AfxSig_v_v, void, OnFontChange)
#define ON_WM_HOTKEY() AFX_WINDOW_ENTRY(WM_HOTKEY, AfxSig_v_key, void, OnHotKey, UINT, UINT, UINT)
#define ON_WM_HSCROLLCLIPBOARD() \
    AFX_WINDOW_ENTRY(WM_HSCROLLCLIPBOARD, AfxSig_v_wnd_u_u, void, OnHScrollClipboard, CWnd*, UINT, UINT)
#define ON_WM_ICONERASEBKGND() AFX_WINDOW_ENTRY(WM_ICONERASEBKGND, AfxSig_v_dc, void, OnIconEraseBkgnd, CDC*)
#define ON_WM_INPUT() AFX_WINDOW_ENTRY(WM_INPUT, AfxSig_v_u_rawinput, void, OnRawInput, UINT, HRAWINPUT)
#define ON_WM_INPUT_DEVICE_CHANGE() \
    AFX_WINDOW_ENTRY(WM_INPUT_DEVICE_CHANGE, AfxSig_v_ushort, void, OnInputDeviceChange, unsigned short)
#define ON_WM_INPUTLANGCHANGE() \
    AFX_WINDOW_ENTRY(WM_INPUTLANGCHANGE, AfxSig_v_u_u, void, OnInputLangChange, UINT, UINT)
#define ON_WM_INPUTLANGCHANGEREQUEST() \
    AFX_WINDOW_ENTRY(WM_INPUTLANGCHANGEREQUEST, AfxSig_v_u_u, void, OnInputLangChangeRequest, UINT, UINT)
#define ON_WM_MDIACTIVATE() \
    AFX_WINDOW_ENTRY(WM_MDIACTIVATE, AfxSig_v_mdiactivate, void, OnMDIActivate, BOOL, CWnd*, CWnd*)
#define ON_WM_MENUDRAG() AFX_WINDOW_ENTRY(WM_MENUDRAG, AfxSig_u_u_menu, UINT, OnMenuDrag, UINT, CMenu*)
#define ON_WM_MENUGETOBJECT() \
    AFX_WINDOW_ENTRY(WM_MENUGETOBJECT, AfxSig_u_menuobject, UINT, OnMenuGetObject, MENUGETOBJECTINFO*)
#define ON_WM_MENURBUTTONUP() \
    AFX_WINDOW_ENTRY(WM_MENURBUTTONUP, AfxSig_v_u_menu, void, OnMenuRButtonUp, UINT, CMenu*)
#define ON_WM_MOUSEHOVER() AFX_WINDOW_ENTRY(WM_MOUSEHOVER, AfxSig_v_u_point, void, OnMouseHover, UINT, CPoint)
#define ON_WM_MOUSEHWHEEL() \
    AFX_WINDOW_ENTRY(WM_MOUSEHWHEEL, AfxSig_v_wheel, void, OnMouseHWheel, UINT, short, CPoint)
#define ON_WM_MOVING() AFX_WINDOW_ENTRY(WM_MOVING, AfxSig_v_u_rect, void, OnMoving, UINT, LPRECT)
#define ON_WM_NCMBUTTONDBLCLK() \
    AFX_WINDOW_ENTRY(WM_NCMBUTTONDBLCLK, AfxSig_v_nchit_point, void, OnNcMButtonDblClk, UINT, CPoint)
#define ON_WM_NCMBUTTONDOWN() \
    AFX_WINDOW_ENTRY(WM_NCMBUTTONDOWN, AfxSig_v_nchit_point, void, OnNcMButtonDown, UINT, CPoint)
#define ON_WM_NCMBUTTONUP() \
    AFX_WINDOW_ENTRY(WM_NCMBUTTONUP, AfxSig_v_nchit_point, void, OnNcMButtonUp, UINT, CPoint)
#define ON_WM_NCMOUSEHOVER() \
    AFX_WINDOW_ENTRY(WM_NCMOUSEHOVER, AfxSig_v_nchit_point, void, OnNcMouseHover, UINT, CPoint)
#define ON_WM_NCMOUSELEAVE() AFX_WINDOW_ENTRY(WM_NCMOUSELEAVE, AfxSig_v_v, void, OnNcMouseLeave)
#define ON_WM_NCRBUTTONDBLCLK() \
    AFX_WINDOW_ENTRY(WM_NCRBUTTONDBLCLK, AfxSig_v_nchit_point, void, OnNcRButtonDblClk, UINT, CPoint)
#define ON_WM_NCXBUTTONDBLCLK() \
    AFX_WINDOW_ENTRY(WM_NCXBUTTONDBLCLK, AfxSig_v_ncx, void, OnNcXButtonDblClk, short, UINT, CPoint)
#define ON_WM_NCXBUTTONDOWN() \
    AFX_WINDOW_ENTRY(WM_NCXBUTTONDOWN, AfxSig_v_ncx, void, OnNcXButtonDown, short, UINT, CPoint)
#define ON_WM_NCXBUTTONUP() \
    AFX_WINDOW_ENTRY(WM_NCXBUTTONUP, AfxSig_v_ncx, void, OnNcXButtonUp, short, UINT, CPoint)
#define ON_WM_NEXTMENU() \
    AFX_WINDOW_ENTRY(WM_NEXTMENU, AfxSig_v_nextmenu, void, OnNextMenu, UINT, LPMDINEXTMENU)
#define ON_WM_NOTIFYFORMAT() \
    AFX_WINDOW_ENTRY(WM_NOTIFYFORMAT, AfxSig_u_wnd_u, UINT, OnNotifyFormat, CWnd*, UINT)
#define ON_WM_PAINTCLIPBOARD() \
    AFX_WINDOW_ENTRY(WM_PAINTCLIPBOARD, AfxSig_v_wnd_global, void, OnPaintClipboard, CWnd*, HGLOBAL)
#define ON_WM_PALETTECHANGED() \
    AFX_WINDOW_ENTRY(WM_PALETTECHANGED, AfxSig_v_wnd, void, OnPaletteChanged, CWnd*)
#define ON_WM_PALETTEISCHANGING() \
    AFX_WINDOW_ENTRY(WM_PALETTEISCHANGING, AfxSig_v_wnd, void, OnPaletteIsChanging, CWnd*)
#define ON_WM_POWERBROADCAST() \
    AFX_WINDOW_ENTRY(WM_POWERBROADCAST, AfxSig_u_u_l, UINT, OnPowerBroadcast, UINT, LPARAM)
#define ON_WM_QUERYNEWPALETTE() AFX_WINDOW_ENTRY(WM_QUERYNEWPALETTE, AfxSig_b_v, BOOL, OnQueryNewPalette)
#define ON_WM_QUERYUISTATE() AFX_WINDOW_ENTRY(WM_QUERYUISTATE, AfxSig_u_v, UINT, OnQueryUIState)
#define ON_WM_RENDERALLFORMATS() AFX_WINDOW_ENTRY(WM_RENDERALLFORMATS, AfxSig_v_v, void, OnRenderAllFormats)
#define ON_WM_RENDERFORMAT() AFX_WINDOW_ENTRY(WM_RENDERFORMAT, AfxSig_v_u, void, OnRenderFormat, UINT)
#define ON_WM_SIZECLIPBOARD() \
    AFX_WINDOW_ENTRY(WM_SIZECLIPBOARD, AfxSig_v_wnd_global, void, OnSizeClipboard, CWnd*, HGLOBAL)
#define ON_WM_SIZING() AFX_WINDOW_ENTRY(WM_SIZING, AfxSig_v_u_rect, void, OnSizing, UINT, LPRECT)
#define ON_WM_SPOOLERSTATUS() \
    AFX_WINDOW_ENTRY(WM_SPOOLERSTATUS, AfxSig_v_spooler, void, OnSpoolerStatus, UINT, UINT)
#define ON_WM_SYSDEADCHAR() \
    AFX_WINDOW_ENTRY(WM_SYSDEADCHAR, AfxSig_v_key, void, OnSysDeadChar, UINT, UINT, UINT)
#define ON_WM_TCARD() AFX_WINDOW_ENTRY(WM_TCARD, AfxSig_v_u_dw, void, OnTCard, UINT, DWORD)
#define ON_WM_TIMECHANGE() AFX_WINDOW_ENTRY(WM_TIMECHANGE, AfxSig_v_v, void, OnTimeChange)
#define ON_WM_UNICHAR() AFX_WINDOW_ENTRY(WM_UNICHAR, AfxSig_v_key, void, OnUniChar, UINT, UINT, UINT)
#define ON_WM_UNINITMENUPOPUP() \
    AFX_WINDOW_ENTRY(WM_UNINITMENUPOPUP, AfxSig_v_menu_hi, void, OnUnInitMenuPopup, CMenu*, UINT)
#define ON_WM_UPDATEUISTATE() \
    AFX_WINDOW_ENTRY(WM_UPDATEUISTATE, AfxSig_v_lo_hi, void, OnUpdateUIState, UINT, UINT)
#define ON_WM_USERCHANGED() AFX_WINDOW_ENTRY(WM_USERCHANGED, AfxSig_v_v, void, OnUserChanged)
#define ON_WM_VSCROLLCLIPBOARD() \
    AFX_WINDOW_ENTRY(WM_VSCROLLCLIPBOARD, AfxSig_v_wnd_u_u, void, OnVScrollClipboard, CWnd*, UINT, UINT)
#define ON_WM_WININICHANGE() AFX_WINDOW_ENTRY(WM_WININICHANGE, AfxSig_v_ctext, void, OnWinIniChange, LPCTSTR)
#define ON_WM_WTSSESSION_CHANGE() \
    AFX_WINDOW_ENTRY(WM_WTSSESSION_CHANGE, AfxSig_v_u_u, void, OnSessionChange, UINT, UINT)
#define ON_WM_XBUTTONDBLCLK() \
    AFX_WINDOW_ENTRY(WM_XBUTTONDBLCLK, AfxSig_v_x, void, OnXButtonDblClk, UINT, UINT, CPoint)
#define ON_WM_XBUTTONDOWN() \
    AFX_WINDOW_ENTRY(WM_XBUTTONDOWN, AfxSig_v_x, void, OnXButtonDown, UINT, UINT, CPoint)
#define ON_WM_XBUTTONUP() AFX_WINDOW_ENTRY(WM_XBUTTONUP, AfxSig_v_x, void, OnXButtonUp, UINT, UINT, CPoint)

// Messages of a control handled by the control itself.
#define ON_WM_CHARTOITEM_REFLECT() \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_CHARTOITEM, AfxSig_i_lo_hi, int, CharToItem, UINT, UINT)
#define ON_WM_VKEYTOITEM_REFLECT() \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_VKEYTOITEM, AfxSig_i_lo_hi, int, VKeyToItem, UINT, UINT)
#define ON_WM_CTLCOLOR_REFLECT() \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_CTLCOLOR, AfxSig_h_ctlcolor_reflect, HBRUSH, CtlColor, CDC*, UINT)
#define ON_WM_DRAWITEM_REFLECT() \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_DRAWITEM, AfxSig_v_drawitem, void, DrawItem, LPDRAWITEMSTRUCT)
#define ON_WM_MEASUREITEM_REFLECT()                                                             \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_MEASUREITEM, AfxSig_v_measureitem, void, MeasureItem, \
                     LPMEASUREITEMSTRUCT)
#define ON_WM_DELETEITEM_REFLECT()                                                           \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_DELETEITEM, AfxSig_v_deleteitem, void, DeleteItem, \
                     LPDELETEITEMSTRUCT)
#define ON_WM_COMPAREITEM_REFLECT()                                                            \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_COMPAREITEM, AfxSig_i_compareitem, int, CompareItem, \
                     LPCOMPAREITEMSTRUCT)
#define ON_WM_HSCROLL_REFLECT() \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_HSCROLL, AfxSig_v_scroll_reflect, void, HScroll, UINT, UINT)
#define ON_WM_VSCROLL_REFLECT() \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_VSCROLL, AfxSig_v_scroll_reflect, void, VScroll, UINT, UINT)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                     \
    AFX_WINDOW_ENTRY(WM_REFLECT_BASE + WM_PARENTNOTIFY, AfxSig_v_parentnotify, void, ParentNotify, UINT, \
                     LPARAM)

#define ON_COMMAND(id, memberFxn) \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_v, void, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn) \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_RANGE, void, memberFxn, UINT)
#define ON_COMMAND_EX(id, memberFxn) \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_EX, BOOL, memberFxn, UINT)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn) \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_EX, BOOL, memberFxn, UINT)
#define ON_UPDATE_COMMAND_UI(id, memberFxn) \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, AfxSigCmdUI, void, memberFxn, CCmdUI*)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                               \
    AFX_COMMAND_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, AfxSigCmdUI_RANGE, void, memberFxn, \
                      CCmdUI*)
#define ON_CONTROL(wNotifyCode, id, memberFxn) \
    AFX_COMMAND_ENTRY(WM_COMMAND, wNotifyCode, id, id, AfxSigCmd_v, void, memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn) \
    AFX_COMMAND_ENTRY(WM_COMMAND, wNotifyCode, id, idLast, AfxSigCmd_RANGE, void, memberFxn, UINT)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn) \
    AFX_COMMAND_ENTRY(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, AfxSigCmd_v, void, memberFxn)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn) \
    AFX_COMMAND_ENTRY(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, AfxSigCmd_b, BOOL, memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn) \
    AFX_COMMAND_ENTRY(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_v, void, memberFxn, NMHDR*, LRESULT*)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                  \
    AFX_COMMAND_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, AfxSigNotify_RANGE, void, memberFxn, UINT, NMHDR*, \
                      LRESULT*)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                      \
    AFX_COMMAND_ENTRY(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_EX, BOOL, memberFxn, UINT, NMHDR*, \
                      LRESULT*)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                            \
    AFX_COMMAND_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, AfxSigNotify_EX, BOOL, memberFxn, UINT, NMHDR*, \
                      LRESULT*)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                      \
    AFX_COMMAND_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, AfxSigNotify_v, void, memberFxn, \
                      NMHDR*, LRESULT*)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                   \
    AFX_COMMAND_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, AfxSigNotify_b, BOOL, memberFxn, \
                      NMHDR*, LRESULT*)

#define ON_MESSAGE(message, memberFxn) \
    {message,                          \
     0,                                \
     0,                                \
     0,                                \
     AfxSig_l_w_l,                     \
     reinterpret_cast<AFX_PMSG>(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) \
    {0xC000,                                               \
     0,                                                    \
     0,                                                    \
     0,                                                    \
     reinterpret_cast<UINT_PTR>(&nMessageVariable),        \
     reinterpret_cast<AFX_PMSG>(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},
#define ON_THREAD_MESSAGE(message, memberFxn) \
    {message,                                 \
     0,                                       \
     0,                                       \
     0,                                       \
     AfxSigThread_w_l,                        \
     reinterpret_cast<AFX_PMSG>(static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn))},
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn) \
    {0xC000,                                                      \
     0,                                                           \
     0,                                                           \
     0,                                                           \
     reinterpret_cast<UINT_PTR>(&nMessageVariable),               \
     reinterpret_cast<AFX_PMSG>(static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn))},

// Control notifications by name.
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_EN_ALIGN_LTR_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_LTR_EC, id, memberFxn)
#define ON_EN_ALIGN_RTL_EC(id, memberFxn) ON_CONTROL(EN_ALIGN_RTL_EC, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
