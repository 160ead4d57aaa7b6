// CKbUiHeaderCtrl: a header whose clipped item texts come up as tips below it.
#pragma once

#include <afxcmn.h>

#include <ktui/host/tip_control.h>
#include <ktui/ktui_api.h>

class KTUI_API CKbUiHeaderCtrl : public KbUiTipControl<CKbUiHeaderCtrl, KbUiEntrySlots<CHeaderCtrl>> {
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

    void GetContentExtent(int index, const wchar_t* text, int& cx, int& cy) override;

protected:
    friend TipControl;

    /// Paints nothing: the owner of an owner-drawn item does.
    void OnDrawTip(CDC& dc) override;
    /// Paints the tip's text in the tip's rectangle; FALSE without an item under the tip.
    BOOL OnDrawTipText(CKbUiDrawTipText& tip) override;
    /// What tip there is at `point` (client); remembers its item.
    KBUI_REPLY OnGetTipSupport(CPoint& point) override;
    /// TRUE with the tip's rectangle (client) if the text of the item under the mouse is clipped.
    BOOL OnGetTipRect(CRect& rect) override;
    /// Puts the text of the item under the tip into `text`.
    BOOL OnGetTipText(CString& text) override;
    /// TRUE if there is an item at `point` (client).
    BOOL OnHitTipRect(CPoint& point) override;

    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    int m_tipItem = -1;
    CRect m_tipRect;
    CWnd* m_kbUiParent = nullptr;

private:
    bool isItem(int index) const { return index >= 0 && index < GetItemCount(); }
};
