// What the handlers of window messages get of wParam and lParam, and what their results become.
#include <afxwin.h>

#include <sstream>
#include <string>

#include <dbt.h>

#include "ui_test.h"

namespace {

std::wstring said;

void append(std::wostream& out, const CPoint& point) { out << L'(' << point.x << L',' << point.y << L')'; }
void append(std::wostream& out, CWnd* wnd) { out << (wnd ? wnd->GetDlgCtrlID() : -1); }
void append(std::wostream& out, CMenu* menu) { out << (menu ? menu->GetMenuItemCount() : -1) << L" items"; }
void append(std::wostream& out, CDC* dc) { out << (dc ? dc->GetDeviceCaps(BITSPIXEL) > 0 : -1); }
void append(std::wostream& out, LPTSTR text) { out << text; }
void append(std::wostream& out, LPCTSTR text) { out << text; }
void append(std::wostream& out, RECT* rect) { out << rect->right; }
template <class T>
void append(std::wostream& out, T* pointer) {
    out << reinterpret_cast<ULONG_PTR>(pointer);
}
template <class T>
requires std::is_arithmetic_v<T>
void append(std::wostream& out, T number) { out << +number; }

/// Writes down who was called, and with what.
template <class... A>
void say(const wchar_t* name, A... arguments) {
    std::wostringstream out;
    out << name;
    ((out << L' ', append(out, arguments)), ...);
    said = out.str();
}

class Told : public CWnd {
public:
    BOOL CreateHidden() {
        return CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPED, CRect(0, 0, 200, 200), nullptr, 0);
    }

protected:
    afx_msg void OnAppCommand(CWnd* w, UINT a, UINT b, UINT c) { say(L"AppCommand", w, a, b, c); }
    afx_msg void OnAskCbFormatName(UINT n, LPTSTR text) { say(L"AskCbFormatName", n, text); }
    afx_msg void OnChangeCbChain(HWND a, HWND b) { say(L"ChangeCbChain", a, b); }
    afx_msg void OnChangeUIState(UINT a, UINT b) { say(L"ChangeUIState", a, b); }
    afx_msg void OnClipboardUpdate() { say(L"ClipboardUpdate"); }
    afx_msg void OnCompacting(UINT a) { say(L"Compacting", a); }
    afx_msg void OnDestroyClipboard() { say(L"DestroyClipboard"); }
    afx_msg BOOL OnDeviceChange(UINT a, DWORD_PTR b) { return say(L"DeviceChange", a, b), 5; }
    afx_msg void OnDevModeChange(LPTSTR a) { say(L"DevModeChange", a); }
    afx_msg void OnDrawClipboard() { say(L"DrawClipboard"); }
    afx_msg void OnColorizationColorChanged(DWORD a, BOOL b) { say(L"Colorization", a, b); }
    afx_msg void OnCompositionChanged() { say(L"Composition"); }
    afx_msg void OnNcRenderingChanged(BOOL a) { say(L"NcRendering", a); }
    afx_msg void OnWindowMaximizedChanged(BOOL a) { say(L"Maximized", a); }
    afx_msg void OnEnterIdle(UINT a, CWnd* b) { say(L"EnterIdle", a, b); }
    afx_msg void OnEnterMenuLoop(BOOL a) { say(L"EnterMenuLoop", a); }
    afx_msg void OnExitMenuLoop(BOOL a) { say(L"ExitMenuLoop", a); }
    afx_msg void OnFontChange() { say(L"FontChange"); }
    afx_msg void OnHotKey(UINT a, UINT b, UINT c) { say(L"HotKey", a, b, c); }
    afx_msg void OnHScrollClipboard(CWnd* a, UINT b, UINT c) { say(L"HScrollClipboard", a, b, c); }
    afx_msg void OnIconEraseBkgnd(CDC* a) { say(L"IconEraseBkgnd", a); }
    afx_msg void OnRawInput(UINT a, HRAWINPUT b) { say(L"RawInput", a, b); }
    afx_msg void OnInputDeviceChange(unsigned short a) { say(L"InputDeviceChange", a); }
    afx_msg void OnInputLangChange(UINT a, UINT b) { say(L"InputLangChange", a, b); }
    afx_msg void OnInputLangChangeRequest(UINT a, UINT b) { say(L"InputLangChangeRequest", a, b); }
    afx_msg void OnMDIActivate(BOOL a, CWnd* b, CWnd* c) { say(L"MDIActivate", a, b, c); }
    afx_msg UINT OnMenuDrag(UINT a, CMenu* b) { return say(L"MenuDrag", a, b), 6; }
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO* a) { return say(L"MenuGetObject", a), 7; }
    afx_msg void OnMenuRButtonUp(UINT a, CMenu* b) { say(L"MenuRButtonUp", a, b); }
    afx_msg void OnMouseHover(UINT a, CPoint b) { say(L"MouseHover", a, b); }
    afx_msg void OnMouseHWheel(UINT a, short b, CPoint c) { say(L"MouseHWheel", a, b, c); }
    afx_msg void OnMoving(UINT a, LPRECT b) { say(L"Moving", a, b); }
    afx_msg void OnNcMButtonDblClk(UINT a, CPoint b) { say(L"NcMButtonDblClk", a, b); }
    afx_msg void OnNcMButtonDown(UINT a, CPoint b) { say(L"NcMButtonDown", a, b); }
    afx_msg void OnNcMButtonUp(UINT a, CPoint b) { say(L"NcMButtonUp", a, b); }
    afx_msg void OnNcMouseHover(UINT a, CPoint b) { say(L"NcMouseHover", a, b); }
    afx_msg void OnNcMouseLeave() { say(L"NcMouseLeave"); }
    afx_msg void OnNcRButtonDblClk(UINT a, CPoint b) { say(L"NcRButtonDblClk", a, b); }
    afx_msg void OnNcXButtonDblClk(short a, UINT b, CPoint c) { say(L"NcXButtonDblClk", a, b, c); }
    afx_msg void OnNcXButtonDown(short a, UINT b, CPoint c) { say(L"NcXButtonDown", a, b, c); }
    afx_msg void OnNcXButtonUp(short a, UINT b, CPoint c) { say(L"NcXButtonUp", a, b, c); }
    afx_msg void OnNextMenu(UINT a, LPMDINEXTMENU b) { say(L"NextMenu", a, b); }
    afx_msg UINT OnNotifyFormat(CWnd* a, UINT b) { return say(L"NotifyFormat", a, b), NFR_UNICODE; }
    afx_msg void OnPaintClipboard(CWnd* a, HGLOBAL b) { say(L"PaintClipboard", a, b); }
    afx_msg void OnPaletteChanged(CWnd* a) { say(L"PaletteChanged", a); }
    afx_msg void OnPaletteIsChanging(CWnd* a) { say(L"PaletteIsChanging", a); }
    afx_msg UINT OnPowerBroadcast(UINT a, LPARAM b) { return say(L"PowerBroadcast", a, b), 8; }
    afx_msg BOOL OnQueryNewPalette() { return say(L"QueryNewPalette"), 9; }
    afx_msg UINT OnQueryUIState() { return say(L"QueryUIState"), 10; }
    afx_msg void OnRenderAllFormats() { say(L"RenderAllFormats"); }
    afx_msg void OnRenderFormat(UINT a) { say(L"RenderFormat", a); }
    afx_msg void OnSizeClipboard(CWnd* a, HGLOBAL b) { say(L"SizeClipboard", a, b); }
    afx_msg void OnSizing(UINT a, LPRECT b) { say(L"Sizing", a, b); }
    afx_msg void OnSpoolerStatus(UINT a, UINT b) { say(L"SpoolerStatus", a, b); }
    afx_msg void OnSysDeadChar(UINT a, UINT b, UINT c) { say(L"SysDeadChar", a, b, c); }
    afx_msg void OnTCard(UINT a, DWORD b) { say(L"TCard", a, b); }
    afx_msg void OnTimeChange() { say(L"TimeChange"); }
    afx_msg void OnUniChar(UINT a, UINT b, UINT c) { say(L"UniChar", a, b, c); }
    afx_msg void OnUnInitMenuPopup(CMenu* a, UINT b) { say(L"UnInitMenuPopup", a, b); }
    afx_msg void OnUpdateUIState(UINT a, UINT b) { say(L"UpdateUIState", a, b); }
    afx_msg void OnUserChanged() { say(L"UserChanged"); }
    afx_msg void OnVScrollClipboard(CWnd* a, UINT b, UINT c) { say(L"VScrollClipboard", a, b, c); }
    afx_msg void OnWinIniChange(LPCTSTR a) { say(L"WinIniChange", a); }
    afx_msg void OnSessionChange(UINT a, UINT b) { say(L"SessionChange", a, b); }
    afx_msg void OnXButtonDblClk(UINT a, UINT b, CPoint c) { say(L"XButtonDblClk", a, b, c); }
    afx_msg void OnXButtonDown(UINT a, UINT b, CPoint c) { say(L"XButtonDown", a, b, c); }
    afx_msg void OnXButtonUp(UINT a, UINT b, CPoint c) { say(L"XButtonUp", a, b, c); }
    afx_msg int CharToItem(UINT a, UINT b) { return say(L"CharToItem", a, b), 11; }
    afx_msg int VKeyToItem(UINT a, UINT b) { return say(L"VKeyToItem", a, b), 12; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Told, CWnd)
    ON_WM_APPCOMMAND()
    ON_WM_ASKCBFORMATNAME()
    ON_WM_CHANGECBCHAIN()
    ON_WM_CHANGEUISTATE()
    ON_WM_CLIPBOARDUPDATE()
    ON_WM_COMPACTING()
    ON_WM_DESTROYCLIPBOARD()
    ON_WM_DEVICECHANGE()
    ON_WM_DEVMODECHANGE()
    ON_WM_DRAWCLIPBOARD()
    ON_WM_DWMCOLORIZATIONCOLORCHANGED()
    ON_WM_DWMCOMPOSITIONCHANGED()
    ON_WM_DWMNCRENDERINGCHANGED()
    ON_WM_DWMWINDOWMAXIMIZEDCHANGE()
    ON_WM_ENTERIDLE()
    ON_WM_ENTERMENULOOP()
    ON_WM_EXITMENULOOP()
    ON_WM_FONTCHANGE()
    ON_WM_HOTKEY()
    ON_WM_HSCROLLCLIPBOARD()
    ON_WM_ICONERASEBKGND()
    ON_WM_INPUT()
    ON_WM_INPUT_DEVICE_CHANGE()
    ON_WM_INPUTLANGCHANGE()
    ON_WM_INPUTLANGCHANGEREQUEST()
    ON_WM_MDIACTIVATE()
    ON_WM_MENUDRAG()
    ON_WM_MENUGETOBJECT()
    ON_WM_MENURBUTTONUP()
    ON_WM_MOUSEHOVER()
    ON_WM_MOUSEHWHEEL()
    ON_WM_MOVING()
    ON_WM_NCMBUTTONDBLCLK()
    ON_WM_NCMBUTTONDOWN()
    ON_WM_NCMBUTTONUP()
    ON_WM_NCMOUSEHOVER()
    ON_WM_NCMOUSELEAVE()
    ON_WM_NCRBUTTONDBLCLK()
    ON_WM_NCXBUTTONDBLCLK()
    ON_WM_NCXBUTTONDOWN()
    ON_WM_NCXBUTTONUP()
    ON_WM_NEXTMENU()
    ON_WM_NOTIFYFORMAT()
    ON_WM_PAINTCLIPBOARD()
    ON_WM_PALETTECHANGED()
    ON_WM_PALETTEISCHANGING()
    ON_WM_POWERBROADCAST()
    ON_WM_QUERYNEWPALETTE()
    ON_WM_QUERYUISTATE()
    ON_WM_RENDERALLFORMATS()
    ON_WM_RENDERFORMAT()
    ON_WM_SIZECLIPBOARD()
    ON_WM_SIZING()
    ON_WM_SPOOLERSTATUS()
    ON_WM_SYSDEADCHAR()
    ON_WM_TCARD()
    ON_WM_TIMECHANGE()
    ON_WM_UNICHAR()
    ON_WM_UNINITMENUPOPUP()
    ON_WM_UPDATEUISTATE()
    ON_WM_USERCHANGED()
    ON_WM_VSCROLLCLIPBOARD()
    ON_WM_WININICHANGE()
    ON_WM_WTSSESSION_CHANGE()
    ON_WM_XBUTTONDBLCLK()
    ON_WM_XBUTTONDOWN()
    ON_WM_XBUTTONUP()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
