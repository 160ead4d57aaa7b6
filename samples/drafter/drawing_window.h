// CDrawingWindow: the window of an open drawing, with a tab of its own in the main window. It owns the
// drawing with its history, and the view with its place and selection, and serves the commands that need
// them.
#pragma once

#include <map>
#include <memory>

#include <afxwin.h>
#include <afxmdichildwndex.h>

#include "draft_document.h"
#include "drawing_desk.h"
#include "drawing_picker.h"
#include "drawing_view.h"
#include "layout_tabs.h"
#include "messages.h"
#include "scene_build.h"

#include <od_db_shared_reading.h>
#include <standin_plot_view.h>

class CKhFontStyle;

/// Posted to the window of a drawing when its scene was built, and when a change ended the building.
constexpr UINT WM_DRAFTER_SCENE = WM_APP + 4;
constexpr UINT WM_DRAFTER_BEHIND = WM_APP + 5;

class CDrawingWindow : public CMDIChildWndEx, private CDrawingPicker, private StandinPlotView {
    DECLARE_DYNAMIC(CDrawingWindow)

public:
    /// Shows `document`; `number` counts the drawings without a file, from 1. Made by new: it deletes itself.
    CDrawingWindow(CDrawingDesk& desk, std::unique_ptr<CDraftDocument> document, int number);

    /// Makes the window and brings it to the front.
    bool Open(CMDIFrameWnd& frame);

    CDraftDocument& document() const { return *m_document; }
    OdDbDatabase& drawing() const { return *m_document->database(); }
    CDrawingView& view() { return m_view; }
    const CDrawingView& view() const { return m_view; }
    StandinPlotView& plotView() { return *this; }
    std::vector<OdDbObjectId> SelectedObjects() const;
    int number() const { return m_number; }

    /// The drawing's name for the user, also of one without a file.
    CString ShownName() const;
    /// The same with marks for a drawing that is read-only or was changed.
    CString Title() const;
    /// What was mended in the drawing and what of it isn't shown, for the status line; empty for nothing.
    CString Notice() const;

    /// Shows the drawing as it is now, at once or, where that would take long, when a thread has built its
    /// scene: until then the view shows what it did, or the beginning if that was nothing. `keepPlace` leaves
    /// the view's place and the selection.
    void Refresh(bool keepPlace);
    bool IsBuilding() const { return m_build != nullptr; }
    /// Ends building where it is, as Escape does; what is there is shown. False if nothing was being built.
    bool StopBuilding();
    /// The drawing may look otherwise, as after other options: it is shown anew when it comes to the front.
    void Outdate() { m_isOutdated = true; }
    /// False if the drawing was shown as it is already.
    bool RefreshIfOutdated();
    void UseLook();
    /// Makes one step of Undo of what was changed, under the string `name`, and shows the drawing.
    void FinishChange(UINT name);
    void FinishChange(const CString& name);
    /// Shows the layout of tab `index`, 0 for model space; nothing happens for none, or while something is
    /// picked. The layout is the drawing's current one then: new objects go there.
    void ShowLayout(int index);
    /// Inserts a block, and selects the new reference.
    void InsertBlockAt(const OdDbObjectId& block, const OdGePoint2d& place);
    /// Has the user pick a place for the block.
    void PlaceBlock(const OdDbObjectId& block);
    /// Ends what is being picked, as Escape does.
    void GiveUpPicking() { m_view.EndPicking(false); }

