// Message maps: the tables that tie messages, commands and notifications to member functions.
//
// A class says DECLARE_MESSAGE_MAP() in its declaration and lists its handlers between BEGIN_MESSAGE_MAP and
// END_MESSAGE_MAP; a search goes from the most derived class to its bases. The ON_WM_… macros that unpack
// wParam and lParam are in message_macros.h.
#pragma once

#include <kmfc/platform.h>

class CCmdTarget;

#define afx_msg
#define AFX_MSG_CALL

using AFX_PMSG = void (CCmdTarget::*)();

/// How a handler's parameters are made from a message; indexes the invoker tables of the dispatcher.
enum AfxSig : UINT_PTR;

/// One handler of a class.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;  ///< window message
    UINT nCode;     ///< control notification code, or WM_NOTIFY code
    UINT nID;       ///< control id, first of a range
    UINT nLastID;   ///< last of the range
    UINT_PTR nSig;  ///< an AfxSig, or for registered messages the address of the message variable
    AFX_PMSG pfn;
};

/// The handlers of a class and the way to its base's.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                  \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return theClass::GetThisMessageMap(); } \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                                           \
        using ThisClass [[maybe_unused]] = theClass;                                            \
        using TheBaseClass = baseClass;                                                         \
        static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                                                      \
    { 0, 0, 0, 0, AfxSig_end, nullptr }                                        \
    }                                                                          \
    ;                                                                          \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries}; \
    return &map;                                                               \
    }

/// A message of WM_REFLECT_BASE + m is message m as its sender itself may handle it.
constexpr UINT WM_REFLECT_BASE = 0xBC00;
/// All WM_CTLCOLOR… messages reach OnCtlColor under this one number.
constexpr UINT WM_CTLCOLOR = 0x0019;

