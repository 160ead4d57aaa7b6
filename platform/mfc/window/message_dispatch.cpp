#include "message_dispatch.h"

#include <array>

#include <windowsx.h>

#include <kmfc/standard_controls.h>
#include <kmfc/thread.h>

#include "thread_state.h"

namespace kmfc {

namespace {

using WindowInvoker = LRESULT (*)(CWnd*, AFX_PMSG, UINT, WPARAM, LPARAM);

/// Calls `handler`, which was stored from a member function of type R (CWnd::*)(A...).
template <class R, class... A>
R call(CWnd* wnd, AFX_PMSG handler, A... arguments) {
    return (wnd->*reinterpret_cast<R (CWnd::*)(A...)>(handler))(arguments...);
}

CPoint point_of(LPARAM lParam) { return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)); }
CWnd* wnd_of(WPARAM handle) { return CWnd::FromHandle(reinterpret_cast<HWND>(handle)); }
CWnd* wnd_of(LPARAM handle) { return CWnd::FromHandle(reinterpret_cast<HWND>(handle)); }
UINT low(LPARAM value) { return LOWORD(value); }
UINT high(LPARAM value) { return HIWORD(value); }

#define INVOKER                                                                    \
    [](CWnd * wnd, AFX_PMSG f, [[maybe_unused]] UINT m, [[maybe_unused]] WPARAM w, \
       [[maybe_unused]] LPARAM l) -> LRESULT

/// Fills the rows of the plain signatures: no parameter, or numbers straight out of wParam and lParam.
void fill_plain(std::array<WindowInvoker, AfxSig_window_count>& t) {
    t[AfxSig_v_v] = INVOKER { return call<void>(wnd, f), 0; };
    t[AfxSig_b_v] = INVOKER { return call<BOOL>(wnd, f); };
    t[AfxSig_i_v] = INVOKER { return call<int>(wnd, f); };
    t[AfxSig_u_v] = INVOKER { return static_cast<LRESULT>(call<UINT>(wnd, f)); };
    t[AfxSig_l_v] = INVOKER { return call<LRESULT>(wnd, f); };
    t[AfxSig_v_b] = INVOKER { return call<void, BOOL>(wnd, f, w != 0), 0; };
    t[AfxSig_b_b] = INVOKER { return call<BOOL, BOOL>(wnd, f, w != 0); };
    t[AfxSig_v_u] = INVOKER { return call<void, UINT>(wnd, f, static_cast<UINT>(w)), 0; };
    t[AfxSig_v_b_u] = INVOKER { return call<void, BOOL, UINT>(wnd, f, w != 0, static_cast<UINT>(l)), 0; };
    t[AfxSig_v_int_int] = INVOKER {
        CPoint p = point_of(l);
        return call<void, int, int>(wnd, f, p.x, p.y), 0;
    };
    t[AfxSig_v_u_int_int] = INVOKER {
        return call<void, UINT, int, int>(wnd, f, static_cast<UINT>(w), static_cast<int>(low(l)),
                                          static_cast<int>(high(l))),
               0;
    };
    t[AfxSig_v_uint_ptr] = INVOKER { return call<void, UINT_PTR>(wnd, f, w), 0; };
    t[AfxSig_v_key] = INVOKER {
        return call<void, UINT, UINT, UINT>(wnd, f, static_cast<UINT>(w), low(l), high(l)), 0;
    };
    t[AfxSig_v_syscommand] = INVOKER { return call<void, UINT, LPARAM>(wnd, f, static_cast<UINT>(w), l), 0; };
    t[AfxSig_v_parentnotify] = INVOKER {
        return call<void, UINT, LPARAM>(wnd, f, static_cast<UINT>(w), l), 0;
    };
    t[AfxSig_v_settingchange] = INVOKER {
        return call<void, UINT, LPCTSTR>(wnd, f, static_cast<UINT>(w), reinterpret_cast<LPCTSTR>(l)), 0;
    };
    t[AfxSig_v_activateapp] = INVOKER {
        return call<void, BOOL, DWORD>(wnd, f, w != 0, static_cast<DWORD>(l)), 0;
    };
    t[AfxSig_l_w_l] = INVOKER { return call<LRESULT, WPARAM, LPARAM>(wnd, f, w, l); };
}

