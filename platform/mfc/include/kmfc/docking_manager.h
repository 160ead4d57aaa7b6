// CDockingManager: lays out the panes of a frame window.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include <kmfc/docking_types.h>
#include <kmfc/frame.h>

namespace kmfc::docking {
class DockedBars;
struct FrameState;
struct Drag;
struct DropScene;
struct LayoutRecord;
struct GroupRecord;
struct HiddenRecord;
class SplitTree;
enum class Side : int;
}  // namespace kmfc::docking

/// One belongs to each CFrameWndEx and CMDIFrameWndEx. It knows every pane registered by AddPane or docked,
/// and every floating frame. Docked panes stand in rows at the sides of the frame: each pane docked later at
/// a side of the frame stands further inside, and panes docked to each other share a row. A pane that floats
/// or is hidden keeps its place in its row for its return.
class KMFC_API CDockingManager : public CObject {
    DECLARE_DYNCREATE(CDockingManager)
public:
    CDockingManager();
    ~CDockingManager() override;

    static AFX_DOCK_TYPE m_dockModeGlobal;
    static BOOL m_bDockBarMenu;     ///< captions have a menu button
    static int m_nDockSensitivity;  ///< pixels from an edge at which a dropped pane docks, without guides
    static BOOL m_bSuppressLayout;  ///< nothing is laid out while this is set

    BOOL Create(CFrameWnd* pParentWnd);

    // Panes and frames.
    /// Registers a pane. One that is no CDockablePane stands at its edge of the frame from now on: those that
    /// come first stand outside, with `bTail` FALSE before all others.
    BOOL AddPane(CBasePane* pWnd, BOOL bTail = TRUE, BOOL bAutoHide = FALSE,
                 BOOL bInsertForOuterEdge = FALSE);
    BOOL InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter = TRUE);
    void RemovePaneFromDockManager(CBasePane* pWnd, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                   CBasePane* pBarReplacement);
    BOOL ReplacePane(CDockablePane* pOriginalBar, CDockablePane* pNewBar);
    virtual CBasePane* FindPaneByID(UINT uBarID, BOOL bSearchMiniFrames = FALSE);
    /// All panes, docked ones from the outside in, then floating ones; not the dividers.
    void GetPaneList(CObList& lstBars, BOOL bIncludeAutohide = FALSE, CRuntimeClass* pRTCFilter = nullptr,
                     BOOL bIncludeTabs = FALSE);
    virtual BOOL AddMiniFrame(CPaneFrameWnd* pWnd);
    virtual BOOL RemoveMiniFrame(CPaneFrameWnd* pWnd);
    const CObList& GetMiniFrames() const { return m_lstMiniFrames; }
    CFrameWnd* GetDockSiteFrameWnd() const { return m_pParentWnd; }
    /// The pane at a screen point, or null: docked ones, with `bSearchMiniFrames` also floating ones, which
    /// go first.
    virtual CBasePane* PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar = false,
                                     CRuntimeClass* pRTCBarType = nullptr, BOOL bCheckVisibility = FALSE,
                                     const CBasePane* pBarToIgnore = nullptr) const;
    virtual CPaneFrameWnd* FrameFromPoint(CPoint pt, CPaneFrameWnd* pFrameToExclude,
                                          BOOL bFloatMultiOnly) const;

    // Docking.
    /// The sides at which panes may dock.
    BOOL EnableDocking(DWORD dwStyle);
    DWORD GetEnabledAlignment() const { return m_dwEnabledAlignment; }
    BOOL EnableAutoHidePanes(DWORD dwStyle);
    DWORD GetEnabledAutoHideAlignment() const { return m_dwAutoHideAlignment; }
    /// Docks at the side that `nDockBarID` names (AFX_IDW_DOCKBAR_LEFT …), 0 for the pane's own alignment.
    void DockPane(CBasePane* pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
    BOOL DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar);
    void ShowPanes(BOOL bShow);
    static AFX_DOCK_TYPE GetDockingMode() { return m_dockModeGlobal; }
    static void SetDockingMode(AFX_DOCK_TYPE dockMode) { m_dockModeGlobal = dockMode; }
    static void EnableDockSiteMenu(BOOL bEnable = TRUE) { m_bDockBarMenu = bEnable; }
    static BOOL IsDockSiteMenu() { return m_bDockBarMenu; }
    static CSmartDockingInfo& GetSmartDockingParams() { return m_SDParams; }
    static void SetSmartDockingParams(CSmartDockingInfo& params);

    // Layout.
    /// Lays the frame out: bars, panes, dividers and what is left, in one batch.
    virtual void AdjustDockingLayout(HDWP hdwp = nullptr);
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    virtual void AdjustPaneFrames();
    BOOL IsInAdjustLayout() const { return m_bInLayout; }
    /// What the panes leave of the frame's client area, client coordinates.
    CRect GetClientAreaBounds() const;
    void GetClientAreaBounds(CRect& rcClient) { rcClient = GetClientAreaBounds(); }
    /// What is left to panes after bars, client coordinates.
    CRect GetOuterEdgeBounds() const;
    void SendMessageToMiniFrames(UINT uMessage, WPARAM wParam = 0, LPARAM lParam = 0);
    void OnActivateFrame(BOOL bActivate);

    // State. FALSE, with everything left as it is, when what is stored is damaged or of another version.
    virtual BOOL LoadState(LPCTSTR lpszProfileName, UINT uiID = static_cast<UINT>(-1));
    virtual BOOL SaveState(LPCTSTR lpszProfileName, UINT uiID = static_cast<UINT>(-1));
    /// Writes or reads the whole layout; reading what is damaged throws CArchiveException and changes
    /// nothing.
    void Serialize(CArchive& ar) override;
    void DisableRestoreDockState(BOOL bDisable = TRUE) { m_bRestoreDockStateDisabled = bDisable; }

    // For the panes and frames of this library.
    /// The toolbars that dock in the frame.
    kmfc::docking::DockedBars& bars();
    bool dock_at_edge(CDockablePane* pane, DWORD alignment, int extent, bool outer);
    bool dock_beside(CDockablePane* pane, CDockablePane* target, DWORD alignment, int extent);
    bool dock_at_remembered_place(CDockablePane* pane);
    /// Puts a floating frame of several panes at a side of the frame or of a docked pane.
    bool dock_group(CMultiPaneFrameWnd* group, CDockablePane* target, DWORD alignment, int extent,
                    bool outer);
    bool has_place(const CDockablePane* pane) const;
    /// Takes a pane out of its row; with `keepPlace` its place stays for its return.
    void undock(CDockablePane* pane, bool keepPlace);
    void set_shown(CDockablePane* pane, bool shown);
    void forget(CBasePane* pane);
    void layout_later() { m_bLayoutPending = true; }
    void on_idle();
    /// Draws the captions of the panes that lost and got the focus since the last call.
    void follow_focus();
    /// Where the present layout puts a pane or divider, client coordinates of the frame; false when nowhere.
    bool planned_rect(const CBasePane* pane, CRect& rect) const;
    void move_divider(int id, int delta);
    /// Works out where everything stands in `free` (client coordinates); what is left is the answer.
    CRect plan(const CRect& free);
    /// Lays the frame out: works out the border that panes take from the view, and calls what moves bars,
    /// panes and view in one batch.
    void layout_frame(CRect& border, const std::function<void()>& layoutBars);
    /// The frame's window is being destroyed.
    void frame_goes();

    // A drag of a floating frame by its caption.
    void begin_drag(CPaneFrameWnd* frame, CDockablePane* torn);
    void drag_to(CPoint screen, bool free);
    /// Drops what is dragged; with `cancel` everything goes back to where it was.
    void end_drag(bool cancel);
    bool is_dragging() const;
    /// The application's state of the frame comes back; it is kept.
    void frame_is_loaded();
    void frame_closes();
    /// Whether the message is Escape during a drag, which ends it.
    bool ends_drag(const MSG& message);
    /// Whether the window that becomes active while the frame gets WM_NCACTIVATE is one of its floating
    /// frames: then the frame still looks active.
    bool stays_active() const;

    // A print preview.
    /// Into a print preview and out of it: panes, toolbars, the menu bar, strips of hidden panes and floating
    /// frames go while it lasts, but for panes whose HideInPrintPreviewMode says otherwise. What is shown or
    /// hidden meanwhile shows when it is over. The caller lays the frame out anew.
    void SetPrintPreviewMode(BOOL bPreview, CPrintPreviewState* pState);
    /// Whether a preview stands in the frame.
    BOOL IsPrintPreviewValid() const;
    /// Of a floating frame that is about to be shown: whether it has to wait for the end of a preview.
    bool waits_for_preview(CPaneFrameWnd& frame);
    /// The same of a pane that is about to slide out from an edge, or in.
    bool slides_after_preview(CDockablePane& pane, bool out);

    // The bar that shows the frame's menu.
    CMFCMenuBar* menu_bar() const;
    void set_menu_bar(CMFCMenuBar* bar);
    /// Whether the message is a letter with Alt that opened an item.
    bool opens_menu(const MSG& message);
    /// Whether a system command was a lone Alt or F10, for the bar.
    bool enters_menu(UINT command, LPARAM parameter);
    /// Shows a menu in the bar, null for the one that it shows; the answer is that, 0 without a bar.
    LRESULT show_menu(HMENU menu);

    static CSmartDockingInfo m_SDParams;

