// What is kept of docked and floating bars: in a state, an archive and the profile, and what is made of bad
// ones.
#include <afxadv.h>

#include <memory>
#include <string>
#include <vector>

#include "bars_frame.h"

namespace {

using namespace bars;

constexpr UINT kFirstBar = AFX_IDW_CONTROLBAR_FIRST + 20;
constexpr const wchar_t* kProfile = L"ktui dock state test";

class DockState : public FrameBars {
protected:
    DockState() {
        frame->EnableDocking(CBRS_ALIGN_ANY);
        for (UINT i = 0; i < 4; ++i) {
            bars.push_back(std::make_unique<CToolBar>());
            bars[i]->CreateEx(frame, TBSTYLE_FLAT,
                              WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_SIZE_DYNAMIC,
                              CRect(0, 0, 0, 0), kFirstBar + i);
            bars[i]->LoadToolBar(440);
            bars[i]->EnableDocking(CBRS_ALIGN_ANY);
        }
    }
    ~DockState() override {
        for (auto& bar : bars) bar->DestroyWindow();
        for (const wchar_t* part : {L"-Summary", L"-Bar0", L"-Bar1", L"-Bar2", L"-Bar3"})
            AfxGetApp()->WriteProfileString(CString(kProfile) + part, nullptr, nullptr);
    }
    static CRect on_screen(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }
    /// Two in a row at the top, one hidden at the left, one floating.
    void set_out() {
        frame->DockControlBar(bars[0].get(), AFX_IDW_DOCKBAR_TOP);
        const CRect distant(on_screen(*bars[0]).TopLeft() + CSize(200, 3), CSize(10, 3));
        frame->DockControlBar(bars[1].get(), AFX_IDW_DOCKBAR_TOP, &distant);
        frame->DockControlBar(bars[2].get(), AFX_IDW_DOCKBAR_LEFT);
        frame->ShowControlBar(bars[2].get(), FALSE, FALSE);
        frame->FloatControlBar(bars[3].get(), CPoint(320, 240));
    }
    void mix_up() {
        for (auto& bar : bars) {
            frame->ShowControlBar(bar.get(), TRUE, FALSE);
            frame->DockControlBar(bar.get(), AFX_IDW_DOCKBAR_BOTTOM);
        }
    }
    /// Those of bars and view on the screen, a line for each.
    std::string places() {
        std::string all;
        std::vector<CWnd*> windows{&view};
        for (auto& bar : bars)
            if (bar->IsWindowVisible()) windows.push_back(bar.get());
        for (const CWnd* const window : windows) {
            const CRect place = on_screen(*window);
            all += std::to_string(window->GetDlgCtrlID()) + ": " + std::to_string(place.left) + " " +
                   std::to_string(place.top) + " " + std::to_string(place.right) + " " +
                   std::to_string(place.bottom) + "\n";
        }
        return all;
    }
    void expect_set_out(const std::string& before) {
        EXPECT_EQ(places(), before);
        EXPECT_EQ(bars[0]->GetParent()->GetDlgCtrlID(), static_cast<int>(AFX_IDW_DOCKBAR_TOP));
        EXPECT_EQ(bars[2]->GetParent()->GetDlgCtrlID(), static_cast<int>(AFX_IDW_DOCKBAR_LEFT));
        EXPECT_FALSE(bars[2]->IsWindowVisible());
        EXPECT_TRUE(bars[3]->IsFloating());
        EXPECT_TRUE(bars[3]->IsWindowVisible());
    }
    std::vector<std::unique_ptr<CToolBar>> bars;
};

TEST_F(DockState, BringsBarsBackToTheirPlaces) {
    set_out();
    const auto before = places();
    CDockState state;
    frame->GetDockState(state);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 4);
    EXPECT_EQ(state.GetVersion(), 2U);
    mix_up();
    EXPECT_NE(places(), before);
    frame->SetDockState(state);
    expect_set_out(before);
    state.Clear();
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0);
    frame->SetDockState(state);
    expect_set_out(before);
}