/// Mouse, focus and other windows.
void fill_input(std::array<WindowInvoker, AfxSig_window_count>& t) {
    t[AfxSig_v_u_point] = INVOKER {
        return call<void, UINT, CPoint>(wnd, f, static_cast<UINT>(w), point_of(l)), 0;
    };
    t[AfxSig_v_nchit_point] = t[AfxSig_v_u_point];
    t[AfxSig_l_point] = INVOKER { return call<LRESULT, CPoint>(wnd, f, point_of(l)); };
    t[AfxSig_b_wheel] = INVOKER {
        return call<BOOL, UINT, short, CPoint>(wnd, f, GET_KEYSTATE_WPARAM(w), GET_WHEEL_DELTA_WPARAM(w),
                                               point_of(l));
    };
    t[AfxSig_v_wnd] = INVOKER { return call<void, CWnd*>(wnd, f, wnd_of(w)), 0; };
    t[AfxSig_v_wnd_l] = INVOKER { return call<void, CWnd*>(wnd, f, wnd_of(l)), 0; };
    t[AfxSig_v_wnd_point] = INVOKER { return call<void, CWnd*, CPoint>(wnd, f, wnd_of(w), point_of(l)), 0; };
    t[AfxSig_v_activate] = INVOKER {
        return call<void, UINT, CWnd*, BOOL>(wnd, f, LOWORD(w), wnd_of(l), HIWORD(w) != 0), 0;
    };
    t[AfxSig_b_setcursor] = INVOKER {
        return call<BOOL, CWnd*, UINT, UINT>(wnd, f, wnd_of(w), low(l), high(l));
    };
    t[AfxSig_i_mouseactivate] = INVOKER {
        return call<int, CWnd*, UINT, UINT>(wnd, f, wnd_of(w), low(l), high(l));
    };
    t[AfxSig_b_copydata] = INVOKER {
        return call<BOOL, CWnd*, COPYDATASTRUCT*>(wnd, f, wnd_of(w), reinterpret_cast<COPYDATASTRUCT*>(l));
    };
    t[AfxSig_v_hdrop] = INVOKER { return call<void, HDROP>(wnd, f, reinterpret_cast<HDROP>(w)), 0; };
    t[AfxSig_v_scroll] = INVOKER {
        return call<void, UINT, UINT, CScrollBar*>(wnd, f, LOWORD(w), HIWORD(w),
                                                   static_cast<CScrollBar*>(wnd_of(l))),
               0;
    };
    t[AfxSig_v_scroll_reflect] = INVOKER { return call<void, UINT, UINT>(wnd, f, LOWORD(w), HIWORD(w)), 0; };
    t[AfxSig_i_u_wnd_u] = INVOKER {
        return call<int, UINT, CListBox*, UINT>(wnd, f, LOWORD(w), static_cast<CListBox*>(wnd_of(l)),
                                                HIWORD(w));
    };
}

