// CKhTipCtrl: a tip that a host places anywhere, with one text or several lines, after a delay.
//
//     m_tip.Create(this);
//     m_tip.Activate(screenPoint, {L"Line", L"Layer: Walls"});  // shown after half a second
//     m_tip.Deactivate();                                       // the pointer moved on
#pragma once

#include <afxwin.h>
#include <od_array.h>
#include <od_string.h>

#include <ktui/ktui_api.h>

class KTUI_API CKhTipCtrl : public CWnd {
public:
    CKhTipCtrl();
    ~CKhTipCtrl() override;

    /// Makes the window, hidden, owned by `parent`; 0 on failure.
    BOOL Create(CWnd* parent);

    /// Shows `lines` at the screen point after the delay. Nothing happens if lines are shown, or wait, at the
    /// same point already.
    virtual void Activate(const CPoint& point, const OdArray<OdString>& lines);
    /// Shows `text` at the screen point, at once or after the delay. Nothing happens if the same text is
    /// shown, or waits, at the same point already.
    virtual void Activate(const CPoint& point, const wchar_t* text, bool delayed);
    /// Hides the tip, also one that waits.
    virtual void Deactivate();

protected:
    using CWnd::Create;

    /// Makes the window layered; nothing on a system without layered windows.
    void SetLayeredAttributes(COLORREF key, BYTE alpha, DWORD flags);
    /// Gives the window the size of its contents, moves it to its point and shows it.
    void UpdateTip();

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

    int m_timer = 0;  ///< 1984 while the delay runs
    CPoint m_position;
    OdString m_text;
    int m_multiLine = 0;
    COLORREF m_keyColor;
    OdArray<OdString> m_lines;
    int m_lineHeight = 10;

private:
    /// Starts the delay with the window shown off the screen.
    void wait();
    void endTimer();
    CSize measuredLines(CDC& dc);
    void paintLines(CDC& dc, CRect area);
    void paintText(CDC& dc, CRect area);
};
