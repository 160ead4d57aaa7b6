// The underlay export dialog opened and cancelled a thousand times: its pictures, its boxes, and the settings
// that override a page set-up.
#include <kh_plot_service.h>
#include <ktui/nav/ktui_nav_dialog.h>

#include "leak_growth.h"
#include "open_drawing.h"
#include "system_dialogs.h"
#include "test_host.h"

namespace {

/// Answers at once.
class QuickPlotService final : public CKhPlotSvr {
public:
    void plotStampDialog() override {}
    void exportOptionsDialog() override {}
    void getExportSummary(KhExportSummary& summary) override {
        summary = {};
        summary.summary = L"a summary";
    }
    void setExportFormat(int, int) override {}
    void setSecondSwitch(bool) override {}
    bool getSecondSwitch() override { return true; }
    void setFirstSwitch(bool) override {}
    bool getFirstSwitch() override { return true; }
    void prepareArea(bool) override {}
    void setPlotArea(int, bool) override {}
    int getPlotArea(bool) override { return 2; }
    bool hasNoWindow() override { return true; }
    void pickWindow() override { ++picks; }
    void overrideDialog(OdDbPlotSettings*, int) override { ++overrides; }
    void setOverride(bool) override {}
    bool getOverride() override { return true; }
    int picks = 0, overrides = 0;
};

class ExportLeaks : public ::testing::Test {
protected:
    ExportLeaks() {
        host.services[kKhPlotService] = &service;
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        folder = CString(temporary) + L"ktui export leaks";
        ::CreateDirectoryW(folder, nullptr);
    }
    ~ExportLeaks() override {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, leaks::kDialogsKey);
        ::RemoveDirectoryW(folder);
    }
    void run() {
        CNavDataArray data;
        CNavFilterArray filters;
        CNavFilter* const filter = filters.AddData();
        filter->SetDescription(L"PDF");
        filter->Add(L"*.pdf");
        CKtUiNavDialog dialog(data, filters);
        dialog.SetDialogName(L"export");
        dialog.SetDialogCaption(leaks::kChooser);
        dialog.SetForceInitialFolder(folder);
        dialog.SetCreatingFile(1);
        dialog.ConvertFlagsToState(0x10000000);
        ui_test::when_dialog(leaks::kChooser, [](HWND window) {
            constexpr int kPickWindow = 57211, kOverride = 57214;
            const HWND own = ::FindWindowExW(window, nullptr, L"#32770", nullptr);
            for (const int id : {kPickWindow, kOverride})
                ::SendMessageW(own, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                               reinterpret_cast<LPARAM>(::GetDlgItem(own, id)));
            ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        });
        cancelled += dialog.DoModal() == IDCANCEL;
    }
    int cancelled = 0;
    CString folder;
    QuickPlotService service;
    ui_test::TestHost host;
    ui_test::OpenDrawing open{host};
    ui_test::ParentWindow parent;
};

TEST_F(ExportLeaks, AThousandDialogsLeaveNothing) {
    const size_t growth = leaks::heap_growth([&] { leaks::open_bare_file_dialog(parent.m_hWnd); });
    leaks::expect_no_growth([&] { run(); }, growth, leaks::kShownGdiSlack);
    EXPECT_EQ(cancelled, leaks::kTimes + leaks::kWarmUp);
    EXPECT_EQ(service.picks, cancelled);
    EXPECT_EQ(service.overrides, cancelled);
    EXPECT_EQ(host.pushes, host.pops);
}

}  // namespace