TEST_F(DockState, TellsOfEachBarInTheOrderOfTheRows) {
    set_out();
    CDockState state;
    frame->GetDockState(state);
    const auto info = [&](int i) -> const CControlBarInfo& {
        return *static_cast<CControlBarInfo*>(state.m_arrBarInfo[i]);
    };
    const UINT ids[] = {kFirstBar, kFirstBar + 1, kFirstBar + 2, kFirstBar + 3};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(info(i).m_nBarID, ids[i]) << i;
    EXPECT_EQ(info(0).m_nDockBarID, static_cast<UINT>(AFX_IDW_DOCKBAR_TOP));
    EXPECT_EQ(info(1).m_nOffset, 200);
    EXPECT_FALSE(info(1).m_bOwnRow);
    EXPECT_TRUE(info(2).m_bOwnRow);
    EXPECT_FALSE(info(2).m_bVisible);
    EXPECT_TRUE(info(0).m_bVisible);
    EXPECT_FALSE(info(0).m_bFloating);
    EXPECT_TRUE(info(3).m_bFloating);
    EXPECT_EQ(info(3).m_pointPos, CPoint(320, 240));
    EXPECT_TRUE(info(3).m_bHorz);
    EXPECT_FALSE(info(2).m_bHorz);
}

TEST_F(DockState, KeepsThePlacesOfADoubleClick) {
    set_out();
    frame->DockControlBar(bars[3].get(), AFX_IDW_DOCKBAR_RIGHT);
    frame->FloatControlBar(bars[3].get(), CPoint(330, 250));
    frame->FloatControlBar(bars[0].get(), CPoint(340, 260));
    frame->DockControlBar(bars[0].get(), AFX_IDW_DOCKBAR_TOP);
    frame->SaveBarState(kProfile);
    frame->FloatControlBar(bars[0].get(), CPoint(400, 300));
    mix_up();
    frame->LoadBarState(kProfile);
    bars[3]->toggle_floating();
    EXPECT_EQ(bars[3]->GetParent()->GetDlgCtrlID(), static_cast<int>(AFX_IDW_DOCKBAR_RIGHT));
    bars[0]->toggle_floating();
    ASSERT_TRUE(bars[0]->IsFloating());
    EXPECT_EQ(on_screen(*bars[0]->GetParent()->GetParent()).TopLeft(), CPoint(340, 260));
}

TEST_F(DockState, GoesThroughTheProfile) {
    set_out();
    const auto before = places();
    frame->SaveBarState(kProfile);
    mix_up();
    frame->LoadBarState(L"ktui no such state");
    EXPECT_NE(places(), before);
    frame->LoadBarState(kProfile);
    expect_set_out(before);
}

TEST_F(DockState, GoesThroughAnArchive) {
    set_out();
    const auto before = places();
    CDockState state, read;
    frame->GetDockState(state);
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        state.Serialize(archive);
    }
    mix_up();
    file.SeekToBegin();
    {
        CArchive archive(&file, CArchive::load);
        read.Serialize(archive);
    }
    frame->SetDockState(read);
    expect_set_out(before);
    // A part of it is none.
    const ULONGLONG whole = file.GetLength();
    for (const ULONGLONG length : {ULONGLONG{0}, ULONGLONG{3}, ULONGLONG{9}, whole - 1}) {
        file.SetLength(length);
        file.SeekToBegin();
        CArchive archive(&file, CArchive::load);
        bool thrown = false;
        try {
            read.Serialize(archive);
        } catch (CArchiveException* refused) {
            thrown = true;
            refused->Delete();
        }
        EXPECT_TRUE(thrown) << length;
        EXPECT_EQ(read.m_arrBarInfo.GetSize(), 0) << length;
    }
}

TEST_F(DockState, LeavesOutWhatNoBarHas) {
    set_out();
    frame->SaveBarState(kProfile);
    CWinApp* const app = AfxGetApp();
    const CString first = CString(kProfile) + L"-Bar0", second = CString(kProfile) + L"-Bar1",
                  third = CString(kProfile) + L"-Bar2";
    app->WriteProfileInt(first, L"Row", -1);
    app->WriteProfileInt(second, L"MRUWidth", 0);
    app->WriteProfileString(third, L"Offset", nullptr);
    CDockState state;
    state.LoadState(kProfile);
    ASSERT_EQ(state.m_arrBarInfo.GetSize(), 1);
    EXPECT_EQ(static_cast<CControlBarInfo*>(state.m_arrBarInfo[0])->m_nBarID, kFirstBar + 3);
    app->WriteProfileInt(first, L"Row", 0);
    for (const int wrong : {0, -1, 0x10000, 2'000'000}) {
        app->WriteProfileInt(first, L"BarID", wrong);
        state.LoadState(kProfile);
        EXPECT_EQ(state.m_arrBarInfo.GetSize(), 1) << wrong;
    }
    app->WriteProfileInt(first, L"BarID", kFirstBar);
    app->WriteProfileInt(first, L"XPos", 2'000'000);
    state.LoadState(kProfile);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 1);
    app->WriteProfileInt(CString(kProfile) + L"-Summary", L"Bars", 0x7FFFFFFF);
    state.LoadState(kProfile);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 1);
    app->WriteProfileInt(CString(kProfile) + L"-Summary", L"Version", 1);
    state.LoadState(kProfile);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0);
}

