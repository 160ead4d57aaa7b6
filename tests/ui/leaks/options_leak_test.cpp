// The sample's tabbed options dialog, a thousand times.
#include "../../../samples/drafter/options_dialog.h"
#include "../../../samples/drafter/resource.h"
#include "leak_fixture.h"

namespace {

using namespace leaks;

using OptionsLeaks = leaks::Leaks;

/// The sample's dialog with its settings apart from the user's.
class Options : public COptionsDialog {
public:
    explicit Options(CWnd* parent)
        : COptionsDialog(
              {}, [](const DrafterOptions&) {}, nullptr, parent) {
        SetAppRootKey((CString(kDialogsKey) + L"\\").GetString());
    }
};

TEST_F(OptionsLeaks, AThousandTabbedDialogsLeaveNothing) {
    const auto open_bare = [&] {
        for (const int id : {IDD_OPTIONS, IDD_OPTIONS_FILES, IDD_OPTIONS_DISPLAY, IDD_OPTIONS_UNITS})
            open_bare_dialog(parent.m_hWnd, id);
    };
    const size_t systemGrowth = heap_growth(open_bare);
    int opened = 0;
    const auto open_once = [&] {
        Options dialog(&parent);
        // In turn confirmed and cancelled, each on another page.
        const int answer = ++opened % 2 ? IDOK : IDCANCEL;
        ui_test::later([&] {
            dialog.GetTabControl()->SetActiveTab(opened % 3);
            dialog.PostMessage(WM_COMMAND, static_cast<WPARAM>(answer));
        });
        ASSERT_EQ(dialog.DoModal(), answer);
    };
    expect_no_growth(open_once, systemGrowth, kShownGdiSlack);
    EXPECT_EQ(opened, kTimes + kWarmUp);
}

}  // namespace
