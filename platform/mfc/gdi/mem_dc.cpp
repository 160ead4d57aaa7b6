#include <kmfc/mem_dc.h>
#include <kmfc/wnd.h>

CMemDC::CMemDC(CDC& dc, CWnd* pWnd) : m_dc(dc) {
    CRect client;
    pWnd->GetClientRect(&client);
    m_dc.GetClipBox(&m_rect);
    m_rect.IntersectRect(m_rect, client);
    create();
}

CMemDC::CMemDC(CDC& dc, const CRect& rect) : m_dc(dc), m_rect(rect) { create(); }

void CMemDC::create() {
    CRect pixels(m_rect);
    m_dc.LPtoDP(&pixels);
    pixels.NormalizeRect();
    if (pixels.IsRectEmpty() || !m_dcMem.CreateCompatibleDC(&m_dc) ||
        !m_bmp.CreateCompatibleBitmap(&m_dc, pixels.Width(), pixels.Height())) {
        return;
    }
    m_hOldBmp = ::SelectObject(m_dcMem, m_bmp);
    m_bMemDC = m_hOldBmp != nullptr;
    if (!m_bMemDC) return;
    m_dcMem.SetMapMode(m_dc.GetMapMode());
    m_dcMem.SetWindowExt(m_dc.GetWindowExt());
    m_dcMem.SetViewportExt(m_dc.GetViewportExt());
    // The bitmap's corner stands for the rectangle's, so that the caller draws at the same coordinates.
    m_dcMem.SetWindowOrg(m_rect.left, m_rect.top);
}

CMemDC::~CMemDC() {
    if (!m_bMemDC) return;
    m_dc.BitBlt(m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), &m_dcMem, m_rect.left, m_rect.top,
                SRCCOPY);
    ::SelectObject(m_dcMem, m_hOldBmp);
}
