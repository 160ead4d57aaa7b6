// CMFCToolBarButton: a button of a toolbar.
#pragma once

#include <kmfc/gdi.h>
#include <kmfc/string.h>
#include <kmfc/tool_bar.h>

class CMFCToolBar;
class CMFCToolBarImages;

/// What a toolbar holds, and draws by. Derive from it for a button with another look; the bar deletes its
/// buttons. A button with the command 0 is a separator.
class KMFC_API CMFCToolBarButton : public CObject {
    DECLARE_DYNCREATE(CMFCToolBarButton)
public:
    CMFCToolBarButton();
    /// `iImage` is its picture among those of the bar, -1 for none. Without a picture, or with `lpszText`
    /// shown, the text stands in the button (m_bText).
    CMFCToolBarButton(UINT uiID, int iImage, LPCTSTR lpszText = nullptr);

    UINT m_nID = 0;
    UINT m_nStyle = TBBS_BUTTON;  ///< TBBS_ styles
    CString m_strText;
    BOOL m_bText = FALSE;  ///< the text is shown
    BOOL m_bImage = TRUE;  ///< the picture is shown
    BOOL m_bWrap = FALSE;  ///< a row ends behind it

    virtual int GetImage() const { return m_iImage; }
    virtual void SetImage(int iImage);
    virtual void SetStyle(UINT nStyle) { m_nStyle = nStyle; }
    virtual void SetVisible(BOOL bShow = TRUE) { m_bVisible = bShow; }
    BOOL IsVisible() const { return m_bVisible; }
    BOOL IsHidden() const { return !m_bVisible || m_rect.IsRectEmpty(); }
    BOOL IsSeparator() const { return (m_nStyle & TBBS_SEPARATOR) != 0; }
    BOOL IsEnabled() const { return (m_nStyle & TBBS_DISABLED) == 0; }
    BOOL IsChecked() const { return (m_nStyle & TBBS_CHECKED) != 0; }
    BOOL IsPressed() const { return (m_nStyle & TBBS_PRESSED) != 0; }

    /// Client coordinates of the bar; empty while it takes no room.
    const CRect Rect() const { return m_rect; }
    virtual void SetRect(const CRect& rect) { m_rect = rect; }
    /// The room that it wants, in pixels, `sizeDefault` being that of a button with a picture only. A text
    /// has no room in a bar that stands upright when there is a picture.
    virtual SIZE OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz);
    /// `bHighlight` when the mouse or the keyboard's mark is on it.
    virtual void OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz = TRUE,
                        BOOL bHighlight = FALSE, const CSize& sizeImage = CSize(0, 0));
    /// Called before the command of a button that was pressed is sent; TRUE when that is all, and nothing is
    /// sent.
    virtual BOOL OnClick(CWnd* /*pWnd*/) { return FALSE; }

protected:
    int m_iImage = -1;
    CRect m_rect{0, 0, 0, 0};
    BOOL m_bVisible = TRUE;
};
