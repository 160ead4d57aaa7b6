// CKbUiListBox: a list box whose clipped entries come up as tips, and which can leave its owner-drawing to
// the combo box that drops it down.
#pragma once

#include <afxwin.h>

#include <ktui/host/tip_control.h>
#include <ktui/ktui_api.h>

class CKbUiComboBox;

class KTUI_API CKbUiListBox : public KbUiTipControl<CKbUiListBox, KbUiEntrySlots<CListBox>> {
    DECLARE_DYNAMIC(CKbUiListBox)

public:
    CKbUiListBox();

    /// Index of the entry at `point` (client), or -1.
    int GetItemAtPoint(CPoint& point);
    /// Width and height in pixels of `text` in the control's font, plus 1 in both directions; 0 by 0 without
    /// a device context.
    void GetTextExtent(const wchar_t* text, int& cx, int& cy);
    /// TRUE if the entries are owner-drawn.
    BOOL IsOwnerDraw() const;

    /// Whether the combo box draws, compares and measures the entries; 1 at first.
    int GetComboBoxDraw() const { return m_comboBoxDraw; }
    void SetComboBoxDraw(int comboBoxDraw) { m_comboBoxDraw = comboBoxDraw; }
    /// The combo box that drops this list down, or null. Not owned; forgotten when the window goes.
    CKbUiComboBox* GetComboBox() const { return m_comboBox; }
    void SetComboBox(CKbUiComboBox* comboBox) { m_comboBox = comboBox; }

    // Owner-drawing: done by the combo box if it is to draw, otherwise not at all (CompareItem answers 0).
    int CompareItem(LPCOMPAREITEMSTRUCT item) override;
    void DeleteItem(LPDELETEITEMSTRUCT item) override;
    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;

    void GetContentExtent(int index, const wchar_t* text, int& cx, int& cy) override;

protected:
    friend TipControl;

    /// Has the entry under the tip paint itself into the tip, for an owner-drawn list.
    void OnDrawTip(CDC& dc) override;
    /// Paints a framed text tip; FALSE without an entry under the tip.
    BOOL OnDrawTipText(CKbUiDrawTipText& tip) override;
    /// What tip there is at `point` (client); remembers its entry.
    KBUI_REPLY OnGetTipSupport(CPoint& point) override;
    /// TRUE with the tip's rectangle (client) if the entry under the mouse is wider than its row.
    BOOL OnGetTipRect(CRect& rect) override;
    /// Puts the text of the entry under the mouse into `text`; FALSE if there is none.
    BOOL OnGetTipText(CString& text) override;
    /// TRUE if there is an entry at `point` (client).
    BOOL OnHitTipRect(CPoint& point) override;

    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    int m_tipItem = -1;
    CRect m_tipRect;
    CWnd* m_kbUiParent = nullptr;
    int m_comboBoxDraw = 1;
    CKbUiComboBox* m_comboBox = nullptr;

private:
    bool isItem(int index) const { return index >= 0 && index < GetCount(); }
    bool isDrawnByComboBox() const { return m_comboBoxDraw != 0 && m_comboBox != nullptr; }
};
