// The windows of the sample's drawings, each with a tab, a thousand times opened and closed.
#include "../drafter/measuring_gate.h"
#include "../drafter/test_desk.h"
#include "heavy_drawing.h"
#include "leak_fixture.h"
#include "sheets.h"

namespace {

using namespace leaks;

class DrawingLeaks : public leaks::Leaks {
protected:
    DrawingLeaks() : frame(new CMDIFrameWndEx), desk(host, *frame) {
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(20, 20, 620, 520)));
        frame->EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP, FALSE, CMFCTabCtrl::STYLE_3D_SCROLLED,
                             TRUE, TRUE);
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = ::DefMDIChildProcW;
        windowClass.lpszClassName = L"KtuiBareChild";
        ::RegisterClassW(&windowClass);
    }
    ~DrawingLeaks() override {
        frame->DestroyWindow();
        ::UnregisterClassW(L"KtuiBareChild", AfxGetInstanceHandle());
    }

    /// The windows of a drawing, by the system alone.
    void openBare() {
        MDICREATESTRUCTW request = {};
        request.szClass = L"KtuiBareChild";
        request.szTitle = L"bare";
        request.cx = request.cy = 300;
        const auto child = reinterpret_cast<HWND>(
            ::SendMessageW(frame->m_hWndMDIClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&request)));
        ASSERT_NE(child, nullptr);
        ::CreateWindowExW(0, L"STATIC", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, child, nullptr, nullptr,
                          nullptr);
        ui_test::pump();
        ::SendMessageW(frame->m_hWndMDIClient, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child), 0);
    }
    static std::unique_ptr<CDraftDocument> document() {
        auto made = std::make_unique<CDraftDocument>();
        const OdSmartPtr<OdDbLine> line(new OdDbLine);
        line->setEndPoint({100, 50, 0});
        const OdDbBlockTableRecordPtr space =
            made->database()->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        space->appendOdDbEntity(OdDbEntityPtr(line.get()));
        made->history().Commit(L"Line");
        return made;
    }
    CDrawingWindow* open() {
        auto* const window = new CDrawingWindow(desk, document(), 1);
        return window->Open(*frame) ? window : nullptr;
    }

    CMDIFrameWndEx* frame;
    ui_test::TestDesk desk;
};

TEST_F(DrawingLeaks, AThousandDrawingsLeaveNothing) {
    const std::size_t growth = heap_growth([&] { openBare(); });
    expect_no_growth(
        [&] {
            CDrawingWindow* const window = open();
            ASSERT_NE(window, nullptr);
            window->FinishChange(L"Nothing");
            ui_test::pump();
            window->DestroyWindow();
        },
        growth);
    EXPECT_EQ(desk.activated, kTimes + kWarmUp);
    EXPECT_EQ(desk.left, kTimes + kWarmUp) << "told once when the last one goes";
    EXPECT_EQ(frame->GetMDITabs().GetTabsNum(), 0);
}

TEST_F(DrawingLeaks, DrawingsBesideOthersLeaveNothing) {
    CDrawingWindow* const first = open();
    ASSERT_NE(first, nullptr);
    const std::size_t growth = heap_growth([&] { openBare(); });
    // One is closed in front, the other behind.
    expect_no_growth(
        [&] {
            CDrawingWindow* const second = open();
            CDrawingWindow* const third = open();
            ASSERT_TRUE(second != nullptr && third != nullptr);
            second->DestroyWindow();
            ui_test::pump();
            third->DestroyWindow();
        },
        2 * growth);
    EXPECT_EQ(frame->MDIGetActive(), first);
    EXPECT_EQ(frame->GetMDITabs().GetTabsNum(), 1);
    EXPECT_EQ(desk.left, 0);
}

TEST_F(DrawingLeaks, BuildsThatAreStoppedAThousandTimesLeaveNothing) {
    ui_test::MeasuringGate gate;
    desk.sceneOptions = [&](bool) { return gate.options(); };
    auto made = std::make_unique<CDraftDocument>();
    ui_test::fillWithoutEnd(*made->database());
    made->history().MarkSaved();
    auto* const window = new CDrawingWindow(desk, std::move(made), 1);
    ASSERT_TRUE(window->Open(*frame));
    int stopped = 0, dropped = 0;
    // By Escape, by a change, and by another build.
    expect_no_growth(
        [&] {
            window->Refresh(true);
            stopped += window->StopBuilding();
            window->Refresh(true);
            window->drawing().setLTSCALE(window->drawing().getLTSCALE() + 1);
            dropped += !window->IsBuilding();
            window->document().history().Rollback();
            // The change has begun another one. How far each came is chance, and so is the size of its scene.
            ui_test::pump();
            stopped += window->StopBuilding();
            window->view().SetScene(Scene(), true);
        },
        0);
    EXPECT_EQ(stopped, 2 * (kTimes + kWarmUp));
    EXPECT_EQ(dropped, kTimes + kWarmUp);
}

TEST_F(DrawingLeaks, TabsOfLayoutsSwitchedAThousandTimesLeaveNothing) {
    auto made = std::make_unique<CDraftDocument>();
    ASSERT_EQ(made->database()->readDxfBytes(ui_test::sheetsFile()), kOdOk);
    made->history().MarkSaved();
    auto* const window = new CDrawingWindow(desk, std::move(made), 1);
    ASSERT_TRUE(window->Open(*frame));
    int shown = 0;
    expect_no_growth(
        [&] {
            for (const int tab : {1, 2, 0}) {
                window->ShowLayout(tab);
                window->view().UpdateWindow();
                const auto layout = window->drawing().currentLayoutId().open<OdDbLayout>();
                shown += layout->getTabOrder() == tab;
            }
        },
        0);
    EXPECT_EQ(shown, 3 * (kTimes + kWarmUp));
}

}  // namespace
