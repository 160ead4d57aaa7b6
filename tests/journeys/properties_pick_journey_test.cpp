// A draughtsman picks in the drawing for the properties dialog: other objects to edit, and a rotation.
#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kStatusBar = 0xE801;

class PropertiesPick : public Journey {
protected:
    /// A text at the left and a line at the right.
    PropertiesPick() {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        const auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        OdDbText* const text = new OdDbText;
        text->setTextString(L"TURN");
        text->setHeight(10);
        space->appendOdDbEntity(text);
        OdDbLine* const line = new OdDbLine;
        line->setStartPoint({100, 0, 0});
        line->setEndPoint({200, 40, 0});
        space->appendOdDbEntity(line);
        open(*drawing, L"properties_pick.dxf");
    }
    bool isAway() const {
        return waitUntil(
            [this] { return !::IsWindowVisible(dialog) && ::IsWindowEnabled(drafter->frame()); });
    }
    bool isBack() const {
        return waitUntil(
            [this] { return ::IsWindowVisible(dialog) && !::IsWindowEnabled(drafter->frame()); });
    }
    std::wstring prompt() const { return textOf(::GetDlgItem(drafter->frame(), kStatusBar)); }
    std::wstring rotation() const { return textOf(item(dialog, IDC_ROTATION)); }
    HWND dialog = nullptr;
};

TEST_F(PropertiesPick, ByMouseARotationIsPickedAndWritten) {
    ASSERT_NE(dialog = openOnAll(), nullptr);
    const std::wstring idle = prompt();
    drafter->click(item(dialog, IDC_PICK_ROTATION));
    ASSERT_TRUE(isAway());
    EXPECT_TRUE(waitUntil([&] { return prompt() != idle; })) << "the status line says what to pick";
    const std::wstring first = prompt();
    drafter->click(drafter->view(), {200, 300});
    EXPECT_TRUE(waitUntil([&] { return prompt() != first; }));
    drafter->hover(drafter->view(), {240, 240});
    picture("journey-properties-pick");
    drafter->click(drafter->view(), {200, 100});
    ASSERT_TRUE(isBack());
    EXPECT_EQ(rotation().rfind(L"90", 0), 0u) << "straight up";
    picture("journey-properties-picked");
    ok(dialog);
    const OdDbDatabasePtr drawing = saved();
    const auto* text = dynamic_cast<const OdDbText*>(firstOf(*drawing));
    ASSERT_NE(text, nullptr);
    EXPECT_NEAR(text->rotation(), 1.5708, 1e-3);
}

TEST_F(PropertiesPick, ByKeysOtherObjectsAreSelected) {
    drafter->activate(drafter->frame());
    ASSERT_NE(dialog = drafter->openProperties(), nullptr);
    EXPECT_EQ(textOf(dialog), L"Properties - current settings");
    drafter->key('O', false, true);
    drafter->key(VK_SPACE);
    ASSERT_TRUE(isAway());
    drafter->key('A', true);
    drafter->key(VK_RETURN);
    ASSERT_TRUE(isBack());
    EXPECT_EQ(textOf(dialog), L"Properties - 2 objects");
    drafter->replaceText(item(dialog, IDC_LINETYPE_SCALE), L"3");
    ok(dialog);
    const OdDbDatabasePtr drawing = saved();
    for (const OdDbEntity* each : entitiesOf(*drawing)) EXPECT_EQ(each->linetypeScale(), 3);
}

TEST_F(PropertiesPick, EscapeAndClosingGiveUpAndLeaveWhatWasShown) {
    ASSERT_NE(dialog = openOnAll(), nullptr);
    const std::wstring before = rotation();
    drafter->click(item(dialog, IDC_PICK_ROTATION));
    ASSERT_TRUE(isAway());
    drafter->click(drafter->view(), {200, 300});
    drafter->key(VK_ESCAPE);
    ASSERT_TRUE(isBack());
    EXPECT_EQ(rotation(), before);
    drafter->click(item(dialog, IDC_SELECT_OBJECTS));
    ASSERT_TRUE(isAway());
    drafter->key(VK_ESCAPE);
    ASSERT_TRUE(isBack());
    EXPECT_EQ(textOf(dialog), L"Properties - 2 objects");
    drafter->click(item(dialog, IDC_PICK_ROTATION));
    ASSERT_TRUE(isAway());
    ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
    ASSERT_TRUE(isBack());
    EXPECT_EQ(rotation(), before);
    EXPECT_TRUE(drafter->isRunning());
    cancel(dialog);
    EXPECT_EQ(textOf(drafter->frame()).find(L'*'), std::wstring::npos);
}

TEST_F(PropertiesPick, AWindowSwitchMeanwhileDoesNoHarm) {
    ASSERT_NE(dialog = openOnAll(), nullptr);
    drafter->click(item(dialog, IDC_PICK_ROTATION));
    ASSERT_TRUE(isAway());
    HWND other = ::CreateWindowExW(0, L"STATIC", L"another program", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 700,
                                   600, 200, 100, nullptr, nullptr, nullptr, nullptr);
    drafter->activate(other);
    drafter->activate(drafter->frame());
    ::DestroyWindow(other);
    drafter->click(drafter->view(), {200, 300});
    drafter->click(drafter->view(), {300, 300});
    ASSERT_TRUE(isBack());
    EXPECT_EQ(rotation().rfind(L"0", 0), 0u);
    cancel(dialog);
}

}  // namespace
