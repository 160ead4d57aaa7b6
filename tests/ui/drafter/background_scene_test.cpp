// A heavy drawing is drawn by a thread: the window answers meanwhile, Escape and changes end it, and so does
// closing.
#include "drafter_fixture.h"
#include "file_groups.h"
#include "heavy_drawing.h"
#include "measuring_gate.h"
#include "pictures/scene_picture.h"
#include "test_desk.h"

namespace {

using namespace ui_test;

class BackgroundScene : public DrafterTest {
protected:
    BackgroundScene() : frame(new CMDIFrameWndEx), desk(host, *frame) {
        EXPECT_TRUE(
            frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 620, 520)));
        desk.sceneOptions = [this](bool inBackground) {
            inBackgroundAsked += inBackground;
            return gate.options();
        };
    }
    ~BackgroundScene() override {
        gate.open();
        frame->DestroyWindow();
    }

    CDrawingWindow& open(void (*fill)(OdDbDatabase&)) {
        auto document = std::make_unique<CDraftDocument>();
        if (fill != nullptr) fill(*document->database());
        document->history().MarkSaved();
        auto* const made = new CDrawingWindow(desk, std::move(document), 1);
        EXPECT_TRUE(made->Open(*frame));
        pump();
        return *made;
    }
    /// Opens a drawing and waits until the thread that draws it stands at the gate.
    CDrawingWindow& openHeld(void (*fill)(OdDbDatabase&), int held = 1) {
        gate.shut();
        CDrawingWindow& made = open(fill);
        EXPECT_TRUE(made.IsBuilding());
        EXPECT_TRUE(pump_until([&] { return gate.holds(held); }));
        return made;
    }
    static bool finish(const CDrawingWindow& window) {
        return pump_until([&] { return !window.IsBuilding(); }, 60000);
    }
    static std::vector<COLORREF> pixels(CDrawingWindow& window) {
        window.view().UpdateWindow();
        CClientDC dc(&window.view());
        CRect client;
        window.view().GetClientRect(&client);
        std::vector<COLORREF> all;
        for (int y = 0; y < client.bottom; y += 3)
            for (int x = 0; x < client.right; ++x) all.push_back(dc.GetPixel(x, y));
        EXPECT_EQ(std::count(all.begin(), all.end(), CLR_INVALID), 0);
        return all;
    }
    static int lit(CDrawingWindow& window) {
        const std::vector<COLORREF> all = pixels(window);
        return static_cast<int>(all.size() - std::count(all.begin(), all.end(), kDrawingPaper));
    }
    static OdDbEntity& first(CDrawingWindow& window) {
        return *window.drawing().modelSpaceId().open<OdDbBlockTableRecord>()->entities().front();
    }
    static void press(CDrawingWindow& window, WPARAM key) { window.view().SendMessage(WM_KEYDOWN, key, 1); }

    CMDIFrameWndEx* frame;
    MeasuringGate gate;
    TestDesk desk;
    int inBackgroundAsked = 0;
};

TEST_F(BackgroundScene, ASmallDrawingIsShownAtOnceAndByNoThread) {
    gate.shut();
    CDrawingWindow& window = open([](OdDbDatabase& made) {
        addEntity(made, newLine(0, 0, 100, 50));
        addEntity(made, newMeasuredText());
    });
    EXPECT_FALSE(window.IsBuilding());
    EXPECT_EQ(inBackgroundAsked, 0);
    EXPECT_EQ(desk.notice, L"");
    EXPECT_GT(lit(window), 50);
}

