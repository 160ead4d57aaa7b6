#include "drawing_window.h"

#include <kh_font_list.h>
#include <standin_host.h>

#include "dimension_style_dialog.h"
#include "measure_dialog.h"
#include "options.h"
#include "properties_dialog.h"
#include "resource.h"
#include "resource_text.h"
#include "text_style_dialog.h"

namespace {

constexpr double kZoomStep = 1.25;
constexpr UINT kLayoutTabs = 1;  // the id of the tabs

}  // namespace

IMPLEMENT_DYNAMIC(CDrawingWindow, CMDIChildWndEx)

BEGIN_MESSAGE_MAP(CDrawingWindow, CMDIChildWndEx)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_SETFOCUS()
    ON_WM_MDIACTIVATE()
    ON_WM_SYSCOMMAND()
    ON_MESSAGE(WM_DRAFTER_SELECTION, &CDrawingWindow::OnSelection)
    ON_MESSAGE(WM_DRAFTER_POINTER, &CDrawingWindow::OnPointer)
    ON_MESSAGE(WM_DRAFTER_SCENE, &CDrawingWindow::OnScene)
    ON_MESSAGE(WM_DRAFTER_BEHIND, &CDrawingWindow::OnBehind)
    ON_WM_TIMER()
    ON_COMMAND(ID_FILE_CLOSE, &CDrawingWindow::OnFileClose)
    ON_COMMAND(ID_FILE_SAVE, &CDrawingWindow::OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, &CDrawingWindow::OnFileSaveAs)
    ON_COMMAND(ID_FILE_EXPORT, &CDrawingWindow::OnFileExport)
    ON_COMMAND(ID_EDIT_UNDO, &CDrawingWindow::OnUndo)
    ON_COMMAND(ID_EDIT_REDO, &CDrawingWindow::OnRedo)
    ON_COMMAND(ID_EDIT_SELECT_ALL, &CDrawingWindow::OnSelectAll)
    ON_COMMAND(ID_EDIT_SELECT_WINDOW, &CDrawingWindow::OnSelectWindow)
    ON_COMMAND(ID_EDIT_DESELECT, &CDrawingWindow::OnDeselect)
    ON_COMMAND(ID_VIEW_EXTENTS, &CDrawingWindow::OnZoomExtents)
    ON_COMMAND(ID_VIEW_ZOOM_IN, &CDrawingWindow::OnZoomIn)
    ON_COMMAND(ID_VIEW_ZOOM_OUT, &CDrawingWindow::OnZoomOut)
    ON_COMMAND(ID_VIEW_REDRAW, &CDrawingWindow::OnRedraw)
    ON_NOTIFY(TCN_SELCHANGE, kLayoutTabs, &CDrawingWindow::OnLayoutTab)
    ON_COMMAND(ID_VIEW_NEXT_SHEET, &CDrawingWindow::OnNextLayout)
    ON_COMMAND(ID_VIEW_PREVIOUS_SHEET, &CDrawingWindow::OnPreviousLayout)
    ON_COMMAND_RANGE(ID_VIEW_SHEET_FIRST, ID_VIEW_SHEET_LAST, &CDrawingWindow::OnLayout)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_SHEET_FIRST, ID_VIEW_SHEET_LAST, &CDrawingWindow::OnUpdateLayout)
    ON_UPDATE_COMMAND_UI(ID_VIEW_NEXT_SHEET, &CDrawingWindow::OnUpdateNextLayout)
    ON_UPDATE_COMMAND_UI(ID_VIEW_PREVIOUS_SHEET, &CDrawingWindow::OnUpdatePreviousLayout)
    ON_COMMAND(ID_FORMAT_PROPERTIES, &CDrawingWindow::OnProperties)
    ON_COMMAND(ID_FORMAT_DIMENSION_STYLE, &CDrawingWindow::OnDimensionStyle)
    ON_COMMAND(ID_FORMAT_TEXT_STYLE, &CDrawingWindow::OnTextStyle)
    ON_COMMAND(ID_TOOLS_MEASURE, &CDrawingWindow::OnMeasure)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CDrawingWindow::OnUpdateUndo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REDO, &CDrawingWindow::OnUpdateRedo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_DESELECT, &CDrawingWindow::OnUpdateHasSelection)
END_MESSAGE_MAP()

CDrawingWindow::CDrawingWindow(CDrawingDesk& desk, std::unique_ptr<CDraftDocument> document, int number)
    : m_desk(desk), m_document(std::move(document)), m_number(number) {}

bool CDrawingWindow::Open(CMDIFrameWnd& frame) {
    // Without a system menu the main window's menu gets no second row of buttons: the tab has them.
    if (!Create(nullptr, Title(), WS_CHILD | WS_CAPTION | WS_THICKFRAME, rectDefault, &frame)) return false;
    ActivateFrame();
    // Only now the window is as large as it stays.
    m_view.ZoomExtents();
    return true;
}

int CDrawingWindow::OnCreate(LPCREATESTRUCT create) {
    if (CMDIChildWndEx::OnCreate(create) == -1) return -1;
    if (!m_view.CreateView(this, AFX_IDW_PANE_FIRST)) return -1;
    if (!m_tabs.CreateTabs(this, kLayoutTabs)) return -1;
    m_view.SetEscape([this] { return StopBuilding(); });
    UseLook();
    // A tab in the main window may have brought this one to the front already.
    if (m_wasShown) showTabs();
    return 0;
}

