// CCtrlView and the views that are a list or a tree.
#include <kmfc/list_tree_view.h>

IMPLEMENT_DYNCREATE(CCtrlView, CView)
IMPLEMENT_DYNCREATE(CListView, CCtrlView)
IMPLEMENT_DYNCREATE(CTreeView, CCtrlView)

BEGIN_MESSAGE_MAP(CCtrlView, CView)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CCtrlView::CCtrlView(LPCTSTR lpszClass, DWORD dwStyle) : m_strClass(lpszClass), m_dwDefaultStyle(dwStyle) {}
CCtrlView::~CCtrlView() = default;

BOOL CCtrlView::PreCreateWindow(CREATESTRUCT& cs) {
    cs.lpszClass = m_strClass;
    // The style that was asked for goes before the control's own, where any was.
    if (static_cast<DWORD>(cs.style) == AFX_WS_DEFAULT_VIEW)
        cs.style = static_cast<LONG>(m_dwDefaultStyle & ~static_cast<DWORD>(WS_BORDER)) |
                   static_cast<LONG>(AFX_WS_DEFAULT_VIEW);
    return CView::PreCreateWindow(cs);
}

void CCtrlView::OnDraw(CDC*) {}
void CCtrlView::OnPaint() { Default(); }

CListView::CListView() : CCtrlView(WC_LISTVIEWW, AFX_WS_DEFAULT_VIEW) {}
CTreeView::CTreeView() : CCtrlView(WC_TREEVIEWW, AFX_WS_DEFAULT_VIEW) {}
