// A draughtsman works with the picker bar of the frame, by mouse and by keys alone.
#include <windows.h>
#include <commctrl.h>

#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kBar = 0xE805, kToolBars = 0xE81B;

class PickerBarJourney : public Journey {
protected:
    PickerBarJourney() {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        const auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        for (int i = 0; i < 2; ++i) {
            OdDbLine* const line = new OdDbLine;
            line->setStartPoint({0, i * 50.0, 0});
            line->setEndPoint({100, i * 50.0, 0});
            OdCmColor color;
            color.setColorIndex(i + 1);
            line->setColor(color);
            space->appendOdDbEntity(line);
        }
        OdDbLayerTablePtr layers;
        drawing->getLayerTable(layers, OdDb::kForWrite);
        const OdSmartPtr<OdDbLayerTableRecord> layer(new OdDbLayerTableRecord);
        layer->setName(L"walls");
        layers->add(OdDbSymbolTableRecordPtr(layer.get()));
        open(*drawing, L"picker_bar.dxf");
    }
    HWND picker(int id) { return item(item(drafter->frame(), kBar), id); }
    static std::wstring shown(HWND combo) {
        return ::SendMessageW(combo, CB_GETCURSEL, 0, 0) < 0 ? L"none" : currentEntry(combo);
    }
    void selectAll() {
        drafter->activate(drafter->frame());
        drafter->key('A', true);
    }
};

TEST_F(PickerBarJourney, ByMouseItFollowsTheSelectionAndActsOnIt) {
    ASSERT_NE(picker(IDC_TRUE_COLOR), nullptr);
    EXPECT_EQ(shown(picker(IDC_TRUE_COLOR)), L"ByLayer");
    selectAll();
    EXPECT_TRUE(waitUntil([&] { return shown(picker(IDC_TRUE_COLOR)) == L"none"; }));
    picture("journey-picker-bar");
    drafter->pickByMouse(picker(IDC_TRUE_COLOR), L"blue");
    EXPECT_TRUE(waitUntil([&] { return textOf(drafter->frame()).find(L'*') != std::wstring::npos; }));
    EXPECT_EQ(shown(picker(IDC_TRUE_COLOR)), L"blue");
    const OdDbDatabasePtr drawing = saved();
    for (const OdDbEntity* each : entitiesOf(*drawing)) EXPECT_EQ(each->color().colorIndex(), 5);
    EXPECT_EQ(drawing->cecolor().colorIndex(), 256);
}

TEST_F(PickerBarJourney, ByKeysItSetsWhatNewObjectsGet) {
    drafter->activate(drafter->frame());
    drafter->click(picker(IDC_LINE_WEIGHT));
    drafter->key(VK_ESCAPE);
    drafter->pickByKeys(picker(IDC_LINE_WEIGHT), L"0.50 mm");
    EXPECT_TRUE(waitUntil([&] { return textOf(drafter->frame()).find(L'*') != std::wstring::npos; }));
    const OdDbDatabasePtr drawing = saved();
    EXPECT_EQ(drawing->celweight(), OdDb::kLnWt050);
    EXPECT_EQ(firstOf(*drawing)->lineWeight(), OdDb::kLnWtByLayer);
}

TEST_F(PickerBarJourney, ByKeysALayerIsSearchedForAndTaken) {
    ASSERT_NE(drafter->openLayers(), nullptr);
    drafter->key('N', false, true);
    drafter->type(L"facade");
    drafter->key(VK_RETURN);
    drafter->key(VK_ESCAPE);
    selectAll();
    drafter->key('F', true);
    drafter->type(L"FAC");
    picture("journey-search-box");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(waitUntil([&] { return shown(picker(IDC_LAYER)) == L"facade"; }));
    picture("journey-search-taken");
    const OdDbDatabasePtr drawing = saved();
    for (const OdDbEntity* each : entitiesOf(*drawing)) EXPECT_EQ(each->layer(), L"facade");
}

TEST_F(PickerBarJourney, InANarrowWindowTheSearchBoxIsInReachOfKeysAndMouse) {
    drafter->place(drafter->frame(), {20, 20, 330, 500});
    HWND box = picker(IDC_LAYER_SEARCH);
    const RECT bar = rectOf(item(drafter->frame(), kBar)), view = rectOf(drafter->view());
    for (const int id :
         {IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT, IDC_PLOT_STYLE, IDC_LAYER, IDC_LAYER_SEARCH}) {
        const RECT rect = rectOf(picker(id));
        EXPECT_TRUE(rect.left >= bar.left && rect.right <= bar.right && rect.top >= bar.top &&
                    rect.bottom <= bar.bottom)
            << id;
    }
    const RECT tools = rectOf(item(drafter->frame(), kToolBars)), tabs = rectOf(drafter->tabs());
    EXPECT_EQ(tools.bottom, bar.top) << "menu and toolbars stand above all rows";
    EXPECT_EQ(bar.bottom, tabs.top) << "and the drawing below them";
    EXPECT_EQ(tabs.bottom, view.top);
    selectAll();
    drafter->key('F', true);
    drafter->type(L"wal");
    picture("journey-narrow-search");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(waitUntil([&] { return shown(picker(IDC_LAYER)) == L"walls"; }));
    const int all = entryCount(picker(IDC_LAYER));
    drafter->click(box);
    drafter->type(L"none of them");
    EXPECT_TRUE(waitUntil([&] { return entryCount(picker(IDC_LAYER)) < all; }));
    // The cross at the end of the box empties it.
    const RECT rect = rectOf(box);
    drafter->click(box, {rect.right - rect.left - 12, (rect.bottom - rect.top) / 2});
    EXPECT_TRUE(waitUntil([&] { return entryCount(picker(IDC_LAYER)) == all; }));
    picture("journey-narrow-cleared");
}

TEST_F(PickerBarJourney, TheMenuHidesItAndTheViewTakesTheRoom) {
    const RECT before = rectOf(drafter->view());
    drafter->activate(drafter->frame());
    drafter->key('V', false, true);
    drafter->key('P');
    EXPECT_TRUE(waitUntil([&] { return rectOf(drafter->view()).top < before.top; }));
    EXPECT_FALSE(::IsWindowVisible(item(drafter->frame(), kBar)));
    drafter->key('V', false, true);
    drafter->key('P');
    EXPECT_TRUE(waitUntil([&] { return rectOf(drafter->view()).top == before.top; }));
}

}  // namespace
