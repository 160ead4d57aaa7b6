#include <kmfc/dc.h>
#include <kmfc/wnd.h>

#include "gdi_maps.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

using kmfc::gdi_maps;

namespace {

HGDIOBJ handle_of(const CGdiObject* object) { return object ? object->m_hObject : nullptr; }

}  // namespace

/// Calls for both device contexts when they differ; the answer is the attribute one's.
template <class F>
auto CDC::on_both(F function) {
    decltype(function(m_hDC)) result{};
    if (m_hDC && m_hDC != m_hAttribDC) result = function(m_hDC);
    if (m_hAttribDC) result = function(m_hAttribDC);
    return result;
}

CDC::~CDC() {
    if (m_hDC) ::DeleteDC(Detach());
}

CDC* PASCAL CDC::FromHandle(HDC hDC) { return gdi_maps().dcs.FromHandle(hDC); }
void PASCAL CDC::DeleteTempMap() { gdi_maps().dcs.DeleteTemp(); }

BOOL CDC::Attach(HDC hDC) {
    if (!hDC) return FALSE;
    if (m_hDC != hDC) Detach();
    m_hDC = hDC;
    gdi_maps().dcs.SetPermanent(hDC, this);
    SetAttribDC(hDC);
    return TRUE;
}

int CDC::StartDoc(LPCTSTR lpszDocName) {
    DOCINFOW job = {};
    job.cbSize = sizeof job;
    job.lpszDocName = lpszDocName;
    return StartDoc(&job);
}

HDC CDC::Detach() {
    HDC dc = m_hDC;
    if (dc) gdi_maps().dcs.RemoveHandle(dc, this);
    CDC::ReleaseAttribDC();
    m_hDC = nullptr;
    return dc;
}

void CDC::SetOutputDC(HDC hDC) {
    if (m_hDC) gdi_maps().dcs.RemoveHandle(m_hDC, this);
    m_hDC = hDC;
    if (hDC) gdi_maps().dcs.SetPermanent(hDC, this);
}

void CDC::ReleaseOutputDC() { CDC::SetOutputDC(nullptr); }

