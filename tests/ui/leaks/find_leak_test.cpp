// The find dialog opened and closed a thousand times, every fifth time painted and searched with by each
// walk. Three fifths of the time of an opening are Wine's for the windows alone.
#include <ktdsres/find_file_ids.h>
#include <ktui/nav/find_file_dialog.h>
#include <ktui/nav/find_file_walk.h>

#include <commctrl.h>
#include <ktut.h>

#include "leak_growth.h"
#include "sent_messages.h"
#include "test_host.h"

namespace {

class FindLeaks : public ::testing::Test {
protected:
    FindLeaks() {
        ktutSetProfileFileName(leaks::kDialogsKey);
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        folder.Format(L"%sktui find leaks %lu\\", temporary, ::GetCurrentProcessId());
        ::CreateDirectoryW(folder, nullptr);
        for (const wchar_t* name : kFiles)
            ::CloseHandle(::CreateFileW(folder + name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
    ~FindLeaks() override {
        KtUiSetFindFileWalk(kKtUiFindSettled);
        for (const wchar_t* name : kFiles) ::DeleteFileW(folder + name);
        ::RemoveDirectoryW(folder);
        ktutSetProfileFileName(nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, leaks::kDialogsKey);
    }
    static bool isFindDialog(HWND window) { return ::GetDlgItem(window, IDC_FIND_RESULTS) != nullptr; }
    bool runDialog() {
        OdString chosenFolder, chosenFile;
        return ktuiFindFileDialog(L"Drawing\0*.dwg;*.dxf\0\0", 1, folder, chosenFolder, chosenFile);
    }
    /// Opens the dialog, searches by each walk, and chooses the first file.
    void search() {
        ui_test::when_window(&isFindDialog, [](HWND window) {
            for (const KTUI_FIND_FILE_WALK walk : {kKtUiFindSettled, kKtUiFindOnce}) {
                KtUiSetFindFileWalk(walk);
                ::SendMessageW(window, WM_COMMAND, IDC_FIND_START, 0);
                EXPECT_TRUE(ui_test::pump_until(
                    [&] { return ::IsWindowEnabled(::GetDlgItem(window, IDC_FIND_START)) != FALSE; }));
            }
            ::SendMessageW(window, WM_COMMAND, IDOK, 0);
        });
        EXPECT_TRUE(runDialog());
        ++searched;
    }
    /// Opens the dialog and cancels it as soon as it is shown.
    void open() {
        bool isCancelled = false;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.message != WM_SHOWWINDOW || isCancelled || !isFindDialog(message.hwnd)) return;
            isCancelled = true;
            ::PostMessageW(message.hwnd, WM_COMMAND, IDCANCEL, 0);
        });
        EXPECT_FALSE(runDialog());
        EXPECT_TRUE(isCancelled);
    }
    /// The same windows by the system alone, of which this Wine keeps a little for some.
    void runBare() {
        const HINSTANCE library = ::GetModuleHandleW(L"ktdsres.dll");
        const auto procedure = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return 0; };
        const HWND dialog =
            ::CreateDialogParamW(library, MAKEINTRESOURCEW(IDD_FIND_FILE), parent, procedure, 0);
        for (const int page : {IDD_FIND_NAME_PAGE, IDD_FIND_DATE_PAGE})
            ::CreateDialogParamW(library, MAKEINTRESOURCEW(page), dialog, procedure, 0);
        ::CreateWindowExW(0, STATUSCLASSNAMEW, nullptr, WS_CHILD, 0, 0, 0, 0, dialog, nullptr, nullptr,
                          nullptr);
        for (int tip = 0; tip < 4; ++tip)
            ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, dialog,
                              nullptr, nullptr, nullptr);
        ::ShowWindow(dialog, SW_SHOW);
        ui_test::pump();
        ::DestroyWindow(dialog);
    }
    static constexpr const wchar_t* kFiles[] = {L"a.dwg", L"b.dxf"};
    int searched = 0;
    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    CString folder;
};

TEST_F(FindLeaks, AThousandDialogsAndTheirSearchesLeaveNothing) {
    constexpr int kSearchEvery = 5;
    const size_t systemGrowth = leaks::heap_growth([&] { runBare(); });
    int opened = 0;
    leaks::expect_no_growth([&] { opened++ % kSearchEvery == 0 ? search() : open(); }, systemGrowth,
                            leaks::kShownGdiSlack);
    EXPECT_EQ(searched, (leaks::kTimes + leaks::kWarmUp) / kSearchEvery);
    EXPECT_EQ(host.pushes, host.pops);
}

}  // namespace
