// Paints a scene into a rectangle of a device context: the drawing view's and the dialogs' previews.
#pragma once

#include <set>

#include <afxwin.h>

#include "scene_bounds.h"

constexpr COLORREF kDrawingPaper = RGB(33, 40, 48);
constexpr COLORREF kSelectionColor = RGB(90, 170, 255);

/// What a scene is painted on and with. White lines turn black on a light paper.
struct SceneColors {
    COLORREF paper = kDrawingPaper;
    COLORREF selection = kSelectionColor;
};

/// Where a scene lies on a window: which place of the drawing is in the middle, and how large a unit is.
struct ScenePlace {
    OdGePoint2d center;
    double scale = 1;  ///< pixels for one drawing unit
    CSize size;        ///< of the window, pixels

    /// Pixels of a place in the drawing, and back.
    CPoint ToPixel(const OdGePoint2d& point) const;
    OdGePoint2d FromPixel(CPoint pixel) const;
    /// Shows all of `extents` with a margin; nothing happens for empty ones or an empty window.
    void Fit(const SceneExtents& extents);
};

/// Paints the scene with pixel 0, 0 as the window's corner; what belongs to `selection` is highlighted.
/// `bounds` are those of the scene.
void PaintScene(CDC& dc, const Scene& scene, const SceneBounds& bounds, const ScenePlace& place,
                const std::set<OdDbObjectId>& selection = {}, const SceneColors& colors = {});
/// The same for what is painted once.
void PaintScene(CDC& dc, const Scene& scene, const ScenePlace& place);
