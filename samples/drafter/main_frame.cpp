#include "main_frame.h"

#include <kh_font_list.h>
#include <ktdb.h>
#include <ktut.h>
#include <standin_host.h>
#include <ktui/host/appearance.h>
#include <ktui/host/message_box.h>

#include "dimension_style_dialog.h"
#include "measure_dialog.h"
#include "messages.h"
#include "options_dialog.h"
#include "properties_dialog.h"
#include "resource.h"
#include "text_style_dialog.h"

namespace {

const UINT kbUiMessage = ::RegisterWindowMessageW(kKbUiMessageName);

constexpr UINT kViewId = AFX_IDW_PANE_FIRST;
constexpr int kPointerPane = 1, kSelectionPane = 2;
constexpr int kPointerWidth = 200, kSelectionWidth = 120;  // pixels at 96 dots an inch
constexpr double kZoomStep = 1.25;

CString textOf(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

}  // namespace

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWndEx)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWndEx)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_CLOSE()
    ON_WM_SETFOCUS()
    ON_WM_ENABLE()
    ON_WM_ACTIVATE()
    ON_MESSAGE(WM_DPICHANGED, &CMainFrame::OnDpiChanged)
    ON_MESSAGE(WM_DRAFTER_SELECTION, &CMainFrame::OnSelection)
    ON_MESSAGE(WM_DRAFTER_POINTER, &CMainFrame::OnPointer)
    ON_COMMAND(ID_FILE_NEW, &CMainFrame::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CMainFrame::OnFileOpen)
    ON_COMMAND(ID_FILE_SAVE, &CMainFrame::OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, &CMainFrame::OnFileSaveAs)
    ON_COMMAND(ID_FILE_EXPORT, &CMainFrame::OnFileExport)
    ON_COMMAND_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE9, &CMainFrame::OnRecentFile)
    ON_WM_DROPFILES()
    ON_COMMAND(ID_EDIT_UNDO, &CMainFrame::OnUndo)
    ON_COMMAND(ID_EDIT_REDO, &CMainFrame::OnRedo)
    ON_COMMAND(ID_EDIT_SELECT_ALL, &CMainFrame::OnSelectAll)
    ON_COMMAND(ID_EDIT_SELECT_WINDOW, &CMainFrame::OnSelectWindow)
    ON_COMMAND(ID_EDIT_DESELECT, &CMainFrame::OnDeselect)
    ON_COMMAND(ID_VIEW_EXTENTS, &CMainFrame::OnZoomExtents)
    ON_COMMAND(ID_VIEW_ZOOM_IN, &CMainFrame::OnZoomIn)
    ON_COMMAND(ID_VIEW_ZOOM_OUT, &CMainFrame::OnZoomOut)
    ON_COMMAND(ID_FORMAT_PROPERTIES, &CMainFrame::OnProperties)
    ON_COMMAND(ID_FORMAT_PROPERTIES_PALETTE, &CMainFrame::OnPropertiesPalette)
    ON_COMMAND(ID_FORMAT_LAYERS, &CMainFrame::OnLayers)
    ON_COMMAND(ID_FORMAT_BLOCKS, &CMainFrame::OnBlocks)
    ON_COMMAND(ID_FORMAT_DIMENSION_STYLE, &CMainFrame::OnDimensionStyle)
    ON_COMMAND(ID_FORMAT_TEXT_STYLE, &CMainFrame::OnTextStyle)
    ON_COMMAND(ID_TOOLS_MEASURE, &CMainFrame::OnMeasure)
    ON_REGISTERED_MESSAGE(kbUiMessage, &CMainFrame::OnKbUiMessage)
    ON_COMMAND(ID_VIEW_SEARCH_LAYERS, &CMainFrame::OnSearchLayers)
    ON_COMMAND(ID_VIEW_PICKER_BAR, &CMainFrame::OnPickerBar)
    ON_COMMAND_RANGE(ID_VIEW_PALETTE_PROPERTIES, ID_VIEW_PALETTE_EXTENSION, &CMainFrame::OnPalette)
    ON_COMMAND_RANGE(ID_VIEW_LOCK_DOCKED, ID_VIEW_LOCK_FLOATING, &CMainFrame::OnLock)
    ON_COMMAND_RANGE(ID_VIEW_LAYOUT_SAVE, ID_VIEW_LAYOUT_LAST, &CMainFrame::OnLayout)
    ON_COMMAND(ID_TOOLS_OPTIONS, &CMainFrame::OnOptions)
    ON_COMMAND(ID_APP_ABOUT, &CMainFrame::OnAbout)
    ON_COMMAND(ID_HELP_TOPICS, &CMainFrame::OnHelpTopics)
    ON_WM_HELPINFO()
    ON_UPDATE_COMMAND_UI(ID_VIEW_PICKER_BAR, &CMainFrame::OnUpdatePickerBar)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_PALETTE_PROPERTIES, ID_VIEW_PALETTE_EXTENSION,
                               &CMainFrame::OnUpdatePalette)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LOCK_DOCKED, ID_VIEW_LOCK_FLOATING, &CMainFrame::OnUpdateLock)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LAYOUT_SAVE, ID_VIEW_LAYOUT_LAST, &CMainFrame::OnUpdateLayout)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CMainFrame::OnUpdateUndo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REDO, &CMainFrame::OnUpdateRedo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_DESELECT, &CMainFrame::OnUpdateHasSelection)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(CStandinHost& host)
    : m_host(host),
      m_document(std::make_unique<CDraftDocument>()),
      m_pickers([this](UINT name) {
          finishChange(name);
          m_view.SetFocus();
      }),
      m_palettes([this](UINT name) { finishChange(name); }, [this] { showDrawing(true); }, *this) {
    m_host.SetCurrentDocument(m_document.get());
    m_host.SetPlotView(this);
}

