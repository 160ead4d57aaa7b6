// The sheet of save options, opened and closed a thousand times with both of its pages.
#include <ktui/nav/save_option_sheet.h>

#include "empty_page.h"
#include "leak_growth.h"
#include "open_drawing.h"

namespace {

TEST(SaveOptionLeaks, AThousandSheetsLeaveNothing) {
    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    ui_test::OpenDrawing open(host);
    int shown = 0;
    const size_t growth = leaks::heap_growth([&parent] { leaks::open_bare_sheet(parent, 0); });
    leaks::expect_no_growth(
        [&] {
            CSaveOptionSheet sheet(&parent);
            ui_test::when_dialog(L"Save As Options", [&shown](HWND window) {
                ::SendMessageW(window, PSM_SETCURSEL, 1, 0);
                ::PostMessageW(window, WM_COMMAND, ++shown % 2 ? IDOK : IDCANCEL, 0);
            });
            const INT_PTR result = sheet.DoModal();
            EXPECT_EQ(result, shown % 2 ? IDOK : IDCANCEL);
            open.document.calls.clear();
        },
        growth, leaks::kShownGdiSlack);
    EXPECT_EQ(shown, leaks::kTimes + leaks::kWarmUp);
}

}  // namespace
