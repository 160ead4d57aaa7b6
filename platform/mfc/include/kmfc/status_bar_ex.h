// CMFCStatusBar: a status bar with colours, pictures and progress bars in its panes.
#pragma once

#include <memory>
#include <vector>

#include <kmfc/pane.h>
#include <kmfc/status_bar.h>

namespace kmfc {
struct PicturePixels;
}
namespace kmfc::docking {
struct AccessiblePart;
}

/// One pane, as CMFCStatusBar::OnDrawPane gets it.
struct KMFC_API CMFCStatusBarPaneInfo {
    static constexpr COLORREF kUsual = static_cast<COLORREF>(-1);

    UINT nID = 0;
    UINT nStyle = SBPS_NORMAL;
    int cxWidth = 0;  ///< room of the text, pixels
    CString strText, strTip;
    COLORREF clrText = kUsual, clrBackground = kUsual;
    CRect rect{0, 0, 0, 0};  ///< client coordinates of the bar

    long nProgressTotal = -1;  ///< below 1 for a pane without a progress bar
    long nProgressCurr = 0;
    BOOL bProgressText = FALSE;
    COLORREF clrProgressBar = kUsual, clrProgressBarDest = kUsual, clrProgressText = kUsual;

    /// The picture that shows before the text; several are shown in turn.
    std::vector<std::shared_ptr<const kmfc::PicturePixels>> pictures;
    size_t picture = 0;
    bool isChanged = false;  ///< what is shown is to be drawn anew when the bar is next brought up to date
};

/// The status bar of a frame, at its bottom. Create it in the frame's OnCreate and give it panes by
/// SetIndicators, as a CStatusBar; in a frame with a docking manager it stands outside of toolbars and panes
/// that come later. The frame's messages show in the first pane (the window's text), and while the program is
/// idle the panes' commands are asked for their states: a disabled pane has grey text, a checked one is
/// raised. CMFCVisualManager paints. Panes count from 0; functions that change one outside the bar do
/// nothing.
///
/// Assistive programs learn of the bar and its panes, with texts and progress.
class KMFC_API CMFCStatusBar : public CPane {
    DECLARE_DYNCREATE(CMFCStatusBar)
public:
    CMFCStatusBar();
    ~CMFCStatusBar() override;

    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                UINT nID = AFX_IDW_STATUS_BAR);
    /// The same; styles of the system's control have no effect.
    BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = 0,
                  DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT nID = AFX_IDW_STATUS_BAR);
    using CPane::CreateEx;

    /// Panes of these strings, as wide as their texts; ID_SEPARATOR is a pane without a text. The first pane
    /// stretches and has no border. FALSE, and nothing changed, when a string is missing. A null array makes
    /// empty panes.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);

    int GetCount() const { return static_cast<int>(m_panes.size()); }
    /// -1 when no pane has the id.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    /// Client coordinates; empty for no pane.
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    using CBasePane::GetPaneStyle;
    using CBasePane::SetPaneStyle;
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    /// `cxWidth` is the room of the text in pixels.
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    int GetPaneWidth(int nIndex) const;
    void SetPaneWidth(int nIndex, int cx);

    void GetPaneText(int nIndex, CString& s) const { s = GetPaneText(nIndex); }
    CString GetPaneText(int nIndex) const;
    /// With `bUpdate` shown at once, else when the bar is next brought up to date. FALSE for no pane.
    virtual BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    CString GetTipText(int nIndex) const;
    /// Null and the empty text are no tip.
    void SetTipText(int nIndex, LPCTSTR pszTipText);

    // With `bUpdate` FALSE these show when the pane is drawn for another reason.
    /// -1 is the usual colour.
    void SetPaneTextColor(int nIndex, COLORREF clrText = static_cast<COLORREF>(-1), BOOL bUpdate = TRUE);
    void SetPaneBackgroundColor(int nIndex, COLORREF clrBackground = static_cast<COLORREF>(-1),
                                BOOL bUpdate = TRUE);
    /// A picture before the text, and the end of pictures shown in turn; null for none. The icon or bitmap
    /// stays the caller's and isn't needed any longer. It is scaled to the screen's resolution, made smaller
    /// where it is higher than the bar, and greys are turned round on a dark bar.
    void SetPaneIcon(int nIndex, HICON hIcon, BOOL bUpdate = TRUE);
    /// By the bitmap's alpha channel, or without pixels of the transparent colour.
    void SetPaneIcon(int nIndex, HBITMAP hBmp, COLORREF clrTransparent = RGB(255, 0, 255),
                     BOOL bUpdate = TRUE);
    /// The pictures of a list in turn, each for `nFrameRate` milliseconds; null ends that. The list stays the
    /// caller's and isn't needed any longer.
    void SetPaneAnimation(int nIndex, HIMAGELIST hImageList, UINT nFrameRate = 500, BOOL bUpdate = TRUE);

    /// A bar that shows how much of `nTotal` is done, with `bDisplayText` in hundredths too; -1 for `nTotal`
    /// takes it away. With two colours the filled part runs from one into the other.
    void EnablePaneProgressBar(int nIndex, long nTotal = 100, BOOL bDisplayText = FALSE,
                               COLORREF clrBar = static_cast<COLORREF>(-1),
                               COLORREF clrBarDest = static_cast<COLORREF>(-1),
                               COLORREF clrProgressText = static_cast<COLORREF>(-1));
    /// `nCurr` is held within 0 and the total. Nothing in a pane without a progress bar.
    void SetPaneProgress(int nIndex, long nCurr, BOOL bUpdate = TRUE);
    /// -1 in a pane without a progress bar.
    long GetPaneProgress(int nIndex) const;
    /// A double click on a pane with an id is that command for the owner.
    void EnablePaneDoubleClick(BOOL bEnable = TRUE) { m_takesDoubleClicks = bEnable != FALSE; }

    /// Draws a pane anew, at once.
    void InvalidatePaneContent(int nIndex);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void RecalcLayout() override;
    BOOL HideInPrintPreviewMode() const override { return FALSE; }
    BOOL CanFocus() const override { return FALSE; }
    BOOL CanFloat() const override { return FALSE; }
    void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

    /// What an assistive program learns of the bar (0) or a pane (from 1 on).
    void describe(int part, kmfc::docking::AccessiblePart& about) const;
    int parts() const { return GetCount(); }

protected:
    void DoPaint(CDC* pDC) override;
    /// Draws a pane by its style and content.
    virtual void OnDrawPane(CDC* pDC, CMFCStatusBarPaneInfo* pPane);

    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTextLength(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnTipText(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    CMFCStatusBarPaneInfo* pane(int index);
    const CMFCStatusBarPaneInfo* pane(int index) const;
    int text_width(const CString& text) const;
    int pane_at(CPoint point) const;
    /// The corner that sizes the frame; empty for none.
    CRect grip() const;
    void set_pictures(int index, std::vector<std::shared_ptr<const kmfc::PicturePixels>> pictures,
                      bool update);
    void draw_pictures(CDC& dc, const CMFCStatusBarPaneInfo& shown, CRect& rest) const;
    void tell_changed(int index, DWORD event) const;

    std::vector<CMFCStatusBarPaneInfo> m_panes;
    bool m_takesDoubleClicks = false;
    CString m_tip;  ///< the text of the tip that is shown
};
