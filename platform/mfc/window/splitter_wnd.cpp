// CSplitterWnd: its panes and their places.
#include <algorithm>

#include <kmfc/frame.h>
#include <kmfc/scroll_bar.h>
#include <kmfc/splitter_wnd.h>
#include <kmfc/view.h>

IMPLEMENT_DYNAMIC(CSplitterWnd, CWnd)

BEGIN_MESSAGE_MAP(CSplitterWnd, CWnd)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_KEYDOWN()
    ON_WM_CANCELMODE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

namespace {

constexpr int kMostPanes = 16;         // in a row and in a column: ids are counted so
constexpr int kLeastForCreation = 20;  // pixels, before a size is known

}  // namespace

CSplitterWnd::CSplitterWnd() = default;
CSplitterWnd::~CSplitterWnd() = default;

BOOL CSplitterWnd::create_common(CWnd* parent, DWORD style, UINT id) {
    m_rows.assign(static_cast<size_t>(m_nMaxRows), {});
    m_columns.assign(static_cast<size_t>(m_nMaxCols), {});
    m_bHasHScroll = (style & WS_HSCROLL) != 0;
    m_bHasVScroll = (style & WS_VSCROLL) != 0;
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW));
    // The bars are windows of their own.
    return CWnd::CreateEx(
        0, windowClass, nullptr,
        (style & ~static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL | WS_BORDER)) | WS_CLIPCHILDREN,
        CRect(0, 0, 0, 0), parent, id);
}

BOOL CSplitterWnd::Create(CWnd* pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin,
                          CCreateContext* pContext, DWORD dwStyle, UINT nID) {
    ENSURE_ARG(pParentWnd != nullptr && nMaxRows >= 1 && nMaxRows <= 2 && nMaxCols >= 1 && nMaxCols <= 2 &&
               nMaxRows + nMaxCols > 2 && pContext != nullptr && pContext->m_pNewViewClass != nullptr);
    m_nMaxRows = nMaxRows;
    m_nMaxCols = nMaxCols;
    m_nRows = m_nCols = 1;
    if (!create_common(pParentWnd, dwStyle | SPLS_DYNAMIC_SPLIT, nID)) return FALSE;
    m_pDynamicViewClass = pContext->m_pNewViewClass;
    for (Line& row : m_rows) row.least = row.ideal = sizeMin.cy;
    for (Line& column : m_columns) column.least = column.ideal = sizeMin.cx;
    const BOOL made =
        (!m_bHasHScroll || CreateScrollBarCtrl(SBS_HORZ, AFX_IDW_HSCROLL_FIRST)) &&
        (!m_bHasVScroll || CreateScrollBarCtrl(SBS_VERT, AFX_IDW_VSCROLL_FIRST)) &&
        (!m_bHasHScroll || !m_bHasVScroll || CreateScrollBarCtrl(SBS_SIZEBOX, AFX_IDW_SIZE_BOX)) &&
        CreateView(0, 0, m_pDynamicViewClass, sizeMin, pContext);
    if (!made) DestroyWindow();
    return made;
}

BOOL CSplitterWnd::CreateStatic(CWnd* pParentWnd, int nRows, int nCols, DWORD dwStyle, UINT nID) {
    ENSURE_ARG(pParentWnd != nullptr && nRows >= 1 && nRows <= kMostPanes && nCols >= 1 &&
               nCols <= kMostPanes);
    m_nRows = m_nMaxRows = nRows;
    m_nCols = m_nMaxCols = nCols;
    return create_common(pParentWnd, dwStyle & ~SPLS_DYNAMIC_SPLIT, nID);
}

