#include "mdi_fixture.h"

namespace documents_test {

IMPLEMENT_DYNCREATE(PadFrame, CMDIFrameWnd)
BEGIN_MESSAGE_MAP(PadFrame, CMDIFrameWnd)
    ON_COMMAND(IDC_MAIN_COMMAND, &PadFrame::OnMainCommand)
END_MESSAGE_MAP()

}  // namespace documents_test
