// CPreviewView: pages as they are recorded, in rows of one or two.
#include <kmfc/preview_view.h>

#include <algorithm>

#include <kmfc/dialog_bar.h>

#include "../res/kmfc_ids.h"
#include "preview_layout.h"

using kmfc::PreviewZoom;

IMPLEMENT_DYNCREATE(CPreviewView, CView)

BEGIN_MESSAGE_MAP(CPreviewView, CView)
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_COMMAND(AFX_ID_PREVIEW_CLOSE, &CPreviewView::OnPreviewClose)
    ON_COMMAND(AFX_ID_PREVIEW_PRINT, &CPreviewView::OnPreviewPrint)
    ON_COMMAND(AFX_ID_PREVIEW_NEXT, &CPreviewView::OnNextPage)
    ON_COMMAND(AFX_ID_PREVIEW_PREV, &CPreviewView::OnPrevPage)
    ON_COMMAND(AFX_ID_PREVIEW_NUMPAGE, &CPreviewView::OnNumPageChange)
    ON_COMMAND(AFX_ID_PREVIEW_ZOOMIN, &CPreviewView::OnZoomIn)
    ON_COMMAND(AFX_ID_PREVIEW_ZOOMOUT, &CPreviewView::OnZoomOut)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_NEXT, &CPreviewView::OnUpdateNextPage)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_PREV, &CPreviewView::OnUpdatePrevPage)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_NUMPAGE, &CPreviewView::OnUpdateNumPageChange)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_ZOOMIN, &CPreviewView::OnUpdateZoomIn)
    ON_UPDATE_COMMAND_UI(AFX_ID_PREVIEW_ZOOMOUT, &CPreviewView::OnUpdateZoomOut)
END_MESSAGE_MAP()

namespace {

constexpr UINT kUnknown = 0xFFFF;  // pages of a document that hasn't told
constexpr int kMostZoom = 2;
constexpr int kLine = 30;   // pixels that an arrow scrolls
constexpr int kShadow = 3;  // pixels
constexpr COLORREF kPaper = RGB(255, 255, 255), kEdge = RGB(0, 0, 0);

}  // namespace

CPreviewView::CPreviewView() = default;
CPreviewView::~CPreviewView() {
    for (const auto& [page, picture] : m_recorded) ::DeleteEnhMetaFile(picture);
    m_printer.Detach();  // the job's
}

void CPreviewView::PostNcDestroy() { delete this; }

void CPreviewView::begin(CView& printed, std::unique_ptr<CPrintInfo> info,
                         std::unique_ptr<CPrintPreviewState> state, CDialogBar* bar) {
    m_printed = &printed;
    m_info = std::move(info);
    m_state = std::move(state);
    m_bar = bar;
    m_printer.Attach(m_info->m_pPD->m_pd.hDC);
    m_printed->OnBeginPrinting(&m_printer, m_info.get());
    m_lastPage = m_info->GetMaxPage();
    m_wanted = m_info->m_nNumPreviewPages == 2 ? 2 : 1;
    m_page = m_info->GetMinPage();
    SetCurrentPage(std::max(m_info->m_nCurPage, m_page));
}

void CPreviewView::OnDestroy() {
    // The frame goes without the preview's having been closed: what was begun for the job still ends.
    if (m_printed != nullptr && ::IsWindow(m_printed->m_hWnd))
        m_printed->OnEndPrinting(&m_printer, m_info.get());
    m_printed = nullptr;
    CView::OnDestroy();
}

// Pages.

HENHMETAFILE CPreviewView::recorded(UINT page) {
    const auto found = m_recorded.find(page);
    if (found != m_recorded.end()) return found->second;
    if (page > m_lastPage) return nullptr;
    const CRect frame(0, 0, m_printer.GetDeviceCaps(HORZSIZE) * 100, m_printer.GetDeviceCaps(VERTSIZE) * 100);
    PrintingDC dc;
    if (!dc.Attach(::CreateEnhMetaFileW(m_printer.m_hDC, nullptr, &frame, nullptr))) return nullptr;
    m_info->m_nCurPage = page;
    m_info->m_bContinuePrinting = TRUE;
    HENHMETAFILE picture = nullptr;
    try {
        m_printed->OnPrepareDC(&dc, m_info.get());
        if (m_info->m_bContinuePrinting) {
            m_info->m_rectDraw.SetRect(0, 0, m_printer.GetDeviceCaps(HORZRES),
                                       m_printer.GetDeviceCaps(VERTRES));
            dc.DPtoLP(&m_info->m_rectDraw);
            m_printed->OnPrint(&dc, m_info.get());
        }
        picture = ::CloseEnhMetaFile(dc.Detach());
    } catch (...) {
        ::DeleteEnhMetaFile(::CloseEnhMetaFile(dc.Detach()));
        throw;
    }
    if (!m_info->m_bContinuePrinting) {
        ::DeleteEnhMetaFile(picture);
        m_lastPage = page - 1;
        return nullptr;
    }
    return m_recorded[page] = picture;
}

