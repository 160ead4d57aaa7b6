// CKbUiEdit: an edit control that shows its whole text in a tip when the text doesn't fit.
//
// The control reports mouse moves to its holder as kKbUiNotifyUpdateTip and answers the holder's tip
// questions; the holder decides whether and where a tip appears. A control that has the focus reports
// nothing.
#pragma once

#include <afxwin.h>

#include <ktui/host/draw_tip_text.h>
#include <ktui/host/notification.h>
#include <ktui/ktui_api.h>

class KTUI_API CKbUiEdit : public CEdit {
    DECLARE_DYNAMIC(CKbUiEdit)

public:
    CKbUiEdit();

    /// Width and height in pixels of `text` as the control would show it.
    virtual void GetContentExtent(const wchar_t* text, int& width, int& height);
    /// Replaces the style mask; its bits are those of KTUI_EDIT_STYLE.
    virtual void SetStyleMask(DWORD mask);

    /// Measures `text` in the control's font, in pixels; 0 by 0 without a device context.
    void GetTextExtent(const wchar_t* text, int& width, int& height);
    /// The style mask as last set.
    DWORD GetStyleMask() const { return m_styleMask; }
    /// TRUE when all bits of `mask` are set.
    BOOL IsStyleMaskSet(DWORD mask) const { return (m_styleMask & mask) == mask; }

    /// Who is told of mouse moves: the window set, or else the parent window. Not owned.
    CWnd* GetKbUiParent() const;
    /// Sets who is told; null for the parent window. Not owned.
    void SetKbUiParent(CWnd* parent) { m_kbUiParent = parent; }

protected:
    friend struct TipDispatch;

    /// Answers a notification; kKbUiReplyNone for those that the class doesn't know.
    virtual KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum);
    /// Paints an owner-drawn tip. This class has none.
    virtual void OnDrawTip(CDC& dc);
    /// Paints a framed text tip.
    virtual BOOL OnDrawTipText(CKbUiDrawTipText& tip);
    /// kKbUiReplyHandled if `point` (client) is in the control.
    virtual KBUI_REPLY OnGetTipSupport(CPoint& point);
    /// TRUE with the rectangle (client) that shows the whole text, or FALSE and empty if the text fits.
    virtual BOOL OnGetTipRect(CRect& rect);
    /// Puts the window text into `text`.
    virtual BOOL OnGetTipText(CString& text);
    /// TRUE if `point` (client) is in the control.
    virtual BOOL OnHitTipRect(CPoint& point);

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    CRect m_tipRect;
    DWORD m_styleMask = 0;
    CWnd* m_kbUiParent = nullptr;

private:
    bool contains(CPoint point) const;
};
