// CDockBar: the rows of control bars at one edge of a frame, or the place of one that floats.
#pragma once

#include <memory>

#include <kmfc/control_bar.h>

namespace kmfc {
class ControlBarDesk;
}  // namespace kmfc
namespace kmfc::docking {
class BarRows;
struct BarExtent;
}  // namespace kmfc::docking

/// A frame has four of them from EnableDocking on, of the ids AFX_IDW_DOCKBAR_TOP and so on, which take their
/// room in the order top, bottom, left, right. One without a shown bar takes none.
class KMFC_API CDockBar : public CControlBar {
    DECLARE_DYNAMIC(CDockBar)
public:
    explicit CDockBar(BOOL bFloating = FALSE);
    ~CDockBar() override;

    /// `dwStyle` has window styles and the CBRS_ALIGN_ style of its edge.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID);
    /// Bars that stand here, and those of them that are shown.
    int GetDockedCount() const;
    int GetDockedVisibleCount() const;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}

    const BOOL m_bFloating;  ///< in the frame of a bar that floats

    // For the docking of bars.
    kmfc::docking::BarRows& rows() const { return *m_rows; }
    bool is_horizontal() const { return (m_dwStyle & CBRS_ORIENT_HORZ) != 0; }
    kmfc::docking::BarExtent extent_of(std::uintptr_t bar) const;
    /// How long its rows are, in pixels.
    int length() const;
    /// A point of the screen along the rows (x) and across them from the outside (y).
    CPoint along_and_across(CPoint screen) const;
    /// Shows and hides what waits for it, and moves the bars to where they belong in rows of that length.
    void arrange(int length);
    void serve(kmfc::ControlBarDesk* desk) { m_desk = desk; }

protected:
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    DECLARE_MESSAGE_MAP()

private:
    int thickness() const;

    kmfc::ControlBarDesk* m_desk = nullptr;  ///< the frame's, whose drags come here
    std::unique_ptr<kmfc::docking::BarRows> m_rows;
};