bool CPreviewView::has_page(UINT page) { return page >= m_info->GetMinPage() && recorded(page) != nullptr; }

UINT CPreviewView::last_page() const { return m_lastPage; }

int CPreviewView::shown_count() const { return m_lastPage > m_info->GetMinPage() ? m_wanted : 1; }

void CPreviewView::SetCurrentPage(UINT nPage) {
    nPage = std::clamp(nPage, m_info->GetMinPage(), std::max(m_lastPage, m_info->GetMinPage()));
    // The document may end itself before it.
    while (nPage > m_info->GetMinPage() && !has_page(nPage)) --nPage;
    // Two pages that there are stand side by side.
    if (shown_count() == 2 && nPage > m_info->GetMinPage() && !has_page(nPage + 1)) --nPage;
    m_page = nPage;
    m_info->m_nCurPage = nPage;
    show_pages();
}

void CPreviewView::SetZoomState(int nZoom) {
    m_zoom = std::clamp(nZoom, 0, kMostZoom);
    m_scrolled = CPoint(0, 0);
    show_pages();
}

/// The window, its bars and the message bar after pages or sizes changed.
void CPreviewView::show_pages() {
    if (m_hWnd == nullptr) return;
    set_bars();
    Invalidate(FALSE);
    CString description, line;
    const bool two = shown_count() == 2 && has_page(m_page + 1);
    if (AfxExtractSubString(line, m_info->m_strPageDesc, two ? 1 : 0)) {
        if (two)
            description.Format(line, m_page, m_page + 1);
        else
            description.Format(line, m_page);
    }
    if (CFrameWnd* const frame = GetParentFrame()) frame->SetMessageText(description);
}

// Places.

kmfc::PreviewSheet CPreviewView::sheet() const {
    kmfc::PreviewSheet sheet;
    const CSize printable(m_printer.GetDeviceCaps(HORZRES), m_printer.GetDeviceCaps(VERTRES));
    sheet.paper = CSize(m_printer.GetDeviceCaps(PHYSICALWIDTH), m_printer.GetDeviceCaps(PHYSICALHEIGHT));
    const CPoint corner(m_printer.GetDeviceCaps(PHYSICALOFFSETX), m_printer.GetDeviceCaps(PHYSICALOFFSETY));
    // Devices without paper have no size of it.
    if (sheet.paper.cx < printable.cx || sheet.paper.cy < printable.cy) {
        sheet.paper = printable;
        sheet.printable = CRect(CPoint(0, 0), printable);
    } else {
        sheet.printable = CRect(corner, printable);
    }
    sheet.dotsPerInch = CSize(m_printer.GetDeviceCaps(LOGPIXELSX), m_printer.GetDeviceCaps(LOGPIXELSY));
    return sheet;
}

kmfc::PreviewLayout CPreviewView::layout() const {
    CRect client;
    GetClientRect(&client);
    const HDC screen = ::GetDC(nullptr);
    const CSize dots(::GetDeviceCaps(screen, LOGPIXELSX), ::GetDeviceCaps(screen, LOGPIXELSY));
    ::ReleaseDC(nullptr, screen);
    return kmfc::arrange_preview(client.Size(), sheet(), shown_count(), static_cast<PreviewZoom>(m_zoom),
                                 m_scrolled, dots);
}

