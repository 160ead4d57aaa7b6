// COleDropTarget and COleDropSource: where data is dropped, and how a drag goes on.
#pragma once

#include <kmfc/ole_data.h>
#include <kmfc/wnd.h>

/// Lets a window take what is dragged over it. Derive from it, override what should be accepted, and call
/// Register once the window is there; AfxOleInit must have been called.
class KMFC_API COleDropTarget : public CCmdTarget {
    DECLARE_DYNAMIC(COleDropTarget)
public:
    COleDropTarget() = default;
    ~COleDropTarget() override;
    COleDropTarget(const COleDropTarget&) = delete;
    COleDropTarget& operator=(const COleDropTarget&) = delete;

    /// Makes `pWnd` the target's window; FALSE if it has one already or the system refuses.
    BOOL Register(CWnd* pWnd);
    /// Ends what Register began. A window that ends must have been revoked before.
    virtual void Revoke();

    // Points are in client coordinates of the window, keys as MK_... . An effect is what a drop would do.
    virtual DROPEFFECT OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    virtual DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    /// The data has left the window, or the drag was given up.
    virtual void OnDragLeave(CWnd* pWnd);
    /// Comes before OnDragEnter and OnDragOver, which are left out if the answer has DROPEFFECT_SCROLL.
    virtual DROPEFFECT OnDragScroll(CWnd* pWnd, DWORD dwKeyState, CPoint point);
    /// The data was dropped; TRUE if it was taken.
    virtual BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point);
    /// Comes before OnDrop, which follows if the answer is -1, as the base's is; otherwise that is the
    /// effect.
    virtual DROPEFFECT OnDropEx(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropDefault,
                                DROPEFFECT dropList, CPoint point);

    HWND m_hWnd = nullptr;  ///< the window; null without one

private:
    class Served;
    Served* m_served = nullptr;
};

/// Decides when a drag begins, ends and is given up, and how it shows.
class KMFC_API COleDropSource : public CCmdTarget {
    DECLARE_DYNAMIC(COleDropSource)
public:
    COleDropSource() = default;

    /// DRAGDROP_S_CANCEL for Escape or the other mouse button, DRAGDROP_S_DROP once the button that began is
    /// up, S_OK to go on.
    virtual SCODE QueryContinueDrag(BOOL bEscapePressed, DWORD dwKeyState);
    /// DRAGDROP_S_USEDEFAULTCURSORS for the system's cursors.
    virtual SCODE GiveFeedback(DROPEFFECT dropEffect);
    /// Waits with the mouse captured until it has left m_rectStartDrag or some time has passed; FALSE if the
    /// button was let go or Escape pressed before.
    virtual BOOL OnBeginDrag(CWnd* pWnd);

protected:
    friend class COleDataSource;

    CRect m_rectStartDrag = CRect(0, 0, 0, 0);  ///< screen coordinates
    DWORD m_dwButtonDrop = MK_LBUTTON;          ///< the button that ends the drag when it is let go
    DWORD m_dwButtonCancel = MK_RBUTTON;        ///< the button that gives it up
};
