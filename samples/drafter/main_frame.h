// The drafter's main window: menu, bars, palettes, status line, and the open drawings, each with a tab.
#pragma once

#include <vector>

#include <afxwin.h>
#include <afxmdiframewndex.h>

#include "drawing_desk.h"
#include "drawing_window.h"
#include "extensions.h"
#include "layouts_menu.h"
#include "options.h"
#include "palettes.h"
#include "picker_bar.h"
#include "status_line.h"
#include "tool_bars.h"

class CStandinHost;

/// What the main window tells itself when a drawing came or went: some window of it should have the focus.
constexpr UINT WM_DRAFTER_FOCUS = WM_APP + 3;

class CMainFrame : public CMDIFrameWndEx,
                   private CDrawingDesk,
                   private CBlockTarget,
                   private CDrafterServices {
    DECLARE_DYNAMIC(CMainFrame)

public:
    explicit CMainFrame(CStandinHost& host);
    ~CMainFrame() override;

    /// Opens the drawings of these files, and a new one if that leaves none.
    void OpenAtStart(const std::vector<CString>& files);
    /// Shows the drawing in `path` in a window of its own; one that is open already comes to the front. Tells
    /// the user why if it cannot be read. A drawing that is opened to be looked at only takes no lock, and
    /// isn't saved under its own name.
    bool OpenDrawing(const CString& path, bool isReadOnly = false);

    /// The same for an entry of the recent drawings, counted from 0; one that is gone leaves them.
    void OpenRecent(int index);

    BOOL PreTranslateMessage(MSG* message) override;
    void OnUpdateFrameTitle(BOOL addToTitle) override;
    HMENU GetWindowMenuPopup(HMENU bar) override;

    CPalettes& palettes() { return m_palettes; }

protected:
    CWnd* GetMessageBar() override { return &m_status; }
    /// While nothing else is to be said, what was mended in the drawing.
    void GetMessageString(UINT id, CString& message) const override;
    /// While the user picks, only what changes the view or the selection goes on, or the drawing.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnClose();
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTakeFocus(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnChangingTab(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTabTip(WPARAM wParam, LPARAM lParam);
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    afx_msg void OnCloseAll();
    afx_msg void OnSaveAll();
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg void OnNextDrawing();
    afx_msg void OnPreviousDrawing();
    afx_msg void OnPropertiesPalette();
    afx_msg void OnLayers();
    afx_msg void OnBlocks();
    afx_msg void OnAbout();
    afx_msg void OnHelpTopics();
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    afx_msg void OnPickerBar();
    afx_msg void OnToolBar(UINT id);
    afx_msg void OnPalette(UINT id);
    afx_msg void OnLock(UINT id);
    afx_msg void OnSearchLayers();
    afx_msg void OnOptions();
    afx_msg void OnUpdatePickerBar(CCmdUI* item);
    afx_msg void OnUpdateToolBar(CCmdUI* item);
    afx_msg void OnUpdatePalette(CCmdUI* item);
    afx_msg void OnUpdateLock(CCmdUI* item);
    afx_msg void OnLayout(UINT id);
    afx_msg void OnUpdateLayout(CCmdUI* item);
    afx_msg void OnUpdateHasDrawing(CCmdUI* item);
    afx_msg void OnUpdateHasOthers(CCmdUI* item);
    DECLARE_MESSAGE_MAP()

private:
    // As the desk of its drawings.
    CStandinHost& Host() override { return m_host; }
    const DrafterOptions& Options() const override { return m_options; }
    CWnd& DialogOwner() override { return *this; }
    SceneOptions ViewSceneOptions(OdDbDatabase& drawing, bool inBackground) override;
    void DrawingActivated(CDrawingWindow* window) override;
    void DrawingChanged(const CDrawingWindow& window) override;
    void SelectionChanged(const CDrawingWindow& window) override;
    void PointerMoved(const CDrawingWindow& window) override;
    void NameChanged(const CDrawingWindow& window) override;
    void NoticeChanged(const CDrawingWindow& window) override;
    void Say(const CString& prompt) override { m_status.Say(prompt); }
    void SayIdle() override;
    void TakeTyped() override { m_palettes.TakeTyped(); }
    bool GiveUpCommand() override;
    CDrawingWindow* WindowOf(const CString& path) override;

    bool TakesBlockAt(CPoint screen) const override;
    void DropBlock(const OdDbObjectId& block, CPoint screen) override;
    void PlaceBlock(const OdDbObjectId& block) override;
    void DrawingChanged(const wchar_t* name) override;

    /// The windows of the open drawings, as their tabs stand.
    std::vector<CDrawingWindow*> drawings();
    CDrawingWindow* drawingOf(int tab);
    bool isPicking() const { return m_active != nullptr && m_active->view().IsPicking(); }
    CDrawingWindow* show(std::unique_ptr<CDraftDocument> document);
    /// How many the next drawing without a file is.
    int nextNumber();
    void openEach(const std::vector<CString>& files, bool isReadOnly);
    /// Closes the drawing that the program began with if nothing was done to it.
    void leaveFirst();
    /// Asks for each changed drawing; false if the user thought better of it.
    bool mayCloseAll();
    void goBy(int step);
    /// A click with the middle button on a tab closes its drawing.
    bool closesTab(const MSG& message);
    void showNothing();
    void showSelection();
    /// Gives the options to the host, the views and the drawing in front.
    void useOptions(const DrafterOptions& options);
    /// The same, and keeps them for the user.
    void applyOptions(const DrafterOptions& options);
    void enablePalettes();
    void finishChange(UINT name);

    CStandinHost& m_host;
    CDrawingWindow* m_active = nullptr;  ///< the drawing in front; null while none is open
    CDrawingWindow* m_first = nullptr;   ///< the one that the program began with, until another one is opened
    CStatusLine m_status;
    CPickerBar m_pickers;
    std::unique_ptr<CExtensions> m_extensions;
    CPalettes m_palettes;
    CToolBars m_toolBars;
    CLayoutsMenu m_layouts;
    bool m_isInCommand = false;  ///< a modal dialog has stepped aside for an editor command
    bool m_isGoing = false;
    DrafterOptions m_options;
};
