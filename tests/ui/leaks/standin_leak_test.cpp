// The dialogs of the stand-in host leave nothing behind when they are opened and closed a thousand times.
#include "../../../platform/standin/resource.h"
#include "leak_fixture.h"

namespace {

// On a machine that does much else a dialog now and then came up with its controls empty, twice in some tens
// of thousands; why has not been found. Such a one is cancelled and counted.
constexpr int kMostUnfilled = 5;

class StandinLeaks : public leaks::Leaks {
protected:
    /// Heap blocks by which a dialog of the host grows the process when the system alone opens it.
    size_t systemGrowth(UINT id) {
        return leaks::heap_growth([&] {
            const HINSTANCE module = ::GetModuleHandleW(L"ktstandin.dll");
            const HWND dialog = ::CreateDialogParamW(
                module, MAKEINTRESOURCEW(id), parent.m_hWnd,
                [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; }, 0);
            ::DestroyWindow(dialog);
        });
    }
    /// Whether the list of a dialog has entries, as it has once the dialog is initialised.
    bool isFilled(HWND dialog, int list, UINT countMessage) {
        const bool filled = ::SendDlgItemMessageW(dialog, list, countMessage, 0, 0) > 0;
        if (!filled) ++unfilled;
        return filled;
    }
    int opened = 0;
    int unfilled = 0;
};

}  // namespace

TEST_F(StandinLeaks, AThousandLinetypeManagersWithTheirLoadDialogsLeaveNothing) {
    OdDbLinetypeTablePtr table;
    drawing->getLinetypeTable(table);
    const OdDbObjectId current = table->getAt(L"Continuous");
    const size_t growth = systemGrowth(IDD_LINETYPES) + systemGrowth(IDD_LOAD_LINETYPES);
    const auto open_once = [&] {
        OdDbObjectId chosen;
        bool isConfirmed = ++opened % 2 == 0;
        bool isLoadShown = false;
        ui_test::when_dialog(L"Linetype Manager", [&](HWND manager) {
            if (!isFilled(manager, IDC_LINETYPE_LIST, LVM_GETITEMCOUNT)) {
                isConfirmed = false;
                isLoadShown = true;
                ::PostMessageW(manager, WM_COMMAND, IDCANCEL, 0);
                return;
            }
            ui_test::when_dialog(L"Load Linetypes", [&](HWND load) {
                isLoadShown = true;
                ::PostMessageW(load, WM_COMMAND, IDCANCEL, 0);
            });
            ::SendMessageW(manager, WM_COMMAND, IDC_LINETYPE_LOAD, 0);
            ::PostMessageW(manager, WM_COMMAND, isConfirmed ? IDOK : IDCANCEL, 0);
        });
        const bool answer = host.uiHost()->showLinetypeDialog(current, chosen, 1);
        ASSERT_EQ(answer, isConfirmed);
        ASSERT_TRUE(isLoadShown);
    };
    leaks::expect_no_growth(open_once, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(opened, leaks::kTimes + leaks::kWarmUp);
    EXPECT_LE(unfilled, kMostUnfilled);
}

TEST_F(StandinLeaks, AThousandPlotStyleDialogsLeaveNothing) {
    const size_t growth = systemGrowth(IDD_PLOT_STYLES);
    const auto open_once = [&] {
        const wchar_t* chosen = nullptr;
        bool isConfirmed = ++opened % 2 == 0;
        ui_test::when_dialog(L"Select Plot Style", [&](HWND dialog) {
            isConfirmed = isConfirmed && isFilled(dialog, IDC_PLOT_STYLE_LIST, LB_GETCOUNT);
            ::PostMessageW(dialog, WM_COMMAND, isConfirmed ? IDOK : IDCANCEL, 0);
        });
        const bool answer = host.uiHost()->showPlotStyleDialog(L"Normal", true, chosen);
        ASSERT_EQ(answer, isConfirmed);
    };
    leaks::expect_no_growth(open_once, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(opened, leaks::kTimes + leaks::kWarmUp);
    EXPECT_LE(unfilled, kMostUnfilled);
}
