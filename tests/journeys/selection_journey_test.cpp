// A draughtsman selects by windows, to the right and to the left, by mouse and by keys alone.
#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kStatusBar = 0xE801;
constexpr int kSelectionPane = 2;

class Selection : public Journey {
protected:
    /// Three level lines below each other in the left half, a circle in the right half.
    Selection() {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        const auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        for (const double y : {0.0, 20.0, 40.0}) {
            OdDbLine* const line = new OdDbLine;
            line->setStartPoint({0, y, 0});
            line->setEndPoint({60, y, 0});
            space->appendOdDbEntity(line);
        }
        OdDbCircle* const circle = new OdDbCircle;
        circle->setCenter({100, 20, 0});
        circle->setRadius(15);
        space->appendOdDbEntity(circle);
        open(*drawing, L"selection.dxf");
        drafter->activate(drafter->frame());
    }
    /// The pixel of a place in the drawing, which fills the view in its width: 0 to 115, with a margin.
    POINT at(double x, double y) const {
        RECT client = {};
        ::GetClientRect(drafter->view(), &client);
        const double scale = kMargin * client.right / 115;
        return {static_cast<LONG>(client.right / 2.0 + (x - 57.5) * scale),
                static_cast<LONG>(client.bottom / 2.0 - (y - 20) * scale)};
    }
    /// What the title of Properties says of the selection.
    std::wstring selected() {
        HWND dialog = drafter->openProperties();
        const std::wstring title = textOf(dialog);
        drafter->key(VK_ESCAPE);
        drafter->waitUntilGone(dialog);
        EXPECT_TRUE(waitUntil([this] { return ::IsWindowEnabled(drafter->frame()) != FALSE; }));
        return title;
    }
    void drag(POINT from, POINT to, bool shift = false) { drafter->drag(drafter->view(), from, to, shift); }

    static constexpr double kMargin = 0.9;
};

TEST_F(Selection, ToTheRightAWindowTakesWhatIsInside) {
    drag(at(-3, 45), at(63, 15));
    EXPECT_EQ(selected(), L"Properties - 2 Lines");
    drag(at(-3, 45), at(30, -5));
    EXPECT_EQ(selected(), L"Properties - current settings") << "no line is wholly inside";
}

TEST_F(Selection, ToTheLeftAWindowTakesWhatItTouches) {
    drag(at(95, 45), at(55, 10));
    EXPECT_EQ(selected(), L"Properties - 3 objects") << "two lines and the circle";
    drag(at(30, 30), at(20, 10));
    EXPECT_EQ(selected(), L"Properties - Line");
}

TEST_F(Selection, WithShiftItAddsAndTakesAway) {
    drag(at(-3, 45), at(63, 35));
    drag(at(-3, 25), at(63, -5), true);
    EXPECT_EQ(selected(), L"Properties - 3 Lines");
    drag(at(-3, 25), at(63, -5), true);
    EXPECT_EQ(selected(), L"Properties - Line");
    drafter->click(drafter->view(), at(75, 45));
    EXPECT_EQ(selected(), L"Properties - current settings") << "a click beside everything selects nothing";
}

TEST_F(Selection, BothWindowsShowAndEscapeGivesUp) {
    drafter->click(drafter->view(), at(30, 0));
    drafter->press(drafter->view(), at(-3, 45));
    drafter->hover(drafter->view(), at(63, 15));
    picture("journey-select-window");
    drafter->key(VK_ESCAPE);
    drafter->release();
    EXPECT_EQ(selected(), L"Properties - Line") << "the selection is as before";
    drafter->press(drafter->view(), at(95, 45));
    drafter->hover(drafter->view(), at(55, 10));
    picture("journey-select-crossing");
    drafter->release();
    EXPECT_EQ(selected(), L"Properties - 3 objects");
}

TEST_F(Selection, ByKeysAlone) {
    drafter->key('A', true);
    EXPECT_EQ(selected(), L"Properties - 4 objects");
    drafter->key(VK_ESCAPE);
    EXPECT_EQ(selected(), L"Properties - current settings");
    // The keys move the pointer from where it is, ten pixels each.
    drafter->hover(drafter->view(), at(40, 30));
    drafter->key('W', true);
    drafter->key(VK_RETURN);
    for (int step = 0; step < 10; ++step) drafter->key(VK_DOWN);
    for (int step = 0; step < 2; ++step) drafter->key(VK_LEFT);
    picture("journey-select-keys");
    drafter->key(VK_RETURN);
    EXPECT_EQ(selected(), L"Properties - Line");
    drafter->key('W', true);
    drafter->key(VK_ESCAPE);
    EXPECT_EQ(selected(), L"Properties - Line") << "given up";
}

/// The tip of an object, once it has come up beside the pointer.
HWND shownTip() {
    HWND shown = nullptr;
    waitUntil([&] {
        for (HWND tip = nullptr;
             (tip = ::FindWindowExW(nullptr, tip, L"Quorvex Velmora tip", nullptr)) != nullptr;) {
            RECT place = {};
            ::GetWindowRect(tip, &place);
            if (::IsWindowVisible(tip) && place.left > 0 && place.right > place.left) shown = tip;
        }
        return shown != nullptr;
    });
    return shown;
}

TEST_F(Selection, AClickOnATipIsAClickOnWhatLiesBehindIt) {
    drafter->key('A', true);
    drafter->hover(drafter->view(), at(30, 40));
    HWND tip = shownTip();
    ASSERT_NE(tip, nullptr);
    RECT place = {};
    ::GetWindowRect(tip, &place);
    POINT inside = {place.left + 4, place.top + 4};
    ::ScreenToClient(drafter->view(), &inside);
    drafter->click(drafter->view(), inside);
    EXPECT_EQ(selected(), L"Properties - current settings") << "there was nothing behind it";
}

TEST_F(Selection, APressSoonAfterAnotherCountsLikeAnyOther) {
    drafter->key('A', true);
    const POINT beside = at(80, 45);
    const LPARAM place = MAKELPARAM(beside.x, beside.y);
    ::PostMessageW(drafter->view(), WM_LBUTTONDBLCLK, MK_LBUTTON, place);
    ::PostMessageW(drafter->view(), WM_LBUTTONUP, 0, place);
    EXPECT_EQ(selected(), L"Properties - current settings");
}

}  // namespace