END_MESSAGE_MAP()

struct MessageArguments : ::testing::Test {
    MessageArguments() {
        window.CreateHidden();
        child.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 10, 10), &window, 77);
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, 1, L"one");
        menu.AppendMenu(MF_STRING, 2, L"two");
    }
    /// What the handler of a message says, and what the message answers.
    std::wstring told(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        said.clear();
        answer = window.SendMessage(message, wParam, lParam);
        return said;
    }
    WPARAM w_child() { return reinterpret_cast<WPARAM>(child.m_hWnd); }
    LPARAM l_child() { return reinterpret_cast<LPARAM>(child.m_hWnd); }
    LPARAM l_menu() { return reinterpret_cast<LPARAM>(menu.m_hMenu); }

    Told window;
    CWnd child;
    CMenu menu;
    LRESULT answer = 0;
};

constexpr LPARAM kPlace = MAKELPARAM(30, static_cast<WORD>(-40));

}  // namespace

TEST_F(MessageArguments, OfTheMouse) {
    EXPECT_EQ(told(WM_MOUSEHOVER, MK_SHIFT, kPlace), L"MouseHover 4 (30,-40)");
    EXPECT_EQ(told(WM_MOUSEHWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), kPlace),
              L"MouseHWheel 8 -120 (30,-40)");
    EXPECT_EQ(told(WM_NCMBUTTONDOWN, HTCAPTION, kPlace), L"NcMButtonDown 2 (30,-40)");
    EXPECT_EQ(told(WM_NCMBUTTONUP, HTCAPTION, kPlace), L"NcMButtonUp 2 (30,-40)");
    EXPECT_EQ(told(WM_NCMBUTTONDBLCLK, HTCAPTION, kPlace), L"NcMButtonDblClk 2 (30,-40)");
    EXPECT_EQ(told(WM_NCRBUTTONDBLCLK, HTCAPTION, kPlace), L"NcRButtonDblClk 2 (30,-40)");
    EXPECT_EQ(told(WM_NCMOUSEHOVER, HTMENU, kPlace), L"NcMouseHover 5 (30,-40)");
    EXPECT_EQ(told(WM_NCMOUSELEAVE), L"NcMouseLeave");
}

