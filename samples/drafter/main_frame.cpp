#include "main_frame.h"

#include <ktut.h>
#include <standin_host.h>
#include <ktui/host/appearance.h>
#include <ktui/host/message_box.h>

#include "options_dialog.h"
#include "resource.h"
#include "resource_text.h"

namespace {

const UINT kbUiMessage = ::RegisterWindowMessageW(kKbUiMessageName);

constexpr int kPointerWidth = 200, kSelectionWidth = 120;  // pixels at 96 dots an inch

}  // namespace

IMPLEMENT_DYNAMIC(CMainFrame, CMDIFrameWndEx)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWndEx)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_CLOSE()
    ON_WM_SETFOCUS()
    ON_WM_ENABLE()
    ON_WM_ACTIVATE()
    ON_MESSAGE(WM_DPICHANGED, &CMainFrame::OnDpiChanged)
    ON_MESSAGE(WM_DRAFTER_FOCUS, &CMainFrame::OnTakeFocus)
    ON_REGISTERED_MESSAGE(AFX_WM_CHANGING_ACTIVE_TAB, &CMainFrame::OnChangingTab)
    ON_REGISTERED_MESSAGE(AFX_WM_ON_GET_TAB_TOOLTIP, &CMainFrame::OnTabTip)
    ON_COMMAND(ID_FILE_NEW, &CMainFrame::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CMainFrame::OnFileOpen)
    ON_COMMAND(ID_FILE_CLOSE_ALL, &CMainFrame::OnCloseAll)
    ON_COMMAND(ID_FILE_SAVE_ALL, &CMainFrame::OnSaveAll)
    ON_WM_DROPFILES()
    ON_COMMAND(ID_WINDOW_NEXT_DRAWING, &CMainFrame::OnNextDrawing)
    ON_COMMAND(ID_WINDOW_PREVIOUS_DRAWING, &CMainFrame::OnPreviousDrawing)
    ON_COMMAND(ID_FORMAT_PROPERTIES_PALETTE, &CMainFrame::OnPropertiesPalette)
    ON_COMMAND(ID_FORMAT_LAYERS, &CMainFrame::OnLayers)
    ON_COMMAND(ID_FORMAT_BLOCKS, &CMainFrame::OnBlocks)
    ON_REGISTERED_MESSAGE(kbUiMessage, &CMainFrame::OnKbUiMessage)
    ON_COMMAND(ID_VIEW_SEARCH_LAYERS, &CMainFrame::OnSearchLayers)
    ON_COMMAND(ID_VIEW_PICKER_BAR, &CMainFrame::OnPickerBar)
    ON_COMMAND_RANGE(ID_VIEW_TOOLBAR_FILE, ID_VIEW_TOOLBAR_VIEW, &CMainFrame::OnToolBar)
    ON_COMMAND_RANGE(ID_VIEW_PALETTE_PROPERTIES, ID_VIEW_PALETTE_EXTENSION, &CMainFrame::OnPalette)
    ON_COMMAND_RANGE(ID_VIEW_LOCK_DOCKED, ID_VIEW_LOCK_FLOATING, &CMainFrame::OnLock)
    ON_COMMAND_RANGE(ID_VIEW_LAYOUT_SAVE, ID_VIEW_LAYOUT_LAST, &CMainFrame::OnLayout)
    ON_COMMAND(ID_TOOLS_OPTIONS, &CMainFrame::OnOptions)
    ON_COMMAND(ID_APP_ABOUT, &CMainFrame::OnAbout)
    ON_COMMAND(ID_HELP_TOPICS, &CMainFrame::OnHelpTopics)
    ON_WM_HELPINFO()
    ON_UPDATE_COMMAND_UI(ID_VIEW_PICKER_BAR, &CMainFrame::OnUpdatePickerBar)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_TOOLBAR_FILE, ID_VIEW_TOOLBAR_VIEW, &CMainFrame::OnUpdateToolBar)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_PALETTE_PROPERTIES, ID_VIEW_PALETTE_EXTENSION,
                               &CMainFrame::OnUpdatePalette)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LOCK_DOCKED, ID_VIEW_LOCK_FLOATING, &CMainFrame::OnUpdateLock)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LAYOUT_SAVE, ID_VIEW_LAYOUT_LAST, &CMainFrame::OnUpdateLayout)
    ON_UPDATE_COMMAND_UI(ID_FILE_CLOSE_ALL, &CMainFrame::OnUpdateHasDrawing)
    ON_UPDATE_COMMAND_UI(ID_FILE_SAVE_ALL, &CMainFrame::OnUpdateHasDrawing)
    ON_UPDATE_COMMAND_UI(ID_VIEW_SEARCH_LAYERS, &CMainFrame::OnUpdateHasDrawing)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_NEXT_DRAWING, &CMainFrame::OnUpdateHasOthers)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_PREVIOUS_DRAWING, &CMainFrame::OnUpdateHasOthers)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(CStandinHost& host)
    : m_host(host),
      m_pickers([this](UINT name) {
          finishChange(name);
          SetFocus();
      }),
      m_palettes([this](UINT name) { finishChange(name); },
                 [this] {
                     if (m_active != nullptr) m_active->Refresh(true);
                 },
                 *this) {}

