// A dialog of the stand-in host that lacks one of its controls fails while it starts, and is never seen.
#include "linetype_fixture.h"

namespace {

/// Destroys a control of the next dialog that has it, just before that dialog is initialised.
class Thief {
public:
    explicit Thief(int id)
        : m_hook(::SetWindowsHookExW(WH_CALLWNDPROC, &see, nullptr, ::GetCurrentThreadId())) {
        wanted = id;
        shown = false;
    }
    ~Thief() { ::UnhookWindowsHookEx(m_hook); }
    Thief(const Thief&) = delete;
    Thief& operator=(const Thief&) = delete;

    bool hasTaken() const { return wanted == 0; }
    bool wasShown() const { return shown; }

private:
    static LRESULT CALLBACK see(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code == HC_ACTION && message.message == WM_INITDIALOG && wanted != 0) {
            const HWND control = ::GetDlgItem(message.hwnd, wanted);
            if (control != nullptr && ::DestroyWindow(control)) {
                wanted = 0;
                robbed = message.hwnd;
            }
        }
        if (code == HC_ACTION && message.message == WM_SHOWWINDOW && message.wParam != 0 &&
            robbed != nullptr && message.hwnd == robbed) {
            // A dialog that comes up all the same must not wait for ever.
            shown = true;
            ::PostMessageW(robbed, WM_COMMAND, IDCANCEL, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static inline int wanted = 0;
    static inline bool shown = false;
    static inline HWND robbed = nullptr;
    HHOOK m_hook;
};

using HandOver = ui_test::LinetypeDialogTest;

}  // namespace

TEST_F(HandOver, TheLinetypeManagerNeedsItsControls) {
    for (const int id : {IDC_LINETYPE_LIST, IDC_LINETYPE_LOAD, IDC_LINETYPE_DELETE}) {
        const Thief thief(id);
        EXPECT_FALSE(host.uiHost()->showLinetypeDialog(current, chosen, 1));
        EXPECT_TRUE(thief.hasTaken());
        EXPECT_FALSE(thief.wasShown()) << id;
        EXPECT_TRUE(parent.IsWindowEnabled());
    }
}

TEST_F(HandOver, TheLoadDialogNeedsItsControls) {
    inManager([&](HWND manager) {
        for (const int id : {IDC_LOAD_LIST, IDC_LOAD_FILE, IDC_LOAD_BROWSE, IDC_LOAD_SELECT_ALL}) {
            const Thief thief(id);
            ::SendMessageW(manager, WM_COMMAND, IDC_LINETYPE_LOAD, 0);
            EXPECT_TRUE(thief.hasTaken());
            EXPECT_FALSE(thief.wasShown()) << id;
            EXPECT_TRUE(::IsWindowEnabled(manager));
        }
    });
}

TEST_F(HandOver, ThePlotStyleDialogNeedsItsControls) {
    for (const int id : {IDC_PLOT_STYLE_LIST, IDC_PLOT_STYLE_SHEET, IDC_PLOT_STYLE_NOTE}) {
        const Thief thief(id);
        const wchar_t* name = nullptr;
        EXPECT_FALSE(host.uiHost()->showPlotStyleDialog(L"Normal", true, name));
        EXPECT_TRUE(thief.hasTaken());
        EXPECT_FALSE(thief.wasShown()) << id;
    }
}

TEST_F(HandOver, TheColorDialogNeedsItsControls) {
    for (const int id :
         {IDC_COLOR_PALETTE, IDC_COLOR_SAMPLE, IDC_COLOR_BYLAYER, IDC_COLOR_INDEX, IDC_COLOR_RED}) {
        const Thief thief(id);
        int index = 3;
        EXPECT_FALSE(host.uiHost()->showColorIndexDialog(index, true, 1));
        EXPECT_TRUE(thief.hasTaken());
        EXPECT_FALSE(thief.wasShown()) << id;
        EXPECT_EQ(index, 3);
    }
}