CMainFrame::~CMainFrame() {
    m_host.SetPlotView(nullptr);
    m_host.SetCurrentDocument(nullptr);
}

int CMainFrame::OnCreate(LPCREATESTRUCT create) {
    if (CFrameWndEx::OnCreate(create) == -1) return -1;
    if (!m_view.CreateView(this, kViewId)) return -1;
    if (!m_status.Create(WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP | SBARS_TOOLTIPS, CRect(0, 0, 0, 0), this,
                         AFX_IDW_STATUS_BAR))
        return -1;
    if (!m_pickers.CreateBar(this)) return -1;
    EnableDocking(CBRS_ALIGN_ANY);
    EnableAutoHidePanes(CBRS_ALIGN_ANY);
    if (!m_palettes.Create(*this)) return -1;
    m_extensions = std::make_unique<CExtensions>(CString(ktutProgramFolder().c_str()) + L"extensions\\");
    m_palettes.AddExtension(*m_extensions, *this);
    m_layouts.Attach(*this);
    CKtUiDialog keeper(0);
    keeper.SetDialogName(L"Options");
    m_options = LoadOptions(keeper);
    // A drawing keeps its own units, also the one that is there at the start.
    m_options.units = UnitsOf(*m_document->database());
    useOptions(m_options);
    DragAcceptFiles();
    showDrawing(false);
    return 0;
}

void CMainFrame::OnSize(UINT type, int cx, int cy) {
    CFrameWndEx::OnSize(type, cx, cy);
    if (m_status.m_hWnd == nullptr) return;
    const int pointer = KtUiAppearancePixels(m_hWnd, kPointerWidth);
    const int selection = KtUiAppearancePixels(m_hWnd, kSelectionWidth);
    int edges[3] = {cx - pointer - selection, cx - selection, -1};
    m_status.Part(3, edges);
}

void CMainFrame::OnClose() {
    if (m_view.IsPicking()) return m_view.EndPicking(false);
    m_palettes.TakeTyped();
    if (mayDiscard()) CFrameWndEx::OnClose();
}

void CMainFrame::OnSetFocus(CWnd*) { m_view.SetFocus(); }

void CMainFrame::OnEnable(BOOL enable) {
    CFrameWndEx::OnEnable(enable);
    // A dialog has come up, under a pointer that the view no longer hears of.
    if (!enable) m_view.HideTip();
    enablePalettes();
}

/// The window went to a monitor of another resolution: it takes the place that the system suggests.
LRESULT CMainFrame::OnDpiChanged(WPARAM, LPARAM lParam) {
    const CRect place(*reinterpret_cast<const RECT*>(lParam));
    MoveWindow(place);
    return 0;
}

LRESULT CMainFrame::OnSelection(WPARAM, LPARAM) {
    CString text = textOf(IDS_STATUS_NONE);
    const int count = static_cast<int>(m_view.selection().size());
    if (count > 0) text.Format(IDS_STATUS_SELECTION, count);
    m_status.SetText(text, kSelectionPane, 0);
    showBars();
    return 0;
}

