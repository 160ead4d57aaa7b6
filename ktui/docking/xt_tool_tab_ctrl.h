// CXToolTabCtrl: the narrow strip of tabs by which a palette set chooses between its palettes.
//
// Each tab belongs to a window, and has a text and a tip. A strip that stands on its side is laid out and
// painted lying down, and then turned so that its texts read upward: rectangles, regions and points of the
// tabs are in these turned coordinates. Where there is no room for all tabs a range of them is shown, which
// always holds the active one, and an arrow area tells that there are more.
//
// The windows belong to the caller until the strip's own window is destroyed: windows that are in the strip
// then are destroyed and their objects deleted, each once, also one that has several tabs. Afterwards the
// strip is as it was before its creation, and may be created again.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include <ktui/ktui_api.h>

class CKbUiPaletteSet;

/// One tab of the strip.
struct XTTabItem {
    CString m_text;
    CWnd* m_window = nullptr;  ///< the palette; see the strip's class for who deletes it
    CString m_tip;
    int m_toolId = 0;  ///< 0 without a tip
    CRect m_rect;
    CRgn m_region;
    POINT m_points[6] = {};
};

class KTUI_API CXToolTabCtrl : public CWnd {
public:
    CXToolTabCtrl();
    ~CXToolTabCtrl() override;

    /// Makes the strip as a child of `parent`. The low 8 bits of `style` are the strip's own: placement (the
    /// low two; 1 and 2 stand on their side), 4 fits the tabs into the strip, 8 gives them tips.
    virtual int Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    /// What lies at `point` (client): 1 for the tab `index`, 2 for the arrow area (`index` is -1), otherwise
    /// 0
    /// (`index` stays).
    virtual int HitTest(CPoint point, int& index);
    /// Lays the tabs out anew. Without tabs, and in a client area that is empty or above 4096 pixels in a
    /// direction, everything stays where it was.
    virtual void Recalc();
    /// Paint one tab, the arrow area, and the line that the tabs stand on, in turned coordinates.
    virtual void DrawTab(CDC* dc, int index);
    virtual void DrawScrollArea(CDC* dc);
    virtual void DrawBaseLine(CDC* dc);
    /// Makes `index`, which is not checked, the active tab and repaints. Shows no palette, tells nobody.
    virtual void SetActiveTab(int index);
    /// Gives the tabs from `first` to `last` the widths that their texts ask for, side by side from 0.
    virtual void MeasureTabs(CDC* dc, int first, int last);

    /// Puts a tab before the one at `index`. -1 for an empty text, which changes nothing; otherwise 0.
    int InsertTab(int index, const wchar_t* text, const wchar_t* tip, CWnd* window);
    /// Takes the tab away, and leaves its window alone. The active index goes down by one if the tab was
    /// active. 0 if there is none at `index`, otherwise 1.
    int RemoveTab(int index);
    /// Changes the text; the tip stays. 0 if there is no tab at `index`, otherwise 1.
    int SetTabText(int index, const wchar_t* text);
    /// Whether the strip stands on its side.
    bool IsTurned() const;

    int GetTabCount() const { return static_cast<int>(m_tabs.GetSize()); }
    /// The tab at `index`, which the strip owns. Throws CInvalidArgException outside the list.
    XTTabItem* GetTab(int index) const { return static_cast<XTTabItem*>(m_tabs.GetAt(index)); }
    int GetActiveTab() const { return m_activeTab; }
    /// Stores the active tab and repaints nothing.
    void StoreActiveTab(int index) { m_activeTab = index; }
    /// The set whose palette a click shows; null for none.
    void SetPaletteSet(CKbUiPaletteSet* set) { m_paletteSet = set; }
    UINT GetStripStyle() const { return m_style; }
    COLORREF GetBackground() const { return m_background; }
    /// Changes the background and repaints without erasing; nothing happens if it is that already.
    void SetBackground(COLORREF color);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    CToolTipCtrl m_tip;                       ///< there with style bit 8
    int m_nextToolId = 0;                     ///< raised before each tool
    CKbUiPaletteSet* m_paletteSet = nullptr;  ///< not owned
    CPtrArray m_tabs;                         ///< of XTTabItem, owned
    UINT m_style = 29;
    CRect m_scrollRect;
    CRgn m_scrollRgn;
    POINT m_scrollPoints[6] = {};
    int m_scrollWidth = 16;
    int m_minTabWidth = 60;
    int m_maxTabWidth = 120;
    int m_tabHeight = 0;  ///< height of a text + 4
    int m_activeTab = 0;
    int m_firstVisible = 0;
    int m_lastVisible = -1;
    CFont m_font;
    COLORREF m_background;
    COLORREF m_shadowColor;
    COLORREF m_darkColor;
    int m_marginY = 2;
    int m_marginX = 6;

private:
    using CWnd::Create;

    /// Client size, exchanged for a strip on its side.
    CSize turnedSize() const;
    bool hidesTabs() const { return m_lastVisible - m_firstVisible + 1 < GetTabCount(); }
    void layOutTabs(CDC& dc, int width);
    void outlineTabs();
    void placeTools();
    void fillOutline(CDC* dc, CRgn& region);
    void drawText(CDC* dc, const XTTabItem& tab, bool active);
    /// Leaves the tabs of `window`, which is about to go, without a window.
    void forgetWindow(const CWnd* window);
    /// Puts back what a window of the strip has left behind.
    void startAnew();

    /// Widths as they were given, for the next window of the strip.
    struct {
        int scroll;
        int minTab;
        int maxTab;
    } m_unscaled = {};
};
