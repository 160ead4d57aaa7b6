// CKbUiDockControlBar: the toolkit's dockable pane.
//
// A pane of the platform's docking framework that keeps a record of where it stood, floating and docked, and
// writes it to XML (Save, Load) beside the framework's own state; that can be locked (KbUiLockPanel); that
// draws its caption upright when it is docked at the bottom; and that never docks at the top. CKbUiPaletteSet
// is its main subclass.
//
//     bar.Create(frame, L"Layers", 4001, WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI, rect);
//     bar.EnableDocking(CBRS_ALIGN_ANY);
//     bar.DockControlBar(CBRS_ALIGN_LEFT, nullptr);
#pragma once

#include <afxcontrolbars.h>
#include <unknwn.h>

#include <ktui/ktui_api.h>

/// Locks bars against moving: docked ones, floating ones. Ctrl held down lifts both locks for the moment.
KTUI_API void KbUiLockPanel(bool docked, bool floating);

// Kept: these do nothing; those with a result answer 0. A tool is identified by SetToolID alone.
KTUI_API int KbUiRegisterTool(const char* module, const char* tool, GUID* id);
KTUI_API int KbUiSetFloatingFrameClass(CRuntimeClass* frame);
KTUI_API void KbUiRegisterFloatingFrameClassAddress(CRuntimeClass** frame);

class KTUI_API CKbUiDockControlBar : public CDockablePane {
    DECLARE_DYNCREATE(CKbUiDockControlBar)

public:
    /// `dockFlags` is stored; its visible flag (bit 24) is cleared.
    explicit CKbUiDockControlBar(int dockFlags = 2);
    ~CKbUiDockControlBar() override;

    /// False.
    virtual bool CanFrameworkTakeFocus();
    /// Reads what Save wrote below an XML node, which restores the records and leaves the position on screen
    /// to LoadState. 0 for a null pointer, a pointer that is no XML node, and a missing element; what was
    /// read until then stays. Otherwise 1. Throws _com_error for a missing or malformed attribute.
    virtual int Load(IUnknown* node);
    /// Appends the bar's places to an XML node. 0 for a null pointer, a pointer that is no XML node, and
    /// where no element can be made; otherwise 1. Throws _com_error for other failures of COM.
    virtual int Save(IUnknown* node);
    /// Paints the bar; does nothing.
    virtual void PaintControlBar(CDC* dc);
    /// Called when the window is made; the creation fails unless the result is above 0. 1.
    virtual int CreateControlBar(CREATESTRUCT* create);
    /// Told of each new place before it is stored: `rect` in the parent's client coordinates, whether the bar
    /// isn't docked, and the SWP_ flags. Does nothing.
    virtual void SizeChanged(CRect* rect, int floating, int flags);
    /// False.
    virtual bool OnClosing();
    /// The pane's minimum size in pixels; pointers may be null.
    virtual void GetFloatingMinSize(long* width, long* height);
    /// 0.
    virtual int AddCustomMenuItems(__int64 menu);
    /// Does nothing.
    virtual void OnUserSizing(unsigned side, RECT* rect);

    /// Makes the bar as a child of `parent`. Non-zero on success.
    int Create(CWnd* parent, const wchar_t* name, unsigned id, unsigned long style, const RECT& rect);
    /// The same; a rectangle below the minimum size grows from its left and upper edge. `className` is not
    /// used.
    BOOL Create(LPCTSTR className, LPCTSTR name, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                CCreateContext* context = nullptr) override;

    /// Docks at a side (CBRS_ALIGN_ bit) of the host's main frame. Nothing happens without such a frame.
    void DockControlBar(unsigned alignment, RECT* rect);
    /// The same, after showing a bar that isn't visible and bringing out one that hides at an edge.
    void RestoreControlBar(unsigned alignment, CRect* rect);
    /// Whether the bar isn't docked.
    bool IsFloating() { return !IsDocked(); }
    /// Whether the bar hides at an edge.
    bool Anchored() { return IsAutoHideMode() != FALSE; }
    /// The CBRS_ALIGN_ bits of the style.
    unsigned long GetDockStyle() { return GetPaneStyle() & CBRS_ALIGN_ANY; }
    /// Whether the bar is meant to be seen, as SaveState keeps it. Setting shows nothing.
    void setVisible(bool visible);
    bool isVisible() const { return (m_dockFlags & kVisibleFlag) != 0; }

