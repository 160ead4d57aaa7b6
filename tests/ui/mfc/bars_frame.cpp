#include "bars_frame.h"

namespace bars {

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
    ON_COMMAND(kNew, &Frame::OnNew)
    ON_COMMAND(kOpen, &Frame::OnOpen)
    ON_COMMAND(kCut, &Frame::OnOpen)
    ON_UPDATE_COMMAND_UI(kOpen, &Frame::OnUpdateOpen)
    ON_UPDATE_COMMAND_UI(kCut, &Frame::OnUpdateCut)
    ON_UPDATE_COMMAND_UI(kPane, &Frame::OnUpdatePane)
    ON_NOTIFY(TBN_DROPDOWN, AFX_IDW_TOOLBAR, &Frame::OnDropDown)
END_MESSAGE_MAP()

}  // namespace bars
