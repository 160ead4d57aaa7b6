// The sample's layers and measure dialogs, a thousand times each.
#include "../../../samples/drafter/layers_panel.h"
#include "../../../samples/drafter/measure_dialog.h"
#include "../../../samples/drafter/resource.h"
#include "leak_fixture.h"

namespace {

using namespace leaks;

using DialogLeaks = leaks::Leaks;

class OwnLayers : public CLayersPanel {
public:
    OwnLayers() : CLayersPanel([] {}) { SetAppRootKey((CString(kDialogsKey) + L"\\").GetString()); }
};

class OwnMeasure : public CMeasureDialog {
public:
    OwnMeasure(OdDbDatabase& drawing, CDrawingPicker& picker, CWnd* parent)
        : CMeasureDialog(drawing, picker, parent) {
        SetAppRootKey((CString(kDialogsKey) + L"\\").GetString());
    }
};

/// Picks at once, without a view.
class QuickPicker : public CDrawingPicker {
    void PickPlaces(std::size_t count, unsigned, PlacesPicked picked) override {
        picked(std::vector<OdGePoint2d>(count));
    }
    void PickObjects(unsigned, ObjectsPicked picked) override { picked(nullptr); }
};

TEST_F(DialogLeaks, AThousandLayersDialogsLeaveNothing) {
    for (const wchar_t* name : {L"walls", L"doors"}) NeedLayer(*drawing, name);
    CUndoHistory history(drawing);
    OwnLayers dialog;
    int opened = 0;
    const size_t systemGrowth = heap_growth([&] { open_bare_dialog(parent.m_hWnd, IDD_LAYERS_PANEL); });
    const auto open_once = [&] {
        ASSERT_TRUE(dialog.Create(IDD_LAYERS_PANEL, &parent));
        dialog.Show(*drawing, history);
        dialog.ShowWindow(SW_SHOW);
        ui_test::pump();
        ++opened;
        dialog.SendMessage(WM_COMMAND, IDCANCEL);
    };
    expect_no_growth(open_once, systemGrowth, kShownGdiSlack);
    EXPECT_EQ(opened, kTimes + kWarmUp);
}

TEST_F(DialogLeaks, AThousandMeasureDialogsLeaveNothing) {
    QuickPicker picker;
    int opened = 0;
    const size_t systemGrowth = heap_growth([&] { open_bare_dialog(parent.m_hWnd, IDD_MEASURE); });
    const auto open_once = [&] {
        OwnMeasure dialog(*drawing, picker, &parent);
        ui_test::later([&] {
            ++opened;
            dialog.PostMessage(WM_COMMAND, IDCANCEL);
        });
        ASSERT_EQ(dialog.DoModal(), IDCANCEL);
    };
    expect_no_growth(open_once, systemGrowth, kShownGdiSlack);
    EXPECT_EQ(opened, kTimes + kWarmUp);
}

}  // namespace
