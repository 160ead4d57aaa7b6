// CDragListBox: a list box whose items the user moves by dragging.
#pragma once

#include <kmfc/list_box.h>

/// The style must have neither LBS_SORT nor LBS_MULTIPLESEL. Points are in screen coordinates.
class KMFC_API CDragListBox : public CListBox {
    DECLARE_DYNAMIC(CDragListBox)
public:
    CDragListBox() = default;
    ~CDragListBox() override;

    /// The item at a point, -1 for none. With `bAutoScroll` the list scrolls for a point above or below it.
    int ItemFromPt(CPoint pt, BOOL bAutoScroll = TRUE) const;
    /// Draws the mark before an item in the parent, beside the list, and takes away the one before; -1 draws
    /// none.
    virtual void DrawInsert(int nItem);

    /// A drag begins; FALSE forbids it.
    virtual BOOL BeginDrag(CPoint pt);
    /// The user gave up.
    virtual void CancelDrag(CPoint pt);
    /// The pointer moved; answers the cursor, DL_MOVECURSOR and its like.
    virtual UINT Dragging(CPoint pt);
    /// An item was dropped; moves it with its data before the one at the point.
    virtual void Dropped(int nSrcIndex, CPoint pt);

protected:
    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

private:
    int m_nDragged = -1;
};
