// CKbUiComboBox: the base of every combo box of the toolkit.
//
// It takes over the edit and the list that the platform makes inside a combo box as controls of the toolkit,
// paints the closed face of an owner-drawn drop-down list as the system theme asks, and takes part in the
// notification protocol. The parts can be set before or after the window is there; they are attached to their
// windows when these first ask for their colours.
#pragma once

#include <afxwin.h>

#include <ktui/host/tip_control.h>
#include <ktui/ktui_api.h>

class CKbUiEdit;
class CKbUiListBox;

/// The virtual operations of a combo box before those of its tip.
class KbUiComboBoxSlots : public CComboBox {
public:
    /// Puts the text of item `index` into `text`; an index outside the list gives the empty string.
    virtual void GetLBString(int index, CString& text) = 0;
    /// Width and height in pixels of `text` as an item would show it.
    virtual void GetContentExtent(const wchar_t* text, int& cx, int& cy) = 0;
};

class KTUI_API CKbUiComboBox : public KbUiTipControl<CKbUiComboBox, KbUiComboBoxSlots> {
    DECLARE_DYNAMIC(CKbUiComboBox)

public:
    CKbUiComboBox();
    ~CKbUiComboBox() override;

    void GetLBString(int index, CString& text) override;
    void GetContentExtent(const wchar_t* text, int& cx, int& cy) override;

    /// Makes `edit` the edit part; null for none. The former one is let go, and deleted if owned. With
    /// `owned` this control deletes the new one. A null part leaves the question of ownership as it was.
    void SetEditBox(CKbUiEdit* edit, int owned);
    /// The same for the list part, which is also told its combo box.
    void SetListBox(CKbUiListBox* list, int owned);
    /// The edit part, or null. Owned as SetEditBox told.
    CKbUiEdit* GetEditBox() const { return m_editBox; }
    /// The list part, or null. Owned as SetListBox told.
    CKbUiListBox* GetListBox() const { return m_listBox; }

    /// The edit part's style mask; 0 without one.
    DWORD GetStyleMask() const;
    /// TRUE when the edit part has all bits of `mask` set; FALSE without one.
    BOOL IsStyleMaskSet(DWORD mask) const;
    /// Sets the edit part's style mask, if there is one.
    void SetStyleMask(DWORD mask);

    /// Width and height in pixels of `text` in the control's device context as it comes, with 2 added to the
    /// height; 0 by 0 without one.
    void GetTextExtent(const wchar_t* text, int& cx, int& cy);

    /// The text kept for a tool tip.
    const CString& GetToolTipText() const { return m_toolTipText; }
    /// Keeps a text for a tool tip; always TRUE.
    BOOL SetToolTipText(const wchar_t* text);

    /// Whether a theme is active.
    static BOOL IsVistaTheme();
    /// TRUE for an item state with which the closed face is drawn.
    static BOOL IsInEdit(unsigned itemState);
    /// TRUE for a drop-down list, which has no edit field.
    BOOL IsStatic() const;
    /// TRUE if the items are owner-drawn.
    BOOL IsOwnerDraw() const;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;
    /// Draws one item, or the closed face.
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    friend TipControl;

    /// Answers kKbUiNotifyGetTipText; kKbUiReplyNone for every other notification. The class has no tip of
    /// its own.
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum) override;

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* window, UINT kind);
    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    int m_tipItem = 0;  ///< for subclasses
    CString m_toolTipText;
    CWnd* m_kbUiParent = nullptr;
    unsigned m_flags = 0;  ///< 1 edit part owned, 2 list part owned, 4 children taken over
    CKbUiEdit* m_editBox = nullptr;
    CKbUiListBox* m_listBox = nullptr;
    CRect m_tipRect;  ///< for subclasses

private:
    void releaseEditBox();
    void releaseListBox();
    void takeOverEdit(const CWnd& window);
    void takeOverList(const CWnd& window);
    bool isThemedFace() const;
    void OnPaint();
    void drawFace(CDC& dc, const RECT& content, unsigned itemState);
    /// Marks the field of a focused drop-down list that the platform has drawn.
    void markFocus(const DRAWITEMSTRUCT& item);
};
