// A draughtsman edits the layers beside the drawing, by mouse and by keys alone.
#include "journey_fixture.h"

using namespace journey;

namespace {

class LayersJourney : public Journey {
protected:
    LayersJourney() {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        OdDbLayerTablePtr table;
        drawing->getLayerTable(table);
        for (const wchar_t* name : {L"walls", L"doors"}) {
            const OdDbSymbolTableRecordPtr layer = table->newRecord();
            layer->setName(name);
            table->add(layer);
        }
        const auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        OdDbLine* const line = new OdDbLine;
        line->setEndPoint({100, 50, 0});
        space->appendOdDbEntity(line);
        line->setLayer(table->getAt(L"walls"));
        open(*drawing, L"layers.dxf");
    }
    HWND openLayers() { return dialog = drafter->openLayers(); }
    static OdDbLayerTableRecordPtr layerOf(OdDbDatabase& drawing, const wchar_t* name) {
        OdDbLayerTablePtr table;
        drawing.getLayerTable(table);
        return table->getAt(name).open<OdDbLayerTableRecord>();
    }
    std::wstring message() const { return textOf(item(dialog, IDC_MESSAGE)); }
    bool becomes(bool modified) const {
        return waitUntil(
            [&] { return (textOf(drafter->frame()).find(L'*') != std::wstring::npos) == modified; });
    }
    HWND dialog = nullptr;
};

TEST_F(LayersJourney, ByKeysAlone) {
    ASSERT_NE(openLayers(), nullptr);
    // The search box has the focus; the list comes next.
    drafter->type(L"wal");
    drafter->key(VK_TAB);
    ASSERT_TRUE(waitUntil([&] { return focusOf(dialog) == item(dialog, IDC_LAYER_LIST); }));
    picture("journey-layers-search");
    drafter->key(VK_HOME);
    drafter->key(VK_F2);
    drafter->type(L"facade");
    drafter->key(VK_RETURN);
    ASSERT_TRUE(becomes(true));
    // "facade" no longer fits what is searched for: the box is emptied.
    drafter->key('F', true);
    drafter->key(VK_HOME);
    drafter->key(VK_END, false, false, true);
    drafter->key(VK_DELETE);
    drafter->key(VK_TAB);
    drafter->key(VK_END);
    drafter->key(VK_SPACE);
    picture("journey-layers");
    drafter->key(VK_DELETE);
    EXPECT_EQ(message(), L"The layer facade is used by an object of the drawing.");
    drafter->key('N', false, true);
    drafter->type(L"roof");
    drafter->key(VK_RETURN);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(waitUntil([&] { return textOf(item(dialog, IDC_CURRENT_LAYER)) == L"Current layer: roof"; }));
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(waitUntil([&] { return focusOf(dialog) == drafter->view(); }))
        << "Escape goes to the drawing";
    EXPECT_TRUE(::IsWindowVisible(dialog));
    const OdDbDatabasePtr drawing = saved();
    ASSERT_TRUE(layerOf(*drawing, L"facade"));
    EXPECT_TRUE(layerOf(*drawing, L"facade")->isOff());
    EXPECT_FALSE(layerOf(*drawing, L"walls"));
    EXPECT_EQ(drawing->clayer(), layerOf(*drawing, L"roof")->objectId());
    EXPECT_EQ(firstOf(*drawing)->layer(), L"facade");
}

TEST_F(LayersJourney, ByMouseWithUndoBesideIt) {
    ASSERT_NE(openLayers(), nullptr);
    drafter->click(item(dialog, IDC_NEW_LAYER));
    drafter->type(L"roof");
    drafter->key(VK_RETURN);
    drafter->pickByMouse(item(dialog, IDC_TRUE_COLOR), L"Red");
    picture("journey-layers-mouse");
    ASSERT_TRUE(becomes(true));
    OdDbDatabasePtr drawing = saved();
    ASSERT_TRUE(layerOf(*drawing, L"roof"));
    EXPECT_EQ(layerOf(*drawing, L"roof")->colorIndex(), 1);
    EXPECT_TRUE(::IsWindowVisible(dialog)) << "it stays beside the drawing";
    drafter->activate(drafter->frame());
    for (int step = 0; step < 3; ++step) drafter->key('Z', true);
    EXPECT_TRUE(becomes(true));
    drawing = saved();
    EXPECT_FALSE(layerOf(*drawing, L"roof"));
    EXPECT_FALSE(layerOf(*drawing, L"Layer1"));
}

TEST_F(LayersJourney, AModalDialogKeepsTheUserFromIt) {
    ASSERT_NE(openLayers(), nullptr);
    const HWND properties = openByKey('1');
    ASSERT_NE(properties, nullptr);
    const HWND list = item(dialog, IDC_LAYER_LIST);
    drafter->click(list, {8, 34});
    EXPECT_NE(focusOf(dialog), list);
    drafter->activate(properties);
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(drafter->waitUntilGone(properties));
    drafter->click(list, {8, 34});
    EXPECT_TRUE(waitUntil([&] { return focusOf(dialog) == list; }));
}

TEST_F(LayersJourney, AnotherDrawingComesUnderIt) {
    ASSERT_NE(openLayers(), nullptr);
    drafter->activate(drafter->frame());
    drafter->key('N', true);
    ASSERT_TRUE(waitUntil([&] { return textOf(drafter->frame()).rfind(L"layers.dxf", 0) != 0; }));
    drafter->activate(dialog);
    drafter->click(item(dialog, IDC_NEW_LAYER));
    drafter->type(L"site");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(becomes(true));
    EXPECT_TRUE(drafter->isRunning());
    ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
    HWND question = nullptr;
    EXPECT_TRUE(waitUntil([&] {
        question = drafter->waitForDialog(L"");
        return question != nullptr && !::IsWindowEnabled(drafter->frame());
    }));
}

}  // namespace
