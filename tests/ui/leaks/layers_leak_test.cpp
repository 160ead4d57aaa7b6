// The sample's panels of palettes and its measure dialog, a thousand times each.
#include "../../../samples/drafter/blocks_panel.h"
#include "../../../samples/drafter/layers_panel.h"
#include "../../../samples/drafter/measure_dialog.h"
#include "../../../samples/drafter/properties_panel.h"
#include "../../../samples/drafter/resource.h"
#include "leak_fixture.h"

namespace {

using namespace leaks;

using DialogLeaks = leaks::Leaks;

class OwnLayers : public CLayersPanel {
public:
    OwnLayers() : CLayersPanel([] {}) { SetAppRootKey((CString(kDialogsKey) + L"\\").GetString()); }
};

class OwnProperties : public CPropertiesPanel {
public:
    OwnProperties() : CPropertiesPanel([](UINT) {}) {
        SetAppRootKey((CString(kDialogsKey) + L"\\").GetString());
    }
};

/// Takes no blocks.
class NoTarget : public CBlockTarget {
    bool TakesBlockAt(CPoint) const override { return false; }
    void DropBlock(const OdDbObjectId&, CPoint) override {}
    void PlaceBlock(const OdDbObjectId&) override {}
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

/// Opens a panel a thousand times, shown and filled by `show`.
template <class Panel, class Show>
void expect_panels_leave_nothing(Panel& panel, UINT id, CWnd& parent, Show show) {
    int opened = 0;
    const size_t systemGrowth = heap_growth([&] { open_bare_dialog(parent.m_hWnd, id); });
    const auto open_once = [&] {
        ASSERT_TRUE(panel.Create(id, &parent));
        show();
        ui_test::pump();
        ++opened;
        panel.DestroyWindow();
    };
    expect_no_growth(open_once, systemGrowth, kShownGdiSlack);
    EXPECT_EQ(opened, kTimes + kWarmUp);
}

TEST_F(DialogLeaks, AThousandPanelsOfLayersLeaveNothing) {
    for (const wchar_t* name : {L"walls", L"doors"}) NeedLayer(*drawing, name);
    CUndoHistory history(drawing);
    OwnLayers panel;
    expect_panels_leave_nothing(panel, IDD_LAYERS_PANEL, parent, [&] {
        panel.Show(*drawing, history);
        panel.ShowWindow(SW_SHOW);
    });
}

TEST_F(DialogLeaks, AThousandPanelsOfPropertiesLeaveNothing) {
    OwnProperties panel;
    expect_panels_leave_nothing(panel, IDD_PROPERTIES_PANEL, parent, [&] {
        panel.Show(*drawing, {});
        panel.ShowWindow(SW_SHOW);
    });
}

TEST_F(DialogLeaks, AThousandPanelsOfBlocksLeaveNothing) {
    OdDbBlockTablePtr blocks;
    drawing->getBlockTable(blocks, OdDb::kForWrite);
    const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
    block->setName(L"Door");
    blocks->add(OdDbSymbolTableRecordPtr(block.get()));
    NoTarget target;
    CBlocksPanel panel(target);
    expect_panels_leave_nothing(panel, IDD_BLOCKS_PANEL, parent, [&] {
        panel.ShowWindow(SW_SHOW);
        panel.Show(*drawing);
    });
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
