// CKbUiListCtrl: a list control whose clipped cell texts come up as tips, with a header that does the same.
#pragma once

#include <ktui/controls/kbui_header_ctrl.h>

/// The virtual operation of a list control before those of its tip.
class KbUiListCtrlSlots : public CListCtrl {
public:
    /// Width and height in pixels of `text`; with an embedded header 0 by 0 unless both indexes are in range.
    virtual void GetContentExtent(int item, int column, const wchar_t* text, int& cx, int& cy) = 0;
};

class KTUI_API CKbUiListCtrl : public KbUiTipControl<CKbUiListCtrl, KbUiListCtrlSlots> {
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

    void GetContentExtent(int item, int column, const wchar_t* text, int& cx, int& cy) override;

protected:
    friend TipControl;

    /// Paints the tip's text in the tip's rectangle; FALSE without a row under the tip.
    BOOL OnDrawTipText(CKbUiDrawTipText& tip) override;
    /// What tip there is at `point` (client); remembers its cell.
    KBUI_REPLY OnGetTipSupport(CPoint& point) override;
    /// TRUE with the tip's rectangle (client) if the text of the cell under the mouse is clipped.
    BOOL OnGetTipRect(CRect& rect) override;
    /// Puts the text of the cell under the mouse into `text`; FALSE if there is none.
    BOOL OnGetTipText(CString& text) override;
    /// TRUE if the mouse was last seen over a cell.
    BOOL OnHitTipRect(CPoint& point) override;

    void PreSubclassWindow() override;

    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    int m_tipColumn = -1;
    int m_tipItem = -1;
    CRect m_tipRect;
    CKbUiHeaderCtrl m_header;
    CWnd* m_kbUiParent = nullptr;
};
