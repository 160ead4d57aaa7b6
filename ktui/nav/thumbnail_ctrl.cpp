#include <ktui/nav/thumbnail_ctrl.h>

#include <ktui/nav/thumbnail.h>

IMPLEMENT_DYNAMIC(CThumbnailCtrl, CStatic)

BEGIN_MESSAGE_MAP(CThumbnailCtrl, CStatic)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CThumbnailCtrl::CThumbnailCtrl() = default;
CThumbnailCtrl::~CThumbnailCtrl() = default;

void CThumbnailCtrl::OnPaint() {
    CPaintDC dc(this);
    CRect area;
    GetClientRect(&area);
    dc.FillSolidRect(&area, ::GetSysColor(COLOR_BTNFACE));
    ktuiDisplayThumbnail(m_path, dc.m_hDC, area.Width(), area.Height());
}
