// The plot service keeps what an export needs, and says what it can't do.
#include <kh_plot_service.h>

#include "../../../platform/standin/resource.h"
#include "host_fixture.h"

namespace {

class PlotService : public ui_test::HostTest {
protected:
    CKhPlotSvr& plot() {
        return *static_cast<CKhPlotSvr*>(host.serviceManager()->getService(kKhPlotService));
    }
    KhExportSummary summary() {
        KhExportSummary found;
        found.multiSheet = found.layerInformation = found.mergeControl = 99;
        plot().getExportSummary(found);
        return found;
    }
    /// Opens the export options, turns the check boxes over, and answers with `answer`.
    void turnOver(std::initializer_list<int> checks, int answer) {
        ui_test::when_dialog(L"Export Options", [&](HWND dialog) {
            for (const int id : checks) ::SendDlgItemMessageW(dialog, id, BM_CLICK, 0, 0);
            ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(answer), 0);
        });
        plot().exportOptionsDialog();
    }
};

}  // namespace

TEST_F(PlotService, TheSummaryStartsWithTheStandards) {
    const KhExportSummary found = summary();
    EXPECT_TRUE(found.defaultLocation.isEmpty());
    EXPECT_EQ(found.multiSheet, 1);
    EXPECT_EQ(found.layerInformation, 1);
    EXPECT_EQ(found.mergeControl, 0);
    EXPECT_EQ(found.passwordPrompt, 0);
    EXPECT_EQ(found.blockInformation, 0);
    EXPECT_STREQ(found.summary.c_str(), L"DWF, all sheets in one file");
}

TEST_F(PlotService, EachOptionOfTheDialogIsKept) {
    const std::pair<int, int KhExportSummary::*> options[] = {
        {IDC_EXPORT_MULTI_SHEET, &KhExportSummary::multiSheet},
        {IDC_EXPORT_LAYERS, &KhExportSummary::layerInformation},
        {IDC_EXPORT_MERGE, &KhExportSummary::mergeControl}};
    for (const auto& [id, field] : options) {
        const KhExportSummary before = summary();
        turnOver({id}, IDOK);
        const KhExportSummary after = summary();
        for (const auto& [otherId, other] : options)
            EXPECT_EQ(after.*other != 0, otherId == id ? before.*other == 0 : before.*other != 0) << id;
    }
    EXPECT_EQ(stored(L"Export", L"MultiSheet"), 0);
    EXPECT_EQ(stored(L"Export", L"Merge"), 1);
}

TEST_F(PlotService, CancelKeepsNothing) {
    turnOver({IDC_EXPORT_MULTI_SHEET, IDC_EXPORT_MERGE}, IDCANCEL);
    EXPECT_EQ(summary().multiSheet, 1);
    EXPECT_EQ(summary().mergeControl, 0);
}

TEST_F(PlotService, TheSummaryNamesTheFormatAndTheFolder) {
    plot().setExportFormat(2, 0);
    turnOver({IDC_EXPORT_MULTI_SHEET}, IDOK);
    storeText(L"Export", L"Folder", L"C:\\Out");
    EXPECT_STREQ(summary().summary.c_str(), L"PDF, a file for each sheet");
    EXPECT_STREQ(summary().defaultLocation.c_str(), L"C:\\Out");
    plot().setExportFormat(1, 1);
    EXPECT_STREQ(summary().summary.c_str(), L"DWFx, a file for each sheet");
    for (const int none : {-1, 3}) plot().setExportFormat(none, 1);
    EXPECT_STREQ(summary().summary.c_str(), L"DWFx, a file for each sheet");
}

TEST_F(PlotService, SwitchesAndTheOverrideAreReadBack) {
    EXPECT_FALSE(plot().getFirstSwitch());
    EXPECT_FALSE(plot().getSecondSwitch());
    EXPECT_FALSE(plot().getOverride());
    plot().setFirstSwitch(true);
    EXPECT_TRUE(plot().getFirstSwitch());
    EXPECT_FALSE(plot().getSecondSwitch());
    plot().setSecondSwitch(true);
    EXPECT_TRUE(plot().getSecondSwitch());
    EXPECT_FALSE(plot().getOverride());
    plot().setOverride(true);
    EXPECT_TRUE(plot().getOverride());
    plot().setFirstSwitch(false);
    EXPECT_FALSE(plot().getFirstSwitch());
    EXPECT_TRUE(plot().getSecondSwitch());
}

TEST_F(PlotService, AreasOfModelAndLayoutsAreApart) {
    EXPECT_EQ(plot().getPlotArea(true), 0);
    EXPECT_EQ(plot().getPlotArea(false), 3);
    plot().setPlotArea(1, true);
    plot().setPlotArea(4, false);
    EXPECT_EQ(plot().getPlotArea(true), 1);
    EXPECT_EQ(plot().getPlotArea(false), 4);
    for (const int other : {-1, 3, 4}) plot().setPlotArea(other, true);
    for (const int other : {0, 2, 5}) plot().setPlotArea(other, false);
    EXPECT_EQ(plot().getPlotArea(true), 1);
    EXPECT_EQ(plot().getPlotArea(false), 4);
}

TEST_F(PlotService, AStoredAreaThatIsNoneCountsAsTheStandard) {
    host.profileStore()->setProfileInt(L"Export", L"ModelArea", 4, 0);
    host.profileStore()->setProfileInt(L"Export", L"LayoutArea", 1, 0);
    EXPECT_EQ(plot().getPlotArea(true), 0);
    EXPECT_EQ(plot().getPlotArea(false), 3);
}

TEST_F(PlotService, AWindowIsMissingUntilItIsPickedAndGivesWayWhenAreasArePrepared) {
    EXPECT_FALSE(plot().hasNoWindow());
    plot().setPlotArea(2, true);
    EXPECT_TRUE(plot().hasNoWindow());
    plot().prepareArea(false);
    EXPECT_TRUE(plot().hasNoWindow());
    plot().prepareArea(true);
    EXPECT_FALSE(plot().hasNoWindow());
    EXPECT_EQ(plot().getPlotArea(true), 0);
    plot().setPlotArea(1, true);
    plot().prepareArea(true);
    EXPECT_EQ(plot().getPlotArea(true), 1);
}

TEST_F(PlotService, WithoutAViewNoWindowCanBePicked) {
    EXPECT_NE(messageOf([&] { plot().pickWindow(); }).Find(L"can't be picked"), -1);
    plot().setPlotArea(2, true);
    EXPECT_TRUE(plot().hasNoWindow());
}
