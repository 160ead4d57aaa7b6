// CHotKeyCtrl: a box that takes a combination of keys.
#pragma once

#include <kmfc/wnd.h>

/// A hot-key control. Modifiers are HOTKEYF_ flags, what is not allowed HKCOMB_ flags.
class KMFC_API CHotKeyCtrl : public CWnd {
    DECLARE_DYNAMIC(CHotKeyCtrl)
public:
    CHotKeyCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetHotKey(WORD wVirtualKeyCode, WORD wModifiers) {
        SendMessage(HKM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers));
    }
    /// The key in the low byte, the modifiers in the high byte.
    DWORD GetHotKey() const { return static_cast<DWORD>(SendMessage(HKM_GETHOTKEY)); }
    void GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const;
    /// Combinations that are replaced by the key with these modifiers.
    void SetRules(WORD wInvalidComb, WORD wModifiers) {
        SendMessage(HKM_SETRULES, wInvalidComb, MAKELPARAM(wModifiers, 0));
    }
    /// The hot key in words, as the system names keys.
    CString GetHotKeyName() const;
    /// What the system calls a key; empty for none.
    static CString GetKeyName(UINT vk, BOOL fExtended);
};
