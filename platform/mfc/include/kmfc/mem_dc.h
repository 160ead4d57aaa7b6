// CMemDC: drawing off screen, shown at once.
#pragma once

#include <kmfc/dc.h>

class CWnd;

/// Drawing on GetDC() goes to a bitmap that is copied to the target when the object goes. When no bitmap can
/// be had, it goes to the target directly.
class KMFC_API CMemDC {
public:
    /// Covers the window's client area, or rather the part of it that is clipped to.
    CMemDC(CDC& dc, CWnd* pWnd);
    /// Covers the rectangle, in the target's logical coordinates.
    CMemDC(CDC& dc, const CRect& rect);
    virtual ~CMemDC();
    CMemDC(const CMemDC&) = delete;
    CMemDC& operator=(const CMemDC&) = delete;

    /// Where to draw.
    CDC& GetDC() { return m_bMemDC ? m_dcMem : m_dc; }
    BOOL IsMemDC() const { return m_bMemDC; }

protected:
    void create();

    CDC& m_dc;              ///< the target
    BOOL m_bMemDC = FALSE;  ///< whether the bitmap is in use
    CDC m_dcMem;
    CBitmap m_bmp;
    HGDIOBJ m_hOldBmp = nullptr;  ///< what m_dcMem had selected
    CRect m_rect;
};