TEST_F(MessageArguments, OfTheSideButtonsWhichAnswerTrue) {
    EXPECT_EQ(told(WM_XBUTTONDOWN, MAKEWPARAM(MK_XBUTTON2, XBUTTON2), kPlace), L"XButtonDown 64 2 (30,-40)");
    EXPECT_EQ(answer, TRUE);
    EXPECT_EQ(told(WM_XBUTTONUP, MAKEWPARAM(0, XBUTTON1), kPlace), L"XButtonUp 0 1 (30,-40)");
    EXPECT_EQ(answer, TRUE);
    EXPECT_EQ(told(WM_XBUTTONDBLCLK, MAKEWPARAM(0, XBUTTON1), kPlace), L"XButtonDblClk 0 1 (30,-40)");
    EXPECT_EQ(answer, TRUE);
    EXPECT_EQ(told(WM_NCXBUTTONDOWN, MAKEWPARAM(HTCAPTION, XBUTTON2), kPlace), L"NcXButtonDown 2 2 (30,-40)");
    EXPECT_EQ(answer, TRUE);
    EXPECT_EQ(told(WM_NCXBUTTONUP, MAKEWPARAM(HTMENU, XBUTTON1), kPlace), L"NcXButtonUp 1 5 (30,-40)");
    EXPECT_EQ(told(WM_NCXBUTTONDBLCLK, MAKEWPARAM(HTMENU, XBUTTON1), kPlace),
              L"NcXButtonDblClk 1 5 (30,-40)");
}

