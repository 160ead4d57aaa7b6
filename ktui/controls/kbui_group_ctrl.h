// CKbUiGroupCtrl: a collapsible group with a header above a body of child windows; CKbUiCoupledGroupCtrl: two
// groups or windows above each other.
//
// Both keep their interface and their state. What they would draw, and the children and header buttons that
// they would hold, are for an application that needs them: nothing is drawn here, and nothing is held.
#pragma once

#include <afxcmn.h>

#include <ktui/ktui_api.h>

class CKbUiTheme;

/// A child of a group.
struct KbUiGroupChild {
    int index;
    CString name;
    CWnd* window;     ///< not owned
    CBitmap* bitmap;  ///< not owned
};

/// What a click on a button of a header calls.
using KbUiGroupHeaderCall = void (*)(CWnd*);

/// A button of a group's header.
struct KbUiGroupHeaderButton {
    CBitmap* bitmap;  ///< not owned
    KbUiGroupHeaderCall callback;
    CString tip;
    DWORD id;
};

class KTUI_API CKbUiGroupCtrl : public CStatic {
    DECLARE_DYNAMIC(CKbUiGroupCtrl)

public:
    CKbUiGroupCtrl() = default;

    // Kept: the child's index is counted, the child is not held, and the answer is false.
    /// The bitmap is loaded from the chain of resource modules and belongs to an override of the other form
    /// that answers true.
    virtual bool AddWnd(CWnd* window, const wchar_t* name, const wchar_t* bitmapName);
    virtual bool AddWnd(CWnd* window, const wchar_t* name, CBitmap* bitmap);
    /// Shows `window`; false for null.
    virtual bool ShowWnd(CWnd* window);
    // Kept: header buttons are not held; `id` is left as it is, and the answer is false.
    virtual bool AddBmpBtnToHeader(CBitmap* bitmap, KbUiGroupHeaderCall callback, DWORD& id,
                                   const wchar_t* tip);
    virtual bool AddBmpBtnToHeader(const wchar_t* bitmapName, KbUiGroupHeaderCall callback, DWORD& id,
                                   const wchar_t* tip);
    virtual bool RemoveBmpBtnFromHeader(DWORD id);
    /// Changes the window's styles, no more.
    virtual void ModGroupStyle(DWORD remove, DWORD add);
    /// Gives the window a font (not owned; null for the system's) and paints it anew if `redraw` is not 0.
    virtual void SetFont(CFont* font, int redraw);
    virtual void SetFont(CFont* font);
    virtual void SetMinimized(bool minimized);
    /// Draws the header anew.
    virtual void DeselectGroupHeader();
    // Kept: these do nothing.
    virtual void DrawGroupHeader();
    virtual void DrawGroupContent();
    virtual void SetTheme(CKbUiTheme* theme);

    void SetTitle(const char* title);
    bool GetMinimized() const { return m_minimized; }
    bool GetActive() const { return m_active; }
    void SetActive(bool active) { m_active = active; }
    bool GetHideGroupHeader() const { return m_hideGroupHeader; }
    void SetHideGroupHeader(bool hide) { m_hideGroupHeader = hide; }
    int GetHeaderHeight() const { return m_headerHeight; }
    void SetHeaderHeight(int height) { m_headerHeight = height; }
    int GetSelIndex() const { return m_selIndex; }
    void SetSelIndex(int index) { m_selIndex = index; }
    /// The group's own style, not the window's.
    DWORD GetStyle() const { return m_style; }
    void SetStyle(DWORD style) { m_style = style; }

    // Kept: no message is translated.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    // Kept: these swallow their messages.
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint point);
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* window, UINT control);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnChevronClicked();
    DECLARE_MESSAGE_MAP()

    CBrush m_brush;
    CString m_title;
    bool m_minimized = false;
    bool m_active = false;
    bool m_hideGroupHeader = false;
    int m_headerHeight = 0;
    int m_selIndex = 0;
    DWORD m_style = 0;
    CToolTipCtrl m_toolTip;
};

class KTUI_API CKbUiCoupledGroupCtrl : public CWnd {
    DECLARE_DYNAMIC(CKbUiCoupledGroupCtrl)

public:
    CKbUiCoupledGroupCtrl() = default;

    // Each form keeps its two arguments (not owned) and leaves the fields of other types alone.
    virtual void AddCouple(CWnd* top, CKbUiGroupCtrl* bottom);
    virtual void AddCouple(CKbUiGroupCtrl* top, CWnd* bottom);
    virtual void AddCouple(CWnd* top, CWnd* bottom);
    virtual void AddCouple(CKbUiGroupCtrl* top, CKbUiGroupCtrl* bottom);
    /// Minimises `child`, which must not be null, or maximises it, and maximises each other member.
    virtual void MinMaxOneChild(CWnd* child, bool minimise);

    double GetTopToWholeRatio() const { return m_topToWholeRatio; }
    void SetTopToWholeRatio(double ratio) { m_topToWholeRatio = ratio; }
    bool GetSplitterEnabled() const { return m_splitterEnabled; }
    void SetSplitterEnabled(bool enabled) { m_splitterEnabled = enabled; }

    // Kept: these do nothing, and answer false.
    void SetTheme(CKbUiTheme* theme);
    void ResizeChildren();
    bool IsAnyCtrlMinimizedOrIconic() const;
    bool ValidateCtrls() const;

protected:
    // Kept: these swallow their messages.
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* window, UINT control);
    DECLARE_MESSAGE_MAP()

    CBrush m_brush;
    CKbUiGroupCtrl* m_topGroup = nullptr;
    CKbUiGroupCtrl* m_bottomGroup = nullptr;
    CWnd* m_topWnd = nullptr;
    CWnd* m_bottomWnd = nullptr;
    double m_topToWholeRatio = 0;
    bool m_splitterEnabled = false;
};
