#include "blocks_panel.h"

#include <utility>

#include "block_pictures.h"
#include "panel_keys.h"
#include "resource.h"

namespace {

// Pixels at 96 dots an inch: a picture, and from one to the next.
constexpr int kPicture = 72, kAcross = 92, kDown = 108;

}  // namespace

IMPLEMENT_DYNAMIC(CBlocksPanel, CKtUiDialog)

BEGIN_MESSAGE_MAP(CBlocksPanel, CKtUiDialog)
    ON_WM_PAINT()
    ON_NOTIFY(LVN_BEGINDRAG, IDC_BLOCK_LIST, &CBlocksPanel::OnBeginDrag)
    ON_NOTIFY(NM_DBLCLK, IDC_BLOCK_LIST, &CBlocksPanel::OnDoubleClick)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_BLOCK_LIST, &CBlocksPanel::OnItemChanged)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

CBlocksPanel::CBlocksPanel(CBlockTarget& target)
    : CKtUiDialog(IDD_BLOCKS_PANEL, nullptr, AfxGetInstanceHandle()), m_target(target) {
    SetDialogName(L"BlocksPalette");
}

void CBlocksPanel::DoDataExchange(CDataExchange* exchange) {
    CKtUiDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_BLOCK_LIST, m_list);
}

BOOL CBlocksPanel::OnInitDialog() {
    CKtUiDialog::OnInitDialog();
    m_list.SetIconSpacing(KtUiAppearancePixels(m_hWnd, kAcross), KtUiAppearancePixels(m_hWnd, kDown));
    StretchControlXY(IDC_BLOCK_LIST, 100, 100);
    StretchControlX(IDC_MESSAGE, 100);
    MoveControlY(IDC_MESSAGE, 100);
    MoveControlXY(IDOK, 100, 100);
    // The drawing keeps the focus.
    return FALSE;
}

void CBlocksPanel::Show(OdDbDatabase& drawing) {
    if (m_hWnd == nullptr) return;
    m_drawing = &drawing;
    m_isStale = true;
    m_list.EnableWindow();
    if (IsWindowVisible()) refresh();
}

void CBlocksPanel::ShowNothing() {
    if (m_hWnd == nullptr) return;
    if (!m_dragged.isNull()) ::ReleaseCapture();
    m_drawing = nullptr;
    m_isStale = false;
    m_rows.clear();
    m_list.DeleteAllItems();
    m_list.EnableWindow(FALSE);
    CString words;
    words.LoadString(IDS_NO_DRAWING);
    SetDlgItemText(IDC_MESSAGE, words);
    GetDlgItem(IDOK)->EnableWindow(FALSE);
}

void CBlocksPanel::OnPaint() {
    refresh();
    Default();
}

void CBlocksPanel::refresh() {
    if (!std::exchange(m_isStale, false)) return;
    const OdDbObjectId before = selected();
    m_rows = ListBlocks(*m_drawing);
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    m_list.SetImageList(nullptr, LVSIL_NORMAL);
    DrawBlockPictures(m_pictures, *m_drawing, m_rows, KtUiAppearancePixels(m_hWnd, kPicture));
    m_list.SetImageList(&m_pictures, LVSIL_NORMAL);
    int row = 0;
    for (const BlockRow& block : m_rows) {
        m_list.InsertItem(row, block.name.c_str(), row);
        if (block.id == before || (row == 0 && before.isNull()))
            m_list.SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ++row;
    }
    m_list.SetRedraw(TRUE);
    m_list.Invalidate();
    CString words;
    words.LoadString(m_rows.empty() ? IDS_BLOCKS_NONE : IDS_BLOCKS_HINT);
    SetDlgItemText(IDC_MESSAGE, words);
    GetDlgItem(IDOK)->EnableWindow(!selected().isNull());
}

OdDbObjectId CBlocksPanel::selected() const {
    const int row = m_list.GetNextItem(-1, LVNI_SELECTED);
    return row >= 0 && row < static_cast<int>(m_rows.size()) ? m_rows[static_cast<std::size_t>(row)].id
                                                             : OdDbObjectId();
}

CPoint CBlocksPanel::onScreen(CPoint point) const {
    ClientToScreen(&point);
    return point;
}

void CBlocksPanel::OnItemChanged(NMHDR*, LRESULT* result) {
    *result = 0;
    GetDlgItem(IDOK)->EnableWindow(!selected().isNull());
}

void CBlocksPanel::OnBeginDrag(NMHDR* header, LRESULT* result) {
    *result = 0;
    const auto row = static_cast<std::size_t>(reinterpret_cast<NMLISTVIEW*>(header)->iItem);
    if (row >= m_rows.size()) return;
    m_dragged = m_rows[row].id;
    SetCapture();
}

void CBlocksPanel::OnMouseMove(UINT, CPoint point) {
    if (m_dragged.isNull()) return;
    const bool isTaken = m_target.TakesBlockAt(onScreen(point));
    ::SetCursor(::LoadCursorW(nullptr, isTaken ? IDC_CROSS : IDC_NO));
}

void CBlocksPanel::OnLButtonUp(UINT, CPoint point) {
    const OdDbObjectId block = std::exchange(m_dragged, {});
    if (block.isNull()) return;
    ::ReleaseCapture();
    if (m_target.TakesBlockAt(onScreen(point))) m_target.DropBlock(block, onScreen(point));
}

void CBlocksPanel::OnCaptureChanged(CWnd*) { m_dragged = OdDbObjectId(); }

void CBlocksPanel::OnDoubleClick(NMHDR*, LRESULT* result) {
    *result = 0;
    OnOK();
}

/// Enter inserts the selected block.
void CBlocksPanel::OnOK() {
    if (const OdDbObjectId block = selected(); !block.isNull()) m_target.PlaceBlock(block);
}

/// Escape goes back to the drawing.
void CBlocksPanel::OnCancel() { AfxGetMainWnd()->SetFocus(); }

BOOL CBlocksPanel::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE && !m_dragged.isNull()) {
        ::ReleaseCapture();
        return TRUE;
    }
    return FrameTakesKey(*message) || CKtUiDialog::PreTranslateMessage(message);
}