TEST_F(MessageArguments, OfTheKeyboard) {
    EXPECT_EQ(told(WM_SYSDEADCHAR, 65, MAKELPARAM(3, 9)), L"SysDeadChar 65 3 9");
    EXPECT_EQ(told(WM_UNICHAR, 0x1F600, MAKELPARAM(1, 2)), L"UniChar 128512 1 2");
    EXPECT_EQ(told(WM_HOTKEY, 12, MAKELPARAM(MOD_ALT, VK_F4)), L"HotKey 12 1 115");
    EXPECT_EQ(told(WM_APPCOMMAND, w_child(), MAKELPARAM(MK_CONTROL, APPCOMMAND_COPY | FAPPCOMMAND_MOUSE)),
              L"AppCommand 77 36 32768 8");
    EXPECT_EQ(answer, TRUE);
    EXPECT_EQ(told(WM_INPUTLANGCHANGE, 134, 0x0804), L"InputLangChange 134 2052");
    EXPECT_EQ(told(WM_INPUTLANGCHANGEREQUEST, 1, 0x0409), L"InputLangChangeRequest 1 1033");
    EXPECT_EQ(told(WM_INPUT, 1, 0x5678), L"RawInput 1 22136");
    EXPECT_EQ(told(WM_INPUT_DEVICE_CHANGE, 0x10002), L"InputDeviceChange 2");
}

