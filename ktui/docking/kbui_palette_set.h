// CKbUiPaletteSet: a dock control bar with several palettes, of which one shows, and a narrow upright strip
// of tabs to choose between them.
//
//     set.Create(L"Tools", WS_CHILD | WS_VISIBLE | CBRS_RIGHT | CBRS_FLOAT_MULTI, rect, frame, 0);
//     set.AddPalette(new LayersPalette);
//     set.SetActivePalette(0);
//     set.EnableDocking(CBRS_ALIGN_ANY);
//     set.DockControlBar(CBRS_ALIGN_RIGHT, nullptr);
//
// The set owns the palettes that it holds when its window goes. The newest palette has index 0 and stands
// lowest on the strip. Nothing here tells anybody; a palette hears OnKillActive only from
// CKbUiPalette::OnSetActive.
#pragma once

#include <ktui/docking/kbui_dock_control_bar.h>
#include <ktui/docking/kbui_theme.h>

#include <memory>

class CKbUiPalette;
class CNameEdit;
class CXToolTabCtrl;
struct KbUiPaletteSetData;

/// Where a set's title bar stands. Its members are settled with who moves it.
enum KbUiTitleBarLocation : int;

/// Bits of a palette set's style.
enum : unsigned long {
    kKbUiAutoRollup = 2,
    kKbUiPropertiesMenu = 4,
    kKbUiCloseButton = 8,
    kKbUiEditName = 16,
    kKbUiSnap = 32,
    /// The strip shows even with a single palette, once the set is sized; SetActivePalette by pointer hides
    /// it again until the next size. The other bits are only reported.
    kKbUiSinglePaletteTab = 64,
    kKbUiUseSinglePaletteTabName = 128,
};

class KTUI_API CKbUiPaletteSet : public CKbUiDockControlBar {
    DECLARE_DYNCREATE(CKbUiPaletteSet)

public:
    explicit CKbUiPaletteSet(int dockFlags = 2);
    ~CKbUiPaletteSet() override;

    // Hooks for subclasses, which nothing calls: they do nothing.
    virtual void TitleBarLocationUpdated(KbUiTitleBarLocation location);
    /// For subclasses; not asked. Whether the pointer isn't null.
    virtual int NameEditValidation(CEdit* edit);
    /// Lets the user rename the set in place.
    virtual void EditName();
    /// Called before the menu of a tab shows; `hitType` is 6, `index` the tab. 0 if there is no palette at
    /// `index`, otherwise 1.
    virtual int AddContextMenuItems(CMenu* menu, int hitType, int index);
    /// 100 by 140 pixels.
    virtual void GetMinimumSize(CSize& size);
    /// The screen's size.
    virtual void GetMaximumSize(CSize& size);
    /// 5 and 0 pixels.
    virtual int GetTopReservedHeight();
    virtual int GetBottomReservedHeight();
    virtual void AutoRollupChanged(int rollup);
    virtual void OnTabDrag(CPtrArray& windows);
    virtual void PaletteActivated(CKbUiPalette* palette, CKbUiPalette* former);
    virtual void PaletteAdded(CKbUiPalette* palette);
    virtual void PaletteRemoved(CKbUiPalette* palette);
    virtual void ThemeModified(KbUiThemeElement element);
    /// Shows the menu of the tab at `point` (screen), if there is one.
    virtual void OnContextMenu(CWnd* window, CPoint point);

    /// Makes the set as a child of `parent`. Its control id is the one that the object has, 0 without a
    /// window; give it another by SetDlgCtrlID. Non-zero on success.
    int Create(const wchar_t* name, unsigned long windowStyle, const RECT& rect, CWnd* parent,
               unsigned long paletteSetStyle);
    using CKbUiDockControlBar::Create;

    unsigned long GetPaletteSetStyle() const;
    void SetPaletteSetStyle(unsigned long style);
    int AutoRollupStyle() const { return hasStyle(kKbUiAutoRollup); }
    int PropertiesMenuStyle() const { return hasStyle(kKbUiPropertiesMenu); }
    int CloseButtonStyle() const { return hasStyle(kKbUiCloseButton); }
    int EditNameStyle() const { return hasStyle(kKbUiEditName); }
    int SnapStyle() const { return hasStyle(kKbUiSnap); }
    int SinglePaletteTabStyle() const { return hasStyle(kKbUiSinglePaletteTab); }
    int UseSinglePaletteTabNameStyle() const { return hasStyle(kKbUiUseSinglePaletteTabName); }

    /// The window text.
    CString GetName() const;
    /// 1.
    int SetName(const wchar_t* name);

