// CKbUiListCtrl: a list control whose clipped cell texts come up as tips, with a header that does the same.
#pragma once

#include <ktui/controls/kbui_header_ctrl.h>

class KTUI_API CKbUiListCtrl : public CListCtrl {
    DECLARE_DYNAMIC(CKbUiListCtrl)

public:
    CKbUiListCtrl();

    // Kept: the number of rows, whatever the name says.
    int ColumnCount() const;
    /// Row and column of the cell at `point` (client); both -1 if there is none.
    void GetItemAtPoint(CPoint& point, int& item, int& column);
    /// The part of a cell, client coordinates, in which its text stands. Answers 0 with an empty rectangle
    /// for a cell that isn't there.
    BOOL GetSubItemRect(int item, int column, CRect& rect);
    /// TRUE if the control is owner-drawn.
    BOOL IsOwnerDraw() const;

    /// Who is told of mouse moves: the window set, or else the parent window. Not owned.
    CWnd* GetKbUiParent() const;
    /// Sets who is told; null for the parent window. Not owned.
    void SetKbUiParent(CWnd* parent) { m_kbUiParent = parent; }

    /// Width and height in pixels of `text`; with an embedded header 0 by 0 unless both indexes are in range.
    virtual void GetContentExtent(int item, int column, const wchar_t* text, int& cx, int& cy);

protected:
    friend struct TipDispatch;

    /// Answers a notification; kKbUiReplyNone for those that the class doesn't know.
    virtual KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum);
    /// Paints nothing.
    virtual void OnDrawTip(CDC& dc);
    /// Paints the tip's text in the tip's rectangle; FALSE without a row under the tip.
    virtual BOOL OnDrawTipText(CKbUiDrawTipText& tip);
    /// What tip there is at `point` (client); remembers its cell.
    virtual KBUI_REPLY OnGetTipSupport(CPoint& point);
    /// TRUE with the tip's rectangle (client) if the text of the cell under the mouse is clipped.
    virtual BOOL OnGetTipRect(CRect& rect);
    /// Puts the text of the cell under the mouse into `text`; FALSE if there is none.
    virtual BOOL OnGetTipText(CString& text);
    /// TRUE if the mouse was last seen over a cell.
    virtual BOOL OnHitTipRect(CPoint& point);

    void PreSubclassWindow() override;

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    int m_tipColumn = -1;
    int m_tipItem = -1;
    CRect m_tipRect;
    CKbUiHeaderCtrl m_header;
    CWnd* m_kbUiParent = nullptr;
};