/// Menus, painting, and messages that carry a structure.
void fill_structures(std::array<WindowInvoker, AfxSig_window_count>& t) {
    t[AfxSig_b_dc] = INVOKER { return call<BOOL, CDC*>(wnd, f, CDC::FromHandle(reinterpret_cast<HDC>(w))); };
    t[AfxSig_h_ctlcolor] = INVOKER {
        return reinterpret_cast<LRESULT>(call<HBRUSH, CDC*, CWnd*, UINT>(
            wnd, f, CDC::FromHandle(reinterpret_cast<HDC>(w)), wnd_of(l), m - WM_CTLCOLORMSGBOX));
    };
    t[AfxSig_h_ctlcolor_reflect] = INVOKER {
        return reinterpret_cast<LRESULT>(call<HBRUSH, CDC*, UINT>(
            wnd, f, CDC::FromHandle(reinterpret_cast<HDC>(w)), static_cast<UINT>(l)));
    };
    t[AfxSig_v_menu] = INVOKER {
        return call<void, CMenu*>(wnd, f, CMenu::FromHandle(reinterpret_cast<HMENU>(w))), 0;
    };
    t[AfxSig_v_initmenupopup] = INVOKER {
        return call<void, CMenu*, UINT, BOOL>(wnd, f, CMenu::FromHandle(reinterpret_cast<HMENU>(w)), low(l),
                                              high(l) != 0),
               0;
    };
    t[AfxSig_v_menuselect] = INVOKER {
        return call<void, UINT, UINT, HMENU>(wnd, f, LOWORD(w), HIWORD(w), reinterpret_cast<HMENU>(l)), 0;
    };
    t[AfxSig_l_menuchar] = INVOKER {
        return call<LRESULT, UINT, UINT, CMenu*>(wnd, f, LOWORD(w), HIWORD(w),
                                                 CMenu::FromHandle(reinterpret_cast<HMENU>(l)));
    };
    t[AfxSig_i_create] = INVOKER {
        return call<int, LPCREATESTRUCT>(wnd, f, reinterpret_cast<LPCREATESTRUCT>(l));
    };
    t[AfxSig_b_create] = INVOKER {
        return call<BOOL, LPCREATESTRUCT>(wnd, f, reinterpret_cast<LPCREATESTRUCT>(l));
    };
    t[AfxSig_v_minmaxinfo] = INVOKER {
        return call<void, MINMAXINFO*>(wnd, f, reinterpret_cast<MINMAXINFO*>(l)), 0;
    };
    t[AfxSig_v_windowpos] = INVOKER {
        return call<void, WINDOWPOS*>(wnd, f, reinterpret_cast<WINDOWPOS*>(l)), 0;
    };
    t[AfxSig_b_help] = INVOKER { return call<BOOL, HELPINFO*>(wnd, f, reinterpret_cast<HELPINFO*>(l)); };
    t[AfxSig_v_b_nccalc] = INVOKER {
        return call<void, BOOL, NCCALCSIZE_PARAMS*>(wnd, f, w != 0, reinterpret_cast<NCCALCSIZE_PARAMS*>(l)),
               0;
    };
    t[AfxSig_v_stylechange] = INVOKER {
        return call<void, int, LPSTYLESTRUCT>(wnd, f, static_cast<int>(w),
                                              reinterpret_cast<LPSTYLESTRUCT>(l)),
               0;
    };
}

/// Owner-draw messages, as the parent and as the control itself receives them.
void fill_owner_draw(std::array<WindowInvoker, AfxSig_window_count>& t) {
    t[AfxSig_v_int_drawitem] = INVOKER {
        return call<void, int, LPDRAWITEMSTRUCT>(wnd, f, static_cast<int>(w),
                                                 reinterpret_cast<LPDRAWITEMSTRUCT>(l)),
               TRUE;
    };
    t[AfxSig_v_int_measureitem] = INVOKER {
        return call<void, int, LPMEASUREITEMSTRUCT>(wnd, f, static_cast<int>(w),
                                                    reinterpret_cast<LPMEASUREITEMSTRUCT>(l)),
               TRUE;
    };
    t[AfxSig_v_int_deleteitem] = INVOKER {
        return call<void, int, LPDELETEITEMSTRUCT>(wnd, f, static_cast<int>(w),
                                                   reinterpret_cast<LPDELETEITEMSTRUCT>(l)),
               TRUE;
    };
    t[AfxSig_i_int_compareitem] = INVOKER {
        return call<int, int, LPCOMPAREITEMSTRUCT>(wnd, f, static_cast<int>(w),
                                                   reinterpret_cast<LPCOMPAREITEMSTRUCT>(l));
    };
    t[AfxSig_v_drawitem] = INVOKER {
        return call<void, LPDRAWITEMSTRUCT>(wnd, f, reinterpret_cast<LPDRAWITEMSTRUCT>(l)), TRUE;
    };
    t[AfxSig_v_measureitem] = INVOKER {
        return call<void, LPMEASUREITEMSTRUCT>(wnd, f, reinterpret_cast<LPMEASUREITEMSTRUCT>(l)), TRUE;
    };
    t[AfxSig_v_deleteitem] = INVOKER {
        return call<void, LPDELETEITEMSTRUCT>(wnd, f, reinterpret_cast<LPDELETEITEMSTRUCT>(l)), TRUE;
    };
    t[AfxSig_i_compareitem] = INVOKER {
        return call<int, LPCOMPAREITEMSTRUCT>(wnd, f, reinterpret_cast<LPCOMPAREITEMSTRUCT>(l));
    };
}

