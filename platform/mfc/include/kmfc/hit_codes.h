// Hit codes of caption buttons: values of WM_NCHITTEST, which the system gives no meaning in a pane.
#pragma once

#include <kmfc/platform.h>

constexpr LRESULT AFX_HTMENU = HTMINBUTTON;       ///< opens the pane's menu
constexpr LRESULT AFX_HTMAXBUTTON = HTMAXBUTTON;  ///< the pin
constexpr LRESULT AFX_HTLEFTBUTTON = HTLEFT;      ///< scrolls left
constexpr LRESULT AFX_HTRIGHTBUTTON = HTRIGHT;    ///< scrolls right
constexpr LRESULT AFX_HTCLOSE = HTOBJECT;         ///< closes the pane
