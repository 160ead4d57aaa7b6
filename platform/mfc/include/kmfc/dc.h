// CDC: a device context.
#pragma once

#include <kmfc/gdi_objects.h>

/// A device context. The destructor deletes one that was created or attached; FromHandle makes a temporary
/// object that lasts until the thread is idle and deletes nothing. Output goes to m_hDC, questions go to
/// m_hAttribDC; the two are the same unless a program parts them. Coordinates are logical unless said
/// otherwise. The functions do what the system functions of the same names do, with the same results.
class KMFC_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)
public:
    CDC() = default;
    ~CDC() override;

    HDC m_hDC = nullptr;        ///< where output goes
    HDC m_hAttribDC = nullptr;  ///< where attributes are read

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const;
    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HDC hDC);
    HDC Detach();
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC();
    CWnd* GetWindow() const;
    BOOL IsPrinting() const { return m_bPrinting; }
    CBitmap* GetCurrentBitmap() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CPalette* GetCurrentPalette() const;
    CPen* GetCurrentPen() const;

    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

    // Selection. Each answers the object selected before, which may be a temporary one, or null on failure.
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    /// Answers the kind of region, not an object.
    int SelectObject(CRgn* pRgn);
    CGdiObject* SelectObject(CGdiObject* pObject);
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }

    // Attributes.
    COLORREF GetNearestColor(COLORREF crColor) const { return ::GetNearestColor(m_hAttribDC, crColor); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    int GetGraphicsMode() const { return ::GetGraphicsMode(m_hAttribDC); }
    COLORREF GetDCBrushColor() const { return ::GetDCBrushColor(m_hAttribDC); }
    COLORREF GetDCPenColor() const { return ::GetDCPenColor(m_hAttribDC); }
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    DWORD SetLayout(DWORD dwLayout) { return ::SetLayout(m_hDC, dwLayout); }
    COLORREF SetDCBrushColor(COLORREF crColor) { return ::SetDCBrushColor(m_hDC, crColor); }
    COLORREF SetDCPenColor(COLORREF crColor) { return ::SetDCPenColor(m_hDC, crColor); }
    virtual COLORREF SetBkColor(COLORREF crColor);
    int SetBkMode(int nBkMode);
    virtual COLORREF SetTextColor(COLORREF crColor);
    int SetROP2(int nDrawMode);
    int SetPolyFillMode(int nPolyFillMode);
    int SetStretchBltMode(int nStretchMode);
    UINT SetTextAlign(UINT nFlags);
    int SetGraphicsMode(int iMode);
    BOOL GetWorldTransform(XFORM& rXform) const { return ::GetWorldTransform(m_hAttribDC, &rXform); }
    BOOL SetWorldTransform(const XFORM& rXform);
    BOOL ModifyWorldTransform(const XFORM& rXform, DWORD iMode);
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }

    // Mapping between logical and device coordinates.
    virtual int SetMapMode(int nMapMode);
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { DPtoLP(reinterpret_cast<LPPOINT>(lpRect), 2); }
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { LPtoDP(reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPSIZE lpSize) const;
    /// To and from hundredths of a millimetre, at the device's logical resolution.
    void DPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoDP(LPSIZE lpSize) const;

    // Clipping. Results are kinds of regions.
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hAttribDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hAttribDC, lpRect); }
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT r) { return ExcludeClipRect(r->left, r->top, r->right, r->bottom); }
    int ExcludeUpdateRgn(CWnd* pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT r) { return IntersectClipRect(r->left, r->top, r->right, r->bottom); }
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size) { return OffsetClipRgn(size.cx, size.cy); }

    // Lines.
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Arc(LPCRECT r, POINT a, POINT b) {
        return Arc(r->left, r->top, r->right, r->bottom, a.x, a.y, b.x, b.y);
    }
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle);
    int GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
    int SetArcDirection(int nArcDirection);
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolylineTo(const POINT* lpPoints, int nCount);
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount) {
        return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount);
    BOOL PolyBezier(const POINT* lpPoints, int nCount) {
        return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount);

    // Filled figures.
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    /// Fills with a colour by way of the background colour, which is restored.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    /// A frame of one pixel: left and top edge in one colour, right and bottom edge in the other.
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
        return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
    }
    BOOL RoundRect(LPCRECT r, POINT p) { return RoundRect(r->left, r->top, r->right, r->bottom, p.x, p.y); }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT r) { return Ellipse(r->left, r->top, r->right, r->bottom); }
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount) {
        return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
    }
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight);
    BOOL InvertRgn(CRgn* pRgn);
    BOOL PaintRgn(CRgn* pRgn);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush = nullptr,
                      CBrush* pBrushLast = nullptr);
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                   CBrush* pBrush);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   HBRUSH hBrush = nullptr);

    // Bitmaps.
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                 int xMask, int yMask, DWORD dwRop);
    BOOL PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                CBitmap& maskBitmap, int xMask, int yMask);
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode) {
        return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
    }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType) {
        return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
    }
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                  LPRECT lpRectUpdate);

    // Text. A count of -1 stands for the whole of a zero-terminated text.
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths) {
        return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
    }
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(const CString& str) const { return GetOutputTextExtent(str, str.GetLength()); }
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    BOOL GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                               LPSIZE lpSize) const {
        return ::GetTextExtentExPointI(m_hAttribDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
    }
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    int GetTextFace(CString& rString) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetricsW(m_hAttribDC, lpMetrics); }
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    int SetTextCharacterExtra(int nCharExtra);
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
        return ::GetCharWidth32W(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
    }
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const {
        return ::GetCharABCWidthsW(m_hAttribDC, nFirstChar, nLastChar, lpabc);
    }

    // Paths.
    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL AbortPath() { return ::AbortPath(m_hDC); }
    BOOL CloseFigure() { return ::CloseFigure(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }
    BOOL FlattenPath() { return ::FlattenPath(m_hDC); }
    BOOL WidenPath() { return ::WidenPath(m_hDC); }
    BOOL SelectClipPath(int nMode);
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const {
        return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
    }

    static CBrush* PASCAL GetHalftoneBrush();

    // Print jobs. Above 0 on success.
    int StartDoc(LPDOCINFO lpDocInfo) { return ::StartDocW(m_hDC, lpDocInfo); }
    int StartDoc(LPCTSTR lpszDocName);
    int StartPage() { return ::StartPage(m_hDC); }
    int EndPage() { return ::EndPage(m_hDC); }
    int EndDoc() { return ::EndDoc(m_hDC); }
    int AbortDoc() { return ::AbortDoc(m_hDC); }
    int SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int)) { return ::SetAbortProc(m_hDC, lpfn); }

protected:
    BOOL m_bPrinting = FALSE;  ///< set by whoever prints
    friend class CView;

private:
    template <class F>
    auto on_both(F function);
    void follow_position();
};