CMainFrame::~CMainFrame() {
    m_host.SetPlotView(nullptr);
    m_host.SetCurrentDocument(nullptr);
}

int CMainFrame::OnCreate(LPCREATESTRUCT create) {
    if (CMDIFrameWndEx::OnCreate(create) == -1) return -1;
    // The drawings fill what lies between the bars to its edges.
    CWnd::FromHandle(m_hWndMDIClient)->ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED);
    if (!m_status.Create(WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP | SBARS_TOOLTIPS, CRect(0, 0, 0, 0), this,
                         AFX_IDW_STATUS_BAR))
        return -1;
    if (!m_pickers.CreateBar(this)) return -1;
    EnableDocking(CBRS_ALIGN_ANY);
    EnableAutoHidePanes(CBRS_ALIGN_ANY);
    if (!m_toolBars.Create(*this)) return -1;
    if (!m_palettes.Create(*this)) return -1;
    m_extensions = std::make_unique<CExtensions>(CString(ktutProgramFolder().c_str()) + L"extensions\\");
    m_palettes.AddExtension(*m_extensions, *this);
    m_layouts.Attach(*this);
    CKtUiDialog keeper(0);
    keeper.SetDialogName(L"Options");
    m_options = LoadOptions(keeper);
    useOptions(m_options);
    EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP, FALSE, CMFCTabCtrl::STYLE_3D_SCROLLED, TRUE, TRUE);
    EnableMDITabsLastActiveActivation();
    GetMDITabs().SetDrawNoPrefix(TRUE, FALSE);
    DragAcceptFiles();
    showNothing();
    return 0;
}

void CMainFrame::OnSize(UINT type, int cx, int cy) {
    CMDIFrameWndEx::OnSize(type, cx, cy);
    if (m_status.m_hWnd == nullptr) return;
    const int pointer = KtUiAppearancePixels(m_hWnd, kPointerWidth);
    const int selection = KtUiAppearancePixels(m_hWnd, kSelectionWidth);
    int edges[3] = {cx - pointer - selection, cx - selection, -1};
    m_status.Part(3, edges);
}

void CMainFrame::OnClose() {
    if (isPicking()) return m_active->GiveUpPicking();
    m_palettes.TakeTyped();
    if (mayCloseAll()) CMDIFrameWndEx::OnClose();
}

/// What shows a drawing goes before the drawings.
void CMainFrame::OnDestroy() {
    DrawingActivated(nullptr);
    m_isGoing = true;
    CMDIFrameWndEx::OnDestroy();
}

void CMainFrame::OnSetFocus(CWnd* former) {
    if (m_active != nullptr)
        m_active->view().SetFocus();
    else
        CMDIFrameWndEx::OnSetFocus(former);
}

void CMainFrame::OnEnable(BOOL enable) {
    CMDIFrameWndEx::OnEnable(enable);
    // A dialog has come up, under a pointer that the view no longer hears of.
    if (!enable && m_active != nullptr) m_active->view().HideTip();
    enablePalettes();
}

/// The window went to a monitor of another resolution: it takes the place that the system suggests.
LRESULT CMainFrame::OnDpiChanged(WPARAM, LPARAM lParam) {
    const CRect place(*reinterpret_cast<const RECT*>(lParam));
    MoveWindow(place);
    return 0;
}

void CMainFrame::OnHelpTopics() { m_host.uiHost()->showHelp(L"index"); }

/// F1 in the frame, or in a dialog that is not of the toolkit: the others have opened their page already.
BOOL CMainFrame::OnHelpInfo(HELPINFO* info) {
    auto window = static_cast<HWND>(info->hItemHandle);
    for (; window != nullptr && window != m_hWnd; window = ::GetParent(window))
        if (dynamic_cast<CKbUiBaseDialog*>(CWnd::FromHandlePermanent(window)) != nullptr) return TRUE;
    m_host.uiHost()->showHelp(nullptr);
    return TRUE;
}

