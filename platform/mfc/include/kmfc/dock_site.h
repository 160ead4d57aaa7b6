// CDockSite and CDockingPanesRow: the rows of toolbars at one edge of a frame.
#pragma once

#include <memory>

#include <kmfc/lists.h>
#include <kmfc/pane.h>

class CDockSite;

namespace kmfc::docking {
class BarRows;
class DockedBars;
struct BarExtent;
enum class Side : int;
}  // namespace kmfc::docking

/// One row, as the site laid it out last. It is the site's, and goes at its next layout.
class KMFC_API CDockingPanesRow : public CObject {
    DECLARE_DYNAMIC(CDockingPanesRow)
public:
    /// `nOffset` from the outside of the frame, both in pixels.
    CDockingPanesRow(CDockSite* pParentDockBar, int nOffset, int nRowHeight);

    CDockSite* GetDockSite() const { return m_pParentDockBar; }
    int GetRowOffset() const { return m_nOffset; }
    int GetRowHeight() const { return m_nRowHeight; }
    DWORD GetRowAlignment() const;
    BOOL IsHorizontal() const;
    /// Adds the bars of the row from its beginning, those included that aren't shown.
    void GetPaneList(CObList& lst) const;
    int GetPaneCount() const { return static_cast<int>(m_lstControlBars.GetCount()); }
    BOOL HasPane(CBasePane* pControlBar) const;
    int GetVisibleCount() const;
    BOOL IsEmpty() const { return m_lstControlBars.IsEmpty(); }
    BOOL IsVisible() const { return GetVisibleCount() != 0; }
    /// In client coordinates of the site; on the screen.
    void GetClientRect(CRect& rect) const;
    void GetWindowRect(CRect& rect) const;

private:
    CDockSite* m_pParentDockBar;
    int m_nOffset, m_nRowHeight;
    CObList m_lstControlBars;
    friend class CDockSite;
};

/// The window behind the bars of one edge. A frame has four as soon as it has a bar that docks, of the ids
/// AFX_IDW_DOCKBAR_TOP and so on. Their rows take their room before panes that dock: those above and below
/// over the whole width, those at the left and right between them. A site without a shown bar takes no room.
class KMFC_API CDockSite : public CBasePane {
    DECLARE_DYNAMIC(CDockSite)
public:
    explicit CDockSite(kmfc::docking::DockedBars* bars = nullptr);
    ~CDockSite() override;

    UINT GetDockSiteID() const { return static_cast<UINT>(GetDlgCtrlID()); }
    /// Docks a bar before another one that stands here. FALSE when it doesn't, or the bar may not dock here.
    virtual BOOL DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar);
    /// A bar that stands here, by its control id or at a point of the screen; null when there is none.
    virtual CPane* FindPaneByID(UINT nID);
    virtual CPane* PaneFromPoint(CPoint pt);
    /// From the outside in.
    const CObList& GetDockSiteRowsList() const { return m_lstDockBarRows; }
    BOOL IsLastRow(CDockingPanesRow* pRow) const;
    int FindRowIndex(CDockingPanesRow* pRow) const;
    BOOL CanAcceptPane(const CBasePane* pBar) const override;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    /// Moves the bars to where they belong.
    void RecalcLayout() override;
    BOOL SaveState(LPCTSTR, int = -1, UINT = static_cast<UINT>(-1)) override { return TRUE; }
    BOOL LoadState(LPCTSTR, int = -1, UINT = static_cast<UINT>(-1)) override { return FALSE; }

    // For the docking of bars.
    kmfc::docking::BarRows& rows() { return *m_rows; }
    kmfc::docking::Side side() const;
    kmfc::docking::BarExtent extent_of(std::uintptr_t bar) const;
    /// How long its rows are, in pixels.
    int length() const;
    /// A point of the screen along the rows (x) and across them from the outside (y).
    CPoint along_and_across(CPoint screen) const;

protected:
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    DECLARE_MESSAGE_MAP()

private:
    void note_rows();

    kmfc::docking::DockedBars* m_bars;  ///< the frame's, which it is one of
    std::unique_ptr<kmfc::docking::BarRows> m_rows;
    CObList m_lstDockBarRows;  ///< CDockingPanesRow
};
