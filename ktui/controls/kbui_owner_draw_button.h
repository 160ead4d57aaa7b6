// CKbUiOwnerDrawButton: the base of the toolkit's picture and tool buttons.
//
// Whatever button it is attached to becomes an owner-drawn one, which this class paints: by the system's
// visual styles where they are on, in the classic way otherwise. While the mouse is over it the button holds
// the capture and is "pointed at". A tip comes by the notification protocol: at each new place of the mouse
// the holder is asked to support a tip (kKbUiNotifyGetTipSupport with 0, after the first time with 1).
//
//     class CStarButton : public CKbUiOwnerDrawButton {
//         void DrawButton(CDC& dc, int width, int height, int isDefault, int isDisabled, int isPressed,
//                         int hasFocus) override;
//     };
#pragma once

#include <afxwin.h>
#include <uxtheme.h>

#include <ktui/host/tip_control.h>
#include <ktui/ktui_api.h>

class CKbUiTheme;
enum KbUiThemeElement : int;

class KTUI_API CKbUiOwnerDrawButton : public KbUiTipControl<CKbUiOwnerDrawButton, CButton> {
    DECLARE_DYNAMIC(CKbUiOwnerDrawButton)

public:
    CKbUiOwnerDrawButton();
    ~CKbUiOwnerDrawButton() override;

    // The flags. A setter keeps the lowest bit of its argument; a getter answers -1 (all ones) or 0.
    /// The control is a drop site.
    int GetEnableDragDrop() const { return flag(kDragDrop); }
    void SetEnableDragDrop(int enable) { setFlag(kDragDrop, enable); }
    // Kept: on at first, and nothing looks at it.
    int GetEnableFastDraw() const { return flag(kFastDraw); }
    void SetEnableFastDraw(int enable) { setFlag(kFastDraw, enable); }
    // Kept: a wish for feedback to the mouse that no handler looks at.
    int GetEnablePointedAt() const { return flag(kWantsPointedAt); }
    void SetEnablePointedAt(int enable) { setFlag(kWantsPointedAt, enable); }
    /// The mouse is over the control. The setter calls OnPointedAt as well.
    int GetIsPointedAt() const { return flag(kPointedAt); }
    void SetIsPointedAt(int pointedAt);
    /// The control ignores the mouse, save for its tip.
    int GetIsStatic() const { return flag(kStatic); }
    void SetIsStatic(int isStatic) { setFlag(kStatic, isStatic); }
    /// The control is a tool button.
    int GetIsToolButton() const { return flag(kToolButton); }
    void SetIsToolButton(int isToolButton) { setFlag(kToolButton, isToolButton); }

    /// Notes that the control is tracking.
    virtual void SetTracking(int tracking);
    /// Keeps `theme`, which stays the caller's, and answers it.
    virtual CKbUiTheme* SetTheme(CKbUiTheme* theme);
    /// Draws a frame one pixel wide inside the right and bottom edge of `rect`.
    virtual void DrawBorder(CDC* dc, CRect& rect, COLORREF color);
    /// For subclasses; nothing here, and nobody calls it.
    virtual void DrawHotBorder();
    /// Draws the whole button from 0, 0 on, `width` by `height` pixels. The last four are 0 or not 0.
    virtual void DrawButton(CDC& dc, int width, int height, int isDefault, int isDisabled, int isPressed,
                            int hasFocus);
    /// Draws the frame of a push button in the classic way; `rect` is as before afterwards.
    virtual void DrawPushButtonBorder(CDC& dc, CRect& rect, int isDefault, int isPressed);
    /// Draws a sunken edge inside `rect` for state 1, a raised one for any other. Nobody calls it.
    virtual void DrawToolButtonBorder(CDC& dc, CRect& rect, int state, int unused);
    /// What AutoLoad does; answers 0 here.
    virtual int OnAutoLoad();
    /// Files were dropped on the control; nothing here. Whoever takes them ends them by DragFinish.
    virtual void OnDragDrop(HDROP files);
    /// The control is pointed at (not 0) or no longer (0): it is painted anew.
    virtual void OnPointedAt(int pointedAt);
    /// What Reload does: the control is painted anew. Answers 1.
    virtual int OnReload(const wchar_t* name);
    /// An element of the theme changed; nothing here.
    virtual void ThemeModified(KbUiThemeElement element);

