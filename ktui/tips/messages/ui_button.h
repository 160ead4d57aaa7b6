// CUiButton: a button of a task dialog, which is a command link if it is owner-drawn: a title, a second text
// below it, an arrow. Private to the library.
#pragma once

#include <afxwin.h>

class CUiButton : public CButton {
public:
    /// Makes the window from the fields below.
    BOOL CreateIn(CWnd& dialog);
    bool isLink() const { return (m_style & BS_TYPEMASK) == BS_OWNERDRAW; }

    void DrawItem(LPDRAWITEMSTRUCT item) override;

    CRect m_rect;  ///< client coordinates of the dialog
    CString m_title;
    CString m_extendedText;
    int m_id = 0;
    CFont* m_titleFont = nullptr;  ///< not owned
    CFont* m_textFont = nullptr;   ///< not owned
    DWORD m_style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    int m_glyph = 0;   ///< 1: an arrow stands before the title
    int m_margin = 0;  ///< pixels
    int m_hover = 0;   ///< 1 while the pointer is on the button

protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAccessible(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void drawFrames(CDC& dc, const CRect& client, UINT state) const;
    void drawGlyph(CDC& dc) const;
    void drawTexts(CDC& dc, const CRect& client) const;
    void endHover();
};