TEST_F(DockState, ASmallerStateTakesTheRestOfTheFormerOneAway) {
    set_out();
    frame->SaveBarState(kProfile);
    CDockState state;
    state.LoadState(kProfile);
    delete static_cast<CControlBarInfo*>(state.m_arrBarInfo[3]);
    state.m_arrBarInfo.RemoveAt(3);
    state.SaveState(kProfile);
    EXPECT_EQ(AfxGetApp()->GetProfileInt(CString(kProfile) + L"-Bar3", L"BarID", 7), 7U);
    EXPECT_EQ(AfxGetApp()->GetProfileInt(CString(kProfile) + L"-Bar2", L"BarID", 7), kFirstBar + 2);
}

TEST_F(DockState, BarsThatItDoesntKnowAndBarsThatAreGoneDoNoHarm) {
    set_out();
    CDockState state;
    frame->GetDockState(state);
    static_cast<CControlBarInfo*>(state.m_arrBarInfo[0])->m_nBarID = 4;              // nobody
    static_cast<CControlBarInfo*>(state.m_arrBarInfo[1])->m_nBarID = kFirstBar + 2;  // twice
    static_cast<CControlBarInfo*>(state.m_arrBarInfo[3])->m_nDockBarID = 99;         // no edge
    mix_up();
    frame->SetDockState(state);
    for (const int kept : {0, 1})
        EXPECT_EQ(bars[static_cast<size_t>(kept)]->GetParent()->GetDlgCtrlID(),
                  static_cast<int>(AFX_IDW_DOCKBAR_BOTTOM))
            << kept;
    EXPECT_EQ(bars[2]->GetParent()->GetDlgCtrlID(), static_cast<int>(AFX_IDW_DOCKBAR_TOP));
    EXPECT_TRUE(bars[3]->IsFloating());
}

TEST_F(DockState, ABarKeepsOffAnEdgeThatItMayNoLongerDockAt) {
    set_out();
    CDockState state;
    frame->GetDockState(state);
    mix_up();
    bars[0]->EnableDocking(CBRS_ALIGN_BOTTOM);
    frame->SetDockState(state);
    EXPECT_EQ(bars[0]->GetParent()->GetDlgCtrlID(), static_cast<int>(AFX_IDW_DOCKBAR_BOTTOM));
    EXPECT_EQ(bars[1]->GetParent()->GetDlgCtrlID(), static_cast<int>(AFX_IDW_DOCKBAR_TOP));
}

TEST_F(DockState, AFloatingBarComesBackAsItWasWrapped) {
    frame->FloatControlBar(bars[3].get(), CPoint(320, 240));
    CWnd* const mini = bars[3]->GetParent()->GetParent();
    const auto pull_to = [&](int width) {
        CRect pulled = on_screen(*mini);
        pulled.right = pulled.left + width;
        mini->SendMessage(WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&pulled));
    };
    const CSize row = on_screen(*bars[3]).Size();
    pull_to(45);
    const CSize wrapped = on_screen(*bars[3]).Size();
    ASSERT_NE(wrapped, row);
    CDockState state;
    frame->GetDockState(state);
    pull_to(900);
    ASSERT_EQ(on_screen(*bars[3]).Size(), row);
    frame->SetDockState(state);
    EXPECT_EQ(on_screen(*bars[3]).Size(), wrapped);
}

TEST_F(DockState, AFloatingFrameComesBackWithinReach) {
    set_out();
    CDockState state;
    frame->GetDockState(state);
    static_cast<CControlBarInfo*>(state.m_arrBarInfo[3])->m_pointPos = CPoint(-5000, 9000);
    frame->SetDockState(state);
    const CRect mini = on_screen(*bars[3]->GetParent()->GetParent());
    const CRect desktop(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    CRect shared;
    shared.IntersectRect(&mini, &desktop);
    EXPECT_EQ(shared, mini);
}

}  // namespace
