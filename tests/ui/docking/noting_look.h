// A look that notes what it is asked to draw of captions, and draws nothing else than the ordinary one.
#pragma once

#include <afxcaptionbutton.h>
#include <afxvisualmanager.h>

#include <vector>

namespace docking_test {

/// One call of OnDrawCaptionButton.
struct DrawnButton {
    UINT hit;
    BOOL active, horizontal, held, disabled;
    BOOL hot, pushed;  ///< as the button itself says
};

/// One call of OnDrawPaneCaption.
struct DrawnCaption {
    CRect area;
    CRect buttons;
    BOOL active;
};

class NotingLook : public CMFCVisualManager {
    DECLARE_DYNCREATE(NotingLook)

public:
    /// In force as long as it lives.
    struct InForce {
        InForce() { SetDefaultManager(RUNTIME_CLASS(NotingLook)); }
        ~InForce() { SetDefaultManager(nullptr); }
    };
    static std::vector<DrawnButton>& buttons();
    static std::vector<DrawnCaption>& captions();

    void OnDrawCaptionButton(CDC* dc, CMFCCaptionButton* button, BOOL active, BOOL horizontal, BOOL held,
                             BOOL disabled, int image) override;
    COLORREF OnDrawPaneCaption(CDC* dc, CDockablePane* pane, BOOL active, CRect caption,
                               CRect buttons) override;
};

}  // namespace docking_test