BOOL CMainFrame::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
        case ID_EDIT_SELECT_ALL:
        case ID_EDIT_DESELECT:
        case ID_VIEW_EXTENTS:
        case ID_VIEW_ZOOM_IN:
        case ID_VIEW_ZOOM_OUT: break;
        case ID_FILE_CLOSE:
        case ID_WINDOW_NEXT_DRAWING:
        case ID_WINDOW_PREVIOUS_DRAWING: m_palettes.TakeTyped(); break;
        default:
            if (isPicking()) return TRUE;
            // A command of the menu finds the drawing as the palettes show it.
            if (lParam == 0) m_palettes.TakeTyped();
    }
    return CMDIFrameWndEx::OnCommand(wParam, lParam);
}

/// A modal dialog tells that it begins or ends an editor command: the frame is usable in between.
LRESULT CMainFrame::OnKbUiMessage(WPARAM wParam, LPARAM lParam) {
    if (KbUiNotification(wParam) != kKbUiNotifyEditorCommand) return kKbUiReplyNone;
    const bool begins = lParam == 1;
    m_isInCommand = begins;
    EnableWindow(begins);
    if (begins) {
        SetActiveWindow();
        SetFocus();
    } else {
        SayIdle();
    }
    return kKbUiReplyHandled;
}

void CMainFrame::OnPickerBar() { ShowControlBar(&m_pickers, !m_pickers.IsVisible(), FALSE); }

void CMainFrame::OnSearchLayers() {
    if (!m_pickers.IsVisible()) ShowControlBar(&m_pickers, TRUE, FALSE);
    m_pickers.SearchLayers();
}

/// In a text that is being edited the keys of editing keep their meaning.
BOOL CMainFrame::PreTranslateMessage(MSG* message) {
    if (closesTab(*message)) return TRUE;
    const CWnd* focus = GetFocus();
    wchar_t name[8] = {};
    if (focus != nullptr) ::GetClassNameW(focus->m_hWnd, name, 8);
    const bool isEditing = ::lstrcmpiW(name, L"Edit") == 0;
    if (isEditing && message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST &&
        (message->wParam == VK_HOME || ::wcschr(L"AZY", static_cast<wchar_t>(message->wParam)) != nullptr))
        return FALSE;
    return CMDIFrameWndEx::PreTranslateMessage(message);
}

void CMainFrame::OnToolBar(UINT id) { m_toolBars.Toggle(id); }

void CMainFrame::OnUpdateToolBar(CCmdUI* item) { item->SetCheck(m_toolBars.IsShown(item->m_nID)); }

void CMainFrame::OnUpdatePickerBar(CCmdUI* item) { item->SetCheck(m_pickers.IsVisible()); }

void CMainFrame::OnOptions() {
    // Other ways lead to the drawing's units too.
    if (m_active != nullptr) m_options.units = UnitsOf(m_active->drawing());
    COptionsDialog dialog(
        m_options, [this](const DrafterOptions& options) { applyOptions(options); }, m_extensions.get(),
        this);
    if (m_active == nullptr) dialog.WithoutDrawing();
    if (dialog.DoModal() == IDOK) applyOptions(dialog.options());
    // An extension's page may have edited the drawing as well, and what was applied stays when it is
    // cancelled.
    finishChange(IDS_CHANGE_OPTIONS);
    SetFocus();
}

void CMainFrame::applyOptions(const DrafterOptions& options) {
    m_options = options;
    CKtUiDialog keeper(0);
    keeper.SetDialogName(L"Options");
    if (!SaveOptions(keeper, options))
        KtUiMessageBox(nullptr, textOf(IDS_OPTIONS_NOT_STORED), MB_ICONEXCLAMATION);
    useOptions(options);
    for (CDrawingWindow* const each : drawings()) {
        each->UseLook();
        each->Outdate();
    }
    if (m_active == nullptr) return;
    SetUnits(m_active->drawing(), options.units);
    m_active->RefreshIfOutdated();
}

void CMainFrame::useOptions(const DrafterOptions& options) {
    const CString folder = ktutProgramFolder().c_str();
    std::vector<CString> folders = FoldersOf(options.supportFolders);
    if (folders.empty()) folders = {folder + L"fonts", folder + L"support"};
    m_host.SetSupportDirectories(std::move(folders));
    m_host.SetShapeFontInPlace(folder + L"fonts\\drafter.shx");
    m_host.SetPathVariable(L"PrinterStyleSheetDir",
                           options.styleSheets.IsEmpty() ? folder + L"Plot Styles" : options.styleSheets);
}

void CMainFrame::OnAbout() { KtUiMessageBox(nullptr, textOf(IDS_ABOUT), MB_ICONINFORMATION); }

void CMainFrame::finishChange(UINT name) {
    if (m_active != nullptr) m_active->FinishChange(name);
}
