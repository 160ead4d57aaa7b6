#include <ktui/nav/list_box_dir.h>

BEGIN_MESSAGE_MAP(CListBoxDir, CListBox)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

int WidthOfText(CWnd& window, const CString& text) {
    CClientDC dc(&window);
    CFont* const font = window.GetFont();
    CFont* const before = font != nullptr ? dc.SelectObject(font) : nullptr;
    const int width = dc.GetTextExtent(text).cx;
    if (before != nullptr) dc.SelectObject(before);
    return width;
}

CListBoxDir::~CListBoxDir() = default;

void CListBoxDir::OnMouseMove(UINT flags, CPoint point) {
    CListBox::OnMouseMove(flags, point);
    TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&track);
    showTip();
}

void CListBoxDir::showTip() {
    const int row = GetCurSel();
    CRect place;
    const bool isRow = row >= 0 && row < m_names->GetSize() && GetItemRect(row, &place) != LB_ERR;
    if (!isRow || WidthOfText(*this, m_names->GetAt(row)) <= place.Width() - kDirIconWidth) {
        if (m_tip) m_tip->Hide();
        return;
    }
    if (!m_tip) m_tip = std::make_unique<CToolTip>(*this);
    CPoint point(place.left + kDirIconWidth, place.top);
    ClientToScreen(&point);
    m_tip->Show(point, m_names->GetAt(row));
}

void CListBoxDir::OnMouseLeave() {
    if (m_tip) m_tip->Hide();
    CListBox::OnMouseLeave();
}

void CListBoxDir::OnDestroy() {
    m_tip.reset();
    CListBox::OnDestroy();
}
