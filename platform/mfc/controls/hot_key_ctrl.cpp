#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)

BOOL CHotKeyCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(HOTKEY_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CHotKeyCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, HOTKEY_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CHotKeyCtrl::GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const {
    const DWORD key = GetHotKey();
    wVirtualKeyCode = LOBYTE(LOWORD(key));
    wModifiers = HIBYTE(LOWORD(key));
}

CString CHotKeyCtrl::GetKeyName(UINT vk, BOOL fExtended) {
    constexpr LONG kExtended = 0x01000000;
    LONG key = static_cast<LONG>(::MapVirtualKeyW(vk, MAPVK_VK_TO_VSC)) << 16;
    if (fExtended) key |= kExtended;
    CString name;
    constexpr int kMostName = 64;  // characters
    const int length = ::GetKeyNameTextW(key, name.GetBufferSetLength(kMostName), kMostName);
    name.ReleaseBufferSetLength(length);
    return name;
}

CString CHotKeyCtrl::GetHotKeyName() const {
    WORD key = 0, modifiers = 0;
    GetHotKey(key, modifiers);
    CString name;
    const auto add = [&name](const CString& part) {
        if (!name.IsEmpty()) name += L" + ";
        name += part;
    };
    if (modifiers & HOTKEYF_CONTROL) add(GetKeyName(VK_CONTROL, FALSE));
    if (modifiers & HOTKEYF_SHIFT) add(GetKeyName(VK_SHIFT, FALSE));
    if (modifiers & HOTKEYF_ALT) add(GetKeyName(VK_MENU, FALSE));
    if (key != 0) add(GetKeyName(key, (modifiers & HOTKEYF_EXT) != 0));
    return name;
}
