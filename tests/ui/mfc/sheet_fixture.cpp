#include "sheet_fixture.h"

namespace sheets {

BEGIN_MESSAGE_MAP(Page, CPropertyPage)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &Page::OnSibling)
    ON_MESSAGE(WM_KICKIDLE, &Page::OnIdle)
    ON_COMMAND(ID_HELP, &Page::OnHelp)
END_MESSAGE_MAP()

}  // namespace sheets
