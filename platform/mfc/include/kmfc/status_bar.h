// CStatusBar: a bar of panes with texts, mostly at the bottom of a frame.
#pragma once

#include <vector>

#include <afxres.h>
#include <kmfc/control_bar.h>
#include <kmfc/status_bar_ctrl.h>

// Styles of panes.
constexpr UINT SBPS_NORMAL = 0x0000;
constexpr UINT SBPS_NOBORDERS = SBT_NOBORDERS;
constexpr UINT SBPS_POPOUT = SBT_POPOUT;
constexpr UINT SBPS_OWNERDRAW = SBT_OWNERDRAW;
constexpr UINT SBPS_DISABLED = 0x04000000;  ///< shows no text
constexpr UINT SBPS_STRETCH = 0x08000000;   ///< takes the room that is left; one pane only

// Panes of keys that the frame brings up to date by itself.
#ifndef ID_INDICATOR_EXT
#define ID_INDICATOR_EXT 0xE700
#endif
#ifndef ID_INDICATOR_CAPS
#define ID_INDICATOR_CAPS 0xE701
#endif
#ifndef ID_INDICATOR_NUM
#define ID_INDICATOR_NUM 0xE702
#endif
#ifndef ID_INDICATOR_SCRL
#define ID_INDICATOR_SCRL 0xE703
#endif
#ifndef ID_INDICATOR_OVR
#define ID_INDICATOR_OVR 0xE704
#endif
#ifndef ID_INDICATOR_REC
#define ID_INDICATOR_REC 0xE705
#endif
#ifndef ID_INDICATOR_KANA
#define ID_INDICATOR_KANA 0xE706
#endif

/// A status bar. The frame's messages show in its first pane (its window text). Panes count from 0; functions
/// that change one outside the bar do nothing.
class KMFC_API CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)
public:
    CStatusBar() = default;
    ~CStatusBar() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    /// The same with styles of the control: SBARS_SIZEGRIP, SBT_TOOLTIPS.
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT nID = AFX_IDW_STATUS_BAR);

    /// Panes of these strings, as wide as their texts; ID_SEPARATOR is a pane without a text. The first pane
    /// stretches. FALSE when a string is missing. A null array makes empty panes.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);

    /// -1 when no pane has the id.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    /// In client coordinates; empty for no pane.
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    /// `cxWidth` is the room of the text in pixels.
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    CString GetPaneText(int nIndex) const;
    void GetPaneText(int nIndex, CString& rString) const { rString = GetPaneText(nIndex); }
    /// With `bUpdate` shown at once, else when the bar is next brought up to date.
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    /// The control that the bar is.
    CStatusBarCtrl& GetStatusBarCtrl() const;

    /// Draws an SBPS_OWNERDRAW pane. The base does nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane {
        UINT id = 0;
        UINT style = SBPS_NORMAL;
        int width = 0;  ///< of the text
        CString text;
        bool isChanged = false;  ///< the control still shows another text
    };
    int count() const { return static_cast<int>(m_panes.size()); }
    Pane& pane(int index) { return m_panes[static_cast<size_t>(index)]; }
    const Pane& pane(int index) const { return m_panes[static_cast<size_t>(index)]; }
    bool has(int index) const { return index >= 0 && index < count(); }
    int text_width(const CString& text) const;
    void show_pane(int index);
    /// Gives the panes their places.
    void arrange();

    std::vector<Pane> m_panes;
};