TEST_F(MessageArguments, OfMenus) {
    EXPECT_EQ(told(WM_MENUDRAG, 3, l_menu()), L"MenuDrag 3 2 items");
    EXPECT_EQ(answer, 6);
    MENUGETOBJECTINFO info = {};
    EXPECT_EQ(told(WM_MENUGETOBJECT, 0, reinterpret_cast<LPARAM>(&info)),
              L"MenuGetObject " + std::to_wstring(reinterpret_cast<ULONG_PTR>(&info)));
    EXPECT_EQ(answer, 7);
    EXPECT_EQ(told(WM_MENURBUTTONUP, 4, l_menu()), L"MenuRButtonUp 4 2 items");
    MDINEXTMENU next = {};
    EXPECT_EQ(told(WM_NEXTMENU, VK_LEFT, reinterpret_cast<LPARAM>(&next)),
              L"NextMenu 37 " + std::to_wstring(reinterpret_cast<ULONG_PTR>(&next)));
    EXPECT_EQ(told(WM_UNINITMENUPOPUP, static_cast<WPARAM>(l_menu()), MAKELPARAM(1, MF_SYSMENU)),
              L"UnInitMenuPopup 2 items 8192");
    EXPECT_EQ(told(WM_ENTERMENULOOP, TRUE), L"EnterMenuLoop 1");
    EXPECT_EQ(told(WM_EXITMENULOOP, FALSE), L"ExitMenuLoop 0");
    EXPECT_EQ(told(WM_ENTERIDLE, MSGF_MENU, l_child()), L"EnterIdle 2 77");
}

TEST_F(MessageArguments, OfTheClipboard) {
    wchar_t name[] = L"a format";
    EXPECT_EQ(told(WM_ASKCBFORMATNAME, 20, reinterpret_cast<LPARAM>(name)), L"AskCbFormatName 20 a format");
    EXPECT_EQ(told(WM_CHANGECBCHAIN, 3, 4), L"ChangeCbChain 3 4");
    EXPECT_EQ(told(WM_CLIPBOARDUPDATE), L"ClipboardUpdate");
    EXPECT_EQ(told(WM_DESTROYCLIPBOARD), L"DestroyClipboard");
    EXPECT_EQ(told(WM_DRAWCLIPBOARD), L"DrawClipboard");
    EXPECT_EQ(told(WM_HSCROLLCLIPBOARD, w_child(), MAKELPARAM(5, 6)), L"HScrollClipboard 77 5 6");
    EXPECT_EQ(told(WM_VSCROLLCLIPBOARD, w_child(), MAKELPARAM(7, 8)), L"VScrollClipboard 77 7 8");
    EXPECT_EQ(told(WM_PAINTCLIPBOARD, w_child(), 9), L"PaintClipboard 77 9");
    EXPECT_EQ(told(WM_SIZECLIPBOARD, w_child(), 10), L"SizeClipboard 77 10");
    EXPECT_EQ(told(WM_RENDERALLFORMATS), L"RenderAllFormats");
    EXPECT_EQ(told(WM_RENDERFORMAT, CF_DIB), L"RenderFormat 8");
}

