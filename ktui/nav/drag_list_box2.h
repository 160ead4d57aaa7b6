// CDragListBox2: a list box whose rows are put into another order by dragging, with a mark where the row
// would go. Private to the library.
//
// A press alone selects nothing: the row is selected at release. Rows keep text, data and height. Points are
// in client coordinates; the place behind the last row counts as a row.
#pragma once

#include <afxwin.h>

class CDragListBox2 : public CListBox {
    DECLARE_DYNAMIC(CDragListBox2)

public:
    CDragListBox2();
    ~CDragListBox2() override;

    /// The row at `point`, the count for the space behind the last one, -1 outside. Scrolls the list for a
    /// point above or below it.
    int RowAt(POINT point);

protected:
    /// Shows the mark before row `row`, and takes away the one before; -1 shows none.
    virtual void DrawInsert(int row);
    /// A drag begins; answers 1.
    virtual int BeginDrag(POINT point);
    /// The drag is given up.
    virtual void CancelDrag(POINT point);
    /// The pointer moves; answers DL_MOVECURSOR, or DL_STOPCURSOR where a drop would change nothing.
    virtual UINT Dragging(POINT point);
    /// Moves row `row` to the one at `point`.
    virtual void Dropped(int row, POINT point);

    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnKillFocus(CWnd* taker);
    DECLARE_MESSAGE_MAP()

    int m_dragModified = 0;  ///< 1 after a row was moved; the derived class clears it
    int m_dragStarted = 0;   ///< 0 while a press may still become a drag
    int m_pressItem = -1;    ///< the row pressed, -1 for none
    int m_lastInsert = -1;   ///< where the mark stands, -1 for none

private:
    /// Tells its own window of a step of the drag and answers what came back.
    LRESULT tell(UINT notification, CPoint point);
    /// Draws the mark, or takes it away where it stands.
    void invertMark(int row);
    void moveRow(int from, int to);
};
