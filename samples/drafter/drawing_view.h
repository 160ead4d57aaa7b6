// CDrawingView: shows a scene; zoom with the wheel, pan with the middle button or the arrow keys, select by
// click.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include <afxwin.h>

#include <ktui/tips/kh_tip_ctrl.h>

#include <plotting/paper_place.h>

#include "scene_painter.h"

/// Posted to the parent when the selection changed, and when the pointer moved (its place is pointer()).
constexpr UINT WM_DRAFTER_SELECTION = WM_APP + 1;
constexpr UINT WM_DRAFTER_POINTER = WM_APP + 2;
// WM_APP + 3 is the main window's, WM_APP + 4 and 5 the drawing window's own.

/// The color of a sheet's paper, whatever that of model space is.
constexpr COLORREF kSheetPaper = RGB(255, 255, 255);

/// Which part of a drawing a view shows.
struct ViewPlace {
    OdGePoint2d center;
    double scale = 1;           ///< pixels for one drawing unit
    bool showsExtents = false;  ///< all of it, however large the window is
};

class CDrawingView : public CWnd {
    DECLARE_DYNAMIC(CDrawingView)

public:
    /// Makes the view as the whole client area of `parent`.
    BOOL CreateView(CWnd* parent, UINT id);

    /// Shows another scene; `keepPlace` leaves zoom and centre as they are.
    void SetScene(Scene scene, bool keepPlace);
    /// The same where the scene's bounds are known.
    void SetScene(Scene scene, SceneBounds bounds, bool keepPlace);
    void ZoomExtents();
    /// Whether the zoom is still that of ZoomExtents.
    bool ShowsExtents() const { return m_showsExtents; }
    /// Where the view is, and going there again.
    ViewPlace Place() const { return {m_center, m_scale, m_showsExtents}; }
    void GoTo(const ViewPlace& place);
    /// What lies below the scene if it is that of a sheet.
    void SetSheet(const std::optional<SheetPlace>& sheet);
    /// What Escape does first when nothing is picked or drawn: true if it did something.
    void SetEscape(std::function<bool()> escape) { m_escape = std::move(escape); }
    /// Enlarges by `factor` about the middle of the window.
    void Zoom(double factor);

    /// Colours of the view, and the length of the crosshair's arms in per cent of the view's half.
    void SetLook(const SceneColors& colors, int crosshair);

    const std::set<OdDbObjectId>& selection() const { return m_selection; }
    void SetSelection(std::set<OdDbObjectId> selection);
    /// Takes away the tip of the object under the pointer, also one that waits.
    void HideTip();
    /// Place of the pointer in drawing units.
    OdGePoint2d pointer() const { return m_pointer; }

    /// Called when picking ends: true if all was picked, false if the user gave up.
    using PickEnded = std::function<void(bool isPicked)>;
    /// Has the user pick `count` places by clicks, or with the arrow keys and Enter; they are places() then.
    void PickPlaces(std::size_t count, PickEnded ended);
    /// Has the user pick objects until Enter; they are selection() then, which is as before if the user gives
    /// up.
    void PickObjects(PickEnded ended);
    bool IsPicking() const { return m_picking != Picking::kNothing; }
    bool IsPickingPlaces() const { return m_picking == Picking::kPlaces; }
    /// Has the user select by two corners, picked by clicks or by keys, as by a window drawn with the mouse.
    void SelectByCorners(PickEnded ended);
    /// Has the user pick two corners, which are places() then; the window between them is drawn meanwhile.
    void PickCorners(PickEnded ended);
    /// Ends picking as Enter or Escape would.
    void EndPicking(bool isPicked);
    const std::vector<OdGePoint2d>& places() const { return m_places; }

    /// Client pixels of a place in the drawing, and back.
    CPoint ToPixel(const OdGePoint2d& point) const;
    OdGePoint2d FromPixel(CPoint pixel) const;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    /// A press soon after another one counts like any other.
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point) { OnLButtonDown(flags, point); }
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* now);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnDestroy();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    ScenePlace place() const;
    /// The entity whose line is nearest to a pixel; null when none is near.
    OdDbObjectId entityAt(CPoint pixel) const;
    /// Draws the crosshair, or takes it away if it is there: it inverts what is below it.
    void invertCrosshair(CDC& dc);
    /// Moves the crosshair to a pixel; nowhere without one.
    void moveCrosshair(std::optional<CPoint> pixel);
    void zoomAt(CPoint pixel, double factor);
    void panBy(CSize pixels);
    void pickPlace(const OdGePoint2d& place);
    bool pickByKey(UINT key);
    bool stepPointer(CSize pixels);
    void paintBand(CDC& dc) const;

    // Selecting by a window: what is wholly inside when it was drawn to the right, and what it touches when
    // to the left.
    void startWindow(CPoint pixel);
    void dragWindow(CPoint pixel);
    void stopWindow();
    void selectByWindow(const OdGePoint2d& from, const OdGePoint2d& to, bool toSelection);
    /// Selects the objects, or adds them to the selection, from which they go if all of them were in it.
    void select(const std::set<OdDbObjectId>& objects, bool toSelection);
    void paintWindow(CDC& dc) const;

    /// What ZoomExtents shows: the scene, and the paper below it.
    SceneExtents shownExtents() const;
    SceneColors sceneColors() const;
    void paintSheet(CDC& dc, const CRect& outdated) const;

    enum class Picking { kNothing, kPlaces, kObjects };
    /// Starts, keeps or takes away the tip of the object under the pointer.
    void updateTip(CPoint pixel);

    Scene m_scene;
    SceneBounds m_bounds;  ///< of the scene
    std::optional<SheetPlace> m_sheet;
    std::set<OdDbObjectId> m_selection;
    OdGePoint2d m_center;
    double m_scale = 1;  ///< pixels for one drawing unit
    bool m_panning = false;
    CPoint m_lastPan;
    OdGePoint2d m_pointer;
    Picking m_picking = Picking::kNothing;
    std::size_t m_wantedPlaces = 0;
    std::vector<OdGePoint2d> m_places;
    std::optional<CPoint> m_windowFrom;  ///< client pixels; while the user draws a window
    CPoint m_windowTo;
    bool m_pickingCorners = false;  ///< the places that are picked are corners of a window
    std::set<OdDbObjectId> m_selectionBefore;
    PickEnded m_pickEnded;
    CKhTipCtrl m_tip;
    OdDbObjectId m_tipEntity;  ///< whose tip is shown or waits; null for none
    SceneColors m_colors;
    int m_crosshair = 5;
    std::optional<CPoint> m_crosshairAt;  ///< client pixels; nothing while the pointer is elsewhere
    std::function<bool()> m_escape;
    bool m_showsExtents = true;
    bool m_fitPending = true;  ///< nothing was shown yet, so the next size decides the zoom
};
