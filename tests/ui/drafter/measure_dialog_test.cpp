// What the measure dialog tells of objects: at once of a few, and of many when they were drawn beside it.
#include "drafter_fixture.h"
#include "file_groups.h"
#include "heavy_drawing.h"
#include "../../../samples/drafter/measure_dialog.h"

namespace {

using namespace ui_test;

/// "Picks" objects by itself.
class Picker final : public CDrawingPicker {
public:
    void PickPlaces(std::size_t, unsigned, PlacesPicked picked) override { picked({}); }
    void PickObjects(unsigned, ObjectsPicked picked) override { picked(givesUp ? nullptr : &objects); }

    std::set<OdDbObjectId> objects;
    bool givesUp = false;
};

class MeasuredObjects : public DrafterTest {
protected:
    void selectAll() {
        for (const OdDbEntity* entity : drawing->modelSpaceId().open<OdDbBlockTableRecord>()->entities())
            picker.objects.insert(entity->objectId());
    }
    void pick() {
        dialog.SendMessage(WM_COMMAND, IDC_SELECT_OBJECTS,
                           reinterpret_cast<LPARAM>(item(dialog, IDC_SELECT_OBJECTS).m_hWnd));
    }
    CString shown(int id) { return text_of(item(dialog, id).m_hWnd); }
    CString length() { return shown(IDC_MEASURED_LENGTH); }

    Picker picker;
    WithOwnSettings<CMeasureDialog> dialog{*drawing, picker, &parent};
};

const wchar_t* const kNotYet = L"\x2026";

TEST_F(MeasuredObjects, AFewAreToldAtOnceAndOnlyThose) {
    addEntity(*drawing, newLine(0, 0, 30, 40));
    selectAll();
    auto* const circle = new OdDbCircle;
    circle->setRadius(10);
    addEntity(*drawing, circle);
    show(dialog, [this, circle] {
        pick();
        EXPECT_EQ(shown(IDC_MEASURED_COUNT), L"1");
        EXPECT_EQ(length(), L"50.0000");
        selectAll();
        pick();
        EXPECT_EQ(shown(IDC_MEASURED_COUNT), L"2");
        EXPECT_EQ(length(), L"112.8319") << "of a circle whole, and not of its chords";
        picker.givesUp = true;
        pick();
        EXPECT_EQ(length(), L"112.8319");
    });
}

TEST_F(MeasuredObjects, LinesOfHatchesAndTextsAndWidthsOfPolylinesAreNone) {
    // A square of ten with lines one unit apart.
    ASSERT_EQ(
        drawing->readDxfBytes(fileGroups(
            "0 SECTION|2 ENTITIES|0 HATCH|8 0|100 AcDbHatch|10 0|20 0|30 0|210 0|220 0|230 1|2 ANSI31|70 "
            "0|71 0|91 1|92 2|72 0|73 1|93 4|10 0|20 0|10 10|20 0|10 10|20 10|10 0|20 10|97 0|75 0|76 1|52 "
            "0|41 1|77 0|78 1|53 0|43 0|44 0|45 0|46 1|79 0|98 0|0 ENDSEC|0 EOF")),
        kOdOk);
    const Scene lines = BuildScene(*drawing, drawing->modelSpaceId());
    ASSERT_EQ(lines.paths.size(), 1u);
    EXPECT_FALSE(lines.paths[0].filled);
    auto* const wide = new OdDbPolyline;
    wide->setVertices(OdArray<OdDbPolylineVertex>{{{0, 0}, 0, 4, 4}, {{25, 0}, 0, 4, 4}});
    addEntity(*drawing, wide);
    addEntity(*drawing, newMeasuredText());
    selectAll();
    show(dialog, [this] {
        pick();
        EXPECT_EQ(shown(IDC_MEASURED_COUNT), L"3");
        EXPECT_EQ(length(), L"25.0000");
    });
}

TEST_F(MeasuredObjects, ManyAreDrawnBesideTheDialog) {
    fillWithLines(*drawing);
    selectAll();
    show(dialog, [this] {
        pick();
        EXPECT_EQ(shown(IDC_MEASURED_COUNT), L"6001");
        EXPECT_EQ(length(), kNotYet);
        EXPECT_TRUE(pump_until([this] { return length() != kNotYet; }, 60000));
        EXPECT_EQ(length(), L"600000.0000");
        // Another choice takes the place of one that isn't there yet.
        pick();
        picker.objects = {*picker.objects.begin()};
        pick();
        EXPECT_EQ(length(), L"100.0000");
        pump();
        EXPECT_EQ(length(), L"100.0000");
    });
}

TEST_F(MeasuredObjects, AChangeOfTheDrawingEndsItAndClosingToo) {
    fillWithoutEndSlowly(*drawing);
    selectAll();
    show(dialog, [this] {
        pick();
        EXPECT_EQ(length(), kNotYet);
        addEntity(*drawing, newLine(0, 0, 1, 1));
        EXPECT_EQ(length(), L"");
        pick();
        EXPECT_EQ(length(), kNotYet);
    });
}

TEST_F(MeasuredObjects, MoreThanIsEverDrawnHasNoLength) {
    fillWithoutEnd(*drawing);
    selectAll();
    show(dialog, [this] {
        pick();
        EXPECT_TRUE(pump_until([this] { return length() != kNotYet; }, 120000));
        EXPECT_EQ(length(), L"Too many");
    });
}

}  // namespace