TEST_F(BackgroundScene, APictureThatHasToBeReadComesFromTheThread) {
    const auto blue = std::make_shared<ScenePicture>(1, 1, std::vector<PicturePixel>{0xFF0000FF});
    bool isUnpacked = false;
    desk.sceneOptions = [&](bool inBackground) {
        inBackgroundAsked += inBackground;
        SceneOptions options;
        options.picture = [&, inBackground](const OdString&) {
            isUnpacked = isUnpacked || inBackground;
            return FoundPicture{isUnpacked ? blue : nullptr, !isUnpacked};
        };
        return options;
    };
    auto document = std::make_unique<CDraftDocument>();
    ASSERT_EQ(
        document->database()->readDxfBytes(fileGroups(
            "0 SECTION|2 ENTITIES|0 IMAGE|8 0|100 AcDbRasterImage|10 0|20 0|30 0|11 1|21 0|31 0|12 0|22 1|32 "
            "0|13 40|23 30|340 D0|70 7|280 0|0 ENDSEC|0 SECTION|2 OBJECTS|0 IMAGEDEF|5 D0|330 0|100 "
            "AcDbRasterImageDef|1 a.png|0 ENDSEC|0 EOF")),
        kOdOk);
    auto* const window = new CDrawingWindow(desk, std::move(document), 1);
    ASSERT_TRUE(window->Open(*frame));
    EXPECT_TRUE(window->IsBuilding());
    ASSERT_TRUE(finish(*window));
    EXPECT_EQ(inBackgroundAsked, 1);
    const std::vector<COLORREF> shown = pixels(*window);
    EXPECT_GT(std::count(shown.begin(), shown.end(), RGB(0, 0, 255)), static_cast<long>(shown.size()) / 4);
    window->Refresh(true);
    EXPECT_FALSE(window->IsBuilding()) << "now it is there at once";
    EXPECT_EQ(inBackgroundAsked, 1);
}

TEST_F(BackgroundScene, WhileTheGateIsShutTheBeginningIsShownAndTheWindowAnswers) {
    CDrawingWindow& window = openHeld(fillWithLines);
    EXPECT_EQ(desk.notice.Left(10), L"Drawing...") << desk.notice.GetString();
    EXPECT_GE(desk.notice.Find(L"Escape"), 0);
    const int beginning = lit(window);
    EXPECT_GT(beginning, 1000) << "what could be drawn at once";
    const OdGePoint2d before = window.view().FromPixel({0, 0});
    press(window, VK_LEFT);
    EXPECT_NE(window.view().FromPixel({0, 0}).x, before.x);
    EXPECT_TRUE(pump_until([&] { return desk.notice.Find(L"99 %") >= 0; })) << "6000 of 6001 are drawn";
    EXPECT_TRUE(gate.holds(1));
    gate.open();
    ASSERT_TRUE(finish(window));
    EXPECT_EQ(desk.notice, L"");
}

TEST_F(BackgroundScene, AtItsEndItIsShownWholeUnlessTheUserHasZoomed) {
    const auto farAway = [](OdDbDatabase& made) {
        fillWithLines(made);
        addEntity(made, newLine(0, 0, 1000, 900));
    };
    CDrawingWindow& window = openHeld(farAway);
    CRect client;
    window.view().GetClientRect(&client);
    EXPECT_FALSE(client.PtInRect(window.view().ToPixel({1000, 900})));
    gate.open();
    ASSERT_TRUE(finish(window));
    EXPECT_TRUE(client.PtInRect(window.view().ToPixel({1000, 900})));

    CDrawingWindow& other = openHeld(farAway);
    other.view().Zoom(2);
    const OdGePoint2d corner = other.view().FromPixel({0, 0});
    gate.open();
    ASSERT_TRUE(finish(other));
    EXPECT_EQ(other.view().FromPixel({0, 0}).x, corner.x);
    EXPECT_EQ(other.view().FromPixel({0, 0}).y, corner.y);
}

TEST_F(BackgroundScene, EscapeStopsItAndSaysSo) {
    CDrawingWindow& window = openHeld(fillWithoutEnd);
    const std::set<OdDbObjectId> chosen = {first(window).objectId()};
    window.view().SetSelection(chosen);
    gate.open();
    press(window, VK_ESCAPE);
    EXPECT_FALSE(window.IsBuilding());
    EXPECT_EQ(desk.notice.Left(19), L"Drawing was stopped") << desk.notice.GetString();
    EXPECT_GT(lit(window), 50) << "what is there stays";
    EXPECT_EQ(window.view().selection(), chosen);
    press(window, VK_ESCAPE);
    EXPECT_TRUE(window.view().selection().empty()) << "afterwards it has its usual meaning";

    gate.shut();
    window.SendMessage(WM_COMMAND, ID_VIEW_REDRAW);
    EXPECT_TRUE(window.IsBuilding()) << "the rest is drawn when it is asked for";
    EXPECT_EQ(desk.notice.Left(10), L"Drawing...");
    gate.open();
    press(window, VK_ESCAPE);
}