BOOL CSplitterWnd::CreateView(int row, int col, CRuntimeClass* pViewClass, SIZE sizeInit,
                              CCreateContext* pContext) {
    ENSURE_ARG(row >= 0 && row < m_nRows && col >= 0 && col < m_nCols && pViewClass != nullptr &&
               GetDlgItem(IdFromRowCol(row, col)) == nullptr);
    m_rows[static_cast<size_t>(row)].ideal = sizeInit.cy;
    m_columns[static_cast<size_t>(col)].ideal = sizeInit.cx;
    // Without a context a pane shows what the active one shows.
    CCreateContext context;
    const bool first = pContext == nullptr;
    if (first) {
        auto* former = DYNAMIC_DOWNCAST(CView, GetActivePane());
        if (former != nullptr) {
            context.m_pLastView = former;
            context.m_pCurrentDoc = former->GetDocument();
        }
        pContext = &context;
    }
    auto* view = static_cast<CWnd*>(pViewClass->CreateObject());
    if (view == nullptr) return FALSE;
    const CRect rect(CPoint(0, 0), CSize(std::max<int>(sizeInit.cx, kLeastForCreation),
                                         std::max<int>(sizeInit.cy, kLeastForCreation)));
    // A view that can't be created deletes itself.
    if (!view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW & ~static_cast<DWORD>(WS_BORDER), rect, this,
                      static_cast<UINT>(IdFromRowCol(row, col)), pContext))
        return FALSE;
    // A view that comes later than its frame gets its first update now.
    if (first) view->SendMessage(WM_INITIALUPDATE);
    return TRUE;
}

BOOL CSplitterWnd::CreateScrollBarCtrl(DWORD dwStyle, UINT nID) {
    return ::CreateWindowExW(0, L"SCROLLBAR", nullptr, dwStyle | WS_VISIBLE | WS_CHILD, 0, 0, 1, 1, m_hWnd,
                             reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), AfxGetInstanceHandle(),
                             nullptr) != nullptr;
}

int CSplitterWnd::IdFromRowCol(int row, int col) const { return AFX_IDW_PANE_FIRST + row * kMostPanes + col; }

CWnd* CSplitterWnd::GetPane(int row, int col) const { return GetDlgItem(IdFromRowCol(row, col)); }

BOOL CSplitterWnd::IsChildPane(CWnd* pWnd, int* pRow, int* pCol) const {
    const int place = pWnd->GetDlgCtrlID() - AFX_IDW_PANE_FIRST;
    const int row = place / kMostPanes, col = place % kMostPanes;
    const bool pane = ::GetParent(pWnd->m_hWnd) == m_hWnd && place >= 0 && row < m_nRows && col < m_nCols;
    if (pRow != nullptr) *pRow = pane ? row : -1;
    if (pCol != nullptr) *pCol = pane ? col : -1;
    return pane;
}

void CSplitterWnd::GetRowInfo(int row, int& cyCur, int& cyMin) const {
    const Line& line = m_rows.at(static_cast<size_t>(row));
    cyCur = line.present;
    cyMin = line.least;
}
void CSplitterWnd::GetColumnInfo(int col, int& cxCur, int& cxMin) const {
    const Line& line = m_columns.at(static_cast<size_t>(col));
    cxCur = line.present;
    cxMin = line.least;
}
void CSplitterWnd::SetRowInfo(int row, int cyIdeal, int cyMin) {
    Line& line = m_rows.at(static_cast<size_t>(row));
    line.ideal = cyIdeal;
    line.least = cyMin;
}
void CSplitterWnd::SetColumnInfo(int col, int cxIdeal, int cxMin) {
    Line& line = m_columns.at(static_cast<size_t>(col));
    line.ideal = cxIdeal;
    line.least = cxMin;
}

DWORD CSplitterWnd::GetScrollStyle() const {
    return (m_bHasHScroll ? static_cast<DWORD>(WS_HSCROLL) : 0) |
           (m_bHasVScroll ? static_cast<DWORD>(WS_VSCROLL) : 0);
}

