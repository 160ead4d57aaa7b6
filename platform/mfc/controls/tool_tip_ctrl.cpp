#include <afxcmn.h>
#include <kmfc/module_state.h>

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace {

constexpr int kMostTipText = 1024;  // characters with the closing zero

/// The text of a string resource, as the control takes a copy of it. Empty when there is none.
CString resource_text(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

}  // namespace

/// Names the tool: a window by its handle and its parent, a rectangle by its id and its window.
void CToolTipCtrl::fill_tool(TOOLINFO& tool, CWnd* window, UINT_PTR id) {
    tool = {};
    tool.cbSize = sizeof tool;
    if (id == 0) {
        tool.hwnd = ::GetParent(kmfc::safe_handle(window));
        tool.uFlags = TTF_IDISHWND;
        tool.uId = reinterpret_cast<UINT_PTR>(kmfc::safe_handle(window));
    } else {
        tool.hwnd = kmfc::safe_handle(window);
        tool.uId = id;
    }
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) { return CreateEx(pParentWnd, dwStyle, 0); }

BOOL CToolTipCtrl::CreateEx(CWnd* pParent, DWORD dwStyle, DWORD dwStyleEx) {
    return CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASSW, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, kmfc::safe_handle(pParent), nullptr,
                          nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool,
                           LPARAM lParam) {
    TOOLINFOW tool;
    fill_tool(tool, pWnd, nIDTool);
    if (lpRectTool) tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    tool.lParam = lParam;
    return static_cast<BOOL>(send(TTM_ADDTOOLW, 0, &tool));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool, LPARAM lParam) {
    return AddTool(pWnd, resource_text(nIDText), lpRectTool, nIDTool, lParam);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFOW tool;
    fill_tool(tool, pWnd, nIDTool);
    send(TTM_DELTOOLW, 0, &tool);
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFOW tool;
    fill_tool(tool, pWnd, nIDTool);
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    send(TTM_UPDATETIPTEXTW, 0, &tool);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool) {
    UpdateTipText(resource_text(nIDText), pWnd, nIDTool);
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFOW tool;
    fill_tool(tool, pWnd, nIDTool);
    tool.rect = *lpRect;
    send(TTM_NEWTOOLRECTW, 0, &tool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    TOOLINFOW tool;
    fill_tool(tool, pWnd, nIDTool);
    tool.lpszText = str.GetBuffer(kMostTipText);
    *tool.lpszText = L'\0';
    send(TTM_GETTEXTW, kMostTipText, &tool);
    str.ReleaseBuffer();
}

BOOL CToolTipCtrl::GetToolInfo(TOOLINFO& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const {
    fill_tool(ToolInfo, pWnd, nIDTool);
    return static_cast<BOOL>(send(TTM_GETTOOLINFOW, 0, &ToolInfo));
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const {
    TTHITTESTINFOW info = {};
    info.hwnd = kmfc::safe_handle(pWnd);
    info.pt = pt;
    info.ti.cbSize = sizeof info.ti;
    if (!send(TTM_HITTESTW, 0, &info)) return FALSE;
    *lpToolInfo = info.ti;
    return TRUE;
}

void CToolTipCtrl::RelayEvent(LPMSG lpMsg) { send(TTM_RELAYEVENT, 0, lpMsg); }

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const {
    return CSize(static_cast<DWORD>(send(TTM_GETBUBBLESIZE, 0, lpToolInfo)));
}