/// The clipboard, devices, the session, and what the system tells of its settings and menus.
void fill_system(std::array<WindowInvoker, AfxSig_window_count>& t) {
    t[AfxSig_v_appcommand] = INVOKER {
        return call<void, CWnd*, UINT, UINT, UINT>(wnd, f, wnd_of(w), GET_APPCOMMAND_LPARAM(l),
                                                   GET_DEVICE_LPARAM(l), GET_KEYSTATE_LPARAM(l)),
               TRUE;
    };
    t[AfxSig_v_u_text] = INVOKER {
        return call<void, UINT, LPTSTR>(wnd, f, static_cast<UINT>(w), reinterpret_cast<LPTSTR>(l)), 0;
    };
    t[AfxSig_v_text] = INVOKER { return call<void, LPTSTR>(wnd, f, reinterpret_cast<LPTSTR>(l)), 0; };
    t[AfxSig_v_ctext] = INVOKER { return call<void, LPCTSTR>(wnd, f, reinterpret_cast<LPCTSTR>(l)), 0; };
    t[AfxSig_v_hwnd_hwnd] = INVOKER {
        return call<void, HWND, HWND>(wnd, f, reinterpret_cast<HWND>(w), reinterpret_cast<HWND>(l)), 0;
    };
    t[AfxSig_v_wnd_u_u] = INVOKER {
        return call<void, CWnd*, UINT, UINT>(wnd, f, wnd_of(w), low(l), high(l)), 0;
    };
    t[AfxSig_v_wnd_global] = INVOKER {
        return call<void, CWnd*, HGLOBAL>(wnd, f, wnd_of(w), reinterpret_cast<HGLOBAL>(l)), 0;
    };
    t[AfxSig_v_lo_hi] = INVOKER { return call<void, UINT, UINT>(wnd, f, LOWORD(w), HIWORD(w)), 0; };
    t[AfxSig_i_lo_hi] = INVOKER { return call<int, UINT, UINT>(wnd, f, LOWORD(w), HIWORD(w)); };
    t[AfxSig_b_u_dwp] = INVOKER {
        return call<BOOL, UINT, DWORD_PTR>(wnd, f, static_cast<UINT>(w), static_cast<DWORD_PTR>(l));
    };
    t[AfxSig_u_u_l] = INVOKER {
        return static_cast<LRESULT>(call<UINT, UINT, LPARAM>(wnd, f, static_cast<UINT>(w), l));
    };
    t[AfxSig_v_u_u] = INVOKER {
        return call<void, UINT, UINT>(wnd, f, static_cast<UINT>(w), static_cast<UINT>(l)), 0;
    };
    t[AfxSig_v_u_dw] = INVOKER {
        return call<void, UINT, DWORD>(wnd, f, static_cast<UINT>(w), static_cast<DWORD>(l)), 0;
    };
    t[AfxSig_v_spooler] = INVOKER { return call<void, UINT, UINT>(wnd, f, static_cast<UINT>(w), low(l)), 0; };
    t[AfxSig_v_dw_b] = INVOKER { return call<void, DWORD, BOOL>(wnd, f, static_cast<DWORD>(w), l != 0), 0; };
    t[AfxSig_v_ushort] = INVOKER {
        return call<void, unsigned short>(wnd, f, static_cast<unsigned short>(w)), 0;
    };
    t[AfxSig_v_u_rawinput] = INVOKER {
        return call<void, UINT, HRAWINPUT>(wnd, f, static_cast<UINT>(w), reinterpret_cast<HRAWINPUT>(l)), 0;
    };
    t[AfxSig_v_dc] = INVOKER {
        return call<void, CDC*>(wnd, f, CDC::FromHandle(reinterpret_cast<HDC>(w))), 0;
    };
}