TEST_F(MessageArguments, OfSettingsDevicesAndTheSession) {
    wchar_t printer[] = L"plotter";
    EXPECT_EQ(told(WM_DEVMODECHANGE, 0, reinterpret_cast<LPARAM>(printer)), L"DevModeChange plotter");
    EXPECT_EQ(told(WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(L"intl")), L"WinIniChange intl");
    EXPECT_EQ(told(WM_DEVICECHANGE, DBT_DEVNODES_CHANGED, 33), L"DeviceChange 7 33");
    EXPECT_EQ(answer, 5);
    EXPECT_EQ(told(WM_POWERBROADCAST, PBT_APMSUSPEND, -3), L"PowerBroadcast 4 -3");
    EXPECT_EQ(answer, 8);
    EXPECT_EQ(told(WM_WTSSESSION_CHANGE, 7, 2), L"SessionChange 7 2");
    EXPECT_EQ(told(WM_SPOOLERSTATUS, 1, MAKELPARAM(17, 5)), L"SpoolerStatus 1 17");
    EXPECT_EQ(told(WM_TCARD, 4, 0x80000001), L"TCard 4 2147483649");
    EXPECT_EQ(told(WM_FONTCHANGE), L"FontChange");
    EXPECT_EQ(told(WM_TIMECHANGE), L"TimeChange");
    EXPECT_EQ(told(WM_USERCHANGED), L"UserChanged");
    EXPECT_EQ(told(WM_COMPACTING, 99), L"Compacting 99");
}

TEST_F(MessageArguments, OfPaintingAndTheDesktop) {
    CClientDC dc(&window);
    EXPECT_EQ(told(WM_ICONERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)), L"IconEraseBkgnd 1");
    EXPECT_EQ(told(WM_PALETTECHANGED, w_child()), L"PaletteChanged 77");
    EXPECT_EQ(told(WM_PALETTEISCHANGING, w_child()), L"PaletteIsChanging 77");
    EXPECT_EQ(told(WM_QUERYNEWPALETTE), L"QueryNewPalette");
    EXPECT_EQ(answer, 9);
    EXPECT_EQ(told(WM_DWMCOLORIZATIONCOLORCHANGED, 0xFF102030, 2), L"Colorization 4279246896 1");
    EXPECT_EQ(told(WM_DWMCOMPOSITIONCHANGED), L"Composition");
    EXPECT_EQ(told(WM_DWMNCRENDERINGCHANGED, 2), L"NcRendering 1");
    EXPECT_EQ(told(WM_DWMWINDOWMAXIMIZEDCHANGE, 0), L"Maximized 0");
}

TEST_F(MessageArguments, OfWindows) {
    CRect rect(1, 2, 3, 4);
    EXPECT_EQ(told(WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&rect)), L"Sizing 2 3");
    EXPECT_EQ(answer, TRUE) << "the rectangle counts";
    EXPECT_EQ(told(WM_MOVING, WMSZ_TOP, reinterpret_cast<LPARAM>(&rect)), L"Moving 3 3");
    EXPECT_EQ(answer, TRUE);
    EXPECT_EQ(told(WM_MDIACTIVATE, w_child(), reinterpret_cast<LPARAM>(window.m_hWnd)), L"MDIActivate 1 0 77")
        << "the one that gains comes first";
    EXPECT_EQ(told(WM_MDIACTIVATE, reinterpret_cast<WPARAM>(window.m_hWnd), l_child()),
              L"MDIActivate 0 77 0");
    EXPECT_EQ(told(WM_NOTIFYFORMAT, w_child(), NF_QUERY), L"NotifyFormat 77 3");
    EXPECT_EQ(answer, NFR_UNICODE);
    EXPECT_EQ(told(WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS)), L"ChangeUIState 2 1");
    EXPECT_EQ(told(WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEACCEL)), L"UpdateUIState 1 2");
    EXPECT_EQ(told(WM_QUERYUISTATE), L"QueryUIState");
    EXPECT_EQ(answer, 10);
}

TEST_F(MessageArguments, OfAListThatIsAskedItself) {
    EXPECT_EQ(told(WM_REFLECT_BASE + WM_CHARTOITEM, MAKEWPARAM(L'k', 3)), L"CharToItem 107 3");
    EXPECT_EQ(answer, 11);
    EXPECT_EQ(told(WM_REFLECT_BASE + WM_VKEYTOITEM, MAKEWPARAM(VK_DOWN, 4)), L"VKeyToItem 40 4");
    EXPECT_EQ(answer, 12);
}
