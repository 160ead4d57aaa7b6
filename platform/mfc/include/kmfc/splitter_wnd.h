// CSplitterWnd: a window of panes in rows and columns with movable lines between them.
#pragma once

#include <functional>
#include <vector>

#include <afxres.h>
#include <kmfc/create_context.h>
#include <kmfc/wnd.h>

class CView;

// Styles of splitters.
constexpr DWORD SPLS_DYNAMIC_SPLIT = 0x0001;  ///< the user makes and takes away panes
constexpr DWORD SPLS_INVERT_TRACKER = 0x0002;

/// Fills the client area of a frame, or a pane of another splitter; made in the frame's OnCreateClient, of
/// which it is a member. A static one has a fixed number of panes, each made by CreateView. A dynamic one
/// begins with a single pane, makes more of the same view class where the user drags a split box, and shares
/// one scroll bar for each row and column.
class KMFC_API CSplitterWnd : public CWnd {
    DECLARE_DYNAMIC(CSplitterWnd)
public:
    CSplitterWnd();
    ~CSplitterWnd() override;

    /// A dynamic splitter of at most two rows and columns. A row or column below `sizeMin` pixels goes.
    virtual BOOL Create(CWnd* pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin, CCreateContext* pContext,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | SPLS_DYNAMIC_SPLIT,
                        UINT nID = AFX_IDW_PANE_FIRST);
    /// A static splitter of up to 16 by 16 panes, still without views.
    virtual BOOL CreateStatic(CWnd* pParentWnd, int nRows, int nCols, DWORD dwStyle = WS_CHILD | WS_VISIBLE,
                              UINT nID = AFX_IDW_PANE_FIRST);
    /// Makes the view of a pane; the pane is `sizeInit` pixels large at first.
    virtual BOOL CreateView(int row, int col, CRuntimeClass* pViewClass, SIZE sizeInit,
                            CCreateContext* pContext);
    /// A scroll bar for a row or column of a dynamic splitter.
    virtual BOOL CreateScrollBarCtrl(DWORD dwStyle, UINT nID);

    int GetRowCount() const { return m_nRows; }
    int GetColumnCount() const { return m_nCols; }
    /// Present and least sizes in pixels.
    void GetRowInfo(int row, int& cyCur, int& cyMin) const;
    void GetColumnInfo(int col, int& cxCur, int& cxMin) const;
    /// Wanted and least sizes in pixels; RecalcLayout gives them.
    void SetRowInfo(int row, int cyIdeal, int cyMin);
    void SetColumnInfo(int col, int cxIdeal, int cxMin);
    CWnd* GetPane(int row, int col) const;
    /// Whether the window is a pane, and which.
    BOOL IsChildPane(CWnd* pWnd, int* pRow, int* pCol) const;
    int IdFromRowCol(int row, int col) const;
    BOOL IsTracking() const { return m_bTracking; }
    DWORD GetScrollStyle() const;
    void SetScrollStyle(DWORD dwStyle);

    /// Gives panes and scroll bars their places.
    virtual void RecalcLayout();
    /// Makes another row or column below or to the right of `cyBefore`, `cxBefore` pixels. FALSE where there
    /// is no room.
    virtual BOOL SplitRow(int cyBefore);
    virtual BOOL SplitColumn(int cxBefore);
    virtual void DeleteRow(int rowDelete);
    virtual void DeleteColumn(int colDelete);
    virtual void DeleteView(int row, int col);

    /// The pane with the active view or the focus, and which; null without one.
    virtual CWnd* GetActivePane(int* pRow = nullptr, int* pCol = nullptr);
    /// Activates a pane: `pWnd`, or the one at the place.
    virtual void SetActivePane(int row, int col, CWnd* pWnd = nullptr);
    virtual BOOL CanActivateNext(BOOL bPrev = FALSE);
    virtual void ActivateNext(BOOL bPrev = FALSE);
    /// Lets the user split with keys or mouse, from the middle. FALSE where it can't be split.
    virtual BOOL DoKeyboardSplit();
    /// Scrolls the panes that share bars with `pViewFrom`; see CView::OnScroll, OnScrollBy.
    virtual BOOL DoScroll(CView* pViewFrom, UINT nScrollCode, BOOL bDoScroll = TRUE);
    virtual BOOL DoScrollBy(CView* pViewFrom, CSize sizeScroll, BOOL bDoScroll = TRUE);

protected:
    enum ESplitType { splitBox, splitBar, splitIntersection, splitBorder };

    virtual void OnDrawSplitter(CDC* pDC, ESplitType nType, const CRect& rect);
    virtual void OnInvertTracker(const CRect& rect);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnCancelMode();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    CRuntimeClass* m_pDynamicViewClass = nullptr;
    int m_nMaxRows = 0, m_nMaxCols = 0;
    int m_nRows = 0, m_nCols = 0;
    BOOL m_bHasHScroll = FALSE, m_bHasVScroll = FALSE;
    int m_cxSplitter = 7, m_cySplitter = 7;        ///< split boxes
    int m_cxBorder = 2, m_cyBorder = 2;            ///< around each pane
    int m_cxSplitterGap = 7, m_cySplitterGap = 7;  ///< between panes

    DECLARE_MESSAGE_MAP()

private:
    /// A row or a column, sizes in pixels.
    struct Line {
        int least = 0;
        int ideal = 0;
        int present = 0;
    };
    /// What lies under a point.
    struct Hit {
        int rowBar = -1, colBar = -1;  ///< the line behind that row or column; both at a crossing
        bool rowBox = false, colBox = false;

        bool any() const { return rowBar >= 0 || colBar >= 0 || rowBox || colBox; }
        bool across() const { return rowBar >= 0 || rowBox; }
        bool upright() const { return colBar >= 0 || colBox; }
    };

    BOOL create_common(CWnd* parent, DWORD style, UINT id);
    static void share_out(std::vector<Line>& lines, int count, int room, int gap);
    /// Client area inside the border, without the shared bars.
    CRect room() const;
    /// The upper left corner of a pane.
    CPoint corner(int row, int col) const;
    CRect row_box() const;
    CRect col_box() const;
    Hit hit(CPoint point) const;
    void place_bars(const CRect& inside);
    void start_tracking(const Hit& what, CPoint point);
    void move_tracker(CPoint point);
    /// Ends the user's dragging; `takes` it over or leaves all as it was.
    void end_tracking(bool takes);
    /// The nearest place that the line being dragged may have.
    CPoint within(CPoint point) const;
    void draw_tracker();
    /// Puts the line behind a row or a column at a place, or splits there.
    void apply_row(int y);
    void apply_column(int x);
    bool forward_scroll(UINT message, int count, bool along_rows, CScrollBar* bar, UINT code, UINT place);

    /// Calls `scroll` for the pane, and for its neighbours in the direction that they share.
    bool scroll_sharing(CView* from, const std::function<BOOL(CView&, bool across, bool upright)>& scroll);

    std::vector<Line> m_rows, m_columns;
    BOOL m_bTracking = FALSE;
    Hit m_tracked;
    CPoint m_tracker;
    HWND m_formerFocus = nullptr;
};
