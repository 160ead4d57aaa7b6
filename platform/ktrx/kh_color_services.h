// Colours of the application: the palette of indexed colours and the colour scheme of its windows.
#pragma once

#include <windows.h>

/// What a colour of a scheme is for. Values that are not listed belong to the host.
enum KhColorRole : int { kKhColorRoleTipText = 8, kKhColorRoleTipBorder = 9, kKhColorRoleTipBackground = 10 };

class CKhColorServices {
public:
    /// The colour shown for colour index `index`, red in the low byte. Any number may be asked for: an index
    /// outside 0 to 256 (a failed layer lookup asks for -1) answers some colour and never fails.
    virtual COLORREF colorOfIndex(int index) = 0;
    /// The colour scheme in force; `kind` 1 asks for that of dialogs and tips.
    virtual int currentColorScheme(int kind) = 0;
    /// Puts the colour that `scheme` has for `role` (KhColorRole) into `color`. False leaves `color` alone.
    virtual bool schemeColor(int scheme, int role, COLORREF& color, int flags) = 0;

protected:
    ~CKhColorServices() = default;
};
