// CKbUiHeaderCtrl: a header whose clipped item texts come up as tips below it.
#pragma once

#include <afxcmn.h>

#include <ktui/host/draw_tip_text.h>
#include <ktui/host/notification.h>
#include <ktui/ktui_api.h>

class KTUI_API CKbUiHeaderCtrl : public CHeaderCtrl {
    DECLARE_DYNAMIC(CKbUiHeaderCtrl)

public:
    CKbUiHeaderCtrl();

    /// Index of the item at `point` (client), or -1.
    int GetItemAtPoint(CPoint& point);
    /// The area in which item `index` shows its tip, client coordinates: below the item and 20 pixels to the
    /// right. Answers the platform's result; 0 for an index that is no item.
    BOOL GetItemRect(int index, CRect& rect);
    /// At most 254 characters of item `index`'s text; empty if there is none.
    void GetText(int index, CString& text);
    /// 1 if item `index` is owner-drawn, otherwise 0.
    int IsOwnerDraw(int index);

    /// Who is told of mouse moves: the window set, or else the parent window. Not owned.
    CWnd* GetKbUiParent() const;
    /// Sets who is told; null for the parent window. Not owned.
    void SetKbUiParent(CWnd* parent) { m_kbUiParent = parent; }

    /// Width and height in pixels of `text`; 0 by 0 unless `index` is an item.
    virtual void GetContentExtent(int index, const wchar_t* text, int& cx, int& cy);

protected:
    friend struct TipDispatch;

    /// Answers a notification; kKbUiReplyNone for those that the class doesn't know.
    virtual KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum);
    /// Paints nothing: the owner of an owner-drawn item does.
    virtual void OnDrawTip(CDC& dc);
    /// Paints the tip's text in the tip's rectangle; FALSE without an item under the tip.
    virtual BOOL OnDrawTipText(CKbUiDrawTipText& tip);
    /// What tip there is at `point` (client); remembers its item.
    virtual KBUI_REPLY OnGetTipSupport(CPoint& point);
    /// TRUE with the tip's rectangle (client) if the text of the item under the mouse is clipped.
    virtual BOOL OnGetTipRect(CRect& rect);
    /// Puts the text of the item under the tip into `text`.
    virtual BOOL OnGetTipText(CString& text);
    /// TRUE if there is an item at `point` (client).
    virtual BOOL OnHitTipRect(CPoint& point);

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    int m_tipItem = -1;
    CRect m_tipRect;
    CWnd* m_kbUiParent = nullptr;

private:
    bool isItem(int index) const { return index >= 0 && index < GetItemCount(); }
};
