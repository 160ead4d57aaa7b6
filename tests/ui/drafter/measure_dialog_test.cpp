// What the measure dialog tells of objects: at once of a few, and of many when they were drawn beside it.
#include <od_db_hatch.h>

#include "drafter_fixture.h"
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
    auto* const wide = new OdDbPolyline;
    wide->setVertices(OdArray<OdDbPolylineVertex>{{{0, 0}, 0, 4, 4}, {{25, 0}, 0, 4, 4}});
    addEntity(*drawing, wide);
    auto* const hatch = new OdDbHatch;
    addEntity(*drawing, hatch);
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
