// CToolTip: a tracking tool tip for a control whose items are wider than the control. Private to the library.
#pragma once

#include <afxcmn.h>

class CToolTip : public CWnd {
public:
    /// Makes the tip's window, in the font of `control`, which has to outlive it.
    explicit CToolTip(CWnd& control);
    ~CToolTip() override;

    /// Shows `text` at the screen point. The same text as before leaves the tip where it is.
    void Show(const CPoint& point, const CString& text);
    void Hide();

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    DECLARE_MESSAGE_MAP()

    TOOLINFOW m_toolInfo = {};
    int m_shown = 0;
    CString m_text;

private:
    LRESULT tell(UINT message, WPARAM wParam = 0) {
        return SendMessage(message, wParam, reinterpret_cast<LPARAM>(&m_toolInfo));
    }
};
