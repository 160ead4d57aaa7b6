// Whose resolution decides about the size of a picture.
#include <algorithm>

#include "fake_resolution.h"
#include "picture_fixture.h"

namespace {

using namespace controls;

TEST(ScaledPicture, TheButtonsOwnResolutionIsAskedFor) {
    ui_test::RecordingHolder holder;
    OpenPicture<CKbUiBitmapButton> button;
    make(button, holder, L"SQUARE|&Square");
    const ui_test::FakeResolution resolution(144);
    auto& asked = ui_test::FakeResolution::asked();
    asked.clear();
    EXPECT_EQ(button.AutoLoad(), 1);
    EXPECT_GT(asked.size(), 0u);
    EXPECT_EQ(std::count(asked.begin(), asked.end(), button.m_hWnd),
              static_cast<std::ptrdiff_t>(asked.size()));
    button.DestroyWindow();
}

}  // namespace
