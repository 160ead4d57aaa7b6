#include "noting_look.h"

namespace docking_test {

IMPLEMENT_DYNCREATE(NotingLook, CMFCVisualManager)

std::vector<DrawnButton>& NotingLook::buttons() {
    static std::vector<DrawnButton> all;
    return all;
}

std::vector<DrawnCaption>& NotingLook::captions() {
    static std::vector<DrawnCaption> all;
    return all;
}

void NotingLook::OnDrawCaptionButton(CDC* dc, CMFCCaptionButton* button, BOOL active, BOOL horizontal,
                                     BOOL held, BOOL disabled, int image) {
    buttons().push_back(
        {button->GetHit(), active, horizontal, held, disabled, button->m_bFocused, button->m_bPushed});
    CMFCVisualManager::OnDrawCaptionButton(dc, button, active, horizontal, held, disabled, image);
}

COLORREF NotingLook::OnDrawPaneCaption(CDC* dc, CDockablePane* pane, BOOL active, CRect caption,
                                       CRect buttonArea) {
    captions().push_back({caption, buttonArea, active});
    return CMFCVisualManager::OnDrawPaneCaption(dc, pane, active, caption, buttonArea);
}

}  // namespace docking_test