void CSplitterWnd::SetScrollStyle(DWORD dwStyle) {
    const auto set = [this](BOOL& has, bool wanted, DWORD style, UINT first, int count) {
        if (wanted == (has != FALSE)) return;
        has = wanted;
        for (int i = 0; i < count; ++i) {
            HWND bar = ::GetDlgItem(m_hWnd, static_cast<int>(first) + i);
            if (bar == nullptr && wanted)
                CreateScrollBarCtrl(style, first + static_cast<UINT>(i));
            else if (bar != nullptr)
                ::ShowWindow(bar, wanted ? SW_SHOW : SW_HIDE);
        }
    };
    set(m_bHasHScroll, (dwStyle & WS_HSCROLL) != 0, SBS_HORZ, AFX_IDW_HSCROLL_FIRST, m_nCols);
    set(m_bHasVScroll, (dwStyle & WS_VSCROLL) != 0, SBS_VERT, AFX_IDW_VSCROLL_FIRST, m_nRows);
    const bool both = m_bHasHScroll && m_bHasVScroll;
    HWND corner = ::GetDlgItem(m_hWnd, AFX_IDW_SIZE_BOX);
    if (corner == nullptr && both)
        CreateScrollBarCtrl(SBS_SIZEBOX, AFX_IDW_SIZE_BOX);
    else if (corner != nullptr)
        ::ShowWindow(corner, both ? SW_SHOW : SW_HIDE);
}

void CSplitterWnd::share_out(std::vector<Line>& lines, int count, int room, int gap) {
    // Each has what it wants, what is below its least nothing; the last takes what is left.
    for (int i = 0; i < count; ++i) {
        Line& line = lines[static_cast<size_t>(i)];
        const bool last = i == count - 1;
        line.present = std::max(0, last ? room : std::min(line.ideal, room));
        if (!last && line.present < line.least) line.present = 0;
        room -= line.present + gap;
    }
}

CRect CSplitterWnd::room() const {
    CRect inside;
    GetClientRect(&inside);
    if (m_bHasVScroll) inside.right -= ::GetSystemMetrics(SM_CXVSCROLL);
    if (m_bHasHScroll) inside.bottom -= ::GetSystemMetrics(SM_CYHSCROLL);
    inside.DeflateRect(m_cxBorder, m_cyBorder);
    return inside;
}

CPoint CSplitterWnd::corner(int row, int col) const {
    CPoint place(m_cxBorder, m_cyBorder);
    for (int i = 0; i < row; ++i) place.y += m_rows[static_cast<size_t>(i)].present + m_cySplitterGap;
    for (int i = 0; i < col; ++i) place.x += m_columns[static_cast<size_t>(i)].present + m_cxSplitterGap;
    return place;
}

CRect CSplitterWnd::row_box() const {
    if (m_nRows >= m_nMaxRows || !m_bHasVScroll) return {0, 0, 0, 0};
    CRect client;
    GetClientRect(&client);
    return {client.right - ::GetSystemMetrics(SM_CXVSCROLL), 0, client.right, m_cySplitter};
}

CRect CSplitterWnd::col_box() const {
    if (m_nCols >= m_nMaxCols || !m_bHasHScroll) return {0, 0, 0, 0};
    CRect client;
    GetClientRect(&client);
    return {0, client.bottom - ::GetSystemMetrics(SM_CYHSCROLL), m_cxSplitter, client.bottom};
}

void CSplitterWnd::RecalcLayout() {
    const CRect inside = room();
    if (inside.Width() <= 0 || inside.Height() <= 0 || m_hWnd == nullptr) return;
    share_out(m_rows, m_nRows, inside.Height(), m_cySplitterGap);
    share_out(m_columns, m_nCols, inside.Width(), m_cxSplitterGap);
    place_bars(inside);
    for (int row = 0; row < m_nRows; ++row)
        for (int col = 0; col < m_nCols; ++col) {
            CWnd* pane = GetPane(row, col);
            if (pane == nullptr) continue;
            const CPoint place = corner(row, col);
            pane->SetWindowPos(nullptr, place.x, place.y, m_columns[static_cast<size_t>(col)].present,
                               m_rows[static_cast<size_t>(row)].present, SWP_NOZORDER | SWP_NOACTIVATE);
        }
    Invalidate();
}

