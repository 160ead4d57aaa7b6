#include <ktui/nav/nav_list_ctrl.h>

IMPLEMENT_DYNAMIC(CNavDropSource, COleDropSource)
IMPLEMENT_DYNAMIC(CNavListCtrl, CKbUiListCtrl)

BEGIN_MESSAGE_MAP(CNavListCtrl, CKbUiListCtrl)
    ON_NOTIFY_REFLECT(LVN_BEGINDRAG, &CNavListCtrl::OnBeginDrag)
END_MESSAGE_MAP()

SCODE CNavDropSource::GiveFeedback(DROPEFFECT effect) { return COleDropSource::GiveFeedback(effect); }

CNavListCtrl::CNavListCtrl() = default;
CNavListCtrl::~CNavListCtrl() = default;

void CNavListCtrl::OnBeginDrag(NMHDR* notice, LRESULT* result) {
    *result = 0;
    const auto& drag = *reinterpret_cast<NMLISTVIEW*>(notice);
    if (drag.iItem < 0) return;
    CPoint corner;
    m_dragImage.reset();
    m_dragImage.reset(CreateDragImage(drag.iItem, &corner));
    if (!m_dragImage) return;
    m_dragImage->BeginDrag(0, CPoint(drag.ptAction) - corner);
    ::ImageList_DragEnter(::GetDesktopWindow(), drag.ptAction.x, drag.ptAction.y);
}

int CNavListCtrl::OnHandleDrag() { return 0; }
