// Device contexts of windows, given back when the object goes.
#pragma once

#include <kmfc/dc.h>

class CWnd;

/// The client area of a window (the screen for a null one) while the object lives. Throws CResourceException
/// when there is no device context to be had.
class KMFC_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

/// The whole area of a window, frame included, while the object lives. Throws CResourceException.
class KMFC_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

/// BeginPaint and EndPaint of a window, for WM_PAINT only. Throws CResourceException.
class KMFC_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;  ///< what BeginPaint filled in

protected:
    HWND m_hWnd;
};
