// A walk of random operations on a live frame, with what must hold looked at after each.
#include <random>

#include "docking_fixture.h"

using namespace docking;

class DockingWalk : public Docking, public testing::WithParamInterface<unsigned> {
protected:
    DockingWalk() : Docking(0), random(GetParam()) {}

    int any(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    Pane& pane() { return *panes[static_cast<size_t>(any(0, static_cast<int>(panes.size()) - 1))]; }
    DWORD side() { return static_cast<DWORD>(CBRS_ALIGN_LEFT) << any(0, 3); }

    void step() {
        const int what = any(0, 9);
        last.Format(", operation %d", what);
        switch (what) {
            case 0: frame->DockPane(&pane(), side()); break;
            case 1:
            case 2:
            case 3: pane().DockToWindow(&pane(), side()); break;
            case 4:
                pane().FloatPane(CRect(CPoint(any(0, 500), any(0, 400)), CSize(any(50, 400), any(60, 400))));
                break;
            case 5: pane().ShowPane(FALSE, FALSE, FALSE); break;
            case 6: pane().ShowPane(TRUE, FALSE, FALSE); break;
            case 7: pane().DockToRecentPos(); break;
            case 8:
                frame->SetWindowPos(nullptr, 0, 0, any(150, 1100), any(120, 900), SWP_NOMOVE | SWP_NOZORDER);
                break;
            default: drag(); break;
        }
        if (any(0, 5) == 0) ui_test::pump();
    }
    void drag() {
        const auto lines = dividers(*frame);
        if (lines.empty()) return;
        CPaneDivider& line = *lines[static_cast<size_t>(any(0, static_cast<int>(lines.size()) - 1))];
        const CPoint start = on_screen(line).CenterPoint();
        press(line, start);
        move(start + CSize(any(-200, 200), any(-200, 200)));
        ::ReleaseCapture();
    }
    /// Each floating frame is filled by its panes and dividers.
    void check_floating() {
        for (POSITION at_ = manager().GetMiniFrames().GetHeadPosition(); at_ != nullptr;) {
            auto* mini = static_cast<CPaneFrameWnd*>(manager().GetMiniFrames().GetNext(at_));
            ASSERT_GT(mini->GetPaneCount(), 0);
            if (mini->GetVisiblePaneCount() == 0) continue;
            CRect client;
            mini->GetClientRect(&client);
            std::vector<CRect> all;
            for (HWND child = ::GetTopWindow(mini->m_hWnd); child != nullptr;
                 child = ::GetWindow(child, GW_HWNDNEXT))
                if (::GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE)
                    all.push_back(at(*CWnd::FromHandle(child)));
            check_cover(client, all);
        }
    }
    void check_panes() {
        for (const auto& one : panes) {
            ASSERT_EQ(one->IsFloating(), one->GetParentMiniFrame() != nullptr);
            ASSERT_FALSE(one->IsDocked() && one->IsFloating());
            if (one->IsDocked() || one->IsFloating()) {
                ASSERT_EQ(one->IsVisible(), one->IsPaneVisible());
            }
        }
    }

    std::mt19937 random;
    CStringA last;  ///< what the last step did
};

TEST_P(DockingWalk, keeps_every_pane_in_its_place) {
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e", L"f", L"g"}) {
        Pane& one = make(name, CSize(any(60, 200), any(60, 200)), CBRS_LEFT | CBRS_FLOAT_MULTI);
        one.SetMinSize(CSize(any(0, 50), any(0, 50)));
        frame->DockPane(&one, side());
    }
    for (int i = 0; i < 300; ++i) {
        last.Empty();
        step();
        SCOPED_TRACE(testing::Message() << "step " << i << last.GetString());
        check_frame();
        check_floating();
        check_panes();
        ASSERT_FALSE(HasFatalFailure());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, DockingWalk, testing::Values(1u, 2u, 3u));
