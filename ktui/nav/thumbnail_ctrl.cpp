#include <ktui/nav/thumbnail_ctrl.h>

#include <ktui/nav/never_blocked.h>
#include <ktui/nav/patient_thumbnail.h>
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
    const unsigned limit = KtUiNeverBlockedLimit();
    if (limit == 0) {
        ktuiDisplayThumbnail(m_path, dc.m_hDC, area.Width(), area.Height());
        return;
    }
    if (!m_patient) m_patient = std::make_unique<PatientThumbnail>(*this);
    m_patient->Paint(dc, area.Size(), m_path, limit);
}