/// Whole sheets have a bar for pages, where their number is known, larger ones bars for places.
void CPreviewView::set_bars() {
    SCROLLINFO across = {sizeof(SCROLLINFO), SIF_ALL, 0, 0, 1, 0, 0};
    SCROLLINFO down = across;
    CRect client;
    GetClientRect(&client);
    const kmfc::PreviewLayout places = layout();
    if (m_zoom > 0) {
        m_scrolled.x = std::min(m_scrolled.x, places.beyond.cx);
        m_scrolled.y = std::min(m_scrolled.y, places.beyond.cy);
        across.nMax = places.beyond.cx + client.Width() - 1;
        across.nPage = static_cast<UINT>(client.Width());
        across.nPos = m_scrolled.x;
        down.nMax = places.beyond.cy + client.Height() - 1;
        down.nPage = static_cast<UINT>(client.Height());
        down.nPos = m_scrolled.y;
    } else if (m_info->GetMaxPage() != kUnknown) {
        down.nMin = static_cast<int>(m_info->GetMinPage());
        down.nMax = static_cast<int>(m_lastPage);
        down.nPage = static_cast<UINT>(shown_count());
        down.nPos = static_cast<int>(m_page);
    }
    SetScrollInfo(SB_HORZ, &across);
    SetScrollInfo(SB_VERT, &down);
}

void CPreviewView::scroll_to(CPoint place) {
    const kmfc::PreviewLayout places = layout();
    m_scrolled = CPoint(std::clamp<LONG>(place.x, 0, places.beyond.cx),
                        std::clamp<LONG>(place.y, 0, places.beyond.cy));
    set_bars();
    Invalidate(FALSE);
}

// Painting.

BOOL CPreviewView::OnEraseBkgnd(CDC*) { return TRUE; }  // all of it is painted

void CPreviewView::OnDraw(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    pDC->FillSolidRect(&client, ::GetSysColor(COLOR_APPWORKSPACE));
    if (m_info == nullptr) return;
    const kmfc::PreviewLayout places = layout();
    UINT page = m_page;
    for (const CRect& place : places.sheets) {
        // A place beside the last page stays empty.
        const HENHMETAFILE picture = recorded(page++);
        if (picture == nullptr) break;
        pDC->FillSolidRect(place.left + kShadow, place.bottom, place.Width(), kShadow, kEdge);
        pDC->FillSolidRect(place.right, place.top + kShadow, kShadow, place.Height(), kEdge);
        pDC->FillSolidRect(&place, kEdge);
        CRect paper(place);
        paper.DeflateRect(1, 1);
        pDC->FillSolidRect(&paper, kPaper);
        const int before = pDC->SaveDC();
        pDC->IntersectClipRect(&paper);
        const CRect printed = kmfc::printable_part(place, sheet());
        ::PlayEnhMetaFile(pDC->m_hDC, picture, &printed);
        pDC->RestoreDC(before);
    }
}

// Input.

void CPreviewView::OnSize(UINT nType, int cx, int cy) {
    CView::OnSize(nType, cx, cy);
    if (m_info == nullptr) return;
    set_bars();
    Invalidate(FALSE);
}

namespace {

/// Where a code of a scroll bar leads.
int led_to(UINT code, int place, const SCROLLINFO& bar, int line, int page) {
    switch (code) {
        case SB_LINEUP: return place - line;
        case SB_LINEDOWN: return place + line;
        case SB_PAGEUP: return place - page;
        case SB_PAGEDOWN: return place + page;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: return bar.nTrackPos;
        case SB_TOP: return bar.nMin;
        case SB_BOTTOM: return bar.nMax;
        default: return place;
    }
}

}  // namespace

void CPreviewView::OnHScroll(UINT nSBCode, UINT, CScrollBar*) {
    SCROLLINFO bar = {};
    GetScrollInfo(SB_HORZ, &bar, SIF_ALL);
    const int place = led_to(nSBCode, m_scrolled.x, bar, kLine, static_cast<int>(bar.nPage));
    scroll_to(CPoint(place, m_scrolled.y));
}

void CPreviewView::OnVScroll(UINT nSBCode, UINT, CScrollBar*) {
    SCROLLINFO bar = {};
    GetScrollInfo(SB_VERT, &bar, SIF_ALL);
    if (m_zoom == 0) {
        const int page = led_to(nSBCode, static_cast<int>(m_page), bar, 1, shown_count());
        if (page != static_cast<int>(m_page)) SetCurrentPage(static_cast<UINT>(std::max(page, 0)));
        return;
    }
    const int place = led_to(nSBCode, m_scrolled.y, bar, kLine, static_cast<int>(bar.nPage));
    scroll_to(CPoint(m_scrolled.x, place));
}