enum AfxSig : UINT_PTR {
    AfxSig_end = 0,
    // Window messages. First letter: result (v none, b BOOL, i int, l LRESULT, h HBRUSH/HCURSOR);
    // then parameters: w wParam as UINT, W CWnd* from wParam, p CPoint from lParam, and so on as named.
    AfxSig_v_v,
    AfxSig_b_v,
    AfxSig_i_v,
    AfxSig_u_v,
    AfxSig_v_b,
    AfxSig_v_u,
    AfxSig_v_u_point,           // OnMouseMove(UINT, CPoint)
    AfxSig_v_u_int_int,         // OnSize(UINT, int, int)
    AfxSig_v_int_int,           // OnMove(int, int)
    AfxSig_v_wnd,               // OnSetFocus(CWnd*)
    AfxSig_v_uint_ptr,          // OnTimer(UINT_PTR)
    AfxSig_v_activate,          // OnActivate(UINT, CWnd*, BOOL)
    AfxSig_v_activateapp,       // OnActivateApp(BOOL, DWORD)
    AfxSig_v_key,               // OnKeyDown(UINT, UINT, UINT)
    AfxSig_b_dc,                // OnEraseBkgnd(CDC*)
    AfxSig_h_ctlcolor,          // OnCtlColor(CDC*, CWnd*, UINT)
    AfxSig_h_ctlcolor_reflect,  // CtlColor(CDC*, UINT)
    AfxSig_i_create,            // OnCreate(LPCREATESTRUCT)
    AfxSig_b_create,            // OnNcCreate(LPCREATESTRUCT)
    AfxSig_v_scroll,            // OnHScroll(UINT, UINT, CScrollBar*)
    AfxSig_v_scroll_reflect,    // HScroll(UINT, UINT)
    AfxSig_b_wheel,             // OnMouseWheel(UINT, short, CPoint)
    AfxSig_v_wnd_point,         // OnContextMenu(CWnd*, CPoint)
    AfxSig_b_setcursor,         // OnSetCursor(CWnd*, UINT, UINT)
    AfxSig_i_mouseactivate,     // OnMouseActivate(CWnd*, UINT, UINT)
    AfxSig_l_point,             // OnNcHitTest(CPoint)
    AfxSig_v_initmenupopup,     // OnInitMenuPopup(CMenu*, UINT, BOOL)
    AfxSig_v_menu,              // OnInitMenu(CMenu*)
    AfxSig_v_menuselect,        // OnMenuSelect(UINT, UINT, HMENU)
    AfxSig_l_menuchar,          // OnMenuChar(UINT, UINT, CMenu*)
    AfxSig_v_minmaxinfo,        // OnGetMinMaxInfo(MINMAXINFO*)
    AfxSig_v_windowpos,         // OnWindowPosChanged(WINDOWPOS*)
    AfxSig_v_int_drawitem,      // OnDrawItem(int, LPDRAWITEMSTRUCT)
    AfxSig_v_int_measureitem,
    AfxSig_v_int_deleteitem,
    AfxSig_i_int_compareitem,
    AfxSig_b_help,           // OnHelpInfo(HELPINFO*)
    AfxSig_b_b,              // OnNcActivate(BOOL)
    AfxSig_b_copydata,       // OnCopyData(CWnd*, COPYDATASTRUCT*)
    AfxSig_v_b_nccalc,       // OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*)
    AfxSig_v_nchit_point,    // OnNcMouseMove(UINT, CPoint)
    AfxSig_v_parentnotify,   // OnParentNotify(UINT, LPARAM)
    AfxSig_v_b_u,            // OnShowWindow(BOOL, UINT)
    AfxSig_v_settingchange,  // OnSettingChange(UINT, LPCTSTR)
    AfxSig_v_syscommand,     // OnSysCommand(UINT, LPARAM)
    AfxSig_v_stylechange,    // OnStyleChanged(int, LPSTYLESTRUCT)
    AfxSig_v_hdrop,          // OnDropFiles(HDROP)
    AfxSig_v_wnd_l,          // OnCaptureChanged(CWnd*): the window is in lParam
    AfxSig_l_v,              // OnThemeChanged(), OnQueryDragIcon()
    AfxSig_v_drawitem,       // DrawItem(LPDRAWITEMSTRUCT) of the control itself
    AfxSig_v_measureitem,
    AfxSig_v_deleteitem,
    AfxSig_i_compareitem,
    AfxSig_i_u_wnd_u,      // OnVKeyToItem(UINT, CListBox*, UINT)
    AfxSig_l_w_l,          // LRESULT handler(WPARAM, LPARAM): ON_MESSAGE and registered messages
    AfxSig_v_appcommand,   // OnAppCommand(CWnd*, UINT, UINT, UINT)
    AfxSig_v_u_text,       // OnAskCbFormatName(UINT, LPTSTR)
    AfxSig_v_hwnd_hwnd,    // OnChangeCbChain(HWND, HWND)
    AfxSig_v_lo_hi,        // OnChangeUIState(UINT, UINT)
    AfxSig_b_u_dwp,        // OnDeviceChange(UINT, DWORD_PTR)
    AfxSig_v_text,         // OnDevModeChange(LPTSTR)
    AfxSig_v_dw_b,         // OnColorizationColorChanged(DWORD, BOOL)
    AfxSig_v_u_wnd,        // OnEnterIdle(UINT, CWnd*)
    AfxSig_v_wnd_u_u,      // OnHScrollClipboard(CWnd*, UINT, UINT)
    AfxSig_v_dc,           // OnIconEraseBkgnd(CDC*)
    AfxSig_v_u_rawinput,   // OnRawInput(UINT, HRAWINPUT)
    AfxSig_v_ushort,       // OnInputDeviceChange(unsigned short)
    AfxSig_v_u_u,          // OnInputLangChange(UINT, UINT)
    AfxSig_v_mdiactivate,  // OnMDIActivate(BOOL, CWnd*, CWnd*)
    AfxSig_u_u_menu,       // OnMenuDrag(UINT, CMenu*)
    AfxSig_u_menuobject,   // OnMenuGetObject(MENUGETOBJECTINFO*)
    AfxSig_v_u_menu,       // OnMenuRButtonUp(UINT, CMenu*)
    AfxSig_v_wheel,        // OnMouseHWheel(UINT, short, CPoint)
    AfxSig_v_u_rect,       // OnMoving(UINT, LPRECT)
    AfxSig_v_ncx,          // OnNcXButtonDblClk(short, UINT, CPoint)
    AfxSig_v_nextmenu,     // OnNextMenu(UINT, LPMDINEXTMENU)
    AfxSig_u_wnd_u,        // OnNotifyFormat(CWnd*, UINT)
    AfxSig_v_wnd_global,   // OnPaintClipboard(CWnd*, HGLOBAL)
    AfxSig_u_u_l,          // OnPowerBroadcast(UINT, LPARAM)
    AfxSig_v_spooler,      // OnSpoolerStatus(UINT, UINT)
    AfxSig_v_u_dw,         // OnTCard(UINT, DWORD)
    AfxSig_v_menu_hi,      // OnUnInitMenuPopup(CMenu*, UINT)
    AfxSig_v_ctext,        // OnWinIniChange(LPCTSTR)
    AfxSig_v_x,            // OnXButtonDblClk(UINT, UINT, CPoint)
    AfxSig_i_lo_hi,        // CharToItem(UINT, UINT) of the list itself
    AfxSig_window_count,

    // Commands and notifications.
    AfxSigCmd_v,         // void handler()
    AfxSigCmd_b,         // BOOL handler()
    AfxSigCmd_RANGE,     // void handler(UINT)
    AfxSigCmd_EX,        // BOOL handler(UINT)
    AfxSigNotify_v,      // void handler(NMHDR*, LRESULT*)
    AfxSigNotify_b,      // BOOL handler(NMHDR*, LRESULT*)
    AfxSigNotify_RANGE,  // void handler(UINT, NMHDR*, LRESULT*)
    AfxSigNotify_EX,     // BOOL handler(UINT, NMHDR*, LRESULT*)
    AfxSigCmdUI,         // void handler(CCmdUI*)
    AfxSigCmdUI_RANGE,   // void handler(CCmdUI*)
    AfxSigThread_w_l,    // void handler(WPARAM, LPARAM) of a thread message
};

#include <kmfc/message_macros.h>
