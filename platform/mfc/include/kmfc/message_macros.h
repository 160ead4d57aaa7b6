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

// Messages of a control handled by the control itself.
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
