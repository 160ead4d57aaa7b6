// The navigation file dialog over the platform's own, opened and ended a thousand times with everything that
// it can show: places, preview, open menu, hot keys, the list of files, and folders only. Every fifth is
// painted before it ends.
#include <ktui/nav/ktui_nav_dialog.h>

#include <ktut.h>

#include "leak_growth.h"
#include "sent_messages.h"
#include "system_dialogs.h"
#include "test_host.h"

namespace {

/// Keeps its recent files below `recent`.
class Dialog : public CKtUiNavDialog {
public:
    using CKtUiNavDialog::CKtUiNavDialog;
    CString recent;

    int GetRecentDirectory(CString& path) override {
        path = recent;
        return 1;
    }
};

class FileNavLeaks : public ::testing::Test {
protected:
    FileNavLeaks() {
        ktutSetProfileFileName(leaks::kDialogsKey);
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        folder = CString(temporary) + L"ktui nav leaks";
        ::CreateDirectoryW(folder, nullptr);
    }
    ~FileNavLeaks() override {
        ktutSetProfileFileName(nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, leaks::kDialogsKey);
        ::RemoveDirectoryW(folder + L"\\own");
        ::RemoveDirectoryW(folder);
    }
    void run(const std::function<void(CKtUiNavDialog&)>& prepare, bool isPainted) {
        CNavDataArray data;
        CNavFilterArray filters;
        CNavFilter* const filter = filters.AddData();
        filter->SetDescription(L"Drawing");
        filter->Add(L"*.dwg");
        Dialog dialog(data, filters);
        dialog.recent = folder;
        dialog.SetDialogName(L"own");
        dialog.SetDialogCaption(leaks::kChooser);
        dialog.SetForceInitialFolder(folder);
        prepare(dialog);
        isPainted ? endPainted(dialog) : endAtOnce(dialog);
    }
    void endPainted(CKtUiNavDialog& dialog) {
        ui_test::when_dialog(leaks::kChooser, [](HWND window) {
            // The list of files is watched from its first painting on.
            ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        });
        cancelled += dialog.DoModal() == IDCANCEL;
    }
    /// Ends the dialog as soon as it is shown.
    void endAtOnce(CKtUiNavDialog& dialog) {
        bool isEnded = false;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.message != WM_SHOWWINDOW || isEnded) return;
            if (ui_test::text_of(message.hwnd) != leaks::kChooser) return;
            isEnded = true;
            ::PostMessageW(message.hwnd, WM_COMMAND, IDCANCEL, 0);
        });
        cancelled += dialog.DoModal() == IDCANCEL;
    }
    int cancelled = 0;
    CString folder;
    ui_test::TestHost host;
    ui_test::ParentWindow parent;
};

using Prepare = void (*)(CKtUiNavDialog& dialog);
constexpr Prepare kKinds[] = {
    [](CKtUiNavDialog& dialog) {
        dialog.SetPreviewVisible(1);
        dialog.ConvertFlagsToState(0x4001000 | 0x8080);
    },
    [](CKtUiNavDialog& dialog) { dialog.SetCreatingFile(1); },
    [](CKtUiNavDialog& dialog) { dialog.SetFoldersOnly(1); },
};

TEST_F(FileNavLeaks, AThousandDialogsOfAllKindsLeaveNothing) {
    const size_t growth = leaks::heap_growth([&] { leaks::open_bare_file_dialog(parent.m_hWnd); });
    size_t next = 0;
    constexpr size_t kPaintEvery = 5;
    leaks::expect_no_growth(
        [&] {
            run(kKinds[next % std::size(kKinds)], next % kPaintEvery == 0);
            ++next;
        },
        growth, leaks::kShownGdiSlack);
    EXPECT_EQ(cancelled, leaks::kTimes + leaks::kWarmUp);
    EXPECT_EQ(host.pushes, host.pops);
}

}  // namespace
