// Previews and icons that are read on threads of their own, a thousand times: shown, given up and left
// behind.
#include <ktui/nav/never_blocked.h>
#include <ktui/nav/thumbnail.h>
#include <ktui/nav/thumbnail_ctrl.h>

#include <atomic>
#include <filesystem>
#include <fstream>

#include "leak_growth.h"
#include "test_host.h"

namespace {

namespace fs = std::filesystem;

std::atomic<int> calls = 0, answers = 0;

HBITMAP provide(const wchar_t*, int, int) {
    ++calls;
    const HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 32, nullptr);
    ++answers;
    return bitmap;
}

class NeverBlockedLeaks : public ::testing::Test {
protected:
    NeverBlockedLeaks()
        : former(KtUiSetThumbnailProvider(&provide)), formerLimit(KtUiSetNeverBlocked(60000)) {
        std::ofstream(path) << "x";
    }
    ~NeverBlockedLeaks() override {
        KtUiSetNeverBlocked(formerLimit);
        KtUiSetThumbnailProvider(former);
        fs::remove(path);
    }
    const fs::path path = fs::temp_directory_path() / "ktui never blocked leaks.dwg";
    const KtUiThumbnailProvider former;
    const unsigned formerLimit;
    ui_test::TestHost host;
    ui_test::ParentWindow parent;
};

TEST_F(NeverBlockedLeaks, AThousandPreviewsLeaveNothingWhetherTheyAreWaitedForOrNot) {
    int next = 0;
    leaks::expect_no_growth([&] {
        CThumbnailCtrl pane;
        ASSERT_TRUE(pane.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 40, 40), &parent));
        pane.m_path = path.c_str();
        const int before = answers;
        pane.RedrawWindow();
        // Every other one goes while it is being read; its thread has answered before the next begins.
        if (++next % 2 == 0) pane.DestroyWindow();
        ASSERT_TRUE(ui_test::pump_until([&] { return answers > before; }));
        if (pane.m_hWnd != nullptr) ui_test::pump();
        pane.DestroyWindow();
    });
    EXPECT_EQ(calls, leaks::kTimes + leaks::kWarmUp);
}

}  // namespace
