// The dialogs of the stand-in host come up filled and leave nothing behind when they are opened and closed a
// thousand times.
//
// Now and then one came up empty, because the class layer did not find the object of a handle that was late.
// So every dialog is looked at, and for one that is not filled it is told how far it came.
// KTUI_DIALOG_MINUTES=60 makes TheyComeUpFilled go on for that long (--gtest_filter=*ComeUpFilled); without
// it, it opens a few.
#include <chrono>
#include <cstdlib>
#include <string>

#include <kh_plot_service.h>

#include "../../../platform/standin/resource.h"
#include "../standin/temporary_folder.h"
#include "heavy_drawing.h"
#include "leak_fixture.h"

namespace {

constexpr int kFewTimes = 25;

/// What a dialog's window looks like from outside: how far its initialisation came.
std::string reached(HWND dialog) {
    std::string text = ::IsWindow(dialog) ? "window" : "no window";
    const auto* object = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(dialog));
    text += object != nullptr ? ", has its object" : ", has no object";
    if (object != nullptr) {
        text += (object->m_nFlags & WF_MODALLOOP) ? ", in its loop" : ", not in its loop";
        text += (object->m_nFlags & WF_CONTINUEMODAL) ? "" : ", ended";
        text += (object->m_nFlags & WF_NEVERSHOWN) ? ", failed" : "";
    }
    text += ::IsWindowVisible(dialog) ? ", visible" : ", hidden";
    text += ::IsWindowEnabled(dialog) ? "" : ", disabled";
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[32] = {};
        ::GetClassNameW(child, name, 32);
        text += "\n  " + std::to_string(::GetDlgCtrlID(child)) + " " + CStringA(CString(name)).GetString();
        if (CWnd::FromHandlePermanent(child) != nullptr) text += ", handed over";
        if (wcscmp(name, WC_LISTVIEWW) == 0) {
            const HWND header = reinterpret_cast<HWND>(::SendMessageW(child, LVM_GETHEADER, 0, 0));
            text += ", columns " + std::to_string(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
            text += ", rows " + std::to_string(::SendMessageW(child, LVM_GETITEMCOUNT, 0, 0));
        } else if (wcscmp(name, L"ListBox") == 0) {
            text += ", rows " + std::to_string(::SendMessageW(child, LB_GETCOUNT, 0, 0));
        } else {
            text += ", \"" + std::string(CStringA(ui_test::text_of(child)).GetString()) + "\"";
        }
    }
    return text;
}

