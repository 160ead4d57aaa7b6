// Where the parts of the find dialog stand.
#include <ktdsres/find_file_ids.h>
#include <ktui/host/appearance.h>
#include <ktui/nav/find_file_dlg.h>

namespace {

// Pixels.
constexpr int kEdge = 10;
constexpr int kTabEdges = 30;  // left of the tabs, between them and the buttons, right of these
constexpr int kStatusHeight = 25;
constexpr int kBelowList = 45;
constexpr int kPageEdge = 5;
constexpr int kPageTop = 25;
constexpr SIZE kSmallest = {450, 300};

constexpr int kButtons[] = {IDC_FIND_START, IDC_FIND_STOP, IDC_FIND_NEW, IDOK, IDCANCEL, IDHELP};

constexpr UINT kInPlace = SWP_NOZORDER | SWP_NOACTIVATE;

CRect placeOf(const CWnd& dialog, const CWnd& control) {
    CRect place;
    control.GetWindowRect(&place);
    dialog.ScreenToClient(&place);
    return place;
}

}  // namespace

void CFindFileDlg::OnGetMinMaxInfo(MINMAXINFO* info) {
    CKtUiDialog::OnGetMinMaxInfo(info);
    info->ptMinTrackSize = {KtUiAppearancePixels(m_hWnd, kSmallest.cx),
                            KtUiAppearancePixels(m_hWnd, kSmallest.cy)};
}

void CFindFileDlg::OnSize(UINT type, int cx, int cy) {
    CKtUiDialog::OnSize(type, cx, cy);
    if (m_statusBar.m_hWnd != nullptr) layOut(cx, cy);
}

void CFindFileDlg::layOut(int width, int height) {
    const auto pixels = [this](int count) { return KtUiAppearancePixels(m_hWnd, count); };
    const int edge = pixels(kEdge), status = pixels(kStatusHeight);
    m_statusBar.SetWindowPos(nullptr, 0, height - status, width, status, kInPlace);
    int column = 0;
    for (const int id : kButtons) {
        CWnd* const button = GetDlgItem(id);
        const CRect place = placeOf(*this, *button);
        column = place.Width();
        button->SetWindowPos(nullptr, width - edge - column, place.top, 0, 0, kInPlace | SWP_NOSIZE);
    }
    const int tabHeight = placeOf(*this, m_tab).Height();
    m_tab.SetWindowPos(nullptr, edge, edge, width - column - pixels(kTabEdges), tabHeight, kInPlace);
    placePages();
    const int top = edge + tabHeight + edge;
    m_list.SetWindowPos(nullptr, edge, top, width - 2 * edge, height - pixels(kBelowList) - top, kInPlace);
}

void CFindFileDlg::placePages() {
    CRect place = placeOf(*this, m_tab);
    const int edge = KtUiAppearancePixels(m_hWnd, kPageEdge);
    place.DeflateRect(edge, KtUiAppearancePixels(m_hWnd, kPageTop), edge, edge);
    for (CWnd* const page : {static_cast<CWnd*>(&m_page1), static_cast<CWnd*>(&m_page2)})
        page->SetWindowPos(&CWnd::wndTop, place.left, place.top, place.Width(), place.Height(),
                           SWP_NOACTIVATE);
}