    /// Adds a palette as index 0; the others move up. It gets a window if it has none, and is hidden unless
    /// it is the first. -1 for null, a window that can't be made, and an empty name, for which it stays
    /// hidden all the same; otherwise 0. A palette that is there already gets a second tab; it is deleted
    /// once.
    int AddPalette(CKbUiPalette* palette);
    /// Adds a palette that has a window; `index` counts from the other end: 0 adds behind the last. -1 for
    /// null, an index outside 0 to the count, and an empty name; otherwise 0.
    int InsertPalette(int index, CKbUiPalette* palette);
    /// Hides the palette and takes it out; object and window stay the caller's. No other is shown in its
    /// place. 0 if it isn't there, otherwise 1.
    int RemovePalette(CKbUiPalette* palette);
    int RemovePalette(int index);
    int GetPaletteCount() const;
    /// Null outside the list.
    CKbUiPalette* GetPalette(int index) const;
    /// -1 if the palette isn't in the set.
    int GetTabIndex(CKbUiPalette* palette) const;
    /// Null when the active index lies outside the list.
    CKbUiPalette* GetActivePalette() const;
    /// -1 when the active index is negative or above the count.
    int GetActivePaletteTabIndex() const;
    /// Shows the palette and hides the others; with a single palette the strip is hidden until the next size,
    /// whatever the style. 0 for null and one that isn't in the set; 1 otherwise, also for an empty set.
    int SetActivePalette(CKbUiPalette* palette);
    // Kept: an index equal to the count hides all palettes, and the strip isn't moved.
    int SetActivePalette(int index);
    /// Takes the palettes' present names over to their tabs.
    void UpdateTabs();
    /// The strip, which belongs to the set.
    CXToolTabCtrl& GetStrip() const;

    /// The window's rectangle; the client rectangle.
    void GetFullRect(CRect& rect) const;
    void GetAdjustedClientRect(CRect& rect) const;
    /// The framework's regular font, not owned.
    CFont* GetWindowFont() const;

    /// The framework's state and the name, in the user's settings; the argument is not used. 0 when the
    /// framework has none, otherwise 1. The palettes' names are their own affair.
    int Load(IUnknown* node) override;
    int Save(IUnknown* node) override;

    BOOL PreTranslateMessage(MSG* message) override;

    // Kept: without effect, with a fixed answer.
    void RollUp();
    void RollOut(bool activate);
    int RolledUp();
    int GetAutoRollup() const;
    /// 0 if the value is that already, otherwise 1.
    int SetAutoRollup(int rollup);
    int GetOpacity() const;
    /// 0 above 100 percent, taken as unsigned; otherwise stores it, 1. No window becomes transparent.
    int SetOpacity(int percent);
    static bool SetGlobalTransparency(unsigned percent);
    static unsigned GetGlobalTransparency();
    bool SetAllowTransparency(CString name, bool allow);
    void SetTitleBarLocation(KbUiTitleBarLocation location);
    /// 1.
    KbUiTitleBarLocation TitleBarLocation();
    void OnTogglePin();
    /// Null.
    CKbUiTheme* GetTheme();
    CKbUiTheme* SetTheme(CKbUiTheme* theme);
    bool CanFrameworkTakeFocus() override;
    // Kept: not in the message map; the bar's handlers serve these messages.
    void OnActivate(UINT state, CWnd* other, BOOL minimized);
    void OnLButtonDblClk(UINT flags, CPoint point);
    void OnLButtonDown(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnMouseMove(UINT flags, CPoint point);
    void OnMenuClose();
    void OnMenuMove();
    void OnMenuSize();
    void OnNcPaint();
    void OnOptionTranslucency();
    void OnSetFocus(CWnd* former);
    void OnWindowPosChanging(WINDOWPOS* position);
    LRESULT OnFloatStatus(WPARAM wParam, LPARAM lParam);
    int OnNcCalcSize(BOOL calculatesValidRects, NCCALCSIZE_PARAMS* params);
    BOOL OnEraseBkgnd(CDC* dc);
    LRESULT OnNcHitTest(CPoint point);

protected:
    using CKbUiDockControlBar::HitTest;
    /// What lies at `point` (screen): 1 on a tab (`hitType` 6, `index` the tab) and on the arrows (8),
    /// otherwise 0.
    int HitTest(CPoint point, unsigned& hitType, unsigned long& index);
    /// Lets the user rename the palette whose menu was open last.
    void EditPaletteName();

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnBeginNameEdit(WPARAM, LPARAM);
    afx_msg LRESULT OnEndNameEdit(WPARAM edit, LPARAM text);
    DECLARE_MESSAGE_MAP()

    std::unique_ptr<KbUiPaletteSetData> m_data;

private:
    int hasStyle(unsigned long bit) const { return (GetPaletteSetStyle() & bit) != 0; }
    bool showsStrip() const;
    bool isStripAtLeft() const;
    void placeStrip(CSize client);
    void placePalette(CKbUiPalette& palette, CSize client);
    void showActive(CKbUiPalette& palette, int index);
    void takeOut(int index);
    CString stateKey() const;
};