LRESULT CMainFrame::OnPointer(WPARAM, LPARAM) {
    wchar_t x[kKtdbBufferSize] = {}, y[kKtdbBufferSize] = {};
    ktdbRToS(m_view.pointer().x, -1, -1, x);
    ktdbRToS(m_view.pointer().y, -1, -1, y);
    CString text;
    text.Format(L"%s, %s", x, y);
    m_status.SetText(text, kPointerPane, 0);
    if (m_view.IsPickingPlaces()) showPrompt();
    return 0;
}

void CMainFrame::showDrawing(bool keepPlace) {
    OdDbDatabase& drawing = *m_document->database();
    m_view.SetScene(BuildScene(drawing, drawing.currentSpaceId()), keepPlace);
    showTitle();
    showIdle();
    OnSelection(0, 0);
    m_palettes.ShowDrawing(*m_document);
}

CString CMainFrame::shownName() const {
    const CString name = m_document->name().c_str();
    return name.IsEmpty() ? textOf(IDS_UNTITLED) : name;
}

void CMainFrame::showTitle() {
    CString title = shownName();
    if (m_document->IsReadOnly()) title += textOf(IDS_READ_ONLY_MARK);
    SetWindowText(title + (m_document->database()->isModified() ? L"* - " : L" - ") + GetTitle());
}

void CMainFrame::OnZoomExtents() { m_view.ZoomExtents(); }
void CMainFrame::OnZoomIn() { m_view.Zoom(kZoomStep); }
void CMainFrame::OnZoomOut() { m_view.Zoom(1 / kZoomStep); }

void CMainFrame::OnProperties() {
    CPropertiesDialog dialog(*m_document->database(), selectedObjects(), this, this);
    runDialog(dialog, IDS_CHANGE_PROPERTIES);
}

void CMainFrame::OnDimensionStyle() {
    CDimensionStyleDialog dialog(*m_document->database(), this);
    runDialog(dialog, IDS_CHANGE_DIMENSION_STYLE);
}

void CMainFrame::OnTextStyle() {
    const auto load = [this](const CString& file, CString& message) { return loadFont(file, message); };
    CTextStyleDialog dialog(*m_document->database(), this, load);
    runDialog(dialog, IDS_CHANGE_TEXT_STYLE);
}

CKhFontStyle* CMainFrame::loadFont(const CString& file, CString& message) {
    CKhFontStyle* style = m_host.LoadFontFile(file, message);
    // Without this the system would draw texts in another font, as it isn't installed.
    if (style != nullptr && style->font()->isTrueType()) ::AddFontResourceExW(file, FR_PRIVATE, nullptr);
    return style;
}

void CMainFrame::runDialog(CDialog& dialog, UINT name) {
    CDrawingChange change(m_document->history());
    // A cancelled dialog may have changed the drawing as well: the linetype manager behind a picker does.
    const bool isConfirmed = dialog.DoModal() == IDOK;
    change.Keep(textOf(isConfirmed ? name : IDS_CHANGE_LINETYPES).GetString());
    showDrawing(true);
    m_view.SetFocus();
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

void CMainFrame::OnMeasure() {
    CMeasureDialog dialog(*m_document->database(), *this, this);
    runDialog(dialog, IDS_CHANGE_LINETYPES);
}

BOOL CMainFrame::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
        case ID_EDIT_SELECT_ALL:
        case ID_EDIT_DESELECT:
        case ID_VIEW_EXTENTS:
        case ID_VIEW_ZOOM_IN:
        case ID_VIEW_ZOOM_OUT: break;
        default:
            if (m_view.IsPicking()) return TRUE;
            // A command of the menu finds the drawing as the palettes show it.
            if (lParam == 0) m_palettes.TakeTyped();
    }
    return CFrameWndEx::OnCommand(wParam, lParam);
}

/// A modal dialog tells that it begins or ends an editor command: the frame is usable in between.
LRESULT CMainFrame::OnKbUiMessage(WPARAM wParam, LPARAM lParam) {
    if (KbUiNotification(wParam) != kKbUiNotifyEditorCommand) return kKbUiReplyNone;
    const bool begins = lParam == 1;
    m_isInCommand = begins;
    EnableWindow(begins);
    if (begins) {
        SetActiveWindow();
        m_view.SetFocus();
    } else {
        showIdle();
    }
    return kKbUiReplyHandled;
}

