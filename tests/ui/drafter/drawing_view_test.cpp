// The drawing view: what it shows after it was moved is what it shows when all is painted anew.
#include "../../../samples/drafter/drawing_view.h"

#include "drafter_fixture.h"

namespace {

class DrawingView : public ::testing::Test {
protected:
    DrawingView() {
        frame.CreateEx(0, AfxRegisterWndClass(0), L"view", WS_POPUP | WS_VISIBLE, CRect(100, 100, 420, 340),
                       nullptr, 0);
        view.CreateView(&frame, 1);
        view.MoveWindow(0, 0, 320, 240);
        Scene scene;
        for (int i = 0; i < 30; ++i) {
            ScenePath& path = scene.paths.emplace_back();
            path.points = {{-40.0 + 5 * i, -30.0}, {100.0 - 3 * i, 70.0 + i}};
            path.style.color.setRGB(255, 0, 0);
            if (i % 4 == 0) path.style.dashes = {4, -2};
        }
        view.SetScene(std::move(scene), false);
        view.Zoom(2.5);
        view.UpdateWindow();
    }
    std::vector<COLORREF> pixels() {
        CClientDC dc(&view);
        CRect client;
        view.GetClientRect(&client);
        std::vector<COLORREF> all;
        for (int y = 0; y < client.bottom; ++y)
            for (int x = 0; x < client.right; ++x) all.push_back(dc.GetPixel(x, y));
        return all;
    }
    /// How many pixels change when all is painted anew.
    int pixelsThatDiffer() {
        view.UpdateWindow();
        const std::vector<COLORREF> shown = pixels();
        EXPECT_GT(std::count(shown.begin(), shown.end(), RGB(255, 0, 0)), 300);
        view.Invalidate();
        view.UpdateWindow();
        const std::vector<COLORREF> anew = pixels();
        int differing = 0;
        for (std::size_t i = 0; i < anew.size(); ++i) differing += anew[i] != shown[i];
        return differing;
    }

    CWnd frame;
    CDrawingView view;
};

TEST_F(DrawingView, MovedByKeysShowsAllOfWhatIsThere) {
    const OdGePoint2d before = view.FromPixel({160, 120});
    const std::vector<COLORREF> first = pixels();
    for (const WPARAM key : {VK_LEFT, VK_UP, VK_UP, VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_DOWN})
        view.SendMessage(WM_KEYDOWN, key);
    EXPECT_EQ(pixelsThatDiffer(), 0);
    EXPECT_NE(pixels(), first);
    const OdGePoint2d after = view.FromPixel({160, 120});
    EXPECT_NEAR((after.x - before.x) / (view.FromPixel({208, 120}).x - after.x), 2, 1e-9)
        << "two steps right";
    EXPECT_NEAR((after.y - before.y) / (view.FromPixel({160, 72}).y - after.y), 1, 1e-9) << "one step up";
}

TEST_F(DrawingView, DraggedWithTheMiddleButtonShowsAllOfWhatIsThere) {
    const OdGePoint2d held = view.FromPixel({100, 100});
    view.SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(100, 100));
    for (const CPoint at : {CPoint(103, 99), CPoint(120, 60), CPoint(30, 200), CPoint(31, 180)})
        view.SendMessage(WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_EQ(pixelsThatDiffer(), 0) << "the crosshair stands at the pointer";
    view.SendMessage(WM_MBUTTONUP, 0, MAKELPARAM(31, 180));
    EXPECT_EQ(view.ToPixel(held), CPoint(31, 180));
}

TEST_F(DrawingView, MovedWhileAPlaceIsPickedKeepsTheBandAtThePointer) {
    view.PickPlaces(2, [](bool) {});
    view.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(80, 80));
    view.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(200, 100));
    view.SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(200, 100));
    view.SendMessage(WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(230, 130));
    EXPECT_EQ(pixelsThatDiffer(), 0);
    view.SendMessage(WM_MBUTTONUP, 0, MAKELPARAM(230, 130));
    view.EndPicking(false);
}

TEST_F(DrawingView, AMoveThatWaitsToBePaintedIsNotMovedAgain) {
    view.SendMessage(WM_KEYDOWN, VK_LEFT);
    view.Invalidate();
    view.SendMessage(WM_KEYDOWN, VK_UP);
    EXPECT_EQ(pixelsThatDiffer(), 0);
}

}  // namespace
