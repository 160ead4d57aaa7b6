// CKbUiTipWindow: a small popup that lies exactly over a control and shows what the control cannot.
//
// It takes no focus, hands clicks on to the control beneath, and goes as soon as the mouse leaves. A dialog
// holds one for all its controls; CKbUiTextTip is the kind it uses. Shown only while some window of the
// thread has the focus; timer 1 runs exactly while it is shown.
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

class KTUI_API CKbUiTipWindow : public CWnd {
    DECLARE_DYNAMIC(CKbUiTipWindow)

public:
    CKbUiTipWindow();

    /// 1: the window's own text is shown. 0: the control paints (kKbUiNotifyDrawTip).
    int GetUseText() const { return m_useText; }
    void SetUseText(int useText) { m_useText = useText; }
    /// The control under the tip; not owned. Without one nothing is painted and no click is handed on.
    void SetControl(CWnd* control) { m_control = control; }
    /// The window that Create was given.
    CWnd* Owner() const { return m_owner; }

    /// Extent of `text` in pixels in the owner's font; 0 by 0 without a device context.
    void GetTextExtent(const wchar_t* text, int& width, int& height);

    /// Paints the frame into `rect`; `inner` becomes what is left for the content.
    virtual void DrawBorder(CDC& dc, CRect& rect, CRect& inner);
    /// Paints the text into `rect` if the window's own text is to be shown.
    virtual void DrawContent(CDC& dc, CRect& rect);
    /// Makes the window, hidden and empty, as a popup of `owner`. Non-zero on success. Throws
    /// CResourceException if the window class cannot be registered.
    virtual BOOL Create(CWnd* owner);
    virtual void Hide();
    /// Shows the tip on top of all windows, without activating it; nothing happens in an inactive
    /// application.
    virtual void Show();

protected:
    using CWnd::Create;

    /// Starts timer 1 afresh.
    void StartTimer(UINT milliseconds);
    void StopTimer();

    afx_msg void OnPaint();
    afx_msg void OnActivateApp(BOOL active, DWORD threadId);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnNcDestroy();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    int m_useText = 0;
    CWnd* m_control = nullptr;
    CWnd* m_owner = nullptr;
    UINT_PTR m_timer = 0;

private:
    /// Hides the tip and sends the control the button message at its own coordinates.
    void forwardButton(UINT message, UINT flags, CPoint point);
};
