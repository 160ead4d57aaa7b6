// The sample's dialogs of styles, a thousand times each, with their pickers filled and dropped.
#include "../../../samples/drafter/dimension_style_dialog.h"
#include "../../../samples/drafter/resource.h"
#include "../../../samples/drafter/text_style_dialog.h"
#include "leak_fixture.h"

namespace {

using namespace leaks;

/// One of the dialogs with its settings apart from the user's.
template <class Dialog>
class Apart : public Dialog {
public:
    Apart(OdDbDatabase& drawing, CWnd* parent) : Dialog(drawing, parent) {
        this->SetAppRootKey((CString(kDialogsKey) + L"\\").GetString());
    }
};

class StyleDialogLeaks : public Leaks {
protected:
    /// Opens the dialog a thousand times, drops one of its pickers, and answers in turn OK and Cancel.
    template <class Dialog>
    void open_and_close(int id, int picker) {
        int opened = 0;
        const size_t system_growth = heap_growth([&] { open_bare_dialog(parent.m_hWnd, id); });
        const auto open_once = [&] {
            Apart<Dialog> dialog(*drawing, &parent);
            const int answer = ++opened % 2 ? IDOK : IDCANCEL;
            ui_test::later([&] {
                CWnd* combo = dialog.GetDlgItem(picker);
                combo->SendMessage(CB_SHOWDROPDOWN, TRUE);
                combo->SendMessage(CB_SHOWDROPDOWN, FALSE);
                dialog.PostMessage(WM_COMMAND, static_cast<WPARAM>(answer));
            });
            ASSERT_EQ(dialog.DoModal(), answer);
        };
        expect_no_growth(open_once, system_growth, kShownGdiSlack);
        EXPECT_EQ(opened, kTimes + kWarmUp);
    }
};

TEST_F(StyleDialogLeaks, AThousandDimensionStyleDialogsLeaveNothing) {
    open_and_close<CDimensionStyleDialog>(IDD_DIMENSION_STYLE, IDC_FIRST_ARROW);
}

TEST_F(StyleDialogLeaks, AThousandTextStyleDialogsLeaveNothing) {
    open_and_close<CTextStyleDialog>(IDD_TEXT_STYLE, IDC_FONT);
}

}  // namespace