/// Asked by the tab, by the system, or by the menu.
void CDrawingWindow::OnClose() {
    if (m_desk.GiveUpCommand()) return;
    GiveUpPicking();
    m_desk.TakeTyped();
    if (MayClose()) DestroyWindow();
}

void CDrawingWindow::OnSetFocus(CWnd*) { m_view.SetFocus(); }

void CDrawingWindow::OnMDIActivate(BOOL activate, CWnd* coming, CWnd* going) {
    if (!activate) {
        GiveUpPicking();
        m_desk.TakeTyped();
        m_view.HideTip();
    }
    CMDIChildWndEx::OnMDIActivate(activate, coming, going);
    if (activate)
        m_desk.DrawingActivated(this);
    else if (coming == nullptr)
        m_desk.DrawingActivated(nullptr);
}

/// The system's own keys, Ctrl+F6, go in the order of the tabs as well.
void CDrawingWindow::OnSysCommand(UINT command, LPARAM lParam) {
    const UINT asked = command & 0xFFF0;
    if (asked != SC_NEXTWINDOW && asked != SC_PREVWINDOW)
        return CMDIChildWndEx::OnSysCommand(command, lParam);
    const bool isBack = ::GetKeyState(VK_SHIFT) < 0;
    m_desk.DialogOwner().SendMessage(WM_COMMAND,
                                     isBack ? ID_WINDOW_PREVIOUS_DRAWING : ID_WINDOW_NEXT_DRAWING);
}

LRESULT CDrawingWindow::OnSelection(WPARAM, LPARAM) {
    m_desk.SelectionChanged(*this);
    return 0;
}

LRESULT CDrawingWindow::OnPointer(WPARAM, LPARAM) {
    m_desk.PointerMoved(*this);
    if (m_view.IsPickingPlaces()) sayPrompt();
    return 0;
}

void CDrawingWindow::UseLook() {
    const DrafterOptions& options = m_desk.Options();
    m_view.SetLook({options.background, options.selection}, options.crosshair);
}

std::vector<OdDbObjectId> CDrawingWindow::SelectedObjects() const {
    return {m_view.selection().begin(), m_view.selection().end()};
}

CString CDrawingWindow::ShownName() const {
    const CString name = m_document->name().c_str();
    if (!name.IsEmpty()) return name;
    CString untitled = textOf(IDS_UNTITLED);
    if (m_number > 1) untitled.Format(IDS_UNTITLED_NUMBER, m_number);
    return untitled;
}

CString CDrawingWindow::Title() const {
    CString title = ShownName();
    if (m_document->IsReadOnly()) title += textOf(IDS_READ_ONLY_MARK);
    if (drawing().isModified()) title += L"*";
    return title;
}

void CDrawingWindow::showTitle() {
    SetWindowText(Title());
    m_desk.NameChanged(*this);
}

void CDrawingWindow::OnZoomExtents() { m_view.ZoomExtents(); }
void CDrawingWindow::OnZoomIn() { m_view.Zoom(kZoomStep); }
void CDrawingWindow::OnZoomOut() { m_view.Zoom(1 / kZoomStep); }

void CDrawingWindow::OnProperties() {
    CPropertiesDialog dialog(drawing(), SelectedObjects(), &m_desk.DialogOwner(), this);
    runDialog(dialog, IDS_CHANGE_PROPERTIES);
}

void CDrawingWindow::OnDimensionStyle() {
    CDimensionStyleDialog dialog(drawing(), &m_desk.DialogOwner());
    runDialog(dialog, IDS_CHANGE_DIMENSION_STYLE);
}

void CDrawingWindow::OnTextStyle() {
    const auto load = [this](const CString& file, CString& message) { return loadFont(file, message); };
    CTextStyleDialog dialog(drawing(), &m_desk.DialogOwner(), load);
    runDialog(dialog, IDS_CHANGE_TEXT_STYLE);
}

CKhFontStyle* CDrawingWindow::loadFont(const CString& file, CString& message) {
    CKhFontStyle* style = m_desk.Host().LoadFontFile(file, message);
    // Without this the system would draw texts in another font, as it isn't installed.
    if (style != nullptr && style->font()->isTrueType()) ::AddFontResourceExW(file, FR_PRIVATE, nullptr);
    return style;
}

void CDrawingWindow::OnMeasure() {
    CMeasureDialog dialog(drawing(), *this, &m_desk.DialogOwner());
    runDialog(dialog, IDS_CHANGE_LINETYPES);
}

void CDrawingWindow::runDialog(CDialog& dialog, UINT name) {
    CDrawingChange change(m_document->history());
    // A cancelled dialog may have changed the drawing as well: the linetype manager behind a picker does.
    const bool isConfirmed = dialog.DoModal() == IDOK;
    change.Keep(textOf(isConfirmed ? name : IDS_CHANGE_LINETYPES).GetString());
    Refresh(true);
    m_view.SetFocus();
}

void CDrawingWindow::PickPlaces(std::size_t count, unsigned firstPrompt, PlacesPicked picked) {
    m_firstPrompt = firstPrompt;
    m_view.PickPlaces(count, [this, picked = std::move(picked)](bool) { picked(m_view.places()); });
    sayPrompt();
}

void CDrawingWindow::PickObjects(unsigned prompt, ObjectsPicked picked) {
    m_view.PickObjects([this, picked = std::move(picked)](bool isPicked) {
        picked(isPicked ? &m_view.selection() : nullptr);
    });
    m_desk.Say(textOf(prompt));
}

void CDrawingWindow::sayPrompt() {
    m_desk.Say(textOf(m_firstPrompt + static_cast<unsigned>(m_view.places().size())));
}