CWnd* CDC::GetWindow() const { return CWnd::FromHandle(::WindowFromDC(m_hDC)); }
CBitmap* CDC::GetCurrentBitmap() const {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}
CBrush* CDC::GetCurrentBrush() const {
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}
CFont* CDC::GetCurrentFont() const {
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}
CPalette* CDC::GetCurrentPalette() const {
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}
CPen* CDC::GetCurrentPen() const {
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    return Attach(
        ::CreateDCW(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODEW*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    return Attach(
        ::CreateICW(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODEW*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) { return Attach(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr)); }
BOOL CDC::DeleteDC() { return m_hDC && ::DeleteDC(Detach()); }

int CDC::SaveDC() {
    int saved = 0;
    if (m_hAttribDC) saved = ::SaveDC(m_hAttribDC);
    if (m_hDC && m_hDC != m_hAttribDC && ::SaveDC(m_hDC))
        saved = -1;  // numbers may differ: restore the last one
    return saved;
}

BOOL CDC::RestoreDC(int nSavedDC) {
    if (m_hDC == m_hAttribDC) return ::RestoreDC(m_hDC, nSavedDC);
    BOOL restored = TRUE;
    if (m_hDC) restored = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC) restored = restored && ::RestoreDC(m_hAttribDC, nSavedDC);
    return restored;
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    HGDIOBJ object = ::GetStockObject(nIndex);
    return CGdiObject::FromHandle(on_both([=](HDC dc) { return ::SelectObject(dc, object); }));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    HGDIOBJ object = handle_of(pObject);
    if (!object) return nullptr;
    return CGdiObject::FromHandle(on_both([=](HDC dc) { return ::SelectObject(dc, object); }));
}

CPen* CDC::SelectObject(CPen* pPen) {
    return static_cast<CPen*>(SelectObject(static_cast<CGdiObject*>(pPen)));
}
CBrush* CDC::SelectObject(CBrush* pBrush) {
    return static_cast<CBrush*>(SelectObject(static_cast<CGdiObject*>(pBrush)));
}
CFont* CDC::SelectObject(CFont* pFont) {
    return static_cast<CFont*>(SelectObject(static_cast<CGdiObject*>(pFont)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    // A bitmap fits one device context only, so the attribute one keeps its own.
    HGDIOBJ bitmap = handle_of(pBitmap);
    return bitmap ? CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, bitmap))) : nullptr;
}

int CDC::SelectObject(CRgn* pRgn) { return SelectClipRgn(pRgn); }

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground) {
    auto* palette = static_cast<HPALETTE>(handle_of(pPalette));
    return CPalette::FromHandle(::SelectPalette(m_hDC, palette, bForceBackground));
}

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return on_both([=](HDC dc) { return ::SetBkColor(dc, crColor); });
}
int CDC::SetBkMode(int nBkMode) {
    return on_both([=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}
COLORREF CDC::SetTextColor(COLORREF crColor) {
    return on_both([=](HDC dc) { return ::SetTextColor(dc, crColor); });
}
int CDC::SetROP2(int nDrawMode) {
    return on_both([=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}
int CDC::SetPolyFillMode(int nPolyFillMode) {
    return on_both([=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}
int CDC::SetStretchBltMode(int nStretchMode) {
    return on_both([=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}
UINT CDC::SetTextAlign(UINT nFlags) {
    return on_both([=](HDC dc) { return ::SetTextAlign(dc, nFlags); });
}
int CDC::SetGraphicsMode(int iMode) {
    return on_both([=](HDC dc) { return ::SetGraphicsMode(dc, iMode); });
}
BOOL CDC::SetWorldTransform(const XFORM& rXform) {
    return on_both([&](HDC dc) { return ::SetWorldTransform(dc, &rXform); });
}
BOOL CDC::ModifyWorldTransform(const XFORM& rXform, DWORD iMode) {
    return on_both([&](HDC dc) { return ::ModifyWorldTransform(dc, &rXform, iMode); });
}

CPoint CDC::GetBrushOrg() const {
    CPoint origin;
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y) {
    CPoint previous;
    ::SetBrushOrgEx(m_hDC, x, y, &previous);
    return previous;
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount) {
    return on_both([=](HDC dc) { return ::SetTextJustification(dc, nBreakExtra, nBreakCount); });
}

int CDC::SetTextCharacterExtra(int nCharExtra) {
    return on_both([=](HDC dc) { return ::SetTextCharacterExtra(dc, nCharExtra); });
}

int CDC::SetArcDirection(int nArcDirection) {
    return on_both([=](HDC dc) { return ::SetArcDirection(dc, nArcDirection); });
}

int CDC::SetMapMode(int nMapMode) {
    return on_both([=](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

CPoint CDC::GetViewportOrg() const {
    CPoint point;
    ::GetViewportOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint previous;
    on_both([&](HDC dc) { return ::SetViewportOrgEx(dc, x, y, &previous); });
    return previous;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    CPoint previous;
    on_both([&](HDC dc) { return ::OffsetViewportOrgEx(dc, nWidth, nHeight, &previous); });
    return previous;
}

CSize CDC::GetViewportExt() const {
    CSize size;
    ::GetViewportExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    CSize previous;
    on_both([&](HDC dc) { return ::SetViewportExtEx(dc, cx, cy, &previous); });
    return previous;
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom) {
    CSize previous;
    on_both([&](HDC dc) { return ::ScaleViewportExtEx(dc, xNum, xDenom, yNum, yDenom, &previous); });
    return previous;
}

CPoint CDC::GetWindowOrg() const {
    CPoint point;
    ::GetWindowOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint previous;
    on_both([&](HDC dc) { return ::SetWindowOrgEx(dc, x, y, &previous); });
    return previous;
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight) {
    CPoint previous;
    on_both([&](HDC dc) { return ::OffsetWindowOrgEx(dc, nWidth, nHeight, &previous); });
    return previous;
}

CSize CDC::GetWindowExt() const {
    CSize size;
    ::GetWindowExtEx(m_hAttribDC, &size);
    return size;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    CSize previous;
    on_both([&](HDC dc) { return ::SetWindowExtEx(dc, cx, cy, &previous); });
    return previous;
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom) {
    CSize previous;
    on_both([&](HDC dc) { return ::ScaleWindowExtEx(dc, xNum, xDenom, yNum, yDenom, &previous); });
    return previous;
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    auto* region = static_cast<HRGN>(handle_of(pRgn));
    return on_both([=](HDC dc) { return ::SelectClipRgn(dc, region); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    auto* region = static_cast<HRGN>(handle_of(pRgn));
    return on_both([=](HDC dc) { return ::ExtSelectClipRgn(dc, region, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return on_both([=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd) { return ::ExcludeUpdateRgn(m_hDC, kmfc::safe_handle(pWnd)); }

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return on_both([=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::OffsetClipRgn(int x, int y) {
    return on_both([=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}

BOOL CDC::SelectClipPath(int nMode) {
    if (!::SelectClipPath(m_hDC, nMode)) return FALSE;
    if (m_hDC == m_hAttribDC || !m_hAttribDC) return TRUE;
    CRgn clip;
    if (!clip.CreateRectRgn(0, 0, 0, 0)) return FALSE;
    return ::GetClipRgn(m_hDC, clip) >= 0 && ::ExtSelectClipRgn(m_hAttribDC, clip, RGN_COPY) != ERROR;
}

CPoint CDC::GetCurrentPosition() const {
    CPoint point;
    ::GetCurrentPositionEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint previous;
    on_both([&](HDC dc) { return ::MoveToEx(dc, x, y, &previous); });
    return previous;
}

BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC && m_hAttribDC != m_hDC) ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    const BOOL drawn = ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    follow_position();
    return drawn;
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle) {
    const BOOL drawn = ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStartAngle, fSweepAngle);
    follow_position();
    return drawn;
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount) {
    const BOOL drawn = ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    follow_position();
    return drawn;
}

BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount) {
    const BOOL drawn = ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
    follow_position();
    return drawn;
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount) {
    const BOOL drawn = ::PolyBezierTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    follow_position();
    return drawn;
}

/// Moves the attribute device context to where drawing has left the output one.
void CDC::follow_position() {
    if (m_hDC == m_hAttribDC || !m_hAttribDC) return;
    POINT at;
    if (::GetCurrentPositionEx(m_hDC, &at)) ::MoveToEx(m_hAttribDC, at.x, at.y, nullptr);
}
