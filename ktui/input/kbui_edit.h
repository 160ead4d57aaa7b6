// CKbUiEdit: an edit control that shows its whole text in a tip when the text doesn't fit.
//
// The control reports mouse moves to its holder as kKbUiNotifyUpdateTip and answers the holder's tip
// questions; the holder decides whether and where a tip appears. A control that has the focus reports
// nothing.
#pragma once

#include <afxwin.h>

#include <ktui/host/tip_control.h>
#include <ktui/ktui_api.h>

/// The virtual operations of an edit before those of its tip.
class KbUiEditSlots : public CEdit {
public:
    /// Width and height in pixels of `text` as the control would show it.
    virtual void GetContentExtent(const wchar_t* text, int& width, int& height) = 0;
    /// Replaces the style mask; its bits are those of KTUI_EDIT_STYLE.
    virtual void SetStyleMask(DWORD mask) = 0;
};

class KTUI_API CKbUiEdit : public KbUiTipControl<CKbUiEdit, KbUiEditSlots> {
    DECLARE_DYNAMIC(CKbUiEdit)

public:
    CKbUiEdit();

    void GetContentExtent(const wchar_t* text, int& width, int& height) override;
    void SetStyleMask(DWORD mask) override;

    /// Measures `text` in the control's font, in pixels; 0 by 0 without a device context.
    void GetTextExtent(const wchar_t* text, int& width, int& height);
    /// The style mask as last set.
    DWORD GetStyleMask() const { return m_styleMask; }
    /// TRUE when all bits of `mask` are set.
    BOOL IsStyleMaskSet(DWORD mask) const { return (m_styleMask & mask) == mask; }

protected:
    friend TipControl;

    /// Paints a framed text tip.
    BOOL OnDrawTipText(CKbUiDrawTipText& tip) override;
    /// kKbUiReplyHandled if `point` (client) is in the control.
    KBUI_REPLY OnGetTipSupport(CPoint& point) override;
    /// TRUE with the rectangle (client) that shows the whole text, or FALSE and empty if the text fits.
    BOOL OnGetTipRect(CRect& rect) override;
    /// Puts the window text into `text`.
    BOOL OnGetTipText(CString& text) override;
    /// TRUE if `point` (client) is in the control.
    BOOL OnHitTipRect(CPoint& point) override;

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    CRect m_tipRect;
    DWORD m_styleMask = 0;
    CWnd* m_kbUiParent = nullptr;

private:
    bool contains(CPoint point) const;
};
