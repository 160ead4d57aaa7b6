// The background of bars and palettes, which the host paints. Private to the library.
#pragma once

#include <afxwin.h>
#include <kh_system.h>

/// Has the host fill the client area of `window`.
inline void FillBarBackground(const CWnd& window, const CDC& dc) {
    CRect client;
    window.GetClientRect(&client);
    CKhSystem::instance()->paletteHost()->sizing()->fillBackground(dc.m_hDC, client);
}