void CSplitterWnd::place_bars(const CRect& inside) {
    const int across = ::GetSystemMetrics(SM_CYHSCROLL), upright = ::GetSystemMetrics(SM_CXVSCROLL);
    const auto place = [this](UINT id, int x, int y, int cx, int cy) {
        HWND bar = ::GetDlgItem(m_hWnd, static_cast<int>(id));
        if (bar != nullptr)
            ::SetWindowPos(bar, nullptr, x, y, std::max(0, cx), std::max(0, cy),
                           SWP_NOZORDER | SWP_NOACTIVATE);
    };
    const int bottom = inside.bottom + m_cyBorder, right = inside.right + m_cxBorder;
    // A bar reaches over the border of its panes; the first makes room for the split box.
    const int boxX = col_box().Width(), boxY = row_box().Height();
    for (int col = 0; col < m_nCols && m_bHasHScroll; ++col) {
        const int left = corner(0, col).x - m_cxBorder;
        const int width = m_columns[static_cast<size_t>(col)].present + 2 * m_cxBorder;
        const int box = col == 0 ? boxX : 0;
        place(AFX_IDW_HSCROLL_FIRST + static_cast<UINT>(col), left + box, bottom, width - box, across);
    }
    for (int row = 0; row < m_nRows && m_bHasVScroll; ++row) {
        const int top = corner(row, 0).y - m_cyBorder;
        const int height = m_rows[static_cast<size_t>(row)].present + 2 * m_cyBorder;
        const int box = row == 0 ? boxY : 0;
        place(AFX_IDW_VSCROLL_FIRST + static_cast<UINT>(row), right, top + box, upright, height - box);
    }
    place(AFX_IDW_SIZE_BOX, right, bottom, upright, across);
}

BOOL CSplitterWnd::SplitRow(int cyBefore) {
    ENSURE((GetStyle() & SPLS_DYNAMIC_SPLIT) != 0);
    const int before = cyBefore - m_cyBorder;
    const int after = room().Height() - before - m_cySplitterGap;
    if (m_nRows >= m_nMaxRows || before < m_rows[0].least || after < m_rows[1].least) return FALSE;
    const int row = m_nRows;
    if (m_bHasVScroll && !CreateScrollBarCtrl(SBS_VERT, AFX_IDW_VSCROLL_FIRST + static_cast<UINT>(row)))
        return FALSE;
    ++m_nRows;
    for (int col = 0; col < m_nCols; ++col) {
        const CSize size(m_columns[static_cast<size_t>(col)].present, after);
        if (CreateView(row, col, m_pDynamicViewClass, size, nullptr)) continue;
        DeleteRow(row);
        return FALSE;
    }
    m_rows[0].ideal = before;
    m_rows[static_cast<size_t>(row)].ideal = after;
    RecalcLayout();
    return TRUE;
}

BOOL CSplitterWnd::SplitColumn(int cxBefore) {
    ENSURE((GetStyle() & SPLS_DYNAMIC_SPLIT) != 0);
    const int before = cxBefore - m_cxBorder;
    const int after = room().Width() - before - m_cxSplitterGap;
    if (m_nCols >= m_nMaxCols || before < m_columns[0].least || after < m_columns[1].least) return FALSE;
    const int col = m_nCols;
    if (m_bHasHScroll && !CreateScrollBarCtrl(SBS_HORZ, AFX_IDW_HSCROLL_FIRST + static_cast<UINT>(col)))
        return FALSE;
    ++m_nCols;
    for (int row = 0; row < m_nRows; ++row) {
        const CSize size(after, m_rows[static_cast<size_t>(row)].present);
        if (CreateView(row, col, m_pDynamicViewClass, size, nullptr)) continue;
        DeleteColumn(col);
        return FALSE;
    }
    m_columns[0].ideal = before;
    m_columns[static_cast<size_t>(col)].ideal = after;
    RecalcLayout();
    return TRUE;
}

void CSplitterWnd::DeleteView(int row, int col) {
    CWnd* pane = GetPane(row, col);
    if (pane == nullptr) return;
    // The frame's active view is another from here on.
    if (GetActivePane() == pane) ActivateNext();
    pane->DestroyWindow();
}

