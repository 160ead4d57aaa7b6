// The name in the upright caption of a bar that is docked at the bottom.
#include <afxcaptionbutton.h>
#include <afxglobals.h>
#include <afxvisualmanager.h>

#include <algorithm>

#include "bar_fixture.h"
#include "picture.h"

namespace {

using namespace docking_test;

constexpr COLORREF kPaper = RGB(250, 250, 240), kInk = RGB(40, 20, 10);

/// Captions of one colour with a name in another.
class InkLook : public CMFCVisualManager {
    DECLARE_DYNCREATE(InkLook)

public:
    COLORREF OnDrawPaneCaption(CDC* dc, CDockablePane*, BOOL, CRect caption, CRect) override {
        dc->FillSolidRect(&caption, kPaper);
        return kInk;
    }
};
IMPLEMENT_DYNCREATE(InkLook, CMFCVisualManager)

struct UprightName : DockingTest {
    OpenBar bar;

    UprightName() { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(InkLook)); }
    ~UprightName() override { CMFCVisualManager::SetDefaultManager(nullptr); }
    void SetUp() override { dock(bar, CBRS_ALIGN_BOTTOM); }

    /// The smallest rectangle around all that a name changes below the buttons, from the bar's corner on.
    CRect writtenOver(const wchar_t* name, int* exact = nullptr) {
        const ui_test::Picture empty = captionOf(L"");
        const ui_test::Picture named = captionOf(name);
        if (exact != nullptr) *exact = named.count(kInk);
        return named.difference(empty);
    }
    ui_test::Picture captionOf(const wchar_t* name) {
        bar.SetWindowText(name);
        bar.SendMessage(WM_NCPAINT, 1, 0);
        CRect caption;
        bar.GetWindowRect(&caption);
        caption.right = caption.left + bar.GetCaptionHeight() - 2;
        frame->ScreenToClient(&caption);
        return {*frame, caption};
    }
    int barHeight() const {
        CRect rect;
        bar.GetWindowRect(&rect);
        return rect.Height();
    }
};

TEST_F(UprightName, RunsUpFromTheBottomInTheMiddleOfTheCaption) {
    int ink = 0;
    const CRect written = writtenOver(L"HHHH", &ink);
    EXPECT_GT(ink, 20) << "in the look's colour";
    CClientDC dc(&bar);
    CFont* const former = dc.SelectObject(&afxGlobalData.fontRegular);
    const CSize size = dc.GetTextExtent(L"HHHH", 4);
    dc.SelectObject(former);
    EXPECT_NEAR(written.Height(), size.cx, 4);
    EXPECT_NEAR(written.bottom, barHeight() - 2, 2);
    const int line = afxGlobalData.GetTextHeight();
    const int left = (bar.GetCaptionHeight() - 2 - line) / 2;
    EXPECT_GE(written.left, left);
    EXPECT_LE(written.right, left + line);
    EXPECT_GT(written.Width(), 4);
}

TEST_F(UprightName, ThatIsTooLongEndsBelowTheButtons) {
    int buttons = 0;
    for (INT_PTR i = 0; i < bar.m_arrButtons.GetSize(); ++i) {
        const CRect place = static_cast<CMFCCaptionButton*>(bar.m_arrButtons[i])->GetRect();
        buttons = std::max(buttons, static_cast<int>(place.bottom));
    }
    const CRect written = writtenOver(CString(L'H', 300));
    EXPECT_GT(written.top, buttons);
    EXPECT_LT(written.top, buttons + 2 + afxGlobalData.GetTextHeight());
    EXPECT_GT(written.bottom, barHeight() - 6);
}

}  // namespace
