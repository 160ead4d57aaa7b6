// The drafter's main window: menu, drawing view, status line.
#pragma once

#include <afxwin.h>
#include <afxframewndex.h>

#include "draft_document.h"
#include "drawing_picker.h"
#include "drawing_view.h"
#include "extensions.h"
#include "layouts_menu.h"
#include "messages.h"
#include "options.h"
#include "palettes.h"
#include "picker_bar.h"
#include "status_line.h"

#include <standin_plot_view.h>

class CKhFontStyle;
class CStandinHost;

class CMainFrame : public CFrameWndEx,
                   private CDrawingPicker,
                   private CBlockTarget,
                   private CDrafterServices,
                   private StandinPlotView {
    DECLARE_DYNAMIC(CMainFrame)

public:
    explicit CMainFrame(CStandinHost& host);
    ~CMainFrame() override;

    /// Shows the drawing in `path`; tells the user why if it cannot be read, and the present drawing stays.
    /// A drawing that is opened to be looked at only takes no lock, and isn't saved under its own name.
    bool OpenDrawing(const CString& path, bool isReadOnly = false);

    BOOL PreTranslateMessage(MSG* message) override;

    CPalettes& palettes() { return m_palettes; }

protected:
    CWnd* GetMessageBar() override { return &m_status; }
    /// While nothing else is to be said, what was mended in the drawing.
    void GetMessageString(UINT id, CString& message) const override;
    /// While the user picks, only what changes the view or the selection goes on.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnClose();
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSelection(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPointer(WPARAM wParam, LPARAM lParam);
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();
    afx_msg void OnFileExport();
    afx_msg void OnRecentFile(UINT id);
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg void OnUndo();
    afx_msg void OnRedo();
    afx_msg void OnSelectAll();
    afx_msg void OnSelectWindow();
    afx_msg void OnDeselect();
    afx_msg void OnZoomExtents();
    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnProperties();
    afx_msg void OnPropertiesPalette();
    afx_msg void OnLayers();
    afx_msg void OnBlocks();
    afx_msg void OnDimensionStyle();
    afx_msg void OnTextStyle();
    afx_msg void OnMeasure();
    afx_msg void OnAbout();
    afx_msg void OnHelpTopics();
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    afx_msg void OnPickerBar();
    afx_msg void OnPalette(UINT id);
    afx_msg void OnLock(UINT id);
    afx_msg void OnSearchLayers();
    afx_msg void OnOptions();
    afx_msg void OnUpdatePickerBar(CCmdUI* item);
    afx_msg void OnUpdatePalette(CCmdUI* item);
    afx_msg void OnUpdateLock(CCmdUI* item);
    afx_msg void OnLayout(UINT id);
    afx_msg void OnUpdateLayout(CCmdUI* item);
    afx_msg void OnUpdateUndo(CCmdUI* item);
    afx_msg void OnUpdateRedo(CCmdUI* item);
    afx_msg void OnUpdateHasSelection(CCmdUI* item);
    DECLARE_MESSAGE_MAP()

private:
    void PickPlaces(std::size_t count, unsigned firstPrompt, PlacesPicked picked) override;
    void PickObjects(unsigned prompt, ObjectsPicked picked) override;
    bool displayedArea(OdGePoint2d& low, OdGePoint2d& high) override;
    bool pickArea(OdGePoint2d& first, OdGePoint2d& second) override;
    bool TakesBlockAt(CPoint screen) const override;
    void DropBlock(const OdDbObjectId& block, CPoint screen) override;
    void PlaceBlock(const OdDbObjectId& block) override;
    void DrawingChanged(const wchar_t* name) override;
    void insertBlock(const OdDbObjectId& block, const OdGePoint2d& place);
    void showIdle();
    void showPrompt();
    void showDocument(std::unique_ptr<CDraftDocument> document);
    /// Gives the options to the host, the view and the drawing.
    void useOptions(const DrafterOptions& options);
    /// The same, and keeps them for the user.
    void applyOptions(const DrafterOptions& options);
    /// The picker bar and the palettes follow the drawing and the selection.
    void showBars();
    void enablePalettes();
    std::vector<OdDbObjectId> selectedObjects() const;
    void showDrawing(bool keepPlace);
    /// Shows a dialog that edits the drawing, and the drawing as it is afterwards. What it changed is undone
    /// under the string `name`.
    void runDialog(CDialog& dialog, UINT name);
    /// Makes one step of Undo of what was changed, under the string `name`, and shows the drawing.
    void finishChange(UINT name);
    void finishChange(const CString& name);
    /// Makes a font file known to the host, and to the system for as long as the program runs; its first
    /// style, or null with the reason in `message`.
    CKhFontStyle* loadFont(const CString& file, CString& message);
    /// The drawing's name for the user, also of one without a file.
    CString shownName() const;
    void showTitle();
    bool saveTo(const CString& path, const OdDxfForm& form);
    /// Locks the file that the drawing is to be saved to, unless it is locked already; false if another
    /// program has it, which is told.
    LossChoice askLosses(const CString& path, OdDb::DwgVersion version);
    bool lockForSaving(const CString& path, CDrawingLock& lock);
    /// Saves under the drawing's name, asking for one where that is needed; false if it was not saved.
    bool saveDrawing();
    /// Asks whether changes are to be saved; false if the user thought better of it.
    bool mayDiscard();
    bool saveAs();
    /// Makes a drawing the newest of the application's recent files.
    void keepRecent(const CString& path);
    void forgetRecent(const CString& path);

    CStandinHost& m_host;
    std::unique_ptr<CDraftDocument> m_document;
    CDrawingView m_view;
    CStatusLine m_status;
    unsigned m_firstPrompt = 0;
    CPickerBar m_pickers;
    std::unique_ptr<CExtensions> m_extensions;
    CPalettes m_palettes;
    CLayoutsMenu m_layouts;
    bool m_isInCommand = false;  ///< a modal dialog has stepped aside for an editor command
    DrafterOptions m_options;
};