protected:
    CFrameWnd* m_pParentWnd = nullptr;
    CObList m_lstControlBars;  ///< fixed and docking panes, as registered
    CObList m_lstMiniFrames;
    DWORD m_dwEnabledAlignment = 0;
    DWORD m_dwAutoHideAlignment = 0;
    BOOL m_bInLayout = FALSE;
    BOOL m_bRestoreDockStateDisabled = FALSE;
    bool m_bLayoutPending = false;

private:
    void bring_home(CDockablePane* pane);
    int extent_across(std::uintptr_t pane, kmfc::docking::Side side) const;
    void settle(CDockablePane* pane);
    void take_fixed(CRect& rest);
    void hide_unplanned();
    void begin_preview();
    void end_preview();
    bool hides_for_preview(const CBasePane& pane) const;
    void hide_for_preview();
    std::vector<std::int32_t> stored_layout() const;
    void apply(const kmfc::docking::LayoutRecord& record);
    void leave_tabs(const kmfc::docking::LayoutRecord& record,
                    const std::function<CDockablePane*(std::uintptr_t)>& found);
    void restore_group(const kmfc::docking::GroupRecord& group,
                       const std::function<CDockablePane*(std::uintptr_t)>& found);
    void hide_again(const kmfc::docking::HiddenRecord& hidden, CDockablePane* pane);
    void restore_frame(const CRect& rect, const kmfc::docking::SplitTree& panes);
    kmfc::docking::DropScene scene_of_drag() const;
    void show_drop(CPoint screen, bool free);
    CSize dragged_size() const;
    CRect expected_rect() const;
    void drop(const kmfc::docking::Drag& drag);

    std::unique_ptr<kmfc::docking::FrameState> m_state;
};