    bool AllowDockingMenuItemState() const { return m_allowDocking; }
    void SetAllowDockingMenuItemState(bool allow) { m_allowDocking = allow; }
    void SetDockFlag(unsigned flags) { m_dockFlags = flags; }
    GUID* GetToolID() { return &m_toolId; }
    /// Copies the id; null is ignored.
    void SetToolID(GUID* id);
    void ShowCloseButton(bool show) { m_closeButtonVisible = show; }
    bool CloseButtonVisible() const { return m_closeButtonVisible; }
    /// Where the bar was when it floated or was docked last.
    void GetFloatingRect(CRect& rect) const { rect = m_floatingRect; }
    void GetPersistedFloatingRect(CRect& rect) const { rect = m_floatingRect; }
    void GetPersistedDockingRect(CRect& rect) const { rect = m_dockingRect; }
    /// Null is ignored.
    void InitFloatingPosition(CRect* rect);

    /// For the host, which sets it while it restarts its tools; nothing here reads it.
    static void SetToolsRestartMode(bool restart) { m_bToolsRestartMode = restart; }
    static bool GetToolsRestartMode() { return m_bToolsRestartMode; }

    // Docking framework.
    /// 0 while the bar is locked, and while docked bars are locked for one in a floating frame; otherwise
    /// what EnableDocking stored.
    DWORD GetEnabledAlignment() const override;
    /// 0 while the bar is locked.
    BOOL CanFloat() const override;
    /// Replaces the alignment, but never by the top.
    void SetPaneAlignment(DWORD alignment) override;
    /// Stores the sides to dock at, without the top.
    void EnableDocking(DWORD alignment) override;
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    /// The framework's state and the visible flag. A floating frame that would not meet the main window's
    /// rectangle comes back near the screen's origin.
    BOOL LoadState(LPCTSTR profile = nullptr, int index = -1, UINT id = static_cast<UINT>(-1)) override;
    BOOL SaveState(LPCTSTR profile = nullptr, int index = -1, UINT id = static_cast<UINT>(-1)) override;
    /// Marks the other bars of its tabs as visible when a floating one is shown and activated.
    void ShowPane(BOOL show, BOOL delay, BOOL activate) override;
    /// Clears the visible flag too.
    void OnPressCloseButton() override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

    // Kept: these do nothing.
    static void RemoveBars();
    void Draw3DRect(CDC* dc, const RECT& rect);
    void LoadDefaultLocation();
    void PaintBar(CDC* dc);
    void Resized();
    void OnAllowDock();
    void OnAnchorLeft();
    void OnAnchorRight();
    void RepositionOrHideButtons();
    void TileInRow();
    // Kept: these answer 0. There is no mouse hook.
    int AddMenuItems(CMenu* menu);
    static LRESULT CALLBACK MouseProc(int code, WPARAM wParam, LPARAM lParam);
    int GetTitleBarSize();
    int AdjustVertDockedBarHeight(int height);
    static bool HidePalettes();
    static bool ShowPalettes();

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Hides a docked bar at its edge.
    void OnAnchor();
    /// Hides the bar.
    void OnHideBar();

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnWindowPosChanged(WINDOWPOS* position);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnNcCalcSize(BOOL calculatesValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg void OnNcPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcMouseMove(UINT hit, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    static constexpr unsigned kVisibleFlag = 0x1000000;      ///< bit 24 of the dock flags
    static constexpr unsigned kBlockedDragFlag = 0x2000000;  ///< bit 25: a press was refused

    unsigned __int64 m_reserved[4] = {};
    bool m_allowDocking = true;
    unsigned m_dockFlags;
    unsigned __int64 m_reserved2 = 0;
    GUID m_toolId = {};
    bool m_closeButtonVisible = false;
    /// As docked last, in the parent's client coordinates; after LoadState the place of the floating frame
    /// that the framework kept, in screen coordinates.
    CRect m_dockingRect{0, 0, 0, 0};
    /// As floating last, inside the floating frame; after LoadState the frame's place in screen coordinates.
    CRect m_floatingRect{0, 0, 0, 0};

    static bool m_bToolsRestartMode;
    // Kept: not used.
    static CPtrArray m_paBars;
    static UINT m_nLastBarID;

private:
    bool isLocked() const;
    void bringFrameBack();
    /// Whether the caption stands upright at the left: docked at the bottom.
    bool hasUprightCaption() const;
    /// Whether a button of the upright caption lies at a screen point.
    bool isOnUprightButton(CPoint screen) const;
    void placeUprightButtons(CPoint corner, int captionHeight);
    bool hidesButton(const CMFCCaptionButton& button) const;
    void drawUprightCaption(CDC& dc, CSize size);
    void drawName(CDC& dc, CRect caption, COLORREF ink);
    void dockAt(unsigned alignment, const RECT* rect);
};
