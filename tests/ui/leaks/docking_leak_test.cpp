// Panes that dock, float, join in tabs, hide and show, and the frames around them, a thousand times.
#include <afxcontrolbars.h>

#include "leak_growth.h"
#include "ui_test.h"

namespace {

using namespace leaks;

class Dockers : public ::testing::Test {
protected:
    Dockers() : frame(new CFrameWndEx) {
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(20, 20, 620, 520)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        AfxGetApp()->m_pMainWnd = frame;
        make(first, 501);
        make(second, 502);
    }
    ~Dockers() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
    }
    void make(CDockablePane& pane, UINT id) {
        EXPECT_TRUE(
            pane.Create(L"pane", frame, CSize(120, 120), TRUE, id, WS_CHILD | CBRS_LEFT | CBRS_FLOAT_MULTI));
        pane.EnableDocking(CBRS_ALIGN_ANY);
    }

    CFrameWndEx* frame;
    CDockablePane first, second;
};

/// A window of the system with a tip, destroyed again.
void open_bare_pane() {
    HWND const pane =
        ::CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 20, 20, nullptr, nullptr, nullptr, nullptr);
    ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, pane, nullptr,
                      nullptr, nullptr);
    ::DestroyWindow(pane);
}

}  // namespace

TEST_F(Dockers, AThousandTimesDockedAndFloatedLeavesNothing) {
    int floated = 0;
    expect_no_growth([&] {
        frame->DockPane(&first, AFX_IDW_DOCKBAR_LEFT);
        second.DockToWindow(&first, CBRS_ALIGN_BOTTOM);
        first.FloatPane(CRect(50, 50, 250, 250), DM_UNKNOWN, false);
        second.DockToWindow(&first, CBRS_ALIGN_RIGHT);
        floated += second.IsFloating() ? 1 : 0;
        first.DockToRecentPos();
        second.UndockPane();
        ui_test::pump();
    });
    EXPECT_EQ(floated, kTimes + kWarmUp);
}

TEST_F(Dockers, AThousandTimesShownAndHiddenLeavesNothing) {
    frame->DockPane(&first, AFX_IDW_DOCKBAR_LEFT);
    frame->DockPane(&second, AFX_IDW_DOCKBAR_TOP);
    expect_no_growth([&] {
        first.ShowPane(TRUE, FALSE, FALSE);
        second.ShowPane(TRUE, FALSE, FALSE);
        first.ShowPane(FALSE, FALSE, FALSE);
        second.ShowPane(FALSE, FALSE, FALSE);
    });
}

TEST_F(Dockers, AThousandFramesWithPanesLeaveNothing) {
    const size_t growth = heap_growth([] {
        open_bare_pane();
        open_bare_pane();
    });
    expect_no_growth(
        [&] {
            auto* other = new CFrameWndEx;
            ASSERT_TRUE(other->Create(nullptr, L"other", WS_OVERLAPPEDWINDOW, CRect(20, 20, 420, 320)));
            CDockablePane one, two;
            one.Create(L"one", other, CSize(90, 90), TRUE, 601, WS_CHILD | CBRS_LEFT);
            two.Create(L"two", other, CSize(90, 90), TRUE, 602, WS_CHILD | CBRS_LEFT | CBRS_FLOAT_MULTI);
            other->DockPane(&one);
            other->DockPane(&two);
            two.FloatPane(CRect(30, 30, 230, 230), DM_UNKNOWN, false);
            other->DestroyWindow();
            ui_test::pump();
        },
        growth);
}
