// The toolkit's file dialog, opened and cancelled a thousand times.
#include <ktui/dialogs/kbui_file_dialog.h>

#include "leak_fixture.h"
#include "system_dialogs.h"

namespace {

using FileDialogLeaks = leaks::Leaks;

class FileChooser : public CKtUiFileDialog {
public:
    explicit FileChooser(CWnd* parent)
        : CKtUiFileDialog(TRUE, L"dxf", nullptr, OFN_HIDEREADONLY, L"Drawings|*.dxf||", parent) {
        m_ofn.lpstrTitle = leaks::kChooser;
    }
};

}  // namespace

TEST_F(FileDialogLeaks, AThousandFileDialogsLeaveNothing) {
    const size_t growth = leaks::heap_growth([&] { leaks::open_bare_file_dialog(parent); });
    int cancelled = 0;
    leaks::expect_no_growth(
        [&] {
            FileChooser dialog(&parent);
            leaks::cancel_when_shown();
            cancelled += dialog.DoModal() == IDCANCEL;
        },
        growth, leaks::kShownGdiSlack);
    EXPECT_EQ(cancelled, leaks::kTimes + leaks::kWarmUp);
}