    /// Loads what the control shows, as its kind has it; answers what OnAutoLoad does.
    int AutoLoad() { return OnAutoLoad(); }
    /// Loads what the control shows anew from `name`; answers what OnReload does.
    int Reload(const wchar_t* name) { return OnReload(name); }

    // Kept: a timer goes on until it is stopped or started anew, though the control is no longer pointed at.
    /// After `milliseconds`, and each time they have passed again, the control is no longer pointed at.
    void StartTimer(DWORD milliseconds);
    void StopTimer();

    /// The open visual style of the control; null in the classic way.
    HTHEME GetVisualStylesTheme() const { return m_visualStylesTheme; }

    void DrawItem(LPDRAWITEMSTRUCT item) override;

    static const UINT_PTR m_timerEvent = 1;

protected:
    friend TipControl;

    // Bits of m_buttonFlags.
    enum : unsigned {
        kDragDrop = 1,
        kFastDraw = 2,
        kWantsPointedAt = 4,
        kPointedAt = 8,
        kStatic = 16,
        kToolButton = 32,
        kTracking = 64
    };

    /// Draws a frame around the tip's rectangle.
    void OnDrawTip(CDC& dc) override;
    // Kept: draws the text and yet answers FALSE.
    BOOL OnDrawTipText(CKbUiDrawTipText& tip) override;
    /// There is no tip here.
    KBUI_REPLY OnGetTipSupport(CPoint& point) override;
    /// Empties `rect`; FALSE.
    BOOL OnGetTipRect(CRect& rect) override;
    /// The window text; TRUE.
    BOOL OnGetTipText(CString& text) override;
    /// Whether `point` (client) is in the tip's rectangle.
    BOOL OnHitTipRect(CPoint& point) override;

    void PreSubclassWindow() override;

    /// Draws all of a button but its caption or picture.
    void DrawFrame(CDC& dc, int width, int height, int isDefault, int isDisabled, int isPressed,
                   int hasFocus);
    /// Draws one line of `text` in the middle of `rect`, in grey if `isDisabled`; nothing for an empty one.
    void DrawContentText(CDC& dc, CString text, CRect& rect, int isDisabled);

    int flag(unsigned bit) const { return m_buttonFlags & bit ? -1 : 0; }
    void setFlag(unsigned bit, int on) {
        m_buttonFlags = on & 1 ? m_buttonFlags | bit : m_buttonFlags & ~bit;
    }

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnTimer(UINT_PTR event);
    afx_msg void OnDropFiles(HDROP files);
    afx_msg LRESULT OnThemeChanged();
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    DECLARE_MESSAGE_MAP()

    CPoint m_lastMousePoint;
    CRect m_tipRect;
    CKbUiTheme* m_theme = nullptr;
    CWnd* m_kbUiParent = nullptr;
    unsigned m_buttonFlags = kFastDraw;
    UINT_PTR m_timerId = 0;
    // Kept: nobody reads these.
    int m_borderFlags[3] = {1, 1, 8};
    int m_tipState = 0;  ///< 0 until the mouse has moved over the control, then 1
    HTHEME m_visualStylesTheme = nullptr;

private:
    void openTheme();
    void closeTheme();
    void drawThemedFrame(CDC& dc, CRect& rect, CRect& focusRect, int isDefault, int isDisabled, int isPressed,
                         int hasFocus);
    void drawClassicFrame(CDC& dc, CRect& rect, CRect& focusRect, int isDefault, int isPressed, int hasFocus);
    void askForTip(CPoint point);
    void endPointedAt();
};