void CMainFrame::PickPlaces(std::size_t count, unsigned firstPrompt, PlacesPicked picked) {
    m_firstPrompt = firstPrompt;
    m_view.PickPlaces(count, [this, picked = std::move(picked)](bool) { picked(m_view.places()); });
    showPrompt();
}

void CMainFrame::PickObjects(unsigned prompt, ObjectsPicked picked) {
    m_view.PickObjects([this, picked = std::move(picked)](bool isPicked) {
        picked(isPicked ? &m_view.selection() : nullptr);
    });
    m_status.Say(textOf(prompt));
}

void CMainFrame::GetMessageString(UINT id, CString& message) const {
    if (id == AFX_IDS_IDLEMESSAGE) message = MendedText(m_document->Reading());
    if (id != AFX_IDS_IDLEMESSAGE || message.IsEmpty()) CFrameWndEx::GetMessageString(id, message);
}

void CMainFrame::showIdle() {
    CString text;
    GetMessageString(AFX_IDS_IDLEMESSAGE, text);
    m_status.Say(text);
}

void CMainFrame::showPrompt() {
    m_status.Say(textOf(m_firstPrompt + static_cast<unsigned>(m_view.places().size())));
}

std::vector<OdDbObjectId> CMainFrame::selectedObjects() const {
    return {m_view.selection().begin(), m_view.selection().end()};
}

void CMainFrame::showBars() {
    if (m_pickers.m_hWnd != nullptr) m_pickers.Show(*m_document->database(), selectedObjects());
    m_palettes.ShowObjects(*m_document->database(), selectedObjects());
}

void CMainFrame::OnPickerBar() { ShowControlBar(&m_pickers, !m_pickers.IsVisible(), FALSE); }

void CMainFrame::OnSearchLayers() {
    if (!m_pickers.IsVisible()) ShowControlBar(&m_pickers, TRUE, FALSE);
    m_pickers.SearchLayers();
}

/// In a text that is being edited the keys of editing keep their meaning.
BOOL CMainFrame::PreTranslateMessage(MSG* message) {
    const CWnd* focus = GetFocus();
    wchar_t name[8] = {};
    if (focus != nullptr) ::GetClassNameW(focus->m_hWnd, name, 8);
    const bool isEditing = ::lstrcmpiW(name, L"Edit") == 0;
    if (isEditing && message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST &&
        (message->wParam == VK_HOME || ::wcschr(L"AZY", static_cast<wchar_t>(message->wParam)) != nullptr))
        return FALSE;
    return CFrameWndEx::PreTranslateMessage(message);
}

void CMainFrame::OnUpdatePickerBar(CCmdUI* item) { item->SetCheck(m_pickers.IsVisible()); }

void CMainFrame::OnOptions() {
    // Other ways lead to the drawing's units too.
    m_options.units = UnitsOf(*m_document->database());
    COptionsDialog dialog(
        m_options, [this](const DrafterOptions& options) { applyOptions(options); }, m_extensions.get(),
        this);
    if (dialog.DoModal() == IDOK) applyOptions(dialog.options());
    // An extension's page may have edited the drawing as well, and what was applied stays when it is
    // cancelled.
    finishChange(IDS_CHANGE_OPTIONS);
    m_view.SetFocus();
}

void CMainFrame::applyOptions(const DrafterOptions& options) {
    m_options = options;
    CKtUiDialog keeper(0);
    keeper.SetDialogName(L"Options");
    if (!SaveOptions(keeper, options))
        KtUiMessageBox(nullptr, textOf(IDS_OPTIONS_NOT_STORED), MB_ICONEXCLAMATION);
    useOptions(options);
    showDrawing(true);
}

void CMainFrame::useOptions(const DrafterOptions& options) {
    const CString folder = ktutProgramFolder().c_str();
    std::vector<CString> folders = FoldersOf(options.supportFolders);
    if (folders.empty()) folders = {folder + L"fonts", folder + L"support"};
    m_host.SetSupportDirectories(std::move(folders));
    m_host.SetPathVariable(L"PrinterStyleSheetDir",
                           options.styleSheets.IsEmpty() ? folder + L"Plot Styles" : options.styleSheets);
    m_view.SetLook({options.background, options.selection}, options.crosshair);
    SetUnits(*m_document->database(), options.units);
}

void CMainFrame::OnAbout() { KtUiMessageBox(nullptr, textOf(IDS_ABOUT), MB_ICONINFORMATION); }

void CMainFrame::OnUpdateHasSelection(CCmdUI* item) { item->Enable(!m_view.selection().empty()); }
