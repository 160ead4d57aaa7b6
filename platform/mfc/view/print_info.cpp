#include <kmfc/print_info.h>

#include "../res/kmfc_ids.h"

namespace {

constexpr UINT kUnknown = 0xFFFF;  // pages

}  // namespace

CPrintInfo::CPrintInfo()
    : m_pPD(new CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION)) {
    SetMinPage(1);
    SetMaxPage(kUnknown);
    m_strPageDesc.LoadString(IDS_PRINT_PAGES);
}

CPrintInfo::~CPrintInfo() {
    if (m_pPD->m_pd.hDC != nullptr) ::DeleteDC(m_pPD->m_pd.hDC);
    delete m_pPD;
}
