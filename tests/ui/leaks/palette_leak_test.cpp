// Palette sets and name edits, opened and closed a thousand times, hidden.
#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/name_edit.h>

#include <afxcontrolbars.h>

#include "leak_growth.h"
#include "test_host.h"

namespace {

using namespace leaks;

struct PaletteLeaks : ::testing::Test {
    ui_test::TestHost host;
    CMDIFrameWndEx* frame = new CMDIFrameWndEx;
    int done = 0;

    PaletteLeaks() {
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 800, 600)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        host.frame = frame;
        AfxGetApp()->m_pMainWnd = frame;
    }
    ~PaletteLeaks() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
    }
    void fill(CKbUiPaletteSet& set) {
        ASSERT_TRUE(
            set.Create(L"Set", WS_CHILD | CBRS_RIGHT | CBRS_FLOAT_MULTI, CRect(0, 0, 200, 400), frame, 0));
        for (int i = 0; i < 10; ++i) {
            auto* palette = new CKbUiPalette;
            CString name;
            name.Format(L"Palette %d", i);
            palette->SetName(name);
            ASSERT_EQ(set.AddPalette(palette), 0);
        }
        set.SetActivePalette(set.GetPalette(4));
    }
};

/// Hears of a name edit and ends it.
class Receiver : public CWnd {
public:
    int ended = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != kEndNameEdit) return CWnd::WindowProc(message, wParam, lParam);
        auto* edit = reinterpret_cast<CNameEdit*>(wParam);
        edit->DestroyWindow();
        delete edit;
        return ++ended;
    }
};

LRESULT CALLBACK refuseNameEdits(int code, WPARAM window, LPARAM data) {
    if (code == HCBT_CREATEWND) {
        wchar_t name[20] = {};
        ::GetClassNameW(reinterpret_cast<HWND>(window), name, 20);
        if (CString(name).Left(11) == L"KH:NameEdit") return 1;
    }
    return ::CallNextHookEx(nullptr, code, window, data);
}

}  // namespace

TEST_F(PaletteLeaks, AThousandNameEditsThatCantBeMadeLeaveNothing) {
    CKbUiPaletteSet set(2);
    fill(set);
    const HHOOK hook = ::SetWindowsHookExW(WH_CBT, refuseNameEdits, nullptr, ::GetCurrentThreadId());
    expect_no_growth([&] { done += set.SendMessage(kBeginNameEdit, 0, 0) == 0; });
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(done, kTimes + kWarmUp);
}

TEST_F(PaletteLeaks, ASetThatIsMadeAThousandTimesLeavesNothing) {
    CKbUiPaletteSet set(2);
    expect_no_growth([&] {
        fill(set);
        done += set.GetPaletteCount() == 10;
        set.DestroyWindow();
    });
    EXPECT_EQ(done, kTimes + kWarmUp);
}

TEST_F(PaletteLeaks, AThousandSetsWithTenPalettesLeaveNothing) {
    expect_no_growth([&] {
        CKbUiPaletteSet set(2);
        fill(set);
        CKbUiPalette* removed = set.GetPalette(9);
        set.RemovePalette(removed);
        delete removed;
        done += set.GetPaletteCount() == 9;
        set.DestroyWindow();
    });
    EXPECT_EQ(done, kTimes + kWarmUp);
}

TEST_F(PaletteLeaks, AThousandSetsDockedAndFloatedLeaveNothing) {
    expect_no_growth([&] {
        CKbUiPaletteSet set(2);
        fill(set);
        set.EnableDocking(CBRS_ALIGN_ANY);
        set.DockControlBar(CBRS_ALIGN_RIGHT, nullptr);
        done += set.IsDocked() != FALSE;
        set.FloatPane(CRect(100, 100, 300, 500), DM_UNKNOWN, false);
        done += !set.IsDocked();
        set.DestroyWindow();
        ui_test::pump();
    });
    EXPECT_EQ(done, 2 * (kTimes + kWarmUp));
}

TEST_F(PaletteLeaks, AThousandNameEditsLeaveNothing) {
    Receiver receiver;
    ASSERT_TRUE(receiver.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 100, 20), frame, 1));
    expect_no_growth(
        [&] {
            auto* edit = new CNameEdit;
            const CPoint place(10, 10);
            ASSERT_TRUE(edit->Create(&receiver, frame, L"Layers", &place));
            MSG key = {};
            key.message = WM_KEYDOWN;
            key.wParam = done % 2 == 0 ? VK_RETURN : VK_ESCAPE;
            done += edit->PreTranslateMessage(&key);
            ui_test::pump();
        },
        0, kShownGdiSlack);
    EXPECT_EQ(done, kTimes + kWarmUp);
    EXPECT_EQ(receiver.ended, done);
}
