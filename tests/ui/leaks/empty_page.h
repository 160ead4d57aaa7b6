// A property page without controls, made from a template in memory.
#pragma once

#include <afxdlgs.h>

#include "ui_test.h"

namespace leaks {

/// The bytes of the page's template.
inline const WORD* page_template() {
    constexpr DWORD kStyle = WS_CHILD | WS_CAPTION | WS_DISABLED;
    alignas(4) static const WORD words[] = {
        LOWORD(kStyle), HIWORD(kStyle), 0, 0, 0, 0, 0, 120, 60, 0, 0, L'p', 0};
    return words;
}

class EmptyPage : public CPropertyPage {
public:
    EmptyPage() {
        m_psp.dwFlags |= PSP_DLGINDIRECT;
        m_psp.pResource = reinterpret_cast<LPCDLGTEMPLATE>(page_template());
        m_psp.hInstance = AfxGetInstanceHandle();
    }
};

/// Makes a sheet of two such pages by the system alone, brings each to the front and destroys it. `flags`
/// are PSH_... beyond what makes it modeless.
inline void open_bare_sheet(HWND parent, DWORD flags) {
    PROPSHEETPAGE pages[2] = {};
    for (PROPSHEETPAGE& page : pages) {
        page.dwSize = sizeof page;
        page.dwFlags = PSP_DLGINDIRECT;
        page.pResource = reinterpret_cast<LPCDLGTEMPLATE>(page_template());
        page.pfnDlgProc = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; };
    }
    PROPSHEETHEADER header = {};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_PROPSHEETPAGE | PSH_MODELESS | flags;
    header.hwndParent = parent;
    header.pszCaption = L"bare";
    header.nPages = 2;
    header.ppsp = pages;
    const auto sheet = reinterpret_cast<HWND>(::PropertySheetW(&header));
    ASSERT_NE(sheet, nullptr);
    ::SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    ui_test::pump();
    ::DestroyWindow(sheet);
}

}  // namespace leaks