void CSplitterWnd::DeleteRow(int rowDelete) {
    ENSURE((GetStyle() & SPLS_DYNAMIC_SPLIT) != 0 && m_nRows > 1 && rowDelete >= 0 && rowDelete < m_nRows);
    const int last = m_nRows - 1;
    for (int col = 0; col < m_nCols; ++col) {
        DeleteView(rowDelete, col);
        // The pane below takes the place.
        if (rowDelete != last)
            if (CWnd* below = GetPane(last, col)) below->SetDlgCtrlID(IdFromRowCol(rowDelete, col));
    }
    if (HWND bar = ::GetDlgItem(m_hWnd, AFX_IDW_VSCROLL_FIRST + rowDelete)) ::DestroyWindow(bar);
    if (rowDelete != last)
        if (HWND bar = ::GetDlgItem(m_hWnd, AFX_IDW_VSCROLL_FIRST + last))
            ::SetWindowLongPtrW(bar, GWLP_ID, AFX_IDW_VSCROLL_FIRST + rowDelete);
    --m_nRows;
    RecalcLayout();
}

void CSplitterWnd::DeleteColumn(int colDelete) {
    ENSURE((GetStyle() & SPLS_DYNAMIC_SPLIT) != 0 && m_nCols > 1 && colDelete >= 0 && colDelete < m_nCols);
    const int last = m_nCols - 1;
    for (int row = 0; row < m_nRows; ++row) {
        DeleteView(row, colDelete);
        if (colDelete != last)
            if (CWnd* beside = GetPane(row, last)) beside->SetDlgCtrlID(IdFromRowCol(row, colDelete));
    }
    if (HWND bar = ::GetDlgItem(m_hWnd, AFX_IDW_HSCROLL_FIRST + colDelete)) ::DestroyWindow(bar);
    if (colDelete != last)
        if (HWND bar = ::GetDlgItem(m_hWnd, AFX_IDW_HSCROLL_FIRST + last))
            ::SetWindowLongPtrW(bar, GWLP_ID, AFX_IDW_HSCROLL_FIRST + colDelete);
    --m_nCols;
    RecalcLayout();
}

CWnd* CSplitterWnd::GetActivePane(int* pRow, int* pCol) {
    CFrameWnd* frame = GetParentFrame();
    CWnd* pane = frame != nullptr ? frame->GetActiveView() : nullptr;
    if (pane == nullptr) pane = GetFocus();
    // It may be a window inside a pane.
    while (pane != nullptr && !IsChildPane(pane, pRow, pCol)) {
        HWND parent = ::GetParent(pane->m_hWnd);
        pane = parent != nullptr && ::IsChild(m_hWnd, parent) ? CWnd::FromHandle(parent) : nullptr;
    }
    if (pane != nullptr) return pane;
    if (pRow != nullptr) *pRow = -1;
    if (pCol != nullptr) *pCol = -1;
    return nullptr;
}

void CSplitterWnd::SetActivePane(int row, int col, CWnd* pWnd) {
    CWnd* pane = pWnd != nullptr ? pWnd : GetPane(row, col);
    if (pane == nullptr) return;
    CFrameWnd* frame = GetParentFrame();
    auto* view = DYNAMIC_DOWNCAST(CView, pane);
    if (view != nullptr && frame != nullptr)
        frame->SetActiveView(view);
    else
        pane->SetFocus();
}

BOOL CSplitterWnd::CanActivateNext(BOOL) { return m_nRows * m_nCols > 1 && GetActivePane() != nullptr; }

void CSplitterWnd::ActivateNext(BOOL bPrev) {
    int row = 0, col = 0;
    if (GetActivePane(&row, &col) == nullptr) return;
    const int count = m_nRows * m_nCols;
    const int next = (row * m_nCols + col + (bPrev ? count - 1 : 1)) % count;
    SetActivePane(next / m_nCols, next % m_nCols);
}

BOOL CSplitterWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    // What panes tell goes to the frame, as that of a frame's own view does.
    if (CWnd::OnCommand(wParam, lParam)) return TRUE;
    return GetParentFrame() != nullptr && GetParentFrame()->SendMessage(WM_COMMAND, wParam, lParam) != 0;
}

BOOL CSplitterWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnNotify(wParam, lParam, pResult)) return TRUE;
    CFrameWnd* frame = GetParentFrame();
    if (frame == nullptr) return FALSE;
    *pResult = frame->SendMessage(WM_NOTIFY, wParam, lParam);
    return TRUE;
}

void CSplitterWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED && cx > 0 && cy > 0) RecalcLayout();
}

bool CSplitterWnd::forward_scroll(UINT message, int count, bool along_rows, CScrollBar* bar, UINT code,
                                  UINT place) {
    if (bar == nullptr) return false;
    const int line = bar->GetDlgCtrlID() - (along_rows ? AFX_IDW_HSCROLL_FIRST : AFX_IDW_VSCROLL_FIRST);
    // The panes share the bar, which each of them moves: they start from where it was.
    const int former = bar->GetScrollPos();
    int last = former;
    for (int i = 0; i < count; ++i) {
        CWnd* pane = along_rows ? GetPane(i, line) : GetPane(line, i);
        if (pane == nullptr) continue;
        bar->SetScrollPos(former, FALSE);
        pane->SendMessage(message, MAKEWPARAM(code, place), reinterpret_cast<LPARAM>(bar->m_hWnd));
        last = bar->GetScrollPos();
    }
    bar->SetScrollPos(last);
    return true;
}

void CSplitterWnd::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (!forward_scroll(WM_HSCROLL, m_nRows, true, pScrollBar, nSBCode, nPos))
        CWnd::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CSplitterWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (!forward_scroll(WM_VSCROLL, m_nCols, false, pScrollBar, nSBCode, nPos))
        CWnd::OnVScroll(nSBCode, nPos, pScrollBar);
}

BOOL CSplitterWnd::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    auto* view = DYNAMIC_DOWNCAST(CView, GetActivePane());
    return view != nullptr &&
           view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(nFlags, zDelta), MAKELPARAM(pt.x, pt.y)) != 0;
}

bool CSplitterWnd::scroll_sharing(CView* from,
                                  const std::function<BOOL(CView&, bool across, bool upright)>& scroll) {
    int row = 0, col = 0;
    if (!IsChildPane(from, &row, &col)) return false;
    // A bar that panes share has moved with the first of them, and each has to start from where it was.
    HWND const bars[] = {::GetDlgItem(m_hWnd, AFX_IDW_HSCROLL_FIRST + col),
                         ::GetDlgItem(m_hWnd, AFX_IDW_VSCROLL_FIRST + row)};
    const int former[] = {::GetScrollPos(bars[0], SB_CTL), ::GetScrollPos(bars[1], SB_CTL)};
    bool moved = scroll(*from, true, true) != FALSE;
    const auto neighbour = [&](int r, int c, int bar) {
        auto* view = DYNAMIC_DOWNCAST(CView, GetPane(r, c));
        if (view == nullptr || view == from) return;
        const int place = ::GetScrollPos(bars[bar], SB_CTL);
        ::SetScrollPos(bars[bar], SB_CTL, former[bar], FALSE);
        moved |= scroll(*view, bar == 0, bar == 1) != FALSE;
        ::SetScrollPos(bars[bar], SB_CTL, place, TRUE);
    };
    for (int i = 0; i < m_nRows; ++i) neighbour(i, col, 0);
    for (int i = 0; i < m_nCols; ++i) neighbour(row, i, 1);
    return moved;
}

BOOL CSplitterWnd::DoScroll(CView* pViewFrom, UINT nScrollCode, BOOL bDoScroll) {
    return scroll_sharing(pViewFrom, [=](CView& view, bool across, bool upright) {
        const UINT code = MAKEWORD(across ? LOBYTE(nScrollCode) : 0xFF, upright ? HIBYTE(nScrollCode) : 0xFF);
        return view.OnScroll(code, 0, bDoScroll);
    });
}

BOOL CSplitterWnd::DoScrollBy(CView* pViewFrom, CSize sizeScroll, BOOL bDoScroll) {
    return scroll_sharing(pViewFrom, [=](CView& view, bool across, bool upright) {
        return view.OnScrollBy(CSize(across ? sizeScroll.cx : 0, upright ? sizeScroll.cy : 0), bDoScroll);
    });
}
