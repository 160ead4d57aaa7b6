#include <ktui/docking/xt_mem_dc.h>

CXTMemDC::CXTMemDC(CDC* target, const CRect& rect, COLORREF color) { Create(target, rect, color); }

CXTMemDC::~CXTMemDC() { Release(); }

int CXTMemDC::Create(CDC* target, const CRect& rect, COLORREF color) {
    Release();
    m_target = target;
    m_rect = rect;
    if (m_rect.IsRectEmpty()) target->GetClipBox(&m_rect);
    if (!CreateCompatibleDC(target)) return 0;
    SetMapMode(target->GetMapMode());
    if (!m_bitmap.CreateCompatibleBitmap(target, m_rect.Width(), m_rect.Height())) {
        Release();
        return 0;
    }
    m_oldBitmap = SelectObject(&m_bitmap);
    m_valid = true;
    // Kept: fills at the rectangle's own offset, so a rectangle off the origin leaves a part of the picture
    // bare.
    if (color != kNoColor) FillSolidRect(&m_rect, color);
    return 1;
}

void CXTMemDC::Release() {
    if (m_oldBitmap != nullptr) SelectObject(m_oldBitmap);
    m_oldBitmap = nullptr;
    m_bitmap.DeleteObject();
    if (m_hDC != nullptr) DeleteDC();
    m_target = nullptr;
    m_valid = false;
}

BOOL CXTMemDC::TextOut(int x, int y, LPCTSTR text, int count) { return ::TextOutW(m_hDC, x, y, text, count); }

BOOL CXTMemDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count, LPINT widths) {
    return ::ExtTextOutW(m_hDC, x, y, options, rect, text, count, widths);
}

CSize CXTMemDC::TabbedTextOut(int x, int y, LPCTSTR text, int count, int positions, LPINT stops, int origin) {
    return CSize(static_cast<DWORD>(::TabbedTextOutW(m_hDC, x, y, text, count, positions, stops, origin)));
}

int CXTMemDC::DrawText(LPCTSTR text, int count, LPRECT rect, UINT format) {
    return ::DrawTextW(m_hDC, text, count, rect, format);
}

int CXTMemDC::DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format, LPDRAWTEXTPARAMS params) {
    return ::DrawTextExW(m_hDC, text, count, rect, format, params);
}

BOOL CXTMemDC::PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }

BOOL CXTMemDC::RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }

BOOL CXTMemDC::GrayString(CBrush* brush, GRAYSTRINGPROC output, LPARAM data, int count, int x, int y,
                          int width, int height) {
    const HBRUSH handle = brush != nullptr ? static_cast<HBRUSH>(*brush) : nullptr;
    return ::GrayStringW(m_hDC, handle, output, data, count, x, y, width, height);
}

int CXTMemDC::Escape(int escape, int count, LPCSTR input, LPVOID output) {
    return ::Escape(m_hDC, escape, count, input, output);
}