/// More of menus, the mouse and windows.
void fill_more_input(std::array<WindowInvoker, AfxSig_window_count>& t) {
    t[AfxSig_v_u_wnd] = INVOKER {
        return call<void, UINT, CWnd*>(wnd, f, static_cast<UINT>(w), wnd_of(l)), 0;
    };
    t[AfxSig_u_wnd_u] = INVOKER {
        return static_cast<LRESULT>(call<UINT, CWnd*, UINT>(wnd, f, wnd_of(w), static_cast<UINT>(l)));
    };
    t[AfxSig_v_mdiactivate] = INVOKER {
        // The window that gains is in lParam; the message goes to both.
        return call<void, BOOL, CWnd*, CWnd*>(wnd, f, reinterpret_cast<HWND>(l) == wnd->m_hWnd, wnd_of(l),
                                              wnd_of(w)),
               0;
    };
    t[AfxSig_u_u_menu] = INVOKER {
        return static_cast<LRESULT>(call<UINT, UINT, CMenu*>(wnd, f, static_cast<UINT>(w),
                                                             CMenu::FromHandle(reinterpret_cast<HMENU>(l))));
    };
    t[AfxSig_v_u_menu] = INVOKER {
        return call<void, UINT, CMenu*>(wnd, f, static_cast<UINT>(w),
                                        CMenu::FromHandle(reinterpret_cast<HMENU>(l))),
               0;
    };
    t[AfxSig_v_menu_hi] = INVOKER {
        return call<void, CMenu*, UINT>(wnd, f, CMenu::FromHandle(reinterpret_cast<HMENU>(w)), high(l)), 0;
    };
    t[AfxSig_u_menuobject] = INVOKER {
        return static_cast<LRESULT>(
            call<UINT, MENUGETOBJECTINFO*>(wnd, f, reinterpret_cast<MENUGETOBJECTINFO*>(l)));
    };
    t[AfxSig_v_nextmenu] = INVOKER {
        return call<void, UINT, LPMDINEXTMENU>(wnd, f, static_cast<UINT>(w),
                                               reinterpret_cast<LPMDINEXTMENU>(l)),
               0;
    };
    t[AfxSig_v_wheel] = INVOKER {
        return call<void, UINT, short, CPoint>(wnd, f, GET_KEYSTATE_WPARAM(w), GET_WHEEL_DELTA_WPARAM(w),
                                               point_of(l)),
               0;
    };
    // An answer of TRUE says that the rectangle counts as the handler left it.
    t[AfxSig_v_u_rect] = INVOKER {
        return call<void, UINT, LPRECT>(wnd, f, static_cast<UINT>(w), reinterpret_cast<LPRECT>(l)), TRUE;
    };
    // The side buttons ask for an answer of TRUE.
    t[AfxSig_v_x] = INVOKER {
        return call<void, UINT, UINT, CPoint>(wnd, f, GET_KEYSTATE_WPARAM(w), GET_XBUTTON_WPARAM(w),
                                              point_of(l)),
               TRUE;
    };
    t[AfxSig_v_ncx] = INVOKER {
        return call<void, short, UINT, CPoint>(wnd, f, static_cast<short>(GET_XBUTTON_WPARAM(w)),
                                               static_cast<UINT>(GET_NCHITTEST_WPARAM(w)), point_of(l)),
               TRUE;
    };
}

#undef INVOKER

const std::array<WindowInvoker, AfxSig_window_count>& window_invokers() {
    static const auto table = [] {
        std::array<WindowInvoker, AfxSig_window_count> t{};
        fill_plain(t);
        fill_input(t);
        fill_structures(t);
        fill_owner_draw(t);
        fill_system(t);
        fill_more_input(t);
        return t;
    }();
    return table;
}