class StandinLeaks : public leaks::Leaks {
protected:
    StandinLeaks() {
        OdDbLinetypeTablePtr table;
        drawing->getLinetypeTable(table);
        current = table->getAt(L"Continuous");
    }
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
    /// Expects the list of a dialog to have entries.
    void expectFilled(HWND dialog, int list, UINT countMessage) {
        ++seen;
        EXPECT_GT(::SendDlgItemMessageW(dialog, list, countMessage, 0, 0), 0)
            << "dialog " << seen << ": " << reached(dialog);
    }
    /// Opens the linetype manager, and its load dialog from there; confirms and cancels in turn.
    void openLinetypeManager() {
        OdDbObjectId chosen;
        const bool isConfirmed = ++opened % 2 == 0;
        bool isManagerShown = false, isLoadShown = false;
        ui_test::when_dialog(L"Linetype Manager", [&](HWND manager) {
            isManagerShown = true;
            expectFilled(manager, IDC_LINETYPE_LIST, LVM_GETITEMCOUNT);
            ui_test::when_dialog(L"Load Linetypes", [&](HWND load) {
                isLoadShown = true;
                ::PostMessageW(load, WM_COMMAND, IDCANCEL, 0);
            });
            ::SendMessageW(manager, WM_COMMAND, IDC_LINETYPE_LOAD, 0);
            const bool canConfirm =
                ::SendDlgItemMessageW(manager, IDC_LINETYPE_LIST, LVM_GETITEMCOUNT, 0, 0) > 0;
            ::PostMessageW(manager, WM_COMMAND, isConfirmed && canConfirm ? IDOK : IDCANCEL, 0);
        });
        const bool answer = host.uiHost()->showLinetypeDialog(current, chosen, 1);
        ASSERT_TRUE(isManagerShown) << "manager " << opened << " did not come up";
        ASSERT_TRUE(isLoadShown) << "load dialog " << opened << " did not come up";
        ASSERT_EQ(answer, isConfirmed);
    }
    void openPlotStyles() {
        const wchar_t* chosen = nullptr;
        const bool isConfirmed = ++opened % 2 == 0;
        bool isShown = false;
        ui_test::when_dialog(L"Select Plot Style", [&](HWND dialog) {
            isShown = true;
            expectFilled(dialog, IDC_PLOT_STYLE_LIST, LB_GETCOUNT);
            const bool canConfirm =
                ::SendDlgItemMessageW(dialog, IDC_PLOT_STYLE_LIST, LB_GETCURSEL, 0, 0) >= 0;
            ::PostMessageW(dialog, WM_COMMAND, isConfirmed && canConfirm ? IDOK : IDCANCEL, 0);
        });
        const bool answer = host.uiHost()->showPlotStyleDialog(L"Normal", true, chosen);
        ASSERT_TRUE(isShown) << "dialog " << opened << " did not come up";
        ASSERT_EQ(answer, isConfirmed);
    }
    OdDbObjectId current;
    int opened = 0;
    int seen = 0;
};

}  // namespace

TEST_F(StandinLeaks, AThousandLinetypeManagersWithTheirLoadDialogsLeaveNothing) {
    const size_t growth = systemGrowth(IDD_LINETYPES) + systemGrowth(IDD_LOAD_LINETYPES);
    leaks::expect_no_growth([&] { openLinetypeManager(); }, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(seen, leaks::kTimes + leaks::kWarmUp);
}

TEST_F(StandinLeaks, AThousandPlotStyleDialogsLeaveNothing) {
    const size_t growth = systemGrowth(IDD_PLOT_STYLES);
    leaks::expect_no_growth([&] { openPlotStyles(); }, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(seen, leaks::kTimes + leaks::kWarmUp);
}

TEST_F(StandinLeaks, AThousandExportsWithTheirThreadsAndWindowsLeaveNothing) {
    ui_test::addEntity(*drawing, ui_test::newLine(0, 0, 100, 50));
    ui_test::addEntity(*drawing, ui_test::newMeasuredText());
    static_cast<CKhPlotSvr*>(host.serviceManager()->getService(kKhPlotService))->setPlotArea(1, true);
    host.SetExportPatience(0);
    ui_test::TemporaryFolder folder;
    const std::wstring file = folder.write(L"a.pdf", "");
    const size_t growth = systemGrowth(IDD_EXPORT_WAIT);
    leaks::expect_no_growth(
        [&] {
            CString message;
            ASSERT_TRUE(host.ExportDrawing(file.c_str(), message)) << CStringA(message).GetString();
        },
        growth, leaks::kShownGdiSlack);
}

TEST_F(StandinLeaks, TheyComeUpFilled) {
    using Clock = std::chrono::steady_clock;
    const char* minutes = std::getenv("KTUI_DIALOG_MINUTES");
    const auto end = Clock::now() + std::chrono::minutes(minutes != nullptr ? std::atoi(minutes) : 0);
    while (seen < 2 * kFewTimes || Clock::now() < end) {
        openLinetypeManager();
        openPlotStyles();
        if (HasFatalFailure()) return;
        for (LONG count = 0; AfxGetApp()->OnIdle(count); ++count) {
        }
    }
    EXPECT_EQ(seen, opened);
    if (minutes != nullptr) std::printf("%d dialogs came up, and as many load dialogs as managers\n", seen);
}