BOOL CPreviewView::OnMouseWheel(UINT, short zDelta, CPoint) {
    OnVScroll(zDelta > 0 ? SB_LINEUP : SB_LINEDOWN, 0, nullptr);
    return TRUE;
}

/// Nearer to the place under the mouse, and after the nearest the whole again.
void CPreviewView::OnLButtonDown(UINT, CPoint point) {
    const kmfc::PreviewLayout before = layout();
    for (size_t i = 0; i < before.sheets.size(); ++i) {
        const CRect& place = before.sheets[i];
        if (!place.PtInRect(point)) continue;
        const double x = static_cast<double>(point.x - place.left) / place.Width(),
                     y = static_cast<double>(point.y - place.top) / place.Height();
        SetZoomState(m_zoom == kMostZoom ? 0 : m_zoom + 1);
        const CRect after = layout().sheets[i];
        scroll_to(CPoint(static_cast<int>(after.left + x * after.Width()) - point.x,
                         static_cast<int>(after.top + y * after.Height()) - point.y));
        return;
    }
}

void CPreviewView::OnKeyDown(UINT nChar, UINT, UINT) {
    switch (nChar) {
        case VK_ESCAPE: OnPreviewClose(); return;
        case VK_NEXT: OnNextPage(); return;
        case VK_PRIOR: OnPrevPage(); return;
        case VK_HOME: SetCurrentPage(m_info->GetMinPage()); return;
        case VK_END:
            if (m_lastPage != kUnknown) SetCurrentPage(m_lastPage);
            return;
        case VK_DOWN: OnVScroll(SB_LINEDOWN, 0, nullptr); return;
        case VK_UP: OnVScroll(SB_LINEUP, 0, nullptr); return;
        case VK_RIGHT: OnHScroll(SB_LINEDOWN, 0, nullptr); return;
        case VK_LEFT: OnHScroll(SB_LINEUP, 0, nullptr); return;
        case VK_ADD: OnZoomIn(); return;
        case VK_SUBTRACT: OnZoomOut(); return;
        default: Default();
    }
}

void CPreviewView::OnPreviewClose() {
    CView* const printed = m_printed;
    if (printed == nullptr) return;
    m_printed = nullptr;
    m_info->m_nCurPage = m_page;
    // It destroys this view.
    printed->OnEndPrintPreview(&m_printer, m_info.get(), m_scrolled, this);
}

void CPreviewView::OnPreviewPrint() {
    CFrameWnd* const frame = GetParentFrame();
    OnPreviewClose();
    frame->SendMessage(WM_COMMAND, ID_FILE_PRINT);
}

void CPreviewView::OnNextPage() { SetCurrentPage(m_page + 1); }
void CPreviewView::OnPrevPage() { SetCurrentPage(m_page - 1); }
void CPreviewView::OnZoomIn() { SetZoomState(m_zoom + 1); }
void CPreviewView::OnZoomOut() { SetZoomState(m_zoom - 1); }

void CPreviewView::OnNumPageChange() {
    m_wanted = m_wanted == 2 ? 1 : 2;
    SetCurrentPage(m_page);
}

void CPreviewView::OnUpdateNextPage(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_page + static_cast<UINT>(shown_count()) - 1 < m_lastPage);
}
void CPreviewView::OnUpdatePrevPage(CCmdUI* pCmdUI) { pCmdUI->Enable(m_page > m_info->GetMinPage()); }

void CPreviewView::OnUpdateNumPageChange(CCmdUI* pCmdUI) {
    CString text;
    text.LoadString(m_wanted == 2 ? AFX_IDS_ONEPAGE : AFX_IDS_TWOPAGE);
    pCmdUI->SetText(text);
    pCmdUI->Enable(m_lastPage > m_info->GetMinPage());
}

void CPreviewView::OnUpdateZoomIn(CCmdUI* pCmdUI) { pCmdUI->Enable(m_zoom < kMostZoom); }
void CPreviewView::OnUpdateZoomOut(CCmdUI* pCmdUI) { pCmdUI->Enable(m_zoom > 0); }