bool entry_serves(const AFX_MSGMAP_ENTRY& entry, UINT message) {
    if (message < 0xC000) return entry.nMessage == message && entry.nCode == 0 && entry.nID == 0;
    return entry.nMessage == 0xC000 && *reinterpret_cast<const UINT*>(entry.nSig) == message;
}

const AFX_MSGMAP_ENTRY* search_maps(const AFX_MSGMAP* map, UINT message) {
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
            if (entry_serves(*entry, message)) return entry;
    }
    return nullptr;
}

}  // namespace

const AFX_MSGMAP_ENTRY* MessageCache::Find(const AFX_MSGMAP* map, UINT message) {
    const size_t hash = (reinterpret_cast<size_t>(map) >> 4) ^ message;
    Slot& slot = m_slots[hash & (kSlots - 1)];
    if (slot.map != map || slot.message != message) slot = {map, message, search_maps(map, message)};
    return slot.entry;
}

LRESULT invoke_window_handler(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam,
                              LPARAM lParam) {
    const UINT_PTR signature = entry.nMessage == 0xC000 ? AfxSig_l_w_l : entry.nSig;
    return window_invokers()[signature](wnd, entry.pfn, message, wParam, lParam);
}

const AFX_MSGMAP_ENTRY* find_command_entry(const AFX_MSGMAP_ENTRY* entries, UINT message, UINT code,
                                           UINT id) {
    for (; entries->nSig != AfxSig_end; ++entries) {
        if (entries->nMessage == message && entries->nCode == code && id >= entries->nID &&
            id <= entries->nLastID)
            return entries;
    }
    return nullptr;
}

namespace {

template <class R, class... A>
R call_command(CCmdTarget* target, AFX_PMSG handler, A... arguments) {
    return (target->*reinterpret_cast<R (CCmdTarget::*)(A...)>(handler))(arguments...);
}

BOOL invoke_notify(CCmdTarget* target, UINT id, const AFX_MSGMAP_ENTRY& entry, void* extra) {
    auto* context = static_cast<NotifyContext*>(extra);
    NMHDR* header = context->pNMHDR;
    LRESULT* result = context->pResult;
    switch (entry.nSig) {
        case AfxSigNotify_v:
            call_command<void, NMHDR*, LRESULT*>(target, entry.pfn, header, result);
            return TRUE;
        case AfxSigNotify_b: return call_command<BOOL, NMHDR*, LRESULT*>(target, entry.pfn, header, result);
        case AfxSigNotify_RANGE:
            call_command<void, UINT, NMHDR*, LRESULT*>(target, entry.pfn, id, header, result);
            return TRUE;
        default: return call_command<BOOL, UINT, NMHDR*, LRESULT*>(target, entry.pfn, id, header, result);
    }
}

BOOL invoke_update(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, void* extra) {
    auto* request = static_cast<CCmdUI*>(extra);
    request->m_bContinueRouting = FALSE;
    call_command<void, CCmdUI*>(target, entry.pfn, request);
    return !request->m_bContinueRouting;
}

}  // namespace

BOOL invoke_command_handler(CCmdTarget* target, UINT id, int, const AFX_MSGMAP_ENTRY& entry, void* extra,
                            AFX_CMDHANDLERINFO* info) {
    if (info != nullptr) {
        *info = {target, entry.pfn};
        return TRUE;
    }
    switch (entry.nSig) {
        case AfxSigCmd_v: call_command<void>(target, entry.pfn); return TRUE;
        case AfxSigCmd_b: return call_command<BOOL>(target, entry.pfn);
        case AfxSigCmd_RANGE: call_command<void, UINT>(target, entry.pfn, id); return TRUE;
        case AfxSigCmd_EX: return call_command<BOOL, UINT>(target, entry.pfn, id);
        case AfxSigCmdUI:
        case AfxSigCmdUI_RANGE: return invoke_update(target, entry, extra);
        default: return invoke_notify(target, id, entry, extra);
    }
}

}  // namespace kmfc