TEST_F(BackgroundScene, EscapeWhileAPlaceIsPickedEndsThePickFirst) {
    CDrawingWindow& window = openHeld(fillWithoutEnd);
    bool isEnded = false;
    window.view().PickPlaces(1, [&](bool) { isEnded = true; });
    press(window, VK_ESCAPE);
    EXPECT_TRUE(isEnded);
    EXPECT_TRUE(window.IsBuilding());
    gate.open();
    press(window, VK_ESCAPE);
    EXPECT_FALSE(window.IsBuilding());
}

TEST_F(BackgroundScene, ClosingAWindowEndsIt) {
    CDrawingWindow& window = openHeld(fillWithoutEnd);
    gate.open();
    window.SendMessage(WM_CLOSE);
    EXPECT_EQ(frame->MDIGetActive(), nullptr);
    EXPECT_EQ(desk.left, 1);
}

TEST_F(BackgroundScene, ClosingTheProgramEndsIt) {
    openHeld(fillWithoutEnd);
    openHeld(fillWithoutEnd, 2);
    gate.open();
    frame->DestroyWindow();
    EXPECT_EQ(desk.activated, 2);
    frame = new CMDIFrameWndEx;
    EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 620, 520)));
}

TEST_F(BackgroundScene, AChangeEndsItFirstAndStartsItAnew) {
    CDrawingWindow& window = openHeld(fillWithoutEnd);
    EXPECT_EQ(inBackgroundAsked, 1);
    gate.open();
    first(window).setColorIndex(1);
    EXPECT_FALSE(window.IsBuilding()) << "nobody reads what is changing";
    gate.shut();
    ASSERT_TRUE(pump_until([&] { return window.IsBuilding(); })) << "though nobody asked for it";
    EXPECT_EQ(inBackgroundAsked, 2);
    ASSERT_TRUE(pump_until([this] { return gate.holds(1); }));
    gate.open();
    window.FinishChange(L"Color");
    gate.shut();
    EXPECT_TRUE(window.IsBuilding());
    EXPECT_EQ(inBackgroundAsked, 3);
    gate.open();
    window.SendMessage(WM_COMMAND, ID_EDIT_UNDO);
    EXPECT_EQ(inBackgroundAsked, 4);
    pump();
    EXPECT_EQ(inBackgroundAsked, 4) << "it is asked for once";
    press(window, VK_ESCAPE);
    EXPECT_TRUE(first(window).color().isByLayer());
}

TEST_F(BackgroundScene, UntilAChangeIsDrawnTheFormerPictureStays) {
    CDrawingWindow& window = open(fillWithLines);
    ASSERT_TRUE(finish(window));
    const std::vector<COLORREF> former = pixels(window);
    const CPoint onLine = window.view().ToPixel({100, 50});
    gate.shut();
    for (OdDbEntity* each : window.drawing().modelSpaceId().open<OdDbBlockTableRecord>()->entities())
        if (dynamic_cast<OdDbLine*>(each) != nullptr) each->erase();
    addEntity(window.drawing(), newLine(0, 0, 200, 100));
    for (int i = 0; i < 6000; ++i) addEntity(window.drawing(), newLine(0, 0, 0, 1));
    addEntity(window.drawing(), newMeasuredText());
    window.FinishChange(L"Erase");
    ASSERT_TRUE(window.IsBuilding());
    ASSERT_TRUE(pump_until([this] { return gate.holds(1); }));
    EXPECT_EQ(pixels(window), former);
    window.view().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(onLine.x, onLine.y));
    window.view().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(onLine.x, onLine.y));
    EXPECT_TRUE(window.view().selection().empty()) << "what is erased can't be selected";
    gate.open();
    ASSERT_TRUE(finish(window));
    EXPECT_NE(pixels(window), former);
    EXPECT_LT(lit(window), static_cast<int>(former.size()) / 4);
}

TEST_F(BackgroundScene, AnOldSceneThatArrivesLateIsNotTaken) {
    CDrawingWindow& window = open(nullptr);
    fillWithLines(window.drawing());
    window.FinishChange(L"Lines");
    ASSERT_TRUE(window.IsBuilding());
    // Its message waits while the next one is begun.
    ASSERT_TRUE(::MsgWaitForMultipleObjects(0, nullptr, FALSE, 60000, QS_POSTMESSAGE) == WAIT_OBJECT_0);
    gate.shut();
    window.Refresh(true);
    pump();
    EXPECT_TRUE(window.IsBuilding());
    gate.open();
    EXPECT_TRUE(finish(window));
}

}  // namespace
