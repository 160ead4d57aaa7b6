// A draughtsman loads, takes and deletes linetypes in the linetype manager behind the picker, by keys alone.
#include <windows.h>
#include <commctrl.h>

#include "../../platform/standin/resource.h"
#include "journey_fixture.h"
#include "own_program.h"

using namespace journey;

namespace {

class Linetypes : public Journey {
protected:
    Linetypes() : Journey(L"site_plan.dxf") {}

    /// Opens Properties on everything, and the manager behind its linetype picker.
    bool openManager() {
        drafter->activate(drafter->frame());
        drafter->key('A', true);
        properties = drafter->openProperties();
        if (properties == nullptr) return false;
        drafter->key('N', false, true);
        EXPECT_EQ(focusOf(properties), item(properties, IDC_LINETYPE));
        drafter->key(VK_F4);
        drafter->key(VK_HOME);  // without a current entry the first key goes to the first one
        drafter->key(VK_END);
        drafter->key(VK_RETURN);
        manager = drafter->waitForDialogOf(properties);
        return manager != nullptr;
    }
    bool openLoad() {
        drafter->key('O', false, true);
        load = drafter->waitForDialogOf(manager);
        return load != nullptr;
    }
    /// Confirms the dialog that has the focus by Enter.
    void enter(HWND dialog) {
        drafter->key(VK_RETURN);
        EXPECT_TRUE(drafter->waitUntilGone(dialog));
    }
    static int rowsOf(HWND dialog, int list) {
        return static_cast<int>(::SendMessageW(item(dialog, list), LVM_GETITEMCOUNT, 0, 0));
    }
    int rows() const { return rowsOf(manager, IDC_LINETYPE_LIST); }
    OdDbLinetypeTableRecordPtr linetypeIn(OdDbDatabase& drawing, const wchar_t* name) {
        OdDbLinetypeTablePtr table;
        drawing.getLinetypeTable(table);
        return table->has(name) ? table->getAt(name).open<OdDbLinetypeTableRecord>()
                                : OdDbLinetypeTableRecordPtr();
    }

    HWND properties = nullptr, manager = nullptr, load = nullptr;
};

TEST_F(Linetypes, OneFromTheProgramsFileIsLoadedTakenAndStored) {
    ASSERT_TRUE(openManager());
    const int before = rows();
    ASSERT_TRUE(openLoad());
    EXPECT_EQ(textOf(item(load, IDC_LOAD_FILE)), L"velmora_metric.lin");
    EXPECT_EQ(focusOf(load), item(load, IDC_LOAD_LIST));
    EXPECT_GT(rowsOf(load, IDC_LOAD_LIST), 20);
    drafter->type(L"CENTER_S");
    picture("journey-load-linetypes");
    enter(load);
    EXPECT_EQ(rows(), before + 1);
    picture("journey-linetype-loaded");
    enter(manager);
    EXPECT_EQ(currentEntry(item(properties, IDC_LINETYPE)), L"CENTER_SHORT");
    enter(properties);
    const OdDbDatabasePtr drawing = saved();
    for (const OdDbEntity* entity : entitiesOf(*drawing)) EXPECT_EQ(entity->linetype(), L"CENTER_SHORT");
    const auto record = linetypeIn(*drawing, L"CENTER_SHORT");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->numDashes(), 4);
    EXPECT_EQ(record->dashLengthAt(0), 19);
}

TEST_F(Linetypes, AnUnusedOneIsDeletedAlsoIfTheManagerIsCancelled) {
    ASSERT_TRUE(openManager());
    ASSERT_TRUE(openLoad());
    drafter->type(L"DOT_C");
    enter(load);
    const int loaded = rows();
    drafter->key('D', false, true);
    waitUntil([&] { return rows() == loaded - 1; });
    EXPECT_EQ(rows(), loaded - 1);
    ASSERT_TRUE(openLoad());
    drafter->type(L"DASHDOT");
    enter(load);
    EXPECT_EQ(rows(), loaded);
    cancel(manager);
    cancel(properties);
    const OdDbDatabasePtr drawing = saved();
    EXPECT_FALSE(linetypeIn(*drawing, L"DOT_CLOSE"));
    EXPECT_TRUE(linetypeIn(*drawing, L"DASHDOT")) << "what was loaded stays";
}

TEST_F(Linetypes, OneInUseIsNotDeletedAndTheReasonIsTold) {
    ASSERT_TRUE(openManager());
    const int before = rows();
    drafter->type(L"BOUNDARY");
    drafter->key(VK_DELETE);
    const std::wstring text = drafter->dismissMessage(manager);
    EXPECT_NE(text.find(L"BOUNDARY"), std::wstring::npos);
    EXPECT_NE(text.find(L"in use"), std::wstring::npos);
    EXPECT_EQ(rows(), before);
    drafter->key(VK_HOME);
    drafter->key('D', false, true);
    EXPECT_NE(drafter->dismissMessage(manager).find(L"ByLayer"), std::wstring::npos);
    EXPECT_EQ(rows(), before);
    cancel(manager);
    cancel(properties);
    EXPECT_TRUE(linetypeIn(*saved(), L"BOUNDARY"));
}

TEST_F(Linetypes, ADamagedFileIsToldWithItsLineAndWhatIsGoodIsListed) {
    const std::wstring file = scratchPath(L"journey damaged.lin");
    writeFile(file, "; lines\r\n*GOOD,Good __ _\r\nA,8,-2\r\n*BAD,Bad\r\nA,8,-x\r\n");
    ASSERT_TRUE(openManager());
    ASSERT_TRUE(openLoad());
    drafter->key('F', false, true);
    EXPECT_EQ(focusOf(load), item(load, IDC_LOAD_FILE));
    drafter->replaceText(item(load, IDC_LOAD_FILE), file);
    drafter->key(VK_RETURN);
    const std::wstring text = drafter->dismissMessage(load);
    EXPECT_NE(text.find(L"journey damaged.lin, line 5:"), std::wstring::npos);
    EXPECT_EQ(rowsOf(load, IDC_LOAD_LIST), 1);
    picture("journey-linetype-file-damaged");
    cancel(load);
    cancel(manager);
    cancel(properties);
    std::filesystem::remove(file);
}

}  // namespace
