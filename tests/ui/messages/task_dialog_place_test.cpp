// Where the toolkit's own task dialog comes up: in the middle of the work area of its parent's monitor.
#include "task_dialog_fixture.h"

using namespace ui_test;

namespace {

const CRect kWorkArea(150, 90, 950, 690);
std::vector<HWND> askedFor;

bool OneWorkArea(RECT* area, HWND window) {
    askedFor.push_back(window);
    *area = kWorkArea;
    return true;
}

class TaskDialogPlace : public OwnTaskDialog {
protected:
    TaskDialogPlace() {
        askedFor.clear();
        dialog.SetContent(L"body");
    }
    /// The window and the client area in screen coordinates.
    void Look(HWND parentWindow) {
        when_dialog(L"task", [&](HWND box) {
            ::GetWindowRect(box, &window);
            ::GetClientRect(box, &client);
            press(box, IDOK);
        });
        dialog.DoModal(parentWindow);
    }

    CRect window, client;
    ReplacedImport workArea{toolkit, "_Z15ktutGetWorkAreaP7tagRECTP6HWND__", &OneWorkArea};
};

}  // namespace

TEST_F(TaskDialogPlace, IsInTheMiddleOfAWorkAreaThatBeginsAnywhere) {
    ASSERT_TRUE(workArea.isThere());
    Look(parent.m_hWnd);
    const CSize frame = window.Size() - client.Size();
    EXPECT_EQ(window.left, kWorkArea.left + (kWorkArea.Width() - frame.cx - client.Width()) / 2);
    EXPECT_EQ(window.top, kWorkArea.top + (kWorkArea.Height() - frame.cy - client.Height()) / 2);
}

TEST_F(TaskDialogPlace, IsThatOfTheParentsMonitor) {
    Look(parent.m_hWnd);
    EXPECT_EQ(askedFor, std::vector<HWND>{parent.m_hWnd});
}

TEST_F(TaskDialogPlace, OneWithoutAParentAsksForTheFirstMonitor) {
    parent.DestroyWindow();
    Look(nullptr);
    EXPECT_EQ(askedFor, std::vector<HWND>{nullptr});
    EXPECT_TRUE(kWorkArea.PtInRect(window.CenterPoint()));
}
