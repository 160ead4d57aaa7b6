// What a drag shows: guides, and the shaded place where the pane would go.
#pragma once

#include <afxwin.h>

#include "core/drop_target.h"

namespace kmfc::docking {

/// A window above all others that is cut to the guides it shows. It takes no input.
class GuideWindow : public CWnd {
public:
    /// Shows the guides, the one under `point` lit; screen coordinates. None hides the window.
    void show(const std::vector<Guide>& guides, const CPoint& point, CWnd* owner);

private:
    void draw(CDC& dc) const;
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    std::vector<Guide> m_guides;
    CRect m_bounds{0, 0, 0, 0};
    CPoint m_point{0, 0};
};

/// A translucent rectangle.
class ShadeWindow : public CWnd {
public:
    /// Covers a rectangle of the screen; an empty one hides the window.
    void show(const CRect& rect, CWnd* owner);

private:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};

}  // namespace kmfc::docking