    /// Saves under the drawing's name, asking for one where that is needed; false if it was not saved.
    bool Save();
    /// Asks whether changes are to be saved; false if the user thought better of it.
    bool MayClose();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnMDIActivate(BOOL activate, CWnd* coming, CWnd* going);
    afx_msg void OnSysCommand(UINT command, LPARAM lParam);
    afx_msg LRESULT OnSelection(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPointer(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnScene(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnBehind(WPARAM wParam, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnFileClose();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();
    afx_msg void OnFileExport();
    afx_msg void OnUndo();
    afx_msg void OnRedo();
    afx_msg void OnSelectAll();
    afx_msg void OnSelectWindow();
    afx_msg void OnDeselect();
    afx_msg void OnZoomExtents();
    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnRedraw();
    afx_msg void OnLayoutTab(NMHDR* header, LRESULT* result);
    afx_msg void OnNextLayout();
    afx_msg void OnPreviousLayout();
    afx_msg void OnLayout(UINT command);
    afx_msg void OnUpdateLayout(CCmdUI* item);
    afx_msg void OnUpdateNextLayout(CCmdUI* item);
    afx_msg void OnUpdatePreviousLayout(CCmdUI* item);
    afx_msg void OnProperties();
    afx_msg void OnDimensionStyle();
    afx_msg void OnTextStyle();
    afx_msg void OnMeasure();
    afx_msg void OnUpdateUndo(CCmdUI* item);
    afx_msg void OnUpdateRedo(CCmdUI* item);
    afx_msg void OnUpdateHasSelection(CCmdUI* item);
    DECLARE_MESSAGE_MAP()

private:
    void PickPlaces(std::size_t count, unsigned firstPrompt, PlacesPicked picked) override;
    void PickObjects(unsigned prompt, ObjectsPicked picked) override;
    bool displayedArea(OdGePoint2d& low, OdGePoint2d& high) override;
    bool pickArea(OdGePoint2d& first, OdGePoint2d& second) override;
    /// Shows a scene of the current layout, with the paper below it.
    void showScene(Scene scene, SceneBounds bounds, bool keepPlace);
    /// If another layout is current than the one that shows: keeps where the view is in that one. True then.
    bool leaveSpace();
    /// Where the user was in the layout that shows now.
    void returnToPlace();
    void showTabs();
    std::vector<CString> layoutNames() const;
    /// The tab of the current layout; -1 for none.
    int currentLayout() const;
    std::optional<SheetPlace> sheetUnder(const Scene& scene) const;
    void startBuild();
    /// Shows what was built.
    void finishBuild();
    /// Before a change: nobody reads the drawing any more.
    void dropBuild();
    void sayPrompt();
    void showTitle();
    /// Shows a dialog that edits the drawing, and the drawing as it is afterwards. What it changed is undone
    /// under the string `name`.
    void runDialog(CDialog& dialog, UINT name);
    /// Makes a font file known to the host, and to the system for as long as the program runs; its first
    /// style, or null with the reason in `message`.
    CKhFontStyle* loadFont(const CString& file, CString& message);
    /// What a file of the drawing is called at first.
    CString proposedName() const;
    bool saveTo(const CString& path, const OdDxfForm& form);
    /// Tells what the file would not hold, unless the user knows it already.
    LossChoice askLosses(const CString& path, OdDb::DwgVersion version);
    /// Locks the file that the drawing is to be saved to, unless it is locked already; false if another
    /// program or window has it, which is told.
    bool lockForSaving(const CString& path, CDrawingLock& lock);
    bool saveAs();

    CDrawingDesk& m_desk;
    std::unique_ptr<CDraftDocument> m_document;
    int m_number;
    CDrawingView m_view;
    CLayoutTabs m_tabs;
    std::vector<OdDbObjectId> m_layouts;       ///< one for each tab
    OdDbObjectId m_space;                      ///< the block that is shown
    std::map<OdDbHandle, ViewPlace> m_places;  ///< where the user was in blocks that were shown before
    unsigned m_firstPrompt = 0;
    CString m_notice;  ///< what isn't shown
    bool m_isOutdated = false;
    bool m_wasShown = false;
    bool m_refits = false;    ///< what is built is to be seen whole, unless the user has zoomed since
    bool m_isBehind = false;  ///< a change ended the building, and nobody has asked for the scene since
    int m_shownPercent = 0;
    std::unique_ptr<CSceneBuild> m_build;  ///< null while nothing is being built
    OdDbSharedReading m_reading{drawing(), [this] { dropBuild(); }};
};
