// The dialogs of the stand-in host leave nothing behind when they are opened and closed a thousand times.
#include "../../../platform/standin/resource.h"
#include "leak_fixture.h"

namespace {

class StandinLeaks : public leaks::Leaks {
protected:
    /// Heap blocks by which a dialog of the host grows the process when the system alone opens it.
    size_t systemGrowth(UINT id) {
        return leaks::heap_growth([&] {
            const HINSTANCE module = ::GetModuleHandleW(L"ktstandin.dll");
            const HWND dialog = ::CreateDialogParamW(
                module, MAKEINTRESOURCEW(id), parent.m_hWnd,
                [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; }, 0);
            ::ShowWindow(dialog, SW_SHOW);
            ::DestroyWindow(dialog);
        });
    }
    /// Has the next dialog with this title answered.
    static void answer(const wchar_t* title, WPARAM button) {
        ui_test::when_dialog(title, [button](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, button, 0); });
    }

    int opened = 0;
};

}  // namespace

TEST_F(StandinLeaks, AThousandLinetypeManagersLeaveNothing) {
    OdDbLinetypeTablePtr table;
    drawing->getLinetypeTable(table);
    const OdDbObjectId current = table->getAt(L"Continuous");
    const size_t growth = systemGrowth(IDD_LINETYPES);
    const auto open_once = [&] {
        OdDbObjectId chosen;
        const bool isConfirmed = ++opened % 2 == 0;
        answer(L"Linetype Manager", isConfirmed ? IDOK : IDCANCEL);
        ASSERT_EQ(host.uiHost()->showLinetypeDialog(current, chosen, 1), isConfirmed);
    };
    leaks::expect_no_growth(open_once, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(opened, leaks::kTimes + leaks::kWarmUp);
}

TEST_F(StandinLeaks, AThousandLoadDialogsLeaveNothing) {
    const size_t growth = systemGrowth(IDD_LINETYPES) + systemGrowth(IDD_LOAD_LINETYPES);
    const auto open_once = [&] {
        OdDbObjectId chosen;
        ui_test::when_dialog(L"Linetype Manager", [&](HWND manager) {
            ++opened;
            answer(L"Load Linetypes", IDCANCEL);
            ::SendMessageW(manager, WM_COMMAND, IDC_LINETYPE_LOAD, 0);
            ::PostMessageW(manager, WM_COMMAND, IDCANCEL, 0);
        });
        ASSERT_FALSE(host.uiHost()->showLinetypeDialog({}, chosen, 1));
    };
    leaks::expect_no_growth(open_once, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(opened, leaks::kTimes + leaks::kWarmUp);
}

TEST_F(StandinLeaks, AThousandPlotStyleDialogsLeaveNothing) {
    const size_t growth = systemGrowth(IDD_PLOT_STYLES);
    const auto open_once = [&] {
        const wchar_t* chosen = nullptr;
        const bool isConfirmed = ++opened % 2 == 0;
        answer(L"Select Plot Style", isConfirmed ? IDOK : IDCANCEL);
        ASSERT_EQ(host.uiHost()->showPlotStyleDialog(L"Normal", true, chosen), isConfirmed);
    };
    leaks::expect_no_growth(open_once, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(opened, leaks::kTimes + leaks::kWarmUp);
}
