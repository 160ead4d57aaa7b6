// A drawing that nobody would wait for: the program answers while it is drawn, and stops or closes at once.
#include <windows.h>

#include "heavy_drawing.h"
#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kStatusBar = 0xE801;

class HeavyDrawing : public Journey {
protected:
    HeavyDrawing() {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        ui_test::fillWithoutEndSlowly(*drawing);
        open(*drawing, L"heavy.dxf");
    }
    std::wstring status() const { return textOf(item(drafter->frame(), kStatusBar)); }
    bool isDrawing() const { return status().starts_with(L"Drawing..."); }
    bool answers(HWND window) const {
        DWORD_PTR answer = 0;
        return ::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 20000, &answer) != 0;
    }
};

TEST_F(HeavyDrawing, TheProgramAnswersWhileItDrawsAndEscapeStops) {
    ASSERT_TRUE(waitUntil([this] { return isDrawing(); })) << odUtf8(status());
    EXPECT_NE(status().find(L"Escape"), std::wstring::npos);
    EXPECT_TRUE(answers(drafter->frame()));
    EXPECT_TRUE(answers(drafter->view()));
    const HWND properties = drafter->openProperties();
    ASSERT_NE(properties, nullptr);
    EXPECT_TRUE(isDrawing()) << "the dialog came up meanwhile";
    cancel(properties);
    ASSERT_TRUE(waitUntil([this] { return isDrawing(); })) << odUtf8(status());
    drafter->activate(drafter->frame());
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(waitUntil([this] { return status().starts_with(L"Drawing was stopped"); }))
        << odUtf8(status());
    drafter->key(VK_F5);
    EXPECT_TRUE(waitUntil([this] { return isDrawing(); })) << odUtf8(status());
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(waitUntil([this] { return status().starts_with(L"Drawing was stopped"); }))
        << odUtf8(status());
}

TEST_F(HeavyDrawing, TheProgramClosesWhileItDraws) {
    ASSERT_TRUE(waitUntil([this] { return isDrawing(); })) << odUtf8(status());
    const HWND frame = drafter->frame();
    drafter->activate(frame);
    drafter->key(VK_F4, false, true);
    EXPECT_TRUE(drafter->waitUntilGone(frame));
    EXPECT_EQ(drafter->exitCode(), 0u);
}

}  // namespace
